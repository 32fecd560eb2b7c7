#pragma once

#include "framework/core/CDocument.h"

#include <functional>

namespace keltavlo {

// Returns the extension that selects a path's document type: ".exe" for the file of the running program,
// whatever its name, and otherwise the path's own. Does not access the disk for a relative path.
std::string TypeExtensionOf(std::string_view path);

// One document type: its classes, its names and its open documents.
class CDocTemplate : public Dynamic<"CDocTemplate", CDocTemplate, CCmdTarget> {
public:
    // Fields of the document string, separated by newlines.
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

    // Frame and view classes are given by name, because a program without windows does not have them.
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

    // Sets `openDocument` to the document that is open under the path, or to null.
    virtual Confidence MatchDocType(const std::string& path, CDocument*& openDocument) const;
    // Reads the file into a new document and gives it a frame if there are windows. An empty path makes a
    // new, untitled document. Returns null, after telling the user why, if that failed or was refused.
    virtual CDocument* OpenDocumentFile(const std::string& path);
    // Gives a new document a frame and passes it to `fill`. Returns null if that returns false.
    CDocument* OpenFilled(const std::function<bool(CDocument&)>& fill);
    // Opens another frame on an open document. Returns null if there are no windows.
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
