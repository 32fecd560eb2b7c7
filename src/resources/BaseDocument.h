#pragma once

#include "framework/core/CDocument.h"

namespace keltavlo {

class InputStream;
class OutputStream;

// Base of every document of the program. Its file is read and written through a byte stream and
// may be in an archive.
class BaseDocument : public Dynamic<"BaseDocument", BaseDocument, CDocument> {
public:
    // Writes the whole document. This version throws badClass, for classes that cannot be saved.
    virtual void WriteContents(OutputStream& out);
    // Replaces the contents by those of the stream. This version throws badClass.
    virtual void ReadContents(InputStream& in);
    // Write and read the document as it is in memory, for files that only this program reads. These versions
    // use the file format.
    virtual void WriteState(OutputStream& out) { WriteContents(out); }
    virtual void ReadState(InputStream& in) { ReadContents(in); }
    // Called when one of the document's views becomes the active one or stops being it. Either document may
    // be null.
    virtual void OnActivateDocument(bool activate, BaseDocument* activated, BaseDocument* deactivated);
    // The last step of New and Open. Returns false to make them fail.
    virtual bool OnDocumentReady() { return true; }

    bool OnNewDocument() override;
    bool OnOpenDocument(const std::string& path) override;
    bool OnSaveDocument(const std::string& path) override;
    std::unique_ptr<CFile> GetFile(const std::string& path, unsigned flags, CFileException* failure) override;
    void SetTitle(const std::string& newTitle) override;
    bool DoFileSave() override;
    // Asks for a name and saves under it. Returns false if cancelled or failed.
    bool DoFileSaveAs();

    // Returns the document under the path, opened if necessary, or null on failure. It stays open.
    static BaseDocument* OpenReference(const std::string& path);
    static void ReleaseReference(BaseDocument* document);

protected:
    void Serialize(CArchive& archive) override;
    const CommandMap& GetCommandMap() const override;
    // The path of the current open or save. Used if a stream has no name.
    const std::string& GetTransferPath() const { return transferPath; }

private:
    bool Save(const std::string& path);
    std::string ProposeFileName() const;
    void OnFileSave() { DoFileSave(); }
    void OnFileSaveAs() { DoFileSaveAs(); }

    std::string transferPath;
};

} // namespace keltavlo
