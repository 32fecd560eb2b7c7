#pragma once

#include "framework/core/Service.h"

#include <QObject>
#include <QStringList>

#include <memory>

class QMimeData;

namespace keltavlo {

// The system's clipboard. It reads the list of formats once per change, because a request takes seconds if
// the program that owns the clipboard hangs.
class CClipboard : public Service<CClipboard> {
public:
    CClipboard();

    // Returns the MIME types of the current contents.
    const QStringList& GetFormats() const { return formats; }
    // Returns the contents in that format, or nothing. Each call waits at most five seconds for the program
    // that owns the clipboard.
    QVariant GetData(const QString& format) const;
    // Offers the data to all programs until one of them offers its own.
    void SetData(std::unique_ptr<QMimeData> data);

private:
    void Learn();

    QStringList formats;
    QObject receiver; // receives the clipboard's signals
};

} // namespace keltavlo
