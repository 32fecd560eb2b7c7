#include "resources/ForeignFile.h"

#include "resources/streams/InputStream.h"

#include <array>
#include <string_view>

namespace keltavlo {

namespace {

using namespace std::string_view_literals;

struct ForeignKind {
    std::string_view start;
    const char* refusal;
};

constexpr ForeignKind foreignKinds[] = {
    {"\x89PNG\r\n\x1A\n"sv, "This is a PNG picture, which is not supported."},
    // Identifier and version of the first game's models.
    {"IDPO\x06\0\0\0"sv, "This is a Quake model (IDPO), which is not supported."},
};

} // namespace

std::string DescribeForeignFile(InputStream& in) {
    std::array<char, 8> start{};
    if (in.GetLength() < start.size()) return {};
    in.Seek(0);
    in.Read(start.data(), start.size());
    for (const ForeignKind& kind : foreignKinds)
        if (std::string_view(start.data(), start.size()) == kind.start) return kind.refusal;
    return {};
}

} // namespace keltavlo
