#include "app/PictureFiles.h"

#include "framework/core/FileFailure.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "image/TavloDocument.h"
#include "resources/DocTemplateRegistry.h"
#include "resources/FileSource.h"
#include "resources/streams/ArchiveTransfer.h"

namespace keltavlo {

namespace {

constexpr std::uint64_t largestPreview = 64 << 20; // bytes; larger files would take too long to browse

} // namespace

const CRuntimeClass* PictureClassOf(const std::string& path) {
    const DocTemplateRegistry& registry = DocTemplateRegistry::Get();
    const CRuntimeClass* type = registry.GetDocumentClassOfName(path);
    const bool isPicture = type && type->IsDerivedFrom(TavloDocument::runtimeClass);
    return isPicture && registry.KnowsName(path) ? type : nullptr;
}

std::string PictureExtensionIn(std::string_view patterns) {
    std::string extension;
    for (std::size_t i = 0;; ++i) {
        const std::string pattern(Field(patterns, ';', i));
        if (pattern.empty()) return extension;
        if (!PictureClassOf(pattern)) continue;
        if (!extension.empty()) return {};
        extension = ExtensionOf(pattern);
    }
}

std::unique_ptr<TavloDocument> ReadForPreview(const std::string& path) {
    const CRuntimeClass* type = PictureClassOf(path);
    EntryStatus status;
    if (type) FileSource::Get().GetStatus(path, status);
    if (!status.exists) return nullptr;
    if (status.size > largestPreview) throw PictureSizeError("The picture is too large for a preview.");
    const std::unique_ptr<CFile> file = FileOrThrow([&](CFileException* failure) {
        return FileSource::Get().OpenFile(path, CFile::modeRead | CFile::shareDenyWrite, failure);
    });
    std::unique_ptr<TavloDocument> document(static_cast<TavloDocument*>(type->create().release()));
    ReadThroughArchive(*file, [&](InputStream& in) { document->ReadContents(in); });
    return document;
}

} // namespace keltavlo
