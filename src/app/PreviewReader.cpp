#include "app/PreviewReader.h"

#include "framework/core/CArchive.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "image/TavloDocument.h"
#include "resources/DocTemplateRegistry.h"
#include "resources/FileSource.h"
#include "resources/streams/ArchiveStream.h"

namespace {

constexpr std::uint64_t largestFile = 64 << 20; // bytes; more takes longer than looking around should

// A name that no picture type knows counts as a bitmap elsewhere; here it must say so.
const CRuntimeClass* PictureClassOf(const std::string& path) {
    const DocTemplateRegistry& registry = DocTemplateRegistry::Get();
    const CRuntimeClass* type = registry.GetDocumentClassOfName(path);
    if (!type || !type->IsDerivedFrom(TavloDocument::runtimeClass)) return nullptr;
    const bool isItsName = EqualNoCase(registry.GetFilterExtension(*type), ExtensionOf(path));
    return isItsName ? type : nullptr;
}

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
