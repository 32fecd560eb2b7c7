#include "resources/ReferenceDocument.h"

#include "framework/core/Path.h"

namespace keltavlo {

void ReferenceDocument::SetPathName(const std::string& path, bool) {
    BaseDocument::SetPathName(path, false);
    SetTitle(fixedTitle.empty() ? std::string(BaseNameOf(path)) : fixedTitle);
}

} // namespace keltavlo
