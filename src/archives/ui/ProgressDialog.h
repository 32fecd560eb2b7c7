#pragma once

#include "resources/ProgressWindow.h"

#include <QDialog>

class QProgressBar;

namespace keltavlo {

// The modeless window of a progress meter: a text above a bar. While it is open, the program handles only
// system events such as drawing, and no user input, because the work is not finished.
class ProgressDialog final : public QDialog, public ProgressWindow {
public:
    // Opens above the owner, which may be null.
    ProgressDialog(QWidget* owner, const QString& text, const Progress& progress);

    void SetPosition(std::int32_t position) override;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void WaitUntilDrawn();

    QProgressBar* bar; // child of this window
};

} // namespace keltavlo
