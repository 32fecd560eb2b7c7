#include "framework/core/StringTable.h"

#include <map>

namespace {

std::map<unsigned, const char*>& Table() {
    static std::map<unsigned, const char*> table;
    return table;
}

} // namespace

void AddStrings(std::span<const StringRow> rows) {
    for (const StringRow& row : rows) Table().insert_or_assign(row.id, row.text);
}

std::string LoadString(unsigned id) {
    const auto place = Table().find(id);
    return place == Table().end() ? std::string() : place->second;
}
