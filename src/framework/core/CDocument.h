#pragma once

#include "framework/core/CArchive.h"
#include "framework/core/CCmdTarget.h"
#include "framework/core/DocumentView.h"
#include "framework/core/Service.h"

#include <memory>
#include <string>
#include <vector>

namespace keltavlo {

class CDocTemplate;
class CDocument;

// What documents ask of the application.
class DocumentHost : public Service<DocumentHost> {
public:
    virtual void AddToRecentFileList(const std::string& path) = 0;
    // Deletes the document, unless no document type owns it.
    virtual void RemoveDocument(CDocument& document) = 0;
};

// A file's contents in memory, with a title, a path, a modified mark and the views that show it.
class CDocument : public Dynamic<"CDocument", CDocument, CCmdTarget> {
public:
    const std::string& GetTitle() const { return title; }
    virtual void SetTitle(const std::string& newTitle);
    const std::string& GetPathName() const {
        return pathName;
    } // empty until the document was opened or saved
    virtual void SetPathName(const std::string& path, bool addToRecentFiles = true);
    bool IsModified() const { return modified; }
    void SetModifiedFlag(bool on = true);
    CDocTemplate* GetDocTemplate() const { return docTemplate; }

    // Make the document new, or read or write its file. On failure they show the user a sentence with the
    // path and return false. A document that could not be read is empty. One that could not be saved keeps
    // its contents and its modified mark; a change that the file's format called for stays.
    virtual bool OnNewDocument();
    virtual bool OnOpenDocument(const std::string& path);
    virtual bool OnSaveDocument(const std::string& path);
    // Ends the document: closes its frames and gives it back to its type, which deletes it.
    virtual void OnCloseDocument();
    // Asks whether to save when the document is modified. False when it must stay open: cancelled, or not
    // saved.
    virtual bool SaveModified();
    // Saves under the document's path, or asks for a name. False when cancelled or failed.
    virtual bool DoFileSave() = 0;
    // Null on failure, with `*failure` filled when it is given. Flags: CFile::OpenFlags.
    virtual std::unique_ptr<CFile> GetFile(const std::string& path, unsigned flags, CFileException* failure);

    // A view belongs to its frame; with the last one the document is closed.
    void AddView(DocumentView& view);
    void RemoveView(DocumentView& view);
    const std::vector<DocumentView*>& GetViews() const { return views; }
    // Tells every view but the sender. A view that lacks the memory to follow does so when it is painted
    // next: the document has changed already, and the other views must know.
    void UpdateAllViews(DocumentView* sender, std::intptr_t hint = 0, CObject* hintObject = nullptr);
    // The first view's frame; null for a document without windows.
    DocumentFrame* GetFrame() const;

protected:
    virtual void Serialize(CArchive& archive) = 0;
    // Empties the document before it is filled anew.
    virtual void DeleteContents() {}

private:
    friend class CDocTemplate;

    std::string title;
    std::string pathName;
    bool modified = false;
    bool closing = false;
    CDocTemplate* docTemplate = nullptr;
    std::vector<DocumentView*> views;
};

} // namespace keltavlo
