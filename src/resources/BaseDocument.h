#pragma once

#include "framework/core/CDocument.h"

namespace keltavlo {

class InputStream;
class OutputStream;

// Base of every document of the program: its file is read and written through a byte stream and may lie in an
// archive.
class BaseDocument : public Dynamic<"BaseDocument", BaseDocument, CDocument> {
public:
    // Writes the whole document. Here: badClass, for a class that cannot be saved.
    virtual void WriteContents(OutputStream& out);
    // Replaces the contents by what the stream holds. Here: badClass.
    virtual void ReadContents(InputStream& in);
    // One of the document's views became the active one, or stopped to be; each document may be null.
    virtual void OnActivateDocument(bool activate, BaseDocument* activated, BaseDocument* deactivated);
    // The last step of New and Open; false makes them fail.
    virtual bool OnDocumentReady() { return true; }

    bool OnNewDocument() override;
    bool OnOpenDocument(const std::string& path) override;
    bool OnSaveDocument(const std::string& path) override;
    std::unique_ptr<CFile> GetFile(const std::string& path, unsigned flags, CFileException* failure) override;
    void SetTitle(const std::string& newTitle) override;
    bool DoFileSave() override;
    // Saves under a name that is asked for. False when cancelled or failed.
    bool DoFileSaveAs();

    // The document under the path, opened if it is not open yet; null when that failed. It stays open.
    static BaseDocument* OpenReference(const std::string& path);
    static void ReleaseReference(BaseDocument* document);

protected:
    void Serialize(CArchive& archive) override;
    const CommandMap& GetCommandMap() const override;
    // The path of the open or save that is running: what to go by where a stream has no name.
    const std::string& GetTransferPath() const { return transferPath; }

private:
    bool Save(const std::string& path);
    std::string ProposeFileName() const;
    void OnFileSave() { DoFileSave(); }
    void OnFileSaveAs() { DoFileSaveAs(); }

    std::string transferPath;
};

} // namespace keltavlo
