#pragma once

#include "framework/core/Service.h"

#include <QObject>
#include <QStringList>

#include <memory>

class QMimeData;

namespace keltavlo {

// The system's clipboard. What it offers is learnt when it changes: to ask takes seconds when the program
// that owns it hangs, so nobody asks again.
class CClipboard : public Service<CClipboard> {
public:
    CClipboard();

    // The MIME types of what is offered.
    const QStringList& GetFormats() const { return formats; }
    // What is offered in that form, or nothing. One call waits at most five seconds for the owner.
    QVariant GetData(const QString& format) const;
    // From now on the data is offered, until another program offers its own.
    void SetData(std::unique_ptr<QMimeData> data);

private:
    void Learn();

    QStringList formats;
    QObject receiver; // of the clipboard's signals
};

} // namespace keltavlo
