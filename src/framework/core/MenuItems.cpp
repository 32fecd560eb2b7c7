#include "framework/core/MenuItems.h"

namespace keltavlo {

std::string MenuText(std::string_view text) {
    std::string shown;
    for (const char c : text) {
        if (c == '&') shown += '&';
        shown += c == '\t' ? ' ' : c;
    }
    return shown;
}

} // namespace keltavlo
