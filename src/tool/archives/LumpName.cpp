#include "tool/archives/LumpName.h"

#include "framework/core/Text.h"

#include <optional>

namespace keltavlo {

namespace {

constexpr std::size_t escapeLength = 4;
constexpr int firstPrintable = 0x20, firstBeyondAscii = 0x7F;

std::optional<unsigned> DigitOf(char c) {
    if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
    if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
    return {};
}

// Returns the character of an escape at the start of the text, if there is one.
std::optional<char> EscapedAt(std::string_view text) {
    if (text.size() < escapeLength || !text.starts_with("_x")) return {};
    const auto high = DigitOf(text[2]), low = DigitOf(text[3]);
    if (!high || !low) return {};
    return static_cast<char>(*high * 16 + *low);
}

bool IsRefused(char c, bool isLast) {
    const auto code = static_cast<unsigned char>(c);
    if (code < firstPrintable || code >= firstBeyondAscii) return true;
    return std::string_view("*?:<>|\"/\\").find(c) != std::string_view::npos ||
           (isLast && (c == '.' || c == ' '));
}

} // namespace

std::string FileNameOfLump(std::string_view lumpName) {
    std::string fileName;
    for (std::size_t i = 0; i < lumpName.size(); ++i) {
        const char c = lumpName[i];
        if (IsRefused(c, i + 1 == lumpName.size()) || EscapedAt(lumpName.substr(i)))
            fileName += Format("_x%02X", static_cast<unsigned char>(c));
        else
            fileName += c;
    }
    return fileName;
}

std::string LumpNameOfFile(std::string_view fileName) {
    std::string lumpName;
    while (!fileName.empty()) {
        const std::optional<char> escaped = EscapedAt(fileName);
        lumpName += escaped.value_or(fileName.front());
        fileName.remove_prefix(escaped ? escapeLength : 1);
    }
    return lumpName;
}

} // namespace keltavlo
