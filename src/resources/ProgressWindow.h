#pragma once

#include <cstdint>

namespace keltavlo {

// A window that shows how far a long piece of work is; it goes with the object.
class ProgressWindow {
public:
    virtual ~ProgressWindow() = default;
    virtual void SetPosition(std::int32_t position) = 0;
};

// What a progress window shows at first.
struct Progress {
    std::int32_t minimum = 0;
    std::int32_t maximum = 0;
    std::int32_t position = 0;
};

} // namespace keltavlo
