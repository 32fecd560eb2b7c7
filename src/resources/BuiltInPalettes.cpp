#include "resources/BuiltInPalettes.h"

#include "resources/BuiltInPath.h"
#include "resources/ColorTableDocument.h"
#include "resources/DocTemplateRegistry.h"

namespace keltavlo {

namespace {

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

const ColorList& GetQuakePalette() {
    static ColorList list;
    return FilledOnce(list, quakePalette);
}

const ColorList& GetQuakeIIPalette() {
    static ColorList list;
    return FilledOnce(list, quake2Palette);
}

} // namespace keltavlo
