#include "framework/core/ProgramResources.h"

#include "framework/core/Text.h"

#include <algorithm>

namespace keltavlo {

namespace {

std::vector<ResourceRow>& Table() {
    static std::vector<ResourceRow> table;
    return table;
}

bool ComesBefore(const ResourceRow& a, const ResourceRow& b) {
    return a.id < b.id;
}

} // namespace

void AddResources(std::span<const ResourceRow> rows) {
    for (const ResourceRow& row : rows)
        if (!FindResource(row.id, row.type))
            Table().insert(std::upper_bound(Table().begin(), Table().end(), row, ComesBefore), row);
}

std::vector<unsigned> EnumResources(std::string_view type) {
    std::vector<unsigned> ids;
    for (const ResourceRow& row : Table())
        if (EqualNoCase(row.type, type)) ids.push_back(row.id);
    return ids;
}

const ResourceRow* FindResource(unsigned id, std::string_view type) {
    for (const ResourceRow& row : Table())
        if (row.id == id && EqualNoCase(row.type, type)) return &row;
    return nullptr;
}

} // namespace keltavlo
