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

// A picture shown in the colors of a list. It is computed on the first request after a change and kept until
// the next change, so repainting it costs nothing.
class ConvertedPicture {
public:
    ConvertedPicture();
    ~ConvertedPicture();

    // Returns the picture itself if there is no conversion or `list` is null. The list may differ from call
    // to call but must not be empty.
    const Image& Get(const Image& picture, PictureConversion newConversion, const ColorList* list);
    // Call after any change of the picture.
    void Invalidate() { converted.reset(); }
    // Call after a change of one texel. Returns the texels that look different now.
    TexelRun UpdateTexel(const Image& picture, int x, int y);

private:
    void Prepare(PictureConversion newConversion, const ColorList& list);
    void Convert(std::span<Color> pixels, std::size_t width);
    void Forget();

    PictureConversion conversion = PictureConversion::none;
    ColorList colors; // a copy, because the list's document may close
    std::unique_ptr<NearestSearch> search;
    std::optional<Image> converted;
};

} // namespace keltavlo
