#include "resources/BrushDocument.h"

#include "resources/streams/TaggedFile.h"

namespace keltavlo {

void BrushDocument::Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint second) {
    if (brush) brush->Apply(target, point, strength, second);
}

void BrushDocument::ReadContents(InputStream& in) {
    const TaggedContents contents = ReadTaggedContents(in, tagged::brushType);
    fixedTitle = contents.title;
    brush = Brush::Make(contents.id);
    if (!brush && contents.id != 0) throw CArchiveException(CArchiveException::badSchema);
}

void BrushDocument::WriteContents(OutputStream&) {
    throw CArchiveException(CArchiveException::generic);
}

} // namespace keltavlo
