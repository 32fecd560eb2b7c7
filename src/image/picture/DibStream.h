#pragma once

namespace keltavlo {

class Image;
class InputStream;

// Reads the picture of a stored bitmap, all opaque, without making the bitmap: faster than
// DibSection::ReadStream and Image::FromBitmap, with the same pixels. Fails as ReadDibDescription does; a
// picture beyond the limits is a PictureSizeError.
void ReadDib(InputStream& in, bool withFileHeader, Image& picture);

} // namespace keltavlo
