#include "image/picture/Texture.h"

#include "image/picture/ColorList.h"
#include "image/picture/ResizedRows.h"

#include <utility>

namespace keltavlo {

namespace {

std::unique_ptr<ColorList> CopyOf(const std::unique_ptr<ColorList>& list) {
    return list ? std::make_unique<ColorList>(*list) : nullptr;
}

} // namespace

Texture::Texture() = default;
Texture::Texture(int initialWidth, int initialHeight) : Image(initialWidth, initialHeight) {}
Texture::Texture(const Texture& other)
    : Image(other), palette(CopyOf(other.palette)), quakeName(other.quakeName), quake2(other.quake2),
      indices(other.indices) {}
Texture::Texture(Texture&& other) noexcept = default;
Texture& Texture::operator=(Texture&& other) noexcept = default;
Texture::~Texture() = default;

Texture& Texture::operator=(const Texture& other) {
    // Copies first, so that a failed allocation leaves this texture as it was.
    return *this = Texture(other);
}

// Does not copy the old pixels, because there may be many.
Texture Texture::Resized(int newWidth, int newHeight) const {
    Texture copy(0, 0);
    copy.palette = CopyOf(palette);
    copy.quakeName = quakeName;
    copy.quake2 = quake2;
    static_cast<Image&>(copy) = ResizedPicture(newWidth, newHeight);
    if (indices) copy.indices.emplace();
    if (const auto plane = IndicesOfLevel(0); !plane.empty() && newWidth > 0) {
        IndexPlane& resized = copy.indices->emplace_back(copy.Pixels().size());
        CopyResized<std::uint8_t>({plane, GetWidth(), GetHeight()}, {resized, newWidth, newHeight});
    }
    return copy;
}

void Texture::SetPalette(const ColorList& list) {
    palette = std::make_unique<ColorList>(list);
}

} // namespace keltavlo
