// Pixel access of DibSection at every depth.
#include "image/picture/DibSection.h"

namespace keltavlo {

namespace {

constexpr Color outsideTable = Compose(0, 0, 0);

// Where the index of a column lies: the first column is in the highest bits of a byte.
struct IndexPlace {
    IndexPlace(std::size_t x, unsigned bitCount)
        : byte(x * bitCount / 8), shift(8 - bitCount - static_cast<unsigned>(x * bitCount % 8)),
          mask((1U << bitCount) - 1) {}

    std::size_t byte;
    unsigned shift;
    unsigned mask;
};

std::uint32_t ReadValue(const std::uint8_t* bytes, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i) value |= std::uint32_t{bytes[i]} << (8 * i);
    return value;
}

void WriteValue(std::uint8_t* bytes, std::size_t count, std::uint32_t value) {
    for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

} // namespace

std::size_t DibSection::GetIndex(std::size_t rowOffset, std::size_t x) const {
    const IndexPlace place(x, header.bitCount);
    return static_cast<std::size_t>(GetBits()[rowOffset + place.byte]) >> place.shift & place.mask;
}

void DibSection::SetIndex(std::size_t rowOffset, std::size_t x, std::size_t index) {
    const IndexPlace place(x, header.bitCount);
    std::uint8_t& byte = GetBits()[rowOffset + place.byte];
    const unsigned others = byte & ~(place.mask << place.shift);
    byte = static_cast<std::uint8_t>(others | static_cast<unsigned>(index) << place.shift);
}

Color DibSection::GetPixel(int x, int y) const {
    const auto column = static_cast<std::size_t>(x);
    if (header.bitCount <= 8) {
        const std::size_t index = GetIndex(RowOffset(y), column);
        return index < colorTable.GetCount() ? colorTable.GetColor(index) : outsideTable;
    }
    const std::size_t pixelBytes = header.bitCount / 8U;
    return masks.ToColor(ReadValue(GetBits() + RowOffset(y) + column * pixelBytes, pixelBytes));
}

void DibSection::SetPixel(int x, int y, Color color) {
    const auto column = static_cast<std::size_t>(x);
    if (header.bitCount <= 8) {
        SetIndex(RowOffset(y), column, colorTable.FindNearestIndex(color | alphaMask));
        return;
    }
    const std::size_t pixelBytes = header.bitCount / 8U;
    const std::uint32_t value = HasColorRows() ? color : masks.FromColor(color);
    WriteValue(GetBits() + RowOffset(y) + column * pixelBytes, pixelBytes, value);
}

} // namespace keltavlo
