#pragma once

#include "framework/core/Path.h"
#include "resources/BaseDocument.h"

namespace keltavlo {

// Base of the documents that others refer to. It never enters the recent files, and its file can carry its
// title.
class ReferenceDocument : public Dynamic<"ReferenceDocument", ReferenceDocument, BaseDocument> {
public:
    void SetPathName(const std::string& path, bool = true) override {
        BaseDocument::SetPathName(path, false);
        SetTitle(fixedTitle.empty() ? std::string(BaseNameOf(path)) : fixedTitle);
    }

protected:
    std::string fixedTitle; // shown instead of the file name unless empty
};

} // namespace keltavlo
