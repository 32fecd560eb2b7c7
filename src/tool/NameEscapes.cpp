#include "tool/NameEscapes.h"

#include "framework/core/CFile.h"
#include "framework/core/Path.h"

#include <QChar>
#include <QList>
#include <QStringDecoder>

#include <algorithm>
#include <charconv>

namespace keltavlo {

namespace {

constexpr std::size_t escapeLength = 3; // "%1B"

void AppendEscape(std::string& out, char byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(byte);
    out += '%';
    out += digits[code / 16];
    out += digits[code % 16];
}

// Returns the byte of an escape at the start of the text, or -1.
int ReadEscape(std::string_view text) {
    if (text.size() < escapeLength || text.front() != '%') return -1;
    unsigned char code = 0;
    const char* const end = text.data() + escapeLength;
    const auto [stop, failure] = std::from_chars(text.data() + 1, end, code, 16);
    return failure == std::errc() && stop == end ? code : -1;
}

bool IsVisible(char32_t code) {
    switch (QChar::category(code)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

// Returns the number of bytes of the visible character at the start of the text, or 0 if there is none.
std::size_t VisibleLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) return lead >= 0x20 && lead != 0x7F ? 1 : 0;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (length > text.size()) return 0;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder.decode(QByteArrayView(text.data(), static_cast<qsizetype>(length)));
    const auto codes = decoder.hasError() ? QList<uint>() : decoded.toUcs4();
    return codes.size() == 1 && IsVisible(codes.front()) ? length : 0;
}

bool IsPlain(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= 0x20 && c < 0x7F && c != '%'; });
}

// Escapes characters that are not visible, and the bytes at the positions that `mustEscape` accepts.
template <class Predicate>
std::string Escape(std::string_view text, Predicate mustEscape) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = mustEscape(i) ? 0 : VisibleLength(text.substr(i));
        if (length == 0)
            AppendEscape(out, text[i]);
        else
            out += text.substr(i, length);
        i += std::max<std::size_t>(length, 1);
    }
    return out;
}

bool CanBeInName(int code) {
    return code > 0 && code != '/' && code != '\\' && code != ':';
}

} // namespace

std::string EscapeName(std::string_view name) {
    const bool isDots = name == "." || name == "..";
    const bool hasBlankEnd = name.starts_with(' ') || name.ends_with(' ');
    if (!isDots && !hasBlankEnd && IsPlain(name)) return std::string(name);
    return Escape(name, [&](std::size_t i) {
        const bool isBlankEnd = name[i] == ' ' && (i == 0 || i + 1 == name.size());
        return isDots || isBlankEnd || ReadEscape(name.substr(i)) >= 0;
    });
}

std::string EscapePath(std::string_view path) {
    std::string shown;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of("/\\"), path.size());
        shown += EscapeName(path.substr(0, end));
        if (end < path.size()) shown += '/';
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return shown;
}

std::string EscapeText(std::string_view text) {
    return Escape(text, [](std::size_t) { return false; });
}

std::string UnescapeName(std::string_view shown) {
    std::string name;
    while (!shown.empty()) {
        const int code = ReadEscape(shown);
        const bool isEscape = code >= 0 && CanBeInName(code);
        name += isEscape ? static_cast<char>(code) : shown.front();
        shown.remove_prefix(isEscape ? escapeLength : 1);
    }
    return name;
}

std::string UnescapePath(const std::string& path) {
    CFileStatus status;
    std::string existing = path;
    while (!existing.empty() && !CFile::GetStatus(existing, status)) existing = ParentOf(existing);
    return existing + UnescapeName(std::string_view(path).substr(existing.size()));
}

} // namespace keltavlo
