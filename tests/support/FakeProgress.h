#pragma once

#include "archives/ProgressMeter.h"
#include "resources/Shell.h"

#include <string>
#include <vector>

namespace keltavlo {

// A clock that the test sets and that advances by `perLook` each time it is read.
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

// A main window that records what its progress windows do.
struct ProgressShell final : Shell {
    void UpdateMenus(BaseDocument*) override {}
    void UpdatePaletteBar(unsigned) override {}
    void SetPositionText(double, double) override {}
    void SetColorText(std::uint32_t) override {}
    std::uint32_t GetCurrentColor() const override { return 0; }
    void SetCurrentColor(std::uint32_t) override {}
    const std::uint32_t* GetGammaTable() const override { return nullptr; }
    std::unique_ptr<ProgressWindow> OpenProgressWindow(const std::string& text,
                                                       const Progress& progress) override {
        log.push_back("open " + text + " " + std::to_string(progress.minimum) + ".." +
                      std::to_string(progress.maximum) + " at " + std::to_string(progress.position));
        return std::make_unique<Window>(log);
    }

    std::vector<std::string> log;

    struct Window final : ProgressWindow {
        explicit Window(std::vector<std::string>& notes) : log(notes) {}
        ~Window() override { log.emplace_back("close"); }
        void SetPosition(std::int32_t position) override { log.push_back(std::to_string(position)); }
        std::vector<std::string>& log;
    };
};

} // namespace keltavlo
