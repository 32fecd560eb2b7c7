#include "app/ui/PicturePreview.h"

#include "app/PictureFiles.h"
#include "archives/ui/TypeName.h"
#include "framework/core/Text.h"
#include "image/TavloDocument.h"
#include "image/picture/TilePainter.h"
#include "res/ShellStrings.h"
#include "resources/Shell.h"

namespace keltavlo {

namespace {

QImage ToImage(const Image& picture) {
    QImage image(picture.GetWidth(), picture.GetHeight(), QImage::Format_RGB32);
    if (image.isNull()) return image; // a picture without pixels, or more than memory holds
    PaintTiles(picture, Shell::Get().GetGammaTable(), {},
               {0, 0, image.width(), image.height(), reinterpret_cast<Color*>(image.bits()),
                static_cast<std::size_t>(image.bytesPerLine()) / sizeof(Color)});
    return image;
}

} // namespace

Preview ReadPicturePreview(const std::string& path) {
    try {
        const std::unique_ptr<TavloDocument> document = ReadForPreview(path);
        if (!document) return {{}, ToQString(LoadString(IDS_NO_PICTURE))};
        const Texture& texture = document->GetTexture();
        const std::string size = FormatString(IDS_PREVIEW_SIZE, texture.GetWidth(), texture.GetHeight());
        return {ToImage(texture), ToQString(size) + '\n' + TypeNameOfFile(path)};
    } catch (const std::exception&) {
        return {{}, ToQString(LoadString(IDS_NO_PREVIEW))};
    }
}

} // namespace keltavlo
