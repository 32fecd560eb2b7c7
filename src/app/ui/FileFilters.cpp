#include "app/ui/FileFilters.h"

#include "app/PictureFiles.h"
#include "framework/core/CDocTemplate.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "res/ShellStrings.h"

namespace keltavlo {

namespace {

void AddFilter(std::vector<FileFilter>& filters, std::string_view label, std::string_view patterns) {
    filters.push_back({std::string(label), std::string(patterns), PictureExtensionIn(patterns)});
}

} // namespace

std::vector<FileFilter> BuildFileFilters(const FileNameQuestion& question) {
    std::vector<FileFilter> filters;
    if (question.type) {
        const std::string name = question.type->GetDocString(CDocTemplate::filterName);
        const std::string extension = question.type->GetDocString(CDocTemplate::filterExt);
        if (!name.empty() && !extension.empty()) AddFilter(filters, name, "*" + extension);
    }
    const std::string pairs = LoadString(question.open ? IDS_OPEN_FILTERS : IDS_SAVE_FILTERS);
    for (std::size_t i = 0;; i += 2) {
        const std::string_view label = Field(pairs, '\n', i);
        if (label.empty()) break;
        AddFilter(filters, label, Field(pairs, '\n', i + 1));
    }
    AddFilter(filters, LoadString(AFX_IDS_ALLFILTER), "*.*");
    return filters;
}

} // namespace keltavlo
