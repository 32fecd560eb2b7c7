#include "archives/WADEntry.h"

#include "framework/core/CWinApp.h"
#include "framework/core/Path.h"

#include <algorithm>

namespace keltavlo {

namespace {

constexpr struct {
    std::uint8_t lumpType;
    std::string_view documentClass; // by name: pictures are documents of a higher layer
} kinds[] = {{64, "LMPDocument"}, {67, "MIPDocument"}, {68, "MIPDocument"}};

std::string ExtensionOfClass(std::string_view className) {
    for (const CDocTemplate* type : CWinApp::Get().GetTemplates())
        if (type->GetDocumentClass().name == className) return type->GetDocString(CDocTemplate::filterExt);
    return {};
}

} // namespace

std::string WADEntry::GetName() const {
    std::string name(FileNameOf(record.GetPath()));
    for (const auto& [lumpType, documentClass] : kinds)
        if (lumpType == record.type) return name + ExtensionOfClass(documentClass);
    return name;
}

StoredEntry::Extent WADEntry::GetExtent() const {
    return {record.offset, std::min(record.diskSize, record.size), record.size};
}

} // namespace keltavlo
