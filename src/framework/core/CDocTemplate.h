#pragma once

#include "framework/core/CDocument.h"

namespace keltavlo {

// The extension that picks a path's document type: ".exe" for the running program's file, whatever it is
// called, and the path's own for every other. Does not ask the disk about a relative path.
std::string TypeExtensionOf(std::string_view path);

// One document type: its classes, its names and its open documents.
class CDocTemplate : public Dynamic<"CDocTemplate", CDocTemplate, CCmdTarget> {
public:
    // Fields of the document string, which "\n" separates.
    enum DocString {
        windowTitle,
        docName,
        fileNewName,
        filterName,
        filterExt,
        regFileTypeId,
        regFileTypeName
    };
    // How well a path fits the type, worst first.
    enum Confidence {
        noAttempt,
        maybeAttemptForeign,
        maybeAttemptNative,
        yesAttemptForeign,
        yesAttemptNative,
        yesAlreadyOpen
    };

    // The frame and view classes go by name: a program without windows has none of them.
    struct Row {
        unsigned stringId;
        unsigned menuId;
        const CRuntimeClass* documentClass;
        std::string frameClass;
        std::string viewClass;
    };
    explicit CDocTemplate(Row typeRow) : row(std::move(typeRow)) {}
    ~CDocTemplate() override;

    const Row& GetRow() const { return row; }
    const CRuntimeClass& GetDocumentClass() const { return *row.documentClass; }
    std::string GetDocString(DocString field) const;
    std::vector<CDocument*> GetDocuments() const;

    // `openDocument` receives the document that is open under the path, or null.
    virtual Confidence MatchDocType(const std::string& path, CDocument*& openDocument) const;
    // Reads the file into a new document, with a frame where there are windows. An empty path makes a new,
    // untitled document. Null when that failed or was refused (the user has been told).
    virtual CDocument* OpenDocumentFile(const std::string& path);
    // A further frame on an open document; null where there are no windows.
    DocumentFrame* CreateNewFrame(CDocument& document) const;
    void CloseAllDocuments();

    // Deletes the document if it is of this type.
    void RemoveDocument(const CDocument& document);

private:
    CDocument& CreateNewDocument();
    bool FillDocument(CDocument& document, const std::string& path);

    Row row;
    std::vector<std::unique_ptr<CDocument>> documents; // in the order of opening
    unsigned untitledCount = 0;
};

} // namespace keltavlo
