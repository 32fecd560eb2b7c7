#include "app/PictureTypes.h"

#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "image/TavloDocument.h"
#include "resources/DocTemplateRegistry.h"

namespace keltavlo {

const CRuntimeClass* PictureClassOf(const std::string& path) {
    const DocTemplateRegistry& registry = DocTemplateRegistry::Get();
    const CRuntimeClass* type = registry.GetDocumentClassOfName(path);
    const bool isPicture = type && type->IsDerivedFrom(TavloDocument::runtimeClass);
    return isPicture && registry.KnowsName(path) ? type : nullptr;
}

std::string PictureExtensionIn(std::string_view patterns) {
    std::string extension;
    for (std::size_t i = 0;; ++i) {
        const std::string pattern(Field(patterns, ';', i));
        if (pattern.empty()) return extension;
        if (!PictureClassOf(pattern)) continue;
        if (!extension.empty()) return {};
        extension = ExtensionOf(pattern);
    }
}

} // namespace keltavlo
