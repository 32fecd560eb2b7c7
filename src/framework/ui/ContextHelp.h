#pragma once

#include "framework/core/CCmdUI.h"

#include <QObject>

#include <functional>

class QEvent;
class QPoint;
class QWidget;

namespace keltavlo {

// A question about a part of a window: the pointer changes, and the next click answers with the menu item,
// tool or bar that it hits, and does nothing else. Escape and every other key end the question without an
// answer.
class ContextHelp final : public QObject {
public:
    // The id of an item's command or of a bar; 0 for every other part of the window.
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
