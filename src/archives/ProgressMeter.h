#pragma once

#include "framework/core/Service.h"
#include "resources/ProgressWindow.h"

#include <memory>
#include <string>

namespace keltavlo {

// The clock of progress meters, in whole seconds. If none is registered, they use the system's clock.
class ProgressClock : public Service<ProgressClock> {
public:
    virtual std::int64_t GetSeconds() const = 0;
};

// Follows a long piece of work from one position to another. Its window opens only if the work is expected to
// take two seconds or more, and updates at most once a second.
class ProgressMeter {
public:
    ProgressMeter(std::int32_t first, std::int32_t last);
    // Closes the window, if there is one.
    ~ProgressMeter();
    ProgressMeter(const ProgressMeter&) = delete;
    ProgressMeter& operator=(const ProgressMeter&) = delete;

    // Sets the text above the window's bar, which is "Working..." by default.
    void SetText(unsigned stringId);
    void SetPosition(std::int32_t newPosition);
    void Step() { SetPosition(position + 1); }

private:
    void ShowIfLong(std::int64_t elapsed, std::int32_t reached);

    std::int64_t startTime;  // seconds
    std::int64_t lastUpdate; // seconds
    std::int32_t minimum, maximum, position;
    std::string text;
    std::unique_ptr<ProgressWindow> window;
};

} // namespace keltavlo
