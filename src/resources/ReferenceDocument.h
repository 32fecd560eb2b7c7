#pragma once

#include "resources/BaseDocument.h"

namespace keltavlo {

// Base of the documents that others refer to. It never enters the recent files, and its file can carry its
// title.
class ReferenceDocument : public Dynamic<"ReferenceDocument", ReferenceDocument, BaseDocument> {
public:
    void SetPathName(const std::string& path, bool addToRecentFiles = true) override;

protected:
    std::string fixedTitle; // shown instead of the file name unless empty
};

} // namespace keltavlo
