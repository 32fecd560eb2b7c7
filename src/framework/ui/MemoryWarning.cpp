#include "framework/ui/MemoryWarning.h"

#include "framework/core/MemoryReserve.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/ui/MessageBoxes.h"

#include <QAbstractEventDispatcher>

#include <cstdio>

namespace keltavlo {

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

// Without the memory to start it, the next idle moment tries again.
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
