#include "archives/ui/ProgressDialog.h"

#include "archives/ui/DialogUnits.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>
#include <QWindow>

namespace keltavlo {

namespace {

constexpr QSize sizeInUnits(212, 38);

void HandleSystemEvents() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

ProgressDialog::ProgressDialog(QWidget* owner, const QString& text, const Progress& progress)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint), bar(new QProgressBar(this)) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    bar->setTextVisible(false);
    bar->setRange(progress.minimum, progress.maximum);
    bar->setValue(progress.position);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(bar);
    setFixedSize(FromDialogUnits(*this, sizeInUnits).expandedTo(sizeHint()));
    qApp->installEventFilter(this);
    show();
    WaitUntilDrawn();
}

void ProgressDialog::SetPosition(std::int32_t position) {
    bar->setValue(position);
    HandleSystemEvents();
}

// Blocks closing a window and dropping files on it, which not every platform treats as user input.
bool ProgressDialog::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::Close:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        event->ignore();
        return true;
    default:
        return false;
    }
}

// Draws the window now, because the next update comes a second later.
void ProgressDialog::WaitUntilDrawn() {
    constexpr int patience = 100; // milliseconds
    const QDeadlineTimer deadline(patience);
    do HandleSystemEvents();
    while (!windowHandle()->isExposed() && !deadline.hasExpired());
    HandleSystemEvents();
}

} // namespace keltavlo
