#pragma once

#include <QApplication>
#include <QTimer>

namespace keltavlo {

// The toolkit's application, and the door that no lack of memory passes: an event whose handling runs out of
// memory counts as ignored, and the user is told. Paints do not tell: a view says so where its picture would
// be.
class GuardedApplication final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};

// Tells the user that memory ran out, in a message box that opens once the event under way is over.
// Everything that fails until then, or while the box is open, shares the one box.
class MemoryWarning {
public:
    MemoryWarning();
    void Raise() noexcept;

private:
    void StartTimer() noexcept;
    void OnIdle() noexcept;
    void Show() noexcept;

    QTimer timer; // made while there is memory
    bool raised = false;
    bool shown = false;
};

} // namespace keltavlo
