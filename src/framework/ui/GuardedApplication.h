#pragma once

#include <QApplication>
#include <QTimer>

namespace keltavlo {

// The application object. It catches every std::bad_alloc that leaves an event handler: the event counts as
// ignored, and the user gets a message. Paint events get no message; the view shows a sentence in place of
// its picture.
class GuardedApplication final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};

// Tells the user that memory ran out, in a message box that opens after the current event. Everything that
// fails before that, or while the box is open, shares the box.
class MemoryWarning {
public:
    MemoryWarning();
    void Raise() noexcept;

private:
    void StartTimer() noexcept;
    void OnIdle() noexcept;
    void Show() noexcept;

    QTimer timer; // created while there is memory
    bool raised = false;
    bool shown = false;
};

} // namespace keltavlo
