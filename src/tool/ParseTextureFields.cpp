#include "tool/ParseTextureFields.h"

#include "tool/ToolArguments.h"

#include <charconv>

namespace keltavlo {

namespace {

[[noreturn]] void Refuse(std::string_view field, const char* reason) {
    throw UsageError("\"" + std::string(field) + "\" " + reason);
}

std::uint32_t ParseNumber(std::string_view field, std::string_view text) {
    const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (isHexadecimal) text.remove_prefix(2);
    std::uint32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, number, isHexadecimal ? 16 : 10);
    if (failure != std::errc() || stop != end) Refuse(field, "requires a number from 0 to 0xFFFFFFFF.");
    return number;
}

void ParseField(std::string_view field, TextureFields& fields) {
    const std::size_t equals = field.find('=');
    if (equals == std::string_view::npos) Refuse(field, "requires \"=\" and a value.");
    const std::string_view name = field.substr(0, equals), value = field.substr(equals + 1);
    if (name == "surface")
        fields.surface = ParseNumber(name, value);
    else if (name == "contents")
        fields.contents = ParseNumber(name, value);
    else if (name == "value")
        fields.value = ParseNumber(name, value);
    else if (name == "next")
        fields.next = value;
    else
        Refuse(name, "is not one of the fields surface, contents, value and next.");
}

} // namespace

TextureFields ParseTextureFields(std::string_view text) {
    TextureFields fields;
    for (bool isLast = false; !isLast;) {
        const std::size_t comma = text.find(',');
        isLast = comma == std::string_view::npos;
        ParseField(text.substr(0, comma), fields);
        if (!isLast) text.remove_prefix(comma + 1);
    }
    return fields;
}

} // namespace keltavlo
