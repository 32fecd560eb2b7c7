#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace keltavlo {

// Text in files is 8-bit: UTF-8 where it is valid, else Windows-1252. A std::string keeps the bytes as they
// came; these functions look at them without changing them.

// For showing: every byte becomes visible, nothing is lost or refused.
QString ToQString(std::string_view bytes);
// UTF-8.
std::string FromQString(const QString& text);
// The same text as valid UTF-8 (for output that must be UTF-8).
std::string ToUtf8(std::string_view bytes);

// A form that is equal for names that differ only in case: simple Unicode folding for valid UTF-8, ASCII
// folding else.
std::string FoldCase(std::string_view bytes);
bool EqualNoCase(std::string_view a, std::string_view b);

// printf-style formatting that never looks at the locale. %s takes UTF-8.
std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Text of a fixed-width field: up to the first NUL, or all of it.
std::string_view UpToNul(std::string_view field);

// The n-th of the parts between separators; empty when there are fewer.
std::string_view Field(std::string_view text, char separator, std::size_t n);

} // namespace keltavlo
