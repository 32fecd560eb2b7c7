#pragma once

#include "framework/core/Service.h"

#include <string>

namespace keltavlo {

class CDocTemplate;
class CDocument;
struct CRuntimeClass;

// Finds the application's document type for a class or path, and opens documents by path. Has no state
// of its own.
class DocTemplateRegistry : public Service<DocTemplateRegistry> {
public:
    // Returns the first type whose document class is exactly this one, or null.
    CDocTemplate* FindTemplate(const CRuntimeClass& documentClass) const;
    // Returns the type that fits the path best, or null. An open document with that path fits best of all.
    CDocTemplate* FindBestTemplate(const std::string& path) const;
    // Returns the document class of FindBestTemplate, or null.
    const CRuntimeClass* GetDocumentClass(const std::string& path) const;
    // Does the same by the extension alone, even if the file is open. Returns the first type's class for an
    // unknown extension.
    const CRuntimeClass* GetDocumentClassOfName(const std::string& name) const;
    // Returns the file extension of the class's type, such as ".mip", or an empty one if the class
    // has no type.
    std::string GetFilterExtension(const CRuntimeClass& documentClass) const;
    // Returns whether a type has the name's extension.
    bool KnowsName(const std::string& name) const;
    // Returns the document that is open under the path; otherwise opens it. Returns null on failure.
    CDocument* OpenDocument(const std::string& path) const;
};

// Returns the sentence which says that files of the class's type cannot be written.
std::string CannotBeWritten(const CRuntimeClass& documentClass);

} // namespace keltavlo
