#include "image/ConvertedPicture.h"

#include "image/picture/NearestSearch.h"

#include <algorithm>

namespace keltavlo {

ConvertedPicture::ConvertedPicture() = default;
ConvertedPicture::~ConvertedPicture() = default;

const Image& ConvertedPicture::Get(const Image& picture, PictureConversion newConversion,
                                   const ColorList* list) {
    if (newConversion == PictureConversion::none || !list) {
        converted.reset();
        return picture;
    }
    Prepare(newConversion, *list);
    if (!converted) {
        converted = picture;
        Convert(converted->Pixels(), static_cast<std::size_t>(picture.GetWidth()));
    }
    return *converted;
}

// Keeps the search's tables when only the picture changes.
void ConvertedPicture::Prepare(PictureConversion newConversion, const ColorList& list) {
    if (newConversion != conversion) converted.reset();
    conversion = newConversion;
    if (search && colors == list) return;
    Forget();
    colors = list;
    search = std::make_unique<NearestSearch>(colors);
}

// If memory runs out, discards the unfinished picture.
void ConvertedPicture::Convert(std::span<Color> pixels, std::size_t width) try {
    if (conversion == PictureConversion::nearest)
        search->Replace(pixels);
    else
        search->Diffuse(pixels, width);
} catch (const std::bad_alloc&) {
    Forget();
    throw;
}

void ConvertedPicture::Forget() {
    converted.reset();
    search.reset();
}

// Error diffusion changes only the rest of the row.
TexelRun ConvertedPicture::UpdateTexel(const Image& picture, int x, int y) {
    if (!converted) return {y, x, 1};
    const bool wholeRow = conversion == PictureConversion::errorDiffusion;
    const int first = wholeRow ? 0 : x;
    const auto count = static_cast<std::size_t>(wholeRow ? picture.GetWidth() : 1);
    const std::span<Color> target = converted->Row(y).subspan(static_cast<std::size_t>(first), count);
    std::ranges::copy(picture.Row(y).subspan(static_cast<std::size_t>(first), count), target.begin());
    Convert(target, count);
    return {y, x, wholeRow ? picture.GetWidth() - x : 1};
}

} // namespace keltavlo
