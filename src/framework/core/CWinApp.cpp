#include "framework/core/CWinApp.h"

#include "framework/core/Path.h"
#include "framework/core/UserInterface.h"

#include <algorithm>

namespace keltavlo {

CWinApp::CWinApp(ProfileStore settings) : profile(std::move(settings)), recentFiles(profile) {}

CWinApp::~CWinApp() {
    CloseAllDocuments();
}

std::vector<CDocTemplate*> CWinApp::GetTemplates() const {
    std::vector<CDocTemplate*> list;
    for (const auto& type : templates) list.push_back(type.get());
    return list;
}

std::vector<CDocument*> CWinApp::GetDocuments() const {
    std::vector<CDocument*> list;
    for (const auto& type : templates) {
        const std::vector<CDocument*> documents = type->GetDocuments();
        list.insert(list.end(), documents.begin(), documents.end());
    }
    return list;
}

CDocTemplate* CWinApp::FindBestTemplate(const std::string& path, CDocument*& openDocument) const {
    CDocTemplate* best = nullptr;
    CDocTemplate::Confidence bestConfidence = CDocTemplate::noAttempt;
    openDocument = nullptr;
    for (const auto& type : templates) {
        CDocument* open = nullptr;
        const CDocTemplate::Confidence confidence = type->MatchDocType(path, open);
        if (confidence <= bestConfidence) continue;
        bestConfidence = confidence;
        best = type.get();
        openDocument = open;
    }
    return best;
}

CDocument* CWinApp::OpenDocumentFile(const std::string& path) {
    const std::string fullPath = FullPath(path);
    if (fullPath.empty()) { // to a template, an empty path means a new document
        const CFileException failure(CFileException::fileNotFound, CFileException::noOsError, path);
        UserInterface::Get().ShowMessage(DescribeFailure(Direction::opening, path, failure));
        return nullptr;
    }
    CDocument* open = nullptr;
    CDocTemplate* type = FindBestTemplate(fullPath, open);
    if (!type) return nullptr;
    if (!open) return type->OpenDocumentFile(fullPath);
    if (DocumentFrame* frame = open->GetFrame(); frame && frame->IsShown()) frame->ActivateFrame();
    return open;
}

CDocument* CWinApp::OnFileNew() {
    const CDocTemplate* chosen = UserInterface::Get().PromptNewType();
    const auto place = std::find_if(templates.begin(), templates.end(),
                                    [&](const auto& type) { return type.get() == chosen; });
    return place == templates.end() ? nullptr : (*place)->OpenDocumentFile({});
}

void CWinApp::OpenRecentFile(std::size_t n) {
    const std::vector<std::string>& paths = recentFiles.GetPaths();
    if (n >= paths.size()) return;
    const std::string path = paths[n]; // a copy, because opening reorders the list
    if (!OpenDocumentFile(path)) recentFiles.Remove(path);
}

bool CWinApp::SaveAllModified() {
    const std::vector<CDocument*> documents = GetDocuments();
    return std::all_of(documents.begin(), documents.end(),
                       [](CDocument* document) { return document->SaveModified(); });
}

void CWinApp::CloseAllDocuments() {
    for (const auto& type : templates) type->CloseAllDocuments();
}

} // namespace keltavlo
