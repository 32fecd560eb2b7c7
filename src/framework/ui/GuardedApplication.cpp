#include "framework/ui/GuardedApplication.h"

#include "framework/core/MemoryReserve.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/UserInterface.h"
#include "framework/ui/MessageBoxes.h"

#include <QAbstractEventDispatcher>
#include <QEvent>

#include <cstdio>
#include <new>

namespace keltavlo {

namespace {

bool IsPaint(const QEvent& event) {
    return event.type() == QEvent::Paint || event.type() == QEvent::UpdateRequest;
}

} // namespace

// A close event that is ignored keeps its window open, whose documents may not be saved yet.
bool GuardedApplication::notify(QObject* receiver, QEvent* event) try {
    return QApplication::notify(receiver, event);
} catch (const std::bad_alloc&) {
    event->ignore();
    if (UserInterface* user = UserInterface::Find(); user && !IsPaint(*event)) user->ReportMemoryShortage();
    return false;
}

MemoryWarning::MemoryWarning() {
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Show(); });
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &timer, [this] { OnIdle(); });
}

void MemoryWarning::Raise() noexcept {
    raised = true;
    StartTimer();
}

// If there is no memory to start the timer, the next idle moment tries again.
void MemoryWarning::StartTimer() noexcept {
    try {
        timer.start(0);
    } catch (const std::bad_alloc&) {
    }
}

void MemoryWarning::OnIdle() noexcept {
    if (raised && !timer.isActive())
        StartTimer();
    else if (!raised && !shown)
        KeepMemoryReserve();
}

void MemoryWarning::Show() noexcept {
    raised = false;
    if (shown) return;
    shown = true;
    try {
        ShowMessageBox(LoadString(AFX_IDP_FAILED_MEMORY_ALLOC));
    } catch (const std::bad_alloc&) {
        std::fputs("keltavlo: not enough memory, not even for a message box\n", stderr);
    }
    shown = false;
}

} // namespace keltavlo
