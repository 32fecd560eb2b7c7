#include "framework/core/MenuItems.h"

std::string MenuText(std::string_view text) {
    std::string shown;
    for (const char c : text) {
        if (c == '&') shown += '&';
        shown += c == '\t' ? ' ' : c;
    }
    return shown;
}
