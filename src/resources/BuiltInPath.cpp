#include "resources/BuiltInPath.h"

#include "framework/core/ModulePath.h"
#include "framework/core/Path.h"
#include "framework/core/ProgramResources.h"
#include "framework/core/Text.h"

#include <QString>

namespace keltavlo {

namespace {

constexpr char16_t wideMarker = 0xFFFE; // stands before a name in UTF-16

std::string DecodeName(std::string_view bytes) {
    char16_t first = 0;
    if (bytes.size() >= sizeof first) bytes.copy(reinterpret_cast<char*>(&first), sizeof first);
    if (first != wideMarker) return std::string(UpToNul(bytes));
    std::u16string units(bytes.size() / sizeof(char16_t) - 1, u'\0');
    bytes.copy(reinterpret_cast<char*>(units.data()), units.size() * sizeof(char16_t), sizeof(char16_t));
    return FromQString(QString::fromStdU16String(units.substr(0, units.find(u'\0'))));
}

} // namespace

std::string GetBuiltInName(unsigned id) {
    const ResourceRow* row = FindResource(id, builtInNameType);
    return row ? DecodeName({reinterpret_cast<const char*>(row->data.data()), row->data.size()})
               : std::string();
}

std::string GetBuiltInPath(unsigned id) {
    return JoinPath(JoinPath(GetModulePath(), builtInFolder), GetBuiltInName(id));
}

} // namespace keltavlo
