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
    // Returns the types in the order of registration.
    std::vector<CDocTemplate*> GetTemplates() const;
    // Returns all open documents, by type and then in the order of opening.
    std::vector<CDocument*> GetDocuments() const;

    // Returns the type that fits the path best, the first of equals, or null if no type accepts it. Sets
    // `openDocument` to the document that is open under the path, or to null.
    CDocTemplate* FindBestTemplate(const std::string& path, CDocument*& openDocument) const;
    // If the path is already open, brings that document to the front; otherwise reads the file into a new
    // document. Returns the document, or null, after telling the user why, if that failed.
    virtual CDocument* OpenDocumentFile(const std::string& path);
    // Asks for a type if there is a choice, then makes a new document. Returns null if cancelled or failed.
    CDocument* OnFileNew();
    // Opens entry n of the recent files and removes it from the list if that fails.
    void OpenRecentFile(std::size_t n);
    void AddToRecentFileList(const std::string& path) override { recentFiles.Add(path); }
    void RemoveDocument(CDocument& document) override { document.GetDocTemplate()->RemoveDocument(document); }
    RecentFileList& GetRecentFiles() { return recentFiles; }
    ProfileStore& GetProfile() { return profile; }

    // Asks about each modified document. Returns false as soon as one must stay open.
    bool SaveAllModified();
    void CloseAllDocuments();

private:
    ProfileStore profile;
    RecentFileList recentFiles;
    std::vector<std::unique_ptr<CDocTemplate>> templates;
};

} // namespace keltavlo
