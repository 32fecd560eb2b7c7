#pragma once

#include "image/picture/ColorList.h"
#include "image/picture/Image.h"
#include "image/picture/TexelRects.h"

#include <memory>
#include <optional>

namespace keltavlo {

class NearestSearch;

// The ways to convert a picture to the colors of a list.
enum class PictureConversion { none, nearest, errorDiffusion };

// A picture as it looks in the colors of a list. It is made when it is first asked for after a change and
// kept until the next one, so painting it again costs nothing.
class ConvertedPicture {
public:
    ConvertedPicture();
    ~ConvertedPicture();

    // The picture itself without a conversion and without colors (null). The list may be another one each
    // time; it is not empty.
    const Image& Get(const Image& picture, PictureConversion newConversion, const ColorList* list);
    // The picture may have changed anywhere.
    void Invalidate() { converted.reset(); }
    // One texel of the picture changed. Says which texels look different by it.
    TexelRun UpdateTexel(const Image& picture, int x, int y);

private:
    void Prepare(PictureConversion newConversion, const ColorList& list);
    void Convert(std::span<Color> pixels, std::size_t width);
    void Forget();

    PictureConversion conversion = PictureConversion::none;
    ColorList colors; // a copy: the list's document may close
    std::unique_ptr<NearestSearch> search;
    std::optional<Image> converted;
};

} // namespace keltavlo
