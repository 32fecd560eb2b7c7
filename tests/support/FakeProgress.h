#pragma once

#include "archives/ProgressMeter.h"
#include "support/FakeShell.h"

#include <string>
#include <vector>

namespace keltavlo {

// A clock that stands until the test moves it, or runs by itself.
class FakeClock final : public ProgressClock {
public:
    std::int64_t GetSeconds() const override {
        const std::int64_t now = seconds;
        seconds += perLook;
        return now;
    }
    mutable std::int64_t seconds = 0;
    std::int64_t perLook = 0;
};

// A main window that notes what progress windows come, show and go.
class ProgressShell final : public FakeShell {
public:
    std::unique_ptr<ProgressWindow> OpenProgressWindow(const std::string& text,
                                                       const Progress& progress) override {
        log.push_back("open " + text + " " + std::to_string(progress.minimum) + ".." +
                      std::to_string(progress.maximum) + " at " + std::to_string(progress.position));
        return std::make_unique<Window>(log);
    }

    std::vector<std::string> log;

private:
    struct Window final : ProgressWindow {
        explicit Window(std::vector<std::string>& notes) : log(notes) {}
        ~Window() override { log.emplace_back("close"); }
        void SetPosition(std::int32_t position) override { log.push_back(std::to_string(position)); }
        std::vector<std::string>& log;
    };
};

} // namespace keltavlo
