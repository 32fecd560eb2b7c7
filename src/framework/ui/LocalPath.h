#pragma once

#include <QUrl>

#include <string>

namespace keltavlo {

// The path of a local file with the name's own bytes: QUrl::toLocalFile would replace those that are not
// UTF-8.
inline std::string LocalPathOf(const QUrl& url) {
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

} // namespace keltavlo
