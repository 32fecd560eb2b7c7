#pragma once

#include <QObject>

#include <functional>

namespace keltavlo {

// An action that waits until the user is not in the middle of something: no dialog or menu is open, and no
// mouse button is down. It may open a dialog.
class IdleCall {
public:
    // The program's event loop must exist.
    explicit IdleCall(std::function<void()> wantedAction);

    // Runs the action once, after the current event or as soon as possible.
    void Request() { isRequested = true; }

private:
    void OnIdle();
    void Run();

    std::function<void()> action;
    bool isRequested = false;
    QObject receiver;
};

} // namespace keltavlo
