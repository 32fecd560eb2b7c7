#pragma once

#include <QStringList>

#include <memory>
#include <optional>

class QMimeData;

namespace keltavlo {

class CClipboard;
class Image;

// Pictures on the clipboard: as a bitmap of 32 bits with alpha, as PNG and as the toolkit's own.

// The picture as it is now, put into each form when somebody asks for it. Null for a picture without pixels.
std::unique_ptr<QMimeData> MakeClipboardPicture(const Image& picture);

// Whether one of these forms is a picture's.
bool OffersPicture(const QStringList& formats);
// The picture that the clipboard offers, all opaque; none where there is none that can be read. Waits no
// longer than six seconds for the clipboard's owner.
std::optional<Image> ReadClipboardPicture(const CClipboard& clipboard);

} // namespace keltavlo
