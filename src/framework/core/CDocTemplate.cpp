#include "framework/core/CDocTemplate.h"

#include "framework/core/ModulePath.h"
#include "framework/core/Path.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/core/UserInterface.h"

#include <algorithm>

namespace keltavlo {

std::string TypeExtensionOf(std::string_view path) {
    return IsModulePath(path) ? ".exe" : std::string(ExtensionOf(path));
}

CDocTemplate::~CDocTemplate() = default;

std::string CDocTemplate::GetDocString(DocString field) const {
    return std::string(Field(LoadString(row.stringId), '\n', field));
}

std::vector<CDocument*> CDocTemplate::GetDocuments() const {
    std::vector<CDocument*> list;
    for (const auto& document : documents) list.push_back(document.get());
    return list;
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(const std::string& path, CDocument*& openDocument) const {
    openDocument = nullptr;
    for (const auto& document : documents) {
        if (!SamePath(document->GetPathName(), path)) continue;
        openDocument = document.get();
        return yesAlreadyOpen;
    }
    const std::string extension = GetDocString(filterExt);
    return !extension.empty() && EqualNoCase(TypeExtensionOf(path), extension) ? yesAttemptNative
                                                                               : yesAttemptForeign;
}

CDocument* CDocTemplate::OpenDocumentFile(const std::string& path) {
    return OpenFilled([&](CDocument& document) { return FillDocument(document, path); });
}

CDocument* CDocTemplate::OpenFilled(const std::function<bool(CDocument&)>& fill) {
    CDocument& document = CreateNewDocument();
    try {
        DocumentFrame* frame = CreateNewFrame(document);
        if (fill(document)) {
            if (frame) frame->InitialUpdate(true);
            return &document;
        }
    } catch (...) { // out of memory: a half-made document must not stay
        document.OnCloseDocument();
        throw;
    }
    document.OnCloseDocument();
    return nullptr;
}

DocumentFrame* CDocTemplate::CreateNewFrame(CDocument& document) const {
    FrameFactory* factory = UserInterface::Get().GetFrameFactory();
    return factory ? factory->CreateFrame(*this, document) : nullptr;
}

void CDocTemplate::CloseAllDocuments() {
    while (!documents.empty()) documents.back()->OnCloseDocument();
}

CDocument& CDocTemplate::CreateNewDocument() {
    std::unique_ptr<CObject> object = row.documentClass->create();
    std::unique_ptr<CDocument> document(dynamic_cast<CDocument*>(object.get()));
    static_cast<void>(object.release());
    document->docTemplate = this;
    documents.push_back(std::move(document));
    return *documents.back();
}

bool CDocTemplate::FillDocument(CDocument& document, const std::string& path) {
    if (!path.empty()) {
        const CWaitCursor wait;
        if (!document.OnOpenDocument(path)) return false;
        document.SetPathName(path);
        return true;
    }
    if (!document.OnNewDocument()) return false;
    document.SetTitle(GetDocString(docName) + std::to_string(++untitledCount));
    return true;
}

void CDocTemplate::RemoveDocument(const CDocument& document) {
    const auto place = std::find_if(documents.begin(), documents.end(),
                                    [&](const auto& candidate) { return candidate.get() == &document; });
    if (place == documents.end()) return;
    const std::unique_ptr<CDocument> ending = std::move(*place); // destroyed after the list is updated
    documents.erase(place);
}

} // namespace keltavlo
