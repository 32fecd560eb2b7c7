#include "image/picture/ColorList.h"
#include "image/picture/StoredPixels.h"
#include "image/picture/Texture.h"
#include "tool/pictures/MemoryBound.h"
#include "tool/pictures/PNG.h"

#include <algorithm>
#include <csetjmp>
#include <cstring>
#include <png.h>

namespace keltavlo {

namespace {

constexpr std::size_t signatureSize = 8;
constexpr png_uint_32 maximumSide = 65535;

// The library's state. The library jumps out of failures, so each step below runs in Succeeds, and its frames
// have nothing to destroy.
struct Decoder {
    explicit Decoder(std::span<const std::uint8_t> file) : unread(file) {
        png = png_create_read_struct(PNG_LIBPNG_VER_STRING, this, OnError, OnWarning);
        if (png) info = png_create_info_struct(png);
        if (!info) {
            png_destroy_read_struct(&png, nullptr, nullptr);
            throw std::bad_alloc();
        }
        png_set_read_fn(png, this, ReadBytes);
    }
    ~Decoder() { png_destroy_read_struct(&png, &info, nullptr); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    bool Succeeds(void (*step)(Decoder&)) {
        if (setjmp(png_jmpbuf(png))) return false;
        step(*this);
        return true;
    }

    static void OnError(png_structp png, png_const_charp) { png_longjmp(png, 1); }
    static void OnWarning(png_structp, png_const_charp) {}
    static void ReadBytes(png_structp png, png_bytep target, std::size_t count) {
        auto& decoder = *static_cast<Decoder*>(png_get_io_ptr(png));
        decoder.hasEnded = count > decoder.unread.size();
        if (decoder.hasEnded) png_longjmp(png, 1);
        std::memcpy(target, decoder.unread.data(), count);
        decoder.unread = decoder.unread.subspan(count);
    }

    png_structp png = nullptr;
    png_infop info = nullptr;
    std::span<const std::uint8_t> unread;
    bool hasEnded = false;
    png_bytepp rows = nullptr;
};

void ReadHeader(Decoder& decoder) {
    png_set_user_limits(decoder.png, maximumSide, maximumSide);
    // Skips texts, profiles and the like, because they can have any size.
    png_set_keep_unknown_chunks(decoder.png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_read_info(decoder.png, decoder.info);
}

bool HasPalette(const Decoder& decoder) {
    return png_get_color_type(decoder.png, decoder.info) == PNG_COLOR_TYPE_PALETTE;
}

void RequestIndices(Decoder& decoder) {
    png_set_packing(decoder.png);
    png_set_interlace_handling(decoder.png);
    png_read_update_info(decoder.png, decoder.info);
}

// Requests the bytes of a Color: blue, green, red, alpha.
void RequestColors(Decoder& decoder) {
    const bool hasAlpha = (png_get_color_type(decoder.png, decoder.info) & PNG_COLOR_MASK_ALPHA) != 0 ||
                          png_get_valid(decoder.png, decoder.info, PNG_INFO_tRNS) != 0;
    png_set_expand(decoder.png);
    png_set_scale_16(decoder.png);
    png_set_gray_to_rgb(decoder.png);
    png_set_bgr(decoder.png);
    if (!hasAlpha) png_set_add_alpha(decoder.png, opaqueAlpha, PNG_FILLER_AFTER);
    png_set_interlace_handling(decoder.png);
    png_read_update_info(decoder.png, decoder.info);
}

void ReadRows(Decoder& decoder) {
    png_read_image(decoder.png, decoder.rows);
    png_read_end(decoder.png, nullptr);
}

ColorList PaletteOf(const Decoder& decoder) {
    png_colorp entries = nullptr;
    int count = 0;
    png_get_PLTE(decoder.png, decoder.info, &entries, &count);
    png_bytep alphas = nullptr;
    int alphaCount = 0;
    png_get_tRNS(decoder.png, decoder.info, &alphas, &alphaCount, nullptr);
    ColorList palette;
    for (int i = 0; i < count; ++i) {
        const png_color& entry = entries[i];
        palette.Append(Compose(entry.red, entry.green, entry.blue, i < alphaCount ? alphas[i] : opaqueAlpha));
    }
    return palette;
}

void Run(InputStream& in, Decoder& decoder, void (*step)(Decoder&)) {
    if (decoder.Succeeds(step)) return;
    if (decoder.hasEnded) in.Fail(StreamError::endOfFile);
    in.Fail(StreamError::badIndex, "The PNG picture is damaged.");
}

// Reads all rows into `memory`, which has `rowBytes` bytes per row.
void ReadInto(InputStream& in, Decoder& decoder, png_bytep memory, std::size_t rowBytes, std::size_t height) {
    std::vector<png_bytep> rows(height);
    for (std::size_t y = 0; y < height; ++y) rows[y] = memory + y * rowBytes;
    decoder.rows = rows.data();
    Run(in, decoder, ReadRows);
}

void ReadIndices(InputStream& in, Decoder& decoder, Texture& texture, std::size_t width, std::size_t height) {
    Run(in, decoder, RequestIndices);
    ColorList palette = PaletteOf(decoder);
    IndexPlane indices(width * height);
    ReadInto(in, decoder, indices.data(), width, height);
    if (std::ranges::max(indices) >= palette.GetCount())
        in.Fail(StreamError::badIndex, "The PNG picture has an index without a color.");
    ExpandIndices(indices, palette.Colors(), texture.Pixels());
    texture.palette = std::make_unique<ColorList>(std::move(palette));
    if (!texture.indices) return;
    texture.indices->clear();
    texture.indices->push_back(std::move(indices));
}

void ReadColors(InputStream& in, Decoder& decoder, Texture& texture, std::size_t width, std::size_t height) {
    Run(in, decoder, RequestColors);
    ReadInto(in, decoder, reinterpret_cast<png_bytep>(texture.Pixels().data()), width * sizeof(Color),
             height);
}

} // namespace

void ReadPNG(InputStream& in, Texture& texture, const ColorList*) {
    const std::vector<std::uint8_t> file = ReadRest(in);
    if (file.size() < signatureSize) in.Fail(StreamError::endOfFile);
    if (png_sig_cmp(file.data(), 0, signatureSize) != 0) in.Fail(StreamError::badClass);
    Decoder decoder(file);
    Run(in, decoder, ReadHeader);
    const png_uint_32 width = png_get_image_width(decoder.png, decoder.info);
    const png_uint_32 height = png_get_image_height(decoder.png, decoder.info);
    const bool hasPalette = HasPalette(decoder);
    CheckMemory(in, file.size(), width, height, sizeof(Color) + (hasPalette ? 1 : 0));
    texture.SetSizeUncleared(static_cast<int>(width), static_cast<int>(height));
    (hasPalette ? ReadIndices : ReadColors)(in, decoder, texture, width, height);
}

} // namespace keltavlo
