#pragma once

#include "archives/PAKFormat.h"
#include "archives/StoredEntry.h"
#include "framework/core/Path.h"

namespace keltavlo {

class PAKEntry final : public StoredEntry {
public:
    explicit PAKEntry(const PAKRecord& directoryRecord) : record(directoryRecord) {}
    std::string GetName() const override { return std::string(FileNameOf(record.GetPath())); }

protected:
    Extent GetExtent() const override { return {record.offset, record.length, record.length}; }

private:
    PAKRecord record;
};

} // namespace keltavlo
