#include "archives/ProgressMeter.h"

#include "framework/core/StringTable.h"
#include "res/StringIds.h"
#include "resources/Shell.h"

#include <ctime>

namespace keltavlo {

namespace {

constexpr std::int64_t longWork = 2; // seconds

// Read at every position, which the system's coarse clock is cheap enough for.
std::int64_t Now() {
    const ProgressClock* clock = ProgressClock::Find();
    return clock ? clock->GetSeconds() : std::int64_t{std::time(nullptr)};
}

} // namespace

ProgressMeter::ProgressMeter(std::int32_t first, std::int32_t last)
    : startTime(Now()), lastUpdate(startTime), minimum(first), maximum(last), position(first),
      text(LoadString(IDS_WORKING)) {}

ProgressMeter::~ProgressMeter() = default;

void ProgressMeter::SetText(unsigned stringId) {
    text = LoadString(stringId);
}

void ProgressMeter::SetPosition(std::int32_t newPosition) {
    const std::int64_t now = Now();
    position = newPosition;
    if (now - lastUpdate < 1) return;
    if (window)
        window->SetPosition(newPosition);
    else
        ShowIfLong(now - startTime, newPosition);
    lastUpdate = now;
}

void ProgressMeter::ShowIfLong(std::int64_t elapsed, std::int32_t reached) {
    if (reached <= minimum) return;
    const std::int64_t all = std::int64_t{maximum} - minimum;
    const std::int64_t estimate = all * elapsed / (std::int64_t{reached} - minimum);
    Shell* shell = Shell::Find();
    if (estimate >= longWork && shell) window = shell->OpenProgressWindow(text, {minimum, maximum, reached});
}

} // namespace keltavlo
