#include "tool/EntryTypes.h"

#include "archives/FolderDocument.h"
#include "framework/core/CDocTemplate.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "resources/DocTemplateRegistry.h"
#include "tool/pictures/PictureFormat.h"

namespace keltavlo {

namespace {

EntryType MakeType(const std::string& path) {
    const DocTemplateRegistry& registry = DocTemplateRegistry::Get();
    const CDocTemplate* type = registry.FindTemplate(*registry.GetDocumentClassOfName(path));
    if (EqualNoCase(type->GetDocString(CDocTemplate::filterExt), TypeExtensionOf(path)))
        return {type->GetDocString(CDocTemplate::filterName), false,
                type->GetDocumentClass().IsDerivedFrom(FolderDocument::runtimeClass)};
    if (const PictureFormat* format = FindPictureFormat(path))
        return {"Picture Files (*." + std::string(format->codec.name) + ")"};
    return {"unknown"};
}

} // namespace

const EntryType& EntryTypes::Find(const std::string& path) {
    const std::string_view extension = ExtensionOf(path);
    auto place = byExtension.find(extension);
    if (place == byExtension.end()) place = byExtension.emplace(extension, MakeType(path)).first;
    return place->second;
}

} // namespace keltavlo
