#pragma once

#include <QStringList>

#include <memory>
#include <optional>

class QMimeData;

namespace keltavlo {

class CClipboard;
class Image;

// Pictures on the clipboard: as a bitmap of 32 bits with alpha, as PNG and in Qt's own format.

// Returns a copy of the picture, which is converted to a format when a program asks for it. Returns null for
// a picture without pixels.
std::unique_ptr<QMimeData> MakeClipboardPicture(const Image& picture);

// Returns whether one of these formats is a picture format.
bool OffersPicture(const QStringList& formats);
// Returns the clipboard's picture, made opaque, or null if there is none that can be read. Waits at most six
// seconds for the clipboard's owner.
std::optional<Image> ReadClipboardPicture(const CClipboard& clipboard);

} // namespace keltavlo
