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
    // They have no window in which the user could turn to them, and archives may be large.
    bool KeepsStamp() const override { return false; }

    std::string fixedTitle; // if not empty, shown instead of the file name
};

} // namespace keltavlo
