#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace keltavlo {

// Text in files is 8-bit: UTF-8 where that is valid, otherwise Windows-1252. A std::string keeps the bytes
// unchanged; these functions only interpret them.

// For display: every byte becomes visible, none is lost or refused.
QString ToQString(std::string_view bytes);
// Returns UTF-8.
std::string FromQString(const QString& text);
// Returns the same text as valid UTF-8, for output that requires it.
std::string ToUtf8(std::string_view bytes);

// Returns a form that is equal for names that differ only in case: simple Unicode folding for valid UTF-8,
// otherwise ASCII folding.
std::string FoldCase(std::string_view bytes);
bool EqualNoCase(std::string_view a, std::string_view b);

// Formats like printf, but ignores the locale. %s takes UTF-8.
std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Returns the text of a fixed-width field: up to the first NUL, or all of it.
std::string_view UpToNul(std::string_view field);

// Returns the n-th part of a text that separators divide, or an empty one if there are fewer parts.
std::string_view Field(std::string_view text, char separator, std::size_t n);

} // namespace keltavlo
