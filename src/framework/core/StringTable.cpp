#include "framework/core/StringTable.h"

#include "framework/core/Text.h"

#include <QString>

#include <cstdarg>
#include <map>

namespace keltavlo {

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

std::string FormatString(unsigned id, ...) {
    const std::string format = LoadString(id);
    va_list arguments;
    va_start(arguments, id);
    const QString text = QString::vasprintf(format.c_str(), arguments);
    va_end(arguments);
    return FromQString(text);
}

} // namespace keltavlo
