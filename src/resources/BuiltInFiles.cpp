#include "resources/BuiltInFiles.h"

#include "framework/core/EmbeddedFiles.h"
#include "framework/core/ModulePath.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "resources/DocTemplateRegistry.h"
#include "resources/PaletteDocument.h"

#include <QString>

namespace keltavlo {

namespace {

constexpr char16_t wideMarker = 0xFFFE; // precedes a name in UTF-16

std::string DecodeName(std::string_view bytes) {
    char16_t first = 0;
    if (bytes.size() >= sizeof first) bytes.copy(reinterpret_cast<char*>(&first), sizeof first);
    if (first != wideMarker) return std::string(UpToNul(bytes));
    std::u16string units(bytes.size() / sizeof(char16_t) - 1, u'\0');
    bytes.copy(reinterpret_cast<char*>(units.data()), units.size() * sizeof(char16_t), sizeof(char16_t));
    return FromQString(QString::fromStdU16String(units.substr(0, units.find(u'\0'))));
}

const ColorList& FilledOnce(ColorList& list, BuiltInFile file) {
    if (list.GetCount() > 0) return list;
    const std::string path = GetBuiltInPath(file);
    const auto* document =
        dynamic_cast<const ColorTableDocument*>(DocTemplateRegistry::Get().OpenDocument(path));
    if (!document || document->GetColorCount() == 0)
        throw CArchiveException(CArchiveException::generic, path,
                                "The program is incomplete: a built-in palette is missing.");
    return list = document->GetColors();
}

} // namespace

std::string GetBuiltInName(unsigned id) {
    const EmbeddedFile* row = FindEmbeddedFile(id, builtInNameType);
    return row ? DecodeName({reinterpret_cast<const char*>(row->data.data()), row->data.size()})
               : std::string();
}

std::string GetBuiltInPath(unsigned id) {
    return JoinPath(JoinPath(GetModulePath(), builtInFolder), GetBuiltInName(id));
}

const ColorList& GetQuakePalette() {
    static ColorList list;
    return FilledOnce(list, quakePalette);
}

const ColorList& GetQuakeIIPalette() {
    static ColorList list;
    return FilledOnce(list, quake2Palette);
}

} // namespace keltavlo
