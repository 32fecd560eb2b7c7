#include "image/picture/ColorList.h"
#include "image/picture/StoredPixels.h"
#include "image/picture/Texture.h"
#include "resources/streams/OutputStream.h"
#include "tool/pictures/PNG.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <png.h>
#include <utility>

namespace keltavlo {

namespace {

constexpr int bitDepth = 8;

// The library's state and the file so far. The library jumps out of a failure, which can only be a lack of
// memory, so each step runs in Succeeds, and its frames have nothing to destroy.
struct Encoder {
    explicit Encoder(const Texture& picture) : texture(picture) {
        png = png_create_write_struct(PNG_LIBPNG_VER_STRING, this, OnError, OnWarning);
        if (png) info = png_create_info_struct(png);
        if (!info) {
            png_destroy_write_struct(&png, nullptr);
            throw std::bad_alloc();
        }
        png_set_write_fn(png, this, WriteBytes, Flush);
    }
    ~Encoder() { png_destroy_write_struct(&png, &info); }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    bool Succeeds(void (*step)(Encoder&)) {
        if (setjmp(png_jmpbuf(png))) return false;
        step(*this);
        return true;
    }

    bool Append(std::span<const std::uint8_t> bytes) noexcept {
        try {
            file.insert(file.end(), bytes.begin(), bytes.end());
            return true;
        } catch (const std::bad_alloc&) {
            return false;
        }
    }

    static void OnError(png_structp png, png_const_charp) { png_longjmp(png, 1); }
    static void OnWarning(png_structp, png_const_charp) {}
    static void WriteBytes(png_structp png, png_bytep bytes, std::size_t count) {
        if (!static_cast<Encoder*>(png_get_io_ptr(png))->Append({bytes, count})) png_longjmp(png, 1);
    }
    static void Flush(png_structp) {}

    void WriteHeader(int colorType) {
        png_set_IHDR(png, info, static_cast<png_uint_32>(texture.GetWidth()),
                     static_cast<png_uint_32>(texture.GetHeight()), bitDepth, colorType, PNG_INTERLACE_NONE,
                     PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    }

    const Texture& texture;
    png_structp png = nullptr;
    png_infop info = nullptr;
    std::vector<std::uint8_t> file;
    std::vector<std::uint8_t> row; // for opaque colors
};

bool IsPaletted(const Texture& texture) {
    return texture.palette && !texture.IndicesOfLevel(0).empty();
}

bool IsOpaque(const Image& picture) {
    return std::ranges::all_of(picture.Pixels(), [](Color pixel) { return Alpha(pixel) == opaqueAlpha; });
}

void WritePalette(Encoder& encoder) {
    std::array<png_color, PNG_MAX_PALETTE_LENGTH> entries{};
    std::array<png_byte, PNG_MAX_PALETTE_LENGTH> alphas{};
    const std::span<const Color> colors = std::as_const(*encoder.texture.palette).Colors();
    int alphaCount = 0; // ends with the last entry that is not opaque
    for (std::size_t i = 0; i < colors.size(); ++i) {
        entries[i] = {static_cast<png_byte>(Red(colors[i])), static_cast<png_byte>(Green(colors[i])),
                      static_cast<png_byte>(Blue(colors[i]))};
        alphas[i] = static_cast<png_byte>(Alpha(colors[i]));
        if (Alpha(colors[i]) != opaqueAlpha) alphaCount = static_cast<int>(i) + 1;
    }
    png_set_PLTE(encoder.png, encoder.info, entries.data(), static_cast<int>(colors.size()));
    if (alphaCount > 0) png_set_tRNS(encoder.png, encoder.info, alphas.data(), alphaCount, nullptr);
}

void WriteIndices(Encoder& encoder) {
    encoder.WriteHeader(PNG_COLOR_TYPE_PALETTE);
    WritePalette(encoder);
    png_write_info(encoder.png, encoder.info);
    const std::uint8_t* row = encoder.texture.IndicesOfLevel(0).data();
    for (int y = 0; y < encoder.texture.GetHeight(); ++y, row += encoder.texture.GetWidth())
        png_write_row(encoder.png, row);
    png_write_end(encoder.png, encoder.info);
}

void WriteColors(Encoder& encoder) {
    encoder.WriteHeader(PNG_COLOR_TYPE_RGB_ALPHA);
    png_set_bgr(encoder.png);
    png_write_info(encoder.png, encoder.info);
    for (int y = 0; y < encoder.texture.GetHeight(); ++y)
        png_write_row(encoder.png, reinterpret_cast<png_const_bytep>(encoder.texture.Row(y).data()));
    png_write_end(encoder.png, encoder.info);
}

void WriteOpaqueColors(Encoder& encoder) {
    encoder.WriteHeader(PNG_COLOR_TYPE_RGB);
    png_set_bgr(encoder.png);
    png_write_info(encoder.png, encoder.info);
    for (int y = 0; y < encoder.texture.GetHeight(); ++y) {
        PackBgr(encoder.texture.Row(y), encoder.row);
        png_write_row(encoder.png, encoder.row.data());
    }
    png_write_end(encoder.png, encoder.info);
}

} // namespace

void WritePNG(OutputStream& out, const Texture& texture, const ColorList*) {
    if (texture.Pixels().empty()) out.Fail(StreamError::badIndex);
    Encoder encoder(texture);
    encoder.row.resize(bgrPixelSize * static_cast<std::size_t>(texture.GetWidth()));
    const auto step = IsPaletted(texture) ? WriteIndices
                      : IsOpaque(texture) ? WriteOpaqueColors
                                          : WriteColors;
    if (!encoder.Succeeds(step)) throw std::bad_alloc();
    out.Write(std::span<const std::uint8_t>(encoder.file));
}

} // namespace keltavlo
