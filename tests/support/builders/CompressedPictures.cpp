#include "support/builders/CompressedPictures.h"

#include <cstdio> // for jpeglib.h
#include <cstdlib>
#include <jpeglib.h>
#include <numeric>
#include <png.h>
#include <zlib.h>

namespace keltavlo {

namespace {

void Append(png_structp png, png_bytep bytes, std::size_t count) {
    auto& file = *static_cast<Bytes*>(png_get_io_ptr(png));
    file.insert(file.end(), reinterpret_cast<std::byte*>(bytes), reinterpret_cast<std::byte*>(bytes) + count);
}

} // namespace

Bytes MakePng(int depth, int colorType, bool interlaced) {
    constexpr int width = 11, height = 9;
    Bytes file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &file, Append, nullptr);
    png_set_IHDR(png, info, width, height, depth, colorType,
                 interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, 0, 0);
    std::vector<png_color> palette;
    for (int i = 0; i < 1 << depth && colorType == PNG_COLOR_TYPE_PALETTE; ++i) {
        const auto level = static_cast<png_byte>(i);
        palette.push_back({level, static_cast<png_byte>(255 - i), level});
    }
    std::vector<png_byte> alphas(palette.size(), 255);
    if (!palette.empty()) {
        alphas.back() = 0;
        png_set_PLTE(png, info, palette.data(), static_cast<int>(palette.size()));
        png_set_tRNS(png, info, alphas.data(), static_cast<int>(alphas.size()), nullptr);
    }
    png_write_info(png, info);
    std::vector<png_byte> samples(png_get_rowbytes(png, info) * height);
    std::iota(samples.begin(), samples.end(), png_byte{0});
    std::vector<png_bytep> rows;
    for (std::size_t y = 0; y < height; ++y) rows.push_back(samples.data() + y * samples.size() / height);
    png_write_image(png, rows.data());
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return file;
}

Bytes RepairChecksums(Bytes png) {
    constexpr std::size_t signature = 8, frame = 12; // of a chunk: length, type and checksum
    for (std::size_t start = signature; start + frame <= png.size();) {
        auto* chunk = reinterpret_cast<png_bytep>(png.data() + start);
        const std::size_t length = png_get_uint_32(chunk);
        if (length > png.size() - start - frame) break;
        const uLong checksum = crc32(0, chunk + 4, static_cast<uInt>(length + 4));
        png_save_uint_32(chunk + 8 + length, static_cast<png_uint_32>(checksum));
        start += length + frame;
    }
    return png;
}

Bytes MakeJpeg(int components, bool progressive) {
    jpeg_compress_struct state{};
    jpeg_error_mgr errors;
    state.err = jpeg_std_error(&errors);
    jpeg_create_compress(&state);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&state, &memory, &size);
    state.image_width = 21;
    state.image_height = 13;
    state.input_components = components;
    state.in_color_space = components == 1 ? JCS_GRAYSCALE : components == 3 ? JCS_RGB : JCS_CMYK;
    jpeg_set_defaults(&state);
    if (progressive) jpeg_simple_progression(&state);
    jpeg_start_compress(&state, TRUE);
    std::vector<JSAMPLE> row(state.image_width * static_cast<unsigned>(components));
    for (JSAMPROW rows[] = {row.data()}; state.next_scanline < state.image_height;) {
        std::iota(row.begin(), row.end(), static_cast<JSAMPLE>(state.next_scanline * 9));
        jpeg_write_scanlines(&state, rows, 1);
    }
    jpeg_finish_compress(&state);
    jpeg_destroy_compress(&state);
    const auto* first = reinterpret_cast<const std::byte*>(memory);
    Bytes file(first, first + size);
    std::free(memory);
    return file;
}

} // namespace keltavlo
