#include "tool/pictures/JPEG.h"

#include "image/picture/Texture.h"
#include "tool/pictures/MemoryBound.h"

#include <csetjmp>
#include <cstdio> // for jpeglib.h
#include <jerror.h>
#include <jpeglib.h>

namespace keltavlo {

namespace {

constexpr std::uint8_t signature[] = {0xFF, 0xD8, 0xFF};
constexpr std::uint64_t coefficientSize = 2;
// Limits the scans of a progressive picture, because each goes over all pixels, however few bytes it has.
constexpr int maximumScans = 500;

// The library reports a failure by jumping out of it. Each step below runs in Succeeds, and its frames have
// nothing to destroy.
struct ErrorManager : jpeg_error_mgr {
    std::jmp_buf place;
};

[[noreturn]] void GiveUp(j_common_ptr common) {
    std::longjmp(static_cast<ErrorManager*>(common->err)->place, 1);
}

// Treats almost every warning as a failure, because part of the picture is missing then.
void OnMessage(j_common_ptr common, int level) {
    const int code = common->err->msg_code;
    if (level < 0 && code != JWRN_EXTRANEOUS_DATA && code != JWRN_JFIF_MAJOR && code != JWRN_ADOBE_XFORM)
        GiveUp(common);
}

void OnProgress(j_common_ptr common) {
    if (reinterpret_cast<j_decompress_ptr>(common)->input_scan_number > maximumScans) GiveUp(common);
}

struct Decoder {
    explicit Decoder(std::span<const std::uint8_t> bytes) : file(bytes) {
        state.err = jpeg_std_error(&errors);
        errors.error_exit = GiveUp;
        errors.emit_message = OnMessage;
        progress.progress_monitor = OnProgress;
    }
    ~Decoder() { jpeg_destroy_decompress(&state); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    bool Succeeds(void (*step)(Decoder&)) {
        if (setjmp(errors.place)) return false;
        step(*this);
        return true;
    }

    jpeg_decompress_struct state{};
    ErrorManager errors{};
    jpeg_progress_mgr progress{};
    std::span<const std::uint8_t> file;
    Image* picture = nullptr;
};

void ReadHeader(Decoder& decoder) {
    jpeg_create_decompress(&decoder.state);
    decoder.state.progress = &decoder.progress;
    jpeg_mem_src(&decoder.state, decoder.file.data(), decoder.file.size());
    jpeg_read_header(&decoder.state, TRUE);
}

void ReadPixels(Decoder& decoder) {
    decoder.state.out_color_space = JCS_EXT_BGRA;
    jpeg_start_decompress(&decoder.state);
    while (decoder.state.output_scanline < decoder.state.output_height) {
        auto* row = reinterpret_cast<JSAMPROW>(
            decoder.picture->Row(static_cast<int>(decoder.state.output_scanline)).data());
        jpeg_read_scanlines(&decoder.state, &row, 1);
    }
    jpeg_finish_decompress(&decoder.state);
}

void Run(InputStream& in, Decoder& decoder, void (*step)(Decoder&)) {
    if (decoder.Succeeds(step)) return;
    switch (decoder.errors.msg_code) {
    case JWRN_JPEG_EOF:
        in.Fail(StreamError::endOfFile);
    case JERR_OUT_OF_MEMORY:
        throw std::bad_alloc();
    default:
        in.Fail(StreamError::badIndex, "The JPEG picture is damaged or of a kind that is not supported.");
    }
}

void CheckPicture(const InputStream& in, Decoder& decoder) {
    const jpeg_decompress_struct& state = decoder.state;
    if (state.jpeg_color_space == JCS_CMYK || state.jpeg_color_space == JCS_YCCK)
        in.Fail(StreamError::badIndex, "JPEG pictures in printing colors (CMYK) are not supported.");
    const bool keepsCoefficients = jpeg_has_multiple_scans(&decoder.state) != FALSE;
    const auto components = static_cast<std::uint64_t>(state.num_components);
    CheckMemory(in, decoder.file.size(), state.image_width, state.image_height,
                sizeof(Color) + (keepsCoefficients ? coefficientSize * components : 0));
}

} // namespace

void ReadJPEG(InputStream& in, Texture& texture, const ColorList*) {
    const std::vector<std::uint8_t> file = ReadRest(in);
    if (file.size() < std::size(signature)) in.Fail(StreamError::endOfFile);
    if (!std::equal(std::begin(signature), std::end(signature), file.begin())) in.Fail(StreamError::badClass);
    Decoder decoder(file);
    Run(in, decoder, ReadHeader);
    CheckPicture(in, decoder);
    texture.SetSizeUncleared(static_cast<int>(decoder.state.image_width),
                             static_cast<int>(decoder.state.image_height));
    decoder.picture = &texture;
    Run(in, decoder, ReadPixels);
}

} // namespace keltavlo
