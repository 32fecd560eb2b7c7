#include "image/ImageDocuments.h"

#include "resources/BuiltInFiles.h"

namespace keltavlo {

bool FormatDocument::OnNewDocument() {
    constexpr int newSide = 64;
    if (!TavloDocument::OnNewDocument()) return false;
    GetTexture().SetSize(newSide, newSide);
    return true;
}

bool MIPDocument::OnNewDocument() {
    if (!FormatDocument::OnNewDocument()) return false;
    SelectBuiltInPalette(quakePalette);
    return true;
}

bool WALDocument::OnNewDocument() {
    if (!FormatDocument::OnNewDocument()) return false;
    SelectBuiltInPalette(quake2Palette);
    return true;
}

} // namespace keltavlo
