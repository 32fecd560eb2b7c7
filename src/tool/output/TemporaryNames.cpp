#include "tool/output/TemporaryNames.h"

#include "framework/core/Path.h"

namespace keltavlo {

std::string TemporaryNames::Next(const std::string& target) {
    const std::lock_guard lock(mutex);
    if (!record) {
        runName = UniqueSaveName();
        record = std::make_unique<SaveRecord>(runName);
    }
    std::string path = ParentOf(target) + "/." + runName + "-" + std::to_string(++count) + temporarySuffix;
    record->Add(path);
    return path;
}

} // namespace keltavlo
