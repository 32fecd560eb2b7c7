#include "app/PreviewReader.h"

#include "app/PictureTypes.h"
#include "framework/core/CArchive.h"
#include "image/TavloDocument.h"
#include "resources/FileSource.h"
#include "resources/streams/ArchiveStream.h"

namespace keltavlo {

namespace {

constexpr std::uint64_t largestFile = 64 << 20; // bytes; more takes longer than looking around should

} // namespace

std::unique_ptr<TavloDocument> ReadForPreview(const std::string& path) {
    const CRuntimeClass* type = PictureClassOf(path);
    EntryStatus status;
    if (type) FileSource::Get().GetStatus(path, status);
    if (!status.exists) return nullptr;
    if (status.size > largestFile) throw PictureSizeError("The picture is too large for a preview.");
    CFileException failure;
    const std::unique_ptr<CFile> file =
        FileSource::Get().OpenFile(path, CFile::modeRead | CFile::shareDenyWrite, &failure);
    if (!file) throw CFileException(failure);
    std::unique_ptr<TavloDocument> document(static_cast<TavloDocument*>(type->create().release()));
    CArchive archive(*file, CArchive::load);
    ArchiveStream stream(archive);
    document->ReadContents(stream);
    return document;
}

} // namespace keltavlo
