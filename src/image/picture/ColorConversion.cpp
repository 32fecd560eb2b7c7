// The whole-picture conversions of Image to the colours of a list.
#include "image/picture/Image.h"
#include "image/picture/NearestSearch.h"

namespace keltavlo {

void Image::ConvertToNearest(const ColorList& list) {
    NearestSearch(list).Replace(pixels);
}

void Image::ConvertByErrorDiffusion(const ColorList& list) {
    NearestSearch(list).Diffuse(pixels, Side(width));
}

} // namespace keltavlo
