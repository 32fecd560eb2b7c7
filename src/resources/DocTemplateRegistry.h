#pragma once

#include "framework/core/Service.h"

#include <string>

namespace keltavlo {

class CDocTemplate;
class CDocument;
struct CRuntimeClass;

// Finds the document type of a class or a path among the application's types, and opens documents by path. It
// has no state of its own.
class DocTemplateRegistry : public Service<DocTemplateRegistry> {
public:
    // The first type whose document class is exactly this one, or null.
    CDocTemplate* FindTemplate(const CRuntimeClass& documentClass) const;
    // The type that fits the path best, an open document of that path above all; or null.
    CDocTemplate* FindBestTemplate(const std::string& path) const;
    // The document class of FindBestTemplate, or null.
    const CRuntimeClass* GetDocumentClass(const std::string& path) const;
    // The same by the name's extension alone, whatever is open: the first type's class for an unknown one.
    const CRuntimeClass* GetDocumentClassOfName(const std::string& name) const;
    // The file extension of the class's type, such as ".mip"; empty when the class has no type.
    std::string GetFilterExtension(const CRuntimeClass& documentClass) const;
    // Whether a type has the name's extension.
    bool KnowsName(const std::string& name) const;
    // The document open under the path, or the file read into a new one; null when that failed.
    CDocument* OpenDocument(const std::string& path) const;
};

// The sentence that says that files of the class's type cannot be written.
std::string CannotBeWritten(const CRuntimeClass& documentClass);

} // namespace keltavlo
