#pragma once

#include "framework/core/CCmdUI.h"

#include <QObject>

#include <functional>

class QEvent;
class QPoint;
class QWidget;

namespace keltavlo {

// Asks the user to point at a part of a window. The pointer changes, and the next click returns the menu
// item, tool or bar that it hits and has no other effect. Escape and every other key cancel.
class ContextHelp final : public QObject {
public:
    // Receives the command id of an item or the id of a bar; 0 for any other part of the window.
    using Answer = std::function<void(CommandId)>;

    ContextHelp(QWidget& askedWindow, Answer receiver);
    ~ContextHelp() override;

    void Begin();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void End();
    bool OnMouse(QWidget& hit, const QPoint& place, bool released);

    QWidget& window;
    Answer answer;
    bool asking = false;
};

} // namespace keltavlo
