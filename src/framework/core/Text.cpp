#include "framework/core/Text.h"

#include <QStringDecoder>

#include <array>
#include <cstdarg>

namespace keltavlo {

namespace {

// Windows-1252 differs from Latin-1 only here. The five unused codes keep their Latin-1 control characters.
constexpr std::array<char16_t, 32> windows1252{
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

bool DecodeUtf8(std::string_view bytes, QString& out) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    out = decoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return !decoder.hasError();
}

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string FoldAscii(std::string_view bytes) {
    std::string folded(bytes);
    for (char& c : folded)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return folded;
}

} // namespace

QString ToQString(std::string_view bytes) {
    QString text;
    if (DecodeUtf8(bytes, text)) return text;
    text.clear();
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        text += QChar(code >= 0x80 && code < 0xA0 ? windows1252[code - 0x80U] : char16_t{code});
    }
    return text;
}

std::string FromQString(const QString& text) {
    return text.toStdString();
}

std::string ToUtf8(std::string_view bytes) {
    return IsAscii(bytes) ? std::string(bytes) : FromQString(ToQString(bytes));
}

std::string FoldCase(std::string_view bytes) {
    QString text;
    if (IsAscii(bytes) || !DecodeUtf8(bytes, text)) return FoldAscii(bytes);
    QString folded;
    for (const char32_t code : text.toStdU32String()) {
        const char32_t simple = QChar::toCaseFolded(code);
        folded += QString::fromUcs4(&simple, 1);
    }
    return FromQString(folded);
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a == b || FoldCase(a) == FoldCase(b);
}

std::string Format(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const QString text = QString::vasprintf(format, arguments);
    va_end(arguments);
    return FromQString(text);
}

std::string_view UpToNul(std::string_view field) {
    return field.substr(0, field.find('\0'));
}

std::string_view Field(std::string_view text, char separator, std::size_t n) {
    for (; n > 0; --n) {
        const std::size_t end = text.find(separator);
        if (end == std::string_view::npos) return {};
        text.remove_prefix(end + 1);
    }
    return text.substr(0, text.find(separator));
}

} // namespace keltavlo
