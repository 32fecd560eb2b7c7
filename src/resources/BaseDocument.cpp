#include "resources/BaseDocument.h"

#include "framework/core/CDocTemplate.h"
#include "framework/core/UserInterface.h"
#include "res/CommandIds.h"
#include "resources/DocTemplateRegistry.h"
#include "resources/FileSource.h"
#include "resources/Shell.h"
#include "resources/streams/ArchiveStream.h"

#include <array>
#include <string_view>

namespace keltavlo {

namespace {

using namespace std::string_view_literals;

// Sets a path for as long as it lives.
class TransferScope {
public:
    TransferScope(std::string& place, const std::string& path) : target(place) { target = path; }
    ~TransferScope() { target.clear(); }
    TransferScope(const TransferScope&) = delete;
    TransferScope& operator=(const TransferScope&) = delete;

private:
    std::string& target;
};

struct ForeignKind {
    std::string_view start;
    const char* refusal;
};

constexpr ForeignKind foreignKinds[] = {
    {"\x89PNG\r\n\x1A\n"sv, "This is a PNG picture, which is not supported."},
    // Identifier and version of Quake models.
    {"IDPO\x06\0\0\0"sv, "This is a Quake model (IDPO), which is not supported."},
};

// Returns a sentence that names the kind of a file that no document type reads, recognized by its first
// bytes, or an empty one for any other file. Moves the stream.
std::string DescribeForeignFile(InputStream& in) {
    std::array<char, 8> start{};
    if (in.GetLength() < start.size()) return {};
    in.Seek(0);
    in.Read(start.data(), start.size());
    for (const ForeignKind& kind : foreignKinds)
        if (std::string_view(start.data(), start.size()) == kind.start) return kind.refusal;
    return {};
}

} // namespace

void BaseDocument::WriteContents(OutputStream& out) {
    out.FailUnnamed(StreamError::badClass, CannotBeWritten(GetRuntimeClass()));
}

void BaseDocument::ReadContents(InputStream& in) {
    in.FailUnnamed(StreamError::badClass);
}

void BaseDocument::OnActivateDocument(bool activate, BaseDocument* activated, BaseDocument*) {
    Shell* shell = Shell::Find();
    if (!activate || !shell) return;
    shell->UpdateMenus(activated);
    shell->UpdatePaletteBar(0);
}

bool BaseDocument::OnNewDocument() {
    return CDocument::OnNewDocument() && OnDocumentReady();
}

bool BaseDocument::OnOpenDocument(const std::string& path) {
    const TransferScope transfer(transferPath, path);
    return CDocument::OnOpenDocument(path) && OnDocumentReady();
}

bool BaseDocument::OnSaveDocument(const std::string& path) {
    const TransferScope transfer(transferPath, path);
    return CDocument::OnSaveDocument(path);
}

std::unique_ptr<CFile> BaseDocument::GetFile(const std::string& path, unsigned flags,
                                             CFileException* failure) {
    auto existing = FileSource::Get().OpenExisting(path, flags, failure);
    return existing ? std::move(*existing) : CDocument::GetFile(path, flags, failure);
}

void BaseDocument::SetTitle(const std::string& newTitle) {
    CDocument::SetTitle(newTitle);
    if (Shell* shell = Shell::Find()) shell->UpdateMenus(nullptr);
}

bool BaseDocument::DoFileSave() {
    CFileStatus status;
    const bool canBeWritten = CFile::GetStatus(GetPathName(), status) && !status.IsReadOnly();
    if (!canBeWritten) return DoFileSaveAs();
    return MayOverwriteFile() && Save(GetPathName());
}

bool BaseDocument::DoFileSaveAs() {
    FileNameQuestion question;
    question.proposal = ProposeFileName();
    question.titleId = AFX_IDS_SAVEFILE;
    question.open = false;
    question.type = GetDocTemplate();
    const std::optional<std::string> path = UserInterface::Get().PromptFileName(question);
    return path && Save(*path);
}

BaseDocument* BaseDocument::OpenReference(const std::string& path) {
    return dynamic_cast<BaseDocument*>(DocTemplateRegistry::Get().OpenDocument(path));
}

// Does nothing: a reference stays open until the program ends.
void BaseDocument::ReleaseReference(BaseDocument*) {}

void BaseDocument::Serialize(CArchive& archive) {
    ArchiveStream stream(archive);
    if (archive.IsStoring()) return WriteContents(stream);
    try {
        ReadContents(stream);
    } catch (const CArchiveException& failure) {
        const std::string refusal = DescribeForeignFile(stream);
        if (refusal.empty()) throw;
        throw CArchiveException(failure.cause, failure.fileName, refusal);
    }
}

const CommandMap& BaseDocument::GetCommandMap() const {
    static const CommandMap map(CDocument::GetCommandMap(),
                                {
                                    Command<&BaseDocument::OnFileSave>(ID_FILE_SAVE),
                                    Command<&BaseDocument::OnFileSaveAs>(ID_FILE_SAVE_AS),
                                });
    return map;
}

// Cleans up nothing on failure, because a failed save leaves the target as it was, even if it did not exist.
bool BaseDocument::Save(const std::string& path) {
    const CWaitCursor wait;
    if (!OnSaveDocument(path)) return false;
    SetPathName(path);
    return true;
}

// Returns the document's path; if it has none, the part of its title that is safe in a file name, with the
// type's extension.
std::string BaseDocument::ProposeFileName() const {
    if (!GetPathName().empty()) return GetPathName();
    const std::string name = GetTitle().substr(0, GetTitle().find_first_of(" #%;/\\"));
    return name + GetDocTemplate()->GetDocString(CDocTemplate::filterExt);
}

} // namespace keltavlo
