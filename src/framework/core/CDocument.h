#pragma once

#include "framework/core/CArchive.h"
#include "framework/core/CCmdTarget.h"
#include "framework/core/DocumentView.h"
#include "framework/core/FileStamp.h"
#include "framework/core/Service.h"

#include <memory>
#include <string>
#include <vector>

namespace keltavlo {

class CDocTemplate;
class CDocument;
struct ChangedFile;

// What documents need from the application.
class DocumentHost : public Service<DocumentHost> {
public:
    virtual void AddToRecentFileList(const std::string& path) = 0;
    // Deletes the document. Does nothing if no document type owns it.
    virtual void RemoveDocument(CDocument& document) = 0;
};

// A file's contents in memory, with a title, a path, a modified mark and the views that show it.
class CDocument : public Dynamic<"CDocument", CDocument, CCmdTarget> {
public:
    const std::string& GetTitle() const { return title; }
    virtual void SetTitle(const std::string& newTitle);
    // Empty until the document is opened or saved.
    const std::string& GetPathName() const { return pathName; }
    virtual void SetPathName(const std::string& path, bool addToRecentFiles = true);
    bool IsModified() const { return modified; }
    void SetModifiedFlag(bool on = true);
    CDocTemplate* GetDocTemplate() const { return docTemplate; }

    // These make the document new, or read or write its file. On failure they show the user a sentence with
    // the path and return false. A document that could not be read is empty. One that could not be saved
    // keeps its contents and its modified mark, but also any change made to fit the file's format.
    virtual bool OnNewDocument();
    virtual bool OnOpenDocument(const std::string& path);
    virtual bool OnSaveDocument(const std::string& path);
    // Closes the document's frames and returns the document to its type, which deletes it.
    virtual void OnCloseDocument();
    // Asks whether to save a modified document. Returns false if the document must stay open, because the
    // user cancelled or saving failed.
    virtual bool SaveModified();
    // Saves under the document's path, or asks for a name. Returns false if cancelled or failed.
    virtual bool DoFileSave() = 0;
    // Asks whether to reload the document if another program has changed its file. Asks once per change. Call
    // it when the user turns to the document and no dialog is open.
    void CheckFile();
    // The state of the document's file when it was last read or written. Null for a new document.
    const std::optional<FileStamp>& GetStamp() const { return stamp; }
    // Makes the document a modified one of that path, which may be empty, and with that stamp.
    void ContinueAs(const std::string& path, const std::optional<FileStamp>& fileStamp);
    // Opens a file with `flags` from CFile::OpenFlags. Returns null on failure and fills `*failure` unless
    // that is null.
    virtual std::unique_ptr<CFile> GetFile(const std::string& path, unsigned flags, CFileException* failure);

    // A view belongs to its frame. Removing the last view closes the document.
    void AddView(DocumentView& view);
    void RemoveView(DocumentView& view);
    const std::vector<DocumentView*>& GetViews() const { return views; }
    // Notifies every view but the sender. A view that lacks memory for the update catches up when it is next
    // painted: the document has changed already, and the other views must still be notified.
    void UpdateAllViews(DocumentView* sender, std::intptr_t hint = 0, CObject* hintObject = nullptr);
    // Returns the first view's frame, or null for a document without windows.
    DocumentFrame* GetFrame() const;

protected:
    virtual void Serialize(CArchive& archive) = 0;
    // Empties the document before it is filled again.
    virtual void DeleteContents() {}
    // Whether the document remembers what its file contained, so that it can find out about changes.
    virtual bool KeepsStamp() const { return true; }
    // Takes over the contents of `loaded`, a document of the same class, for a reload. If memory runs out,
    // the document stays unchanged.
    virtual void TakeContents(CDocument&) {}
    // Whether TakeContents can be undone.
    virtual bool CanUndoReload() const { return false; }
    // Asks before the document is saved over a file that another program has changed. Returns false if it
    // must not be saved.
    bool MayOverwriteFile();

private:
    friend class CDocTemplate;

    // Returns the current stamp of the file if another program has changed its contents, and null if not or
    // if the file is gone. Throws if the file cannot be read.
    std::optional<FileStamp> FindOutsideChange();
    std::unique_ptr<CFile> OpenForReading(const std::string& path);
    ChangedFile DescribeChange(bool saving) const;
    void Load(CFile& file);
    void Reload();
    void NoteSaved(const std::string& path, std::uint64_t digest);
    void UpdateFrameTitle();

    std::string title;
    std::string pathName;
    bool modified = false;
    bool closing = false;
    std::optional<FileStamp> stamp;      // of the file when it was last read or written
    std::optional<FileState> askedAbout; // the state of the changed file that CheckFile last found
    CDocTemplate* docTemplate = nullptr;
    std::vector<DocumentView*> views;
};

} // namespace keltavlo
