#include "framework/ui/CClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>
#include <QVariant>

namespace keltavlo {

CClipboard::CClipboard() {
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &receiver, [this] { Learn(); });
    QTimer::singleShot(0, &receiver, [this] { Learn(); });
}

void CClipboard::Learn() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    formats = data ? data->formats() : QStringList();
}

QVariant CClipboard::GetData(const QString& format) const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data) return {};
    return format == u"application/x-qt-image" ? data->imageData() : data->data(format);
}

void CClipboard::SetData(std::unique_ptr<QMimeData> data) {
    QGuiApplication::clipboard()->setMimeData(data.release()); // takes ownership
}

} // namespace keltavlo
