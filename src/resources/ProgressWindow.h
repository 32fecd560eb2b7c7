#pragma once

#include <cstdint>

namespace keltavlo {

// A window that shows the progress of a long piece of work. It closes when the object is deleted.
class ProgressWindow {
public:
    virtual ~ProgressWindow() = default;
    virtual void SetPosition(std::int32_t position) = 0;
};

// The initial state of a progress window.
struct Progress {
    std::int32_t minimum = 0;
    std::int32_t maximum = 0;
    std::int32_t position = 0;
};

} // namespace keltavlo
