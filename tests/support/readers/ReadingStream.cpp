#include "support/readers/ReadingStream.h"

#include "app/HeadlessApplication.h"
#include "formats/Codec.h"
#include "resources/BuiltInPalettes.h"

namespace keltavlo {

void NeedApplication() {
    static HeadlessApplication application([](const std::string&) {});
}

Bytes EncodePicture(std::string_view documentClass, const Texture& texture) {
    NeedApplication();
    CMemFile file;
    CArchive archive(file, CArchive::store);
    ArchiveStream stream(archive);
    FindCodec(documentClass)->write(stream, texture, &GetQuakeIIPalette());
    archive.Flush();
    return {file.Bytes().begin(), file.Bytes().end()};
}

Texture MakePicture() {
    Texture picture(8, 8);
    for (Color color = 0xFF000000; Color & pixel : picture.Pixels()) pixel = color += 0x020301;
    return picture;
}

} // namespace keltavlo
