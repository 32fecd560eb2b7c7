#pragma once

#include <string>
#include <string_view>

namespace keltavlo {

// Escapes the name of an entry, which may have any bytes. Writes as "%XX" each byte that a terminal would not
// show as part of a visible character: control characters, bytes that are not UTF-8, formatting characters,
// blanks at the ends, the names "." and "..", and a "%" before two hexadecimal digits.
std::string EscapeName(std::string_view name);

// Escapes each name of a path.
std::string EscapePath(std::string_view path);

// Escapes only what a terminal would interpret or not show.
std::string EscapeText(std::string_view text);

// Reverses EscapeName. Keeps escapes of "/", "\", ":" and NUL, because no name contains these.
std::string UnescapeName(std::string_view shown);

// Returns a full path and unescapes names inside archives. The part of the path that exists on the disk stays
// as it is.
std::string UnescapePath(const std::string& path);

} // namespace keltavlo
