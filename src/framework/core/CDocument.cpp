#include "framework/core/CDocument.h"

#include "framework/core/FileFailure.h"
#include "framework/core/Path.h"
#include "framework/core/ReplacingFile.h"
#include "framework/core/UserInterface.h"

#include <algorithm>
#include <utility>

namespace keltavlo {

namespace {

void Report(Direction direction, const std::string& path, const std::exception& failure) {
    try {
        UserInterface::Get().ShowMessage(DescribeFailure(direction, path, failure));
    } catch (const std::bad_alloc&) {
        UserInterface::Get().ReportMemoryShortage();
    }
}

void TryUpdate(DocumentView& view, DocumentView* sender, std::intptr_t hint, CObject* hintObject) {
    try {
        view.OnUpdate(sender, hint, hintObject);
    } catch (const std::bad_alloc&) {
    }
}

} // namespace

void CDocument::SetTitle(const std::string& newTitle) {
    title = newTitle;
    UpdateFrameTitle();
}

void CDocument::SetModifiedFlag(bool on) {
    if (std::exchange(modified, on) != on) UpdateFrameTitle();
}

// The document has changed already, so the rest of the change must follow.
void CDocument::UpdateFrameTitle() {
    try {
        if (DocumentFrame* frame = GetFrame()) frame->OnTitleChanged();
    } catch (const std::bad_alloc&) {
        UserInterface::Get().ReportMemoryShortage();
    }
}

void CDocument::SetPathName(const std::string& path, bool addToRecentFiles) {
    pathName = FullPath(path);
    SetTitle(std::string(FileNameOf(pathName)));
    if (addToRecentFiles) DocumentHost::Get().AddToRecentFileList(pathName);
}

bool CDocument::OnNewDocument() {
    DeleteContents();
    return true;
}

bool CDocument::OnOpenDocument(const std::string& path) {
    try {
        const std::optional<FileState> state = FileState::Find(path);
        const std::unique_ptr<CFile> file = OpenForReading(path);
        DeleteContents();
        if (file->GetLength() > 0) Load(*file);
        if (KeepsStamp()) stamp = {state, DigestOf(*file)};
        SetModifiedFlag(false);
        return true;
    } catch (const std::exception& failure) {
        DeleteContents();
        Report(Direction::opening, path, failure);
        return false;
    }
}

bool CDocument::OnSaveDocument(const std::string& path) {
    std::unique_ptr<CFile> file;
    try {
        file = FileOrThrow([&](CFileException* failure) {
            return GetFile(path, CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive, failure);
        });
        CArchive archive(*file, CArchive::store);
        Serialize(archive);
        archive.Flush();
        const std::uint64_t digest = KeepsStamp() ? DigestOf(*file) : 0;
        file->Close();
        NoteSaved(path, digest);
        return true;
    } catch (const std::exception& failure) {
        if (file) file->Abort();
        Report(Direction::saving, path, failure);
        return false;
    }
}

// The file is written, so a failure here is none of the save. Without a stamp, the file counts as unchanged.
void CDocument::NoteSaved(const std::string& path, std::uint64_t digest) {
    stamp.reset();
    try {
        if (KeepsStamp()) stamp = {FileState::Find(path), digest};
    } catch (const std::bad_alloc&) {
    }
    SetModifiedFlag(false);
}

void CDocument::OnCloseDocument() {
    closing = true;
    while (!views.empty()) {
        DocumentView& view = *views.back();
        view.GetFrame()->DestroyFrame();
        std::erase(views, &view); // a frame may keep its views a little longer
    }
    DeleteContents();
    if (docTemplate) DocumentHost::Get().RemoveDocument(*this); // deletes this
}

bool CDocument::SaveModified() {
    if (!modified) return true;
    switch (UserInterface::Get().AskToSave(pathName.empty() ? title : ToDisplayPath(pathName))) {
    case SaveAnswer::save:
        return DoFileSave();
    case SaveAnswer::discard:
        return true;
    default:
        return false;
    }
}

void CDocument::ContinueAs(const std::string& path, const std::optional<FileStamp>& fileStamp) {
    if (!path.empty()) SetPathName(path);
    stamp = fileStamp;
    SetModifiedFlag();
}

void CDocument::CheckFile() {
    const std::optional<FileState> state = FileState::Find(pathName);
    if (!stamp || !state || state == stamp->state || state == askedAbout) return;
    askedAbout = state;
    try {
        const std::optional<FileStamp> change = FindOutsideChange();
        if (!change) return;
        if (UserInterface::Get().AskAboutChange(DescribeChange(false)) == ChangeAnswer::reload)
            return Reload();
        stamp = change;
    } catch (const CException&) { // a file that cannot be read cannot be offered
    }
}

bool CDocument::MayOverwriteFile() {
    try {
        if (!FindOutsideChange()) return true;
    } catch (const CException&) { // it cannot be compared, so the user must decide
    }
    const ChangeAnswer answer = UserInterface::Get().AskAboutChange(DescribeChange(true));
    if (answer == ChangeAnswer::reload) Reload();
    return answer == ChangeAnswer::keep;
}

std::optional<FileStamp> CDocument::FindOutsideChange() {
    const std::optional<FileState> state = FileState::Find(pathName);
    if (!stamp || !state || state == stamp->state) return std::nullopt;
    const FileStamp current{state, DigestOf(*OpenForReading(pathName))};
    if (current.digest != stamp->digest) return current;
    stamp = current;
    return std::nullopt;
}

ChangedFile CDocument::DescribeChange(bool saving) const {
    return {ToDisplayPath(pathName), modified, CanUndoReload(), saving};
}

std::unique_ptr<CFile> CDocument::OpenForReading(const std::string& path) {
    return FileOrThrow([&](CFileException* failure) {
        return GetFile(path, CFile::modeRead | CFile::shareDenyWrite, failure);
    });
}

void CDocument::Load(CFile& file) {
    CArchive archive(file, CArchive::load);
    Serialize(archive);
}

void CDocument::Reload() {
    try {
        const CWaitCursor wait;
        const std::optional<FileState> state = FileState::Find(pathName);
        const std::unique_ptr<CFile> file = OpenForReading(pathName);
        const std::unique_ptr<CObject> object = GetRuntimeClass().create();
        auto& loaded = dynamic_cast<CDocument&>(*object);
        loaded.Load(*file);
        const FileStamp read{state, DigestOf(*file)};
        TakeContents(loaded);
        stamp = read;
        SetModifiedFlag(false);
        UpdateAllViews(nullptr);
    } catch (const std::exception& failure) {
        Report(Direction::opening, pathName, failure);
    }
}

std::unique_ptr<CFile> CDocument::GetFile(const std::string& path, unsigned flags, CFileException* failure) {
    return FileOrNull(failure, [&] { return OpenDiskFile(path, flags); });
}

void CDocument::AddView(DocumentView& view) {
    views.push_back(&view);
}

void CDocument::RemoveView(DocumentView& view) {
    const bool wasOurs = std::erase(views, &view) > 0;
    if (wasOurs && views.empty() && !closing) OnCloseDocument();
}

void CDocument::UpdateAllViews(DocumentView* sender, std::intptr_t hint, CObject* hintObject) {
    for (std::size_t i = 0; i < views.size();) {
        DocumentView* const view = views[i];
        if (view != sender) TryUpdate(*view, sender, hint, hintObject);
        if (i < views.size() && views[i] == view) ++i; // an update may remove the view
    }
}

DocumentFrame* CDocument::GetFrame() const {
    return views.empty() ? nullptr : views.front()->GetFrame();
}

} // namespace keltavlo
