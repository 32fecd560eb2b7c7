#include "resources/DocTemplateRegistry.h"

#include "framework/core/CDocTemplate.h"
#include "framework/core/CWinApp.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "res/StringIds.h"

#include <algorithm>

namespace keltavlo {

CDocTemplate* DocTemplateRegistry::FindTemplate(const CRuntimeClass& documentClass) const {
    const std::vector<CDocTemplate*> types = CWinApp::Get().GetTemplates();
    const auto place = std::find_if(types.begin(), types.end(), [&](const CDocTemplate* type) {
        return &type->GetDocumentClass() == &documentClass;
    });
    return place == types.end() ? nullptr : *place;
}

CDocTemplate* DocTemplateRegistry::FindBestTemplate(const std::string& path) const {
    CFileStatus status;
    CDocument* openDocument = nullptr;
    return CWinApp::Get().FindBestTemplate(CFile::GetStatus(path, status) ? status.fullName : path,
                                           openDocument);
}

const CRuntimeClass* DocTemplateRegistry::GetDocumentClass(const std::string& path) const {
    const CDocTemplate* type = FindBestTemplate(path);
    return type ? &type->GetDocumentClass() : nullptr;
}

const CRuntimeClass* DocTemplateRegistry::GetDocumentClassOfName(const std::string& name) const {
    const std::vector<CDocTemplate*> types = CWinApp::Get().GetTemplates();
    const std::string extension = TypeExtensionOf(name);
    for (const CDocTemplate* type : types)
        if (EqualNoCase(type->GetDocString(CDocTemplate::filterExt), extension))
            return &type->GetDocumentClass();
    return types.empty() ? nullptr : &types.front()->GetDocumentClass();
}

std::string DocTemplateRegistry::GetFilterExtension(const CRuntimeClass& documentClass) const {
    const CDocTemplate* type = FindTemplate(documentClass);
    return type ? type->GetDocString(CDocTemplate::filterExt) : std::string();
}

bool DocTemplateRegistry::KnowsName(const std::string& name) const {
    const CRuntimeClass* type = GetDocumentClassOfName(name);
    return type && EqualNoCase(GetFilterExtension(*type), TypeExtensionOf(name));
}

CDocument* DocTemplateRegistry::OpenDocument(const std::string& path) const {
    return CWinApp::Get().OpenDocumentFile(path);
}

std::string CannotBeWritten(const CRuntimeClass& documentClass) {
    const CDocTemplate* type = DocTemplateRegistry::Get().FindTemplate(documentClass);
    const std::string files(type ? type->GetDocString(CDocTemplate::filterName) : documentClass.name);
    return FormatString(IDS_CANNOT_BE_WRITTEN, files.c_str());
}

} // namespace keltavlo
