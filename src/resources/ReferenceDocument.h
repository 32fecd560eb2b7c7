#pragma once

#include "framework/core/Path.h"
#include "resources/BaseDocument.h"

namespace keltavlo {

// Base of documents that other documents refer to. They are never listed in the recent files, and their files
// may contain their titles.
class ReferenceDocument : public Dynamic<"ReferenceDocument", ReferenceDocument, BaseDocument> {
public:
    void SetPathName(const std::string& path, bool = true) override {
        BaseDocument::SetPathName(path, false);
        SetTitle(fixedTitle.empty() ? std::string(BaseNameOf(path)) : fixedTitle);
    }

protected:
    std::string fixedTitle; // if not empty, shown instead of the file name
};

} // namespace keltavlo
