#pragma once

#include <string>
#include <string_view>

namespace keltavlo {

// Names of entries have any bytes. What a terminal would not show as one visible character is written "%XX"
// for each byte: control characters, bytes that are not UTF-8, formatting characters, blanks at the ends, the
// names "." and "..", and a "%" that two hexadecimal digits follow.
std::string EscapeName(std::string_view name);

// EscapeName for each name of a path.
std::string EscapePath(std::string_view path);

// A text for people: only what a terminal would interpret or not show is escaped.
std::string EscapeText(std::string_view text);

// The bytes that EscapeName was given. Escapes of "/", "\", ":" and NUL, which no name contains, stay.
std::string UnescapeName(std::string_view shown);

// A full path whose names may be escaped where they lead into an archive. A path of the disk that exists is
// taken as it is; what follows the part that exists is unescaped.
std::string UnescapePath(const std::string& path);

} // namespace keltavlo
