#include "resources/ColorSpaceDocument.h"

#include "resources/streams/TaggedFile.h"

namespace keltavlo {

void ColorSpaceDocument::ReadContents(InputStream& in) {
    fixedTitle = ReadTaggedContents(in, tagged::colorSpaceType, tagged::Tag("RGBA")).title;
}

void ColorSpaceDocument::WriteContents(OutputStream&) {
    throw CArchiveException(CArchiveException::readOnly);
}

} // namespace keltavlo
