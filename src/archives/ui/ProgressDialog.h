#pragma once

#include "resources/ProgressWindow.h"

#include <QDialog>

class QProgressBar;

namespace keltavlo {

// The modeless window of a progress meter: a text above a bar. While it is there the program does what the
// system asks of its windows, such as drawing them, and nothing that the user asks of it: the work goes on in
// the middle of something.
class ProgressDialog final : public QDialog, public ProgressWindow {
public:
    // Shows itself over the owner, which may be null.
    ProgressDialog(QWidget* owner, const QString& text, const Progress& progress);

    void SetPosition(std::int32_t position) override;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void WaitUntilDrawn();

    QProgressBar* bar; // child of this window
};

} // namespace keltavlo
