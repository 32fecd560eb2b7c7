#include "image/ui/ClipboardPicture.h"

#include "formats/BMP.h"
#include "framework/core/CMemFile.h"
#include "framework/ui/CClipboard.h"
#include "image/picture/Texture.h"
#include "resources/streams/FileStream.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QImageReader>
#include <QMimeData>

#include <algorithm>
#include <cstring>

namespace keltavlo {

namespace {

const QString bitmapFormat = QStringLiteral("image/bmp");
const QString pngFormat = QStringLiteral("image/png");
const QString toolkitFormat = QStringLiteral("application/x-qt-image");
// If the owner takes longer to answer, it is not asked for another format.
constexpr qint64 patience = 1000; // milliseconds

QByteArray ToBitmap(const Texture& picture) {
    CMemFile file;
    FileStream stream(file);
    WriteBMP(stream, picture, nullptr);
    return {reinterpret_cast<const char*>(file.Bytes().data()), static_cast<qsizetype>(file.Bytes().size())};
}

QImage ToImage(const Image& picture) {
    QImage image(picture.GetWidth(), picture.GetHeight(), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), picture.Row(y).data(), picture.Row(y).size_bytes());
    return image;
}

QByteArray ToPng(const Image& picture) {
    QBuffer buffer;
    ToImage(picture).save(&buffer, "PNG");
    return buffer.data();
}

// Converts the picture on demand, because most programs paste only one format.
class PictureData : public QMimeData {
public:
    explicit PictureData(const Image& copied) { static_cast<Image&>(picture) = copied; }

    QStringList formats() const override { return {bitmapFormat, pngFormat, toolkitFormat}; }
    bool hasFormat(const QString& format) const override { return formats().contains(format); }

protected:
    QVariant retrieveData(const QString& format, QMetaType) const override try {
        if (format == bitmapFormat) return ToBitmap(picture);
        if (format == pngFormat) return ToPng(picture);
        if (format == toolkitFormat) return ToImage(picture);
        return {};
    } catch (const std::bad_alloc&) {
        return {};
    }

private:
    Texture picture;
};

std::optional<Image> FromBitmap(QByteArray bytes) {
    CMemFile file({reinterpret_cast<std::byte*>(bytes.data()), static_cast<std::size_t>(bytes.size())});
    FileStream stream(file);
    Texture picture;
    ReadBMP(stream, picture, nullptr);
    return std::move(static_cast<Image&>(picture));
}

std::optional<Image> FromImage(const QImage& stored) {
    const QImage image = stored.convertToFormat(QImage::Format_ARGB32);
    if (image.isNull()) return std::nullopt;
    Image picture;
    picture.SetSizeUncleared(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const Color*>(image.constScanLine(y));
        std::transform(row, row + image.width(), picture.Row(y).begin(),
                       [](Color color) { return color | alphaMask; });
    }
    return picture;
}

// Limits the memory that Qt allocates for a size that a file claims.
std::optional<Image> FromFile(QByteArray bytes) {
    QImageReader::setAllocationLimit(static_cast<int>(maximumPictureBytes >> 20)); // mebibytes
    QBuffer buffer(&bytes);
    return FromImage(QImageReader(&buffer).read());
}

std::optional<Image> Decode(const QString& format, const QVariant& data) {
    if (format == toolkitFormat) return FromImage(data.value<QImage>());
    return format == bitmapFormat ? FromBitmap(data.toByteArray()) : FromFile(data.toByteArray());
}

bool IsPictureFormat(const QString& format) {
    static const QList<QByteArray> supported = QImageReader::supportedMimeTypes();
    return format == toolkitFormat || supported.contains(format.toLatin1());
}

// Lossless formats come first. Qt's own format is used only if it is the only one, because Qt makes it by
// requesting the others one after another.
QStringList PictureFormats(const QStringList& offered) {
    QStringList formats;
    for (const QString& format : {bitmapFormat, pngFormat})
        if (offered.contains(format)) formats.append(format);
    for (const QString& format : offered)
        if (IsPictureFormat(format) && !formats.contains(format)) formats.append(format);
    if (formats.size() > 1) formats.removeAll(toolkitFormat);
    return formats;
}

} // namespace

std::unique_ptr<QMimeData> MakeClipboardPicture(const Image& picture) {
    return picture.Pixels().empty() ? nullptr : std::make_unique<PictureData>(picture);
}

bool OffersPicture(const QStringList& formats) {
    return std::ranges::any_of(formats, IsPictureFormat);
}

std::optional<Image> ReadClipboardPicture(const CClipboard& clipboard) {
    QElapsedTimer clock;
    clock.start();
    for (const QString& format : PictureFormats(clipboard.GetFormats())) {
        try {
            if (std::optional<Image> picture = Decode(format, clipboard.GetData(format))) return picture;
        } catch (const std::exception&) {
            // The data is damaged or does not fit into memory; another format may work.
        }
        if (clock.hasExpired(patience)) break;
    }
    return std::nullopt;
}

} // namespace keltavlo
