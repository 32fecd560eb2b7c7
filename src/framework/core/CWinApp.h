#pragma once

#include "framework/core/CDocTemplate.h"
#include "framework/core/ProfileStore.h"
#include "framework/core/RecentFileList.h"
#include "framework/core/Service.h"

namespace keltavlo {

// The application without its windows: the document types, their open documents, the settings and the recent
// files.
class CWinApp : public Dynamic<"CWinApp", CWinApp, CCmdTarget>, public Service<CWinApp>, public DocumentHost {
public:
    using Service<CWinApp>::Get;
    using Service<CWinApp>::Find;

    explicit CWinApp(ProfileStore settings);
    ~CWinApp() override;

    void AddDocTemplate(std::unique_ptr<CDocTemplate> type) { templates.push_back(std::move(type)); }
    // In the order of registration.
    std::vector<CDocTemplate*> GetTemplates() const;
    // All open documents, by type and then in the order of opening.
    std::vector<CDocument*> GetDocuments() const;

    // The type that fits the path best: the most confident, first of equals; null when none would try.
    // `openDocument` receives the document open under the path, or null.
    CDocTemplate* FindBestTemplate(const std::string& path, CDocument*& openDocument) const;
    // The document open under the path, after its window comes to the front; else the file read into a new
    // document. Null when that failed (the user has been told).
    virtual CDocument* OpenDocumentFile(const std::string& path);
    // Asks for a type when there is a choice, then makes a new document. Null when cancelled or failed.
    CDocument* OnFileNew();
    // Opens entry n of the recent files; one that fails leaves the list.
    void OpenRecentFile(std::size_t n);
    void AddToRecentFileList(const std::string& path) override { recentFiles.Add(path); }
    void RemoveDocument(CDocument& document) override { document.GetDocTemplate()->RemoveDocument(document); }
    RecentFileList& GetRecentFiles() { return recentFiles; }
    ProfileStore& GetProfile() { return profile; }

    // Asks about every modified document; false as soon as one must stay.
    bool SaveAllModified();
    void CloseAllDocuments();

private:
    ProfileStore profile;
    RecentFileList recentFiles;
    std::vector<std::unique_ptr<CDocTemplate>> templates;
};

} // namespace keltavlo
