#include "tool/archives/IDPOSkins.h"

#include "image/picture/ColorList.h"
#include "image/picture/StoredPixels.h"
#include "resources/streams/InputStream.h"

#include <cstring>

namespace keltavlo {

namespace {

constexpr char identification[] = {'I', 'D', 'P', 'O'};
constexpr std::int32_t supportedVersion = 6;

// The layout in the file, little-endian. The skins follow.
struct Header {
    char identification[4];
    std::int32_t version;
    float geometry[10];
    std::int32_t skinCount;
    std::int32_t skinWidth, skinHeight; // pixels
    std::int32_t unused[6];             // describes the geometry
};
static_assert(sizeof(Header) == 84);

// The number before each skin. A group starts with its count, followed by that many times in seconds, then
// that many pictures.
enum SkinType : std::int32_t { single = 0, group = 1 };

// Reads the skins that follow the header.
class SkinReader {
public:
    SkinReader(InputStream& stream, const Header& header, const ColorList& colors)
        : in(stream), palette(colors), width(header.skinWidth), height(header.skinHeight),
          pixelCount(static_cast<std::size_t>(header.skinWidth) *
                     static_cast<std::size_t>(header.skinHeight)) {}

    void ReadSkin(const std::string& number) {
        const auto type = in.Read<std::int32_t>();
        if (type == group) return ReadGroup(number);
        if (type != single) in.Fail(StreamError::badIndex);
        ReadPicture(number);
    }

    std::vector<ModelSkin> skins;

private:
    void ReadGroup(const std::string& number) {
        const auto count = in.Read<std::int32_t>();
        const std::uint64_t times = static_cast<std::uint64_t>(count) * sizeof(float);
        if (count < 1 || times > in.GetRemaining()) in.Fail(StreamError::badIndex);
        in.Seek(static_cast<std::int64_t>(times), CFile::From::current);
        for (std::int32_t i = 1; i <= count; ++i) ReadPicture(number + "_" + std::to_string(i));
    }

    void ReadPicture(const std::string& number) {
        if (pixelCount > in.GetRemaining()) in.Fail(StreamError::endOfFile);
        std::vector<std::uint8_t> indices(pixelCount);
        in.Read(std::span<std::uint8_t>(indices));
        Image picture(width, height);
        ExpandIndices(indices, palette.Colors(), picture.Pixels());
        skins.push_back({number, std::move(picture)});
    }

    InputStream& in;
    const ColorList& palette;
    int width, height;
    std::size_t pixelCount;
};

bool IsSide(std::int32_t side) {
    return side > 0 && side <= maximumPictureSide;
}

} // namespace

bool IsIDPO(InputStream& in) {
    char start[sizeof identification];
    if (in.GetLength() < sizeof start) return false;
    in.Seek(0);
    in.Read(start, sizeof start);
    return std::memcmp(start, identification, sizeof start) == 0;
}

std::vector<ModelSkin> ReadIDPOSkins(InputStream& in, const ColorList& palette) {
    if (!IsIDPO(in)) in.FailUnnamed(StreamError::badClass);
    in.Seek(0);
    Header header;
    in.Read(&header, sizeof header);
    if (header.version != supportedVersion) in.Fail(StreamError::badSchema);
    if (!IsSide(header.skinWidth) || !IsSide(header.skinHeight) || header.skinCount < 0)
        in.Fail(StreamError::badIndex);
    SkinReader reader(in, header, palette);
    for (std::int32_t i = 1; i <= header.skinCount; ++i) reader.ReadSkin(std::to_string(i));
    return std::move(reader.skins);
}

} // namespace keltavlo
