#include "resources/streams/TaggedFile.h"

#include "framework/core/Text.h"
#include "resources/streams/OutputStream.h"

#include <QString>

#include <algorithm>
#include <vector>

namespace keltavlo {

namespace {

template <class Unit>
std::vector<Unit> ReadTitle(InputStream& in) {
    const auto count = in.Read<std::uint32_t>();
    if (count > in.GetRemaining() / sizeof(Unit)) in.FailUnnamed(StreamError::endOfFile);
    std::vector<Unit> units(count);
    in.Read(std::span<Unit>(units));
    units.erase(std::find(units.begin(), units.end(), Unit{}), units.end());
    return units;
}

} // namespace

std::uint32_t ReadTaggedHeader(InputStream& in, std::uint32_t expectedType) {
    std::uint8_t magic[sizeof tagged::magic];
    in.Read(magic, sizeof magic);
    const auto type = in.Read<std::uint32_t>();
    const auto chunkCount = in.Read<std::uint32_t>();
    if (!std::equal(std::begin(magic), std::end(magic), tagged::magic) || type != expectedType)
        in.FailUnnamed(StreamError::badClass);
    return chunkCount;
}

void WriteTaggedHeader(OutputStream& out, std::uint32_t type, std::uint32_t chunkCount) {
    out.Write(tagged::magic, sizeof tagged::magic);
    out.Write(type);
    out.Write(chunkCount);
}

void ReadAnsiTitle(InputStream& in, std::string& title) {
    const std::vector<char> text = ReadTitle<char>(in);
    title.assign(text.begin(), text.end());
}

void ReadWideTitle(InputStream& in, std::string& title) {
    const std::vector<char16_t> text = ReadTitle<char16_t>(in);
    title = FromQString(QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())));
}

TaggedContents ReadTaggedContents(InputStream& in, std::uint32_t expectedType,
                                  std::optional<std::uint32_t> onlyId) {
    TaggedContents contents;
    for (std::uint32_t left = ReadTaggedHeader(in, expectedType); left > 0; --left) {
        switch (in.Read<std::uint32_t>()) {
        case tagged::idChunk:
            contents.id = in.Read<std::uint32_t>();
            if (onlyId && contents.id != *onlyId) in.FailUnnamed(StreamError::badIndex);
            break;
        case tagged::ansiTitleChunk:
            ReadAnsiTitle(in, contents.title);
            break;
        case tagged::wideTitleChunk:
            ReadWideTitle(in, contents.title);
            break;
        default:
            in.FailUnnamed(StreamError::badIndex);
        }
    }
    return contents;
}

} // namespace keltavlo
