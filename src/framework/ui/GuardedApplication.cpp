#include "framework/ui/GuardedApplication.h"

#include "framework/core/UserInterface.h"

#include <QEvent>

#include <new>

namespace keltavlo {

namespace {

bool IsPaint(const QEvent& event) {
    return event.type() == QEvent::Paint || event.type() == QEvent::UpdateRequest;
}

} // namespace

// An ignored close keeps its window, whose documents may not be saved yet.
bool GuardedApplication::notify(QObject* receiver, QEvent* event) try {
    return QApplication::notify(receiver, event);
} catch (const std::bad_alloc&) {
    event->ignore();
    if (UserInterface* user = UserInterface::Find(); user && !IsPaint(*event)) user->ReportMemoryShortage();
    return false;
}

} // namespace keltavlo
