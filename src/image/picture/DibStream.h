#pragma once

#include "image/picture/DibDescription.h"

class DibSection;
class Image;
class OutputStream;

// Bitmaps as streams, for files and for the clipboard.

// Makes the picture of a stored bitmap, all opaque. Fails as ReadDibDescription does; a picture beyond the
// limits is a PictureSizeError.
void ReadDib(InputStream& in, DibForm form, Image& picture);

// The same into a bitmap of the stored depth and row order.
void ReadDib(InputStream& in, DibForm form, DibSection& bitmap);

// Writes DibSection::GetStreamSize bytes.
void WriteDib(OutputStream& out, DibForm form, const DibSection& bitmap);
