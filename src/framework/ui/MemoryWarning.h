#pragma once

#include <QTimer>

namespace keltavlo {

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
