#include "archives/ResourceDocument.h"

#include "archives/EntryFile.h"
#include "framework/core/EmbeddedFiles.h"
#include "framework/core/ModulePath.h"
#include "resources/BuiltInFiles.h"
#include "resources/streams/OutputStream.h"

namespace keltavlo {

namespace {

// A file inside the program. Its bytes live as long as the process.
class ResourceEntry final : public Entry {
public:
    ResourceEntry(std::string fileName, std::span<const std::byte> bytes)
        : name(std::move(fileName)), data(bytes) {}

    std::string GetName() const override { return name; }

    void GetStatus(EntryStatus& status) const override {
        status = {};
        status.exists = true;
        status.onDisk = false;
        status.size = data.size();
        status.attributes = CFileStatus::readOnlyAttribute | CFileStatus::hiddenAttribute;
    }

    // Fails with accessDenied if the flags ask for writing.
    std::unique_ptr<CFile> OpenEntry(unsigned flags, CFileException* failure, FolderDocument&) override {
        if (flags & (CFile::modeWrite | CFile::modeReadWrite)) {
            if (failure) *failure = CFileException(CFileException::accessDenied, 0, name);
            return nullptr;
        }
        const auto bytes = std::make_shared<EntryBytes>(data.begin(), data.end());
        return std::make_unique<EntryFile>(
            bytes, data.size(), [] {}, bytes);
    }

private:
    std::string name;
    std::span<const std::byte> data;
};

} // namespace

bool ResourceDocument::OnDocumentReady() {
    if (!BaseDocument::OnDocumentReady()) return false;
    ResetTree();
    // Uses the path that was opened, because it may lead to the program through a link.
    SetRootName(GetTransferPath().empty() ? GetModulePath() : GetTransferPath());
    if (!IsModulePath(GetRootName())) return true;
    const std::string folder = JoinPath(GetRootName(), builtInFolder);
    for (const unsigned id : EmbeddedFileIds(builtInNameType)) {
        const std::string name = GetBuiltInName(id);
        const std::string_view extension = ExtensionOf(name);
        // Skips a name without bytes, because a file of that name could not be opened.
        const EmbeddedFile* file = extension.empty() ? nullptr : FindEmbeddedFile(id, extension.substr(1));
        if (file) AddEntry(JoinPath(folder, name), std::make_unique<ResourceEntry>(name, file->data));
    }
    return true;
}

void ResourceDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::readOnly);
}

} // namespace keltavlo
