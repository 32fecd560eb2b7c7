#include "tool/archives/ArchiveTypes.h"

#include "framework/core/CWinApp.h"
#include "res/StringIds.h"
#include "tool/archives/BSPDocument.h"
#include "tool/archives/ZIPDocument.h"

namespace keltavlo {

void RegisterArchiveTypes(CWinApp& application) {
    const std::pair<unsigned, const CRuntimeClass*> rows[] = {
        {IDR_PK3, &PK3Document::runtimeClass},
        {IDR_ZIP, &ZIPDocument::runtimeClass},
        {IDR_BSP, &BSPDocument::runtimeClass},
    };
    for (const auto& [stringId, documentClass] : rows)
        application.AddDocTemplate(
            std::make_unique<CDocTemplate>(CDocTemplate::Row{stringId, 0, documentClass, {}, {}}));
}

} // namespace keltavlo
