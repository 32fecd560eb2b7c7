#include "preview3d/TextureBuffer.h"

#include "framework/core/CWinApp.h"
#include "image/TavloDocument.h"

#include <algorithm>
#include <bit>

namespace keltavlo {

namespace {

constexpr Color midGray = 0xFF808080;

int TextureSide(int side) {
    const auto fitting =
        static_cast<unsigned>(std::clamp(side, TextureBuffer::minimumSide, TextureBuffer::maximumSide));
    return static_cast<int>(std::bit_ceil(fitting));
}

} // namespace

TextureBuffer::TextureBuffer() : Image(minimumSide, minimumSide) {
    std::ranges::fill(Pixels(), midGray);
}

// Copies only what fits, because pictures may be far larger than textures.
void TextureBuffer::TakePicture(const Image& picture) {
    SetTextureSize(std::min(picture.GetWidth(), maximumSide), std::min(picture.GetHeight(), maximumSide));
    for (int y = 0; y < GetHeight(); ++y)
        std::ranges::copy(picture.Row(y).first(static_cast<std::size_t>(GetWidth())), Row(y).begin());
    Resize(TextureSide(picture.GetWidth()), TextureSide(picture.GetHeight()));
}

TextureBuffer TakeLastPicture() {
    const TavloDocument* last = nullptr;
    for (const CDocument* document : CWinApp::Get().GetDocuments())
        if (const auto* image = dynamic_cast<const TavloDocument*>(document)) last = image;
    TextureBuffer texture;
    if (last) texture.TakePicture(last->GetTexture());
    return texture;
}

} // namespace keltavlo
