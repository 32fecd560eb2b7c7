#include "image/ui/PainterSurface.h"

#include "image/picture/DibSection.h"
#include "image/picture/Image.h"

#include <QImage>

namespace keltavlo {

namespace {

// Uses the bitmap's memory without a copy, because Qt knows this layout.
QImage Share(const DibSection& bitmap) {
    return {bitmap.GetBits(), bitmap.GetWidth(), bitmap.GetHeight(),
            static_cast<qsizetype>(bitmap.GetStride()), QImage::Format_RGB32};
}

QImage Share(const Image& picture) {
    return {reinterpret_cast<const uchar*>(picture.Pixels().data()), picture.GetWidth(), picture.GetHeight(),
            QImage::Format_RGB32};
}

} // namespace

void PainterSurface::StretchBits(const DibSection& bitmap, const QRect& destination) {
    if (bitmap.IsTopDown() && bitmap.HasColorRows()) return painter.drawImage(destination, Share(bitmap));
    Image picture;
    picture.FromBitmap(bitmap);
    painter.drawImage(destination, Share(picture));
}

} // namespace keltavlo
