#include "framework/ui/IdleCall.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QThread>

#include <utility>

namespace keltavlo {

namespace {

bool IsUserBusy() {
    return QThread::currentThread()->loopLevel() > 1 || QApplication::activeModalWidget() ||
           QApplication::activePopupWidget() || QGuiApplication::mouseButtons() != Qt::NoButton;
}

} // namespace

// When the loop is about to block, no work is being done. A queued call runs next, outside that signal.
IdleCall::IdleCall(std::function<void()> wantedAction) : action(std::move(wantedAction)) {
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &receiver,
                         [this] { OnIdle(); });
}

void IdleCall::OnIdle() {
    if (isRequested && !IsUserBusy())
        QMetaObject::invokeMethod(
            &receiver, [this] { Run(); }, Qt::QueuedConnection);
}

void IdleCall::Run() {
    if (!IsUserBusy() && std::exchange(isRequested, false)) action();
}

} // namespace keltavlo
