#include "image/TavloDocument.h"

#include "formats/Codec.h"
#include "formats/GameTexture.h"
#include "image/TextureChangeAction.h"
#include "res/StringIds.h"
#include "resources/BuiltInFiles.h"
#include "resources/DocTemplateRegistry.h"
#include "resources/PaletteDocument.h"
#include "resources/streams/OutputStream.h"

namespace keltavlo {

namespace {

constexpr BuiltInFile builtInReferences[] = {
    texelBrushFile, colorPickerFile,    grayScaleColors,  quakePalette,   quake2Palette,
    hexen2Palette,  internetSafeColors, alphaScaleColors, rgbaColorSpace,
};

// badIndex for a class that stands for no picture format.
const Codec& CodecOf(const CRuntimeClass* documentClass) {
    const Codec* codec = documentClass ? FindCodec(documentClass->name) : nullptr;
    if (codec) return *codec;
    if (!documentClass) throw CArchiveException(CArchiveException::badIndex);
    throw CArchiveException(CArchiveException::badIndex, {}, CannotBeWritten(*documentClass));
}

const ColorList* DefaultPaletteOf(const Codec& codec) {
    switch (codec.defaultPalette) {
    case DefaultPalette::quake:
        return &GetQuakePalette();
    case DefaultPalette::quake2:
        return &GetQuakeIIPalette();
    case DefaultPalette::none:
        break;
    }
    return nullptr;
}

} // namespace

TavloDocument::TavloDocument() = default;

bool TavloDocument::OnNewDocument() {
    if (!BaseDocument::OnNewDocument()) return false;
    AddBuiltInReferences();
    return true;
}

bool TavloDocument::OnOpenDocument(const std::string& path) {
    if (!BaseDocument::OnOpenDocument(path)) return false;
    AddBuiltInReferences();
    return true;
}

void TavloDocument::OnCloseDocument() {
    ReleaseReferences();
    BaseDocument::OnCloseDocument();
}

// An entry of an archive has no name of its own: it was opened by its type, which the document has.
void TavloDocument::ReadContents(InputStream& in) {
    const std::string name = in.GetName();
    const Codec& codec =
        CodecOf(name.empty() ? &GetRuntimeClass() : DocTemplateRegistry::Get().GetDocumentClassOfName(name));
    codec.read(in, texture, DefaultPaletteOf(codec));
}

void TavloDocument::WriteContents(OutputStream& out) {
    const std::string name = out.GetName().empty() ? GetTransferPath() : out.GetName();
    const Codec& codec = CodecOf(DocTemplateRegistry::Get().GetDocumentClassOfName(name));
    if (codec.hasGameSizes) ReformatForSave();
    codec.write(out, texture, DefaultPaletteOf(codec));
}

void TavloDocument::SetQuake2Names(Quake2Names names) {
    texture.quake2.name = std::move(names.name);
    texture.quake2.nextFrameName = std::move(names.nextFrameName);
}

const ColorList* TavloDocument::GetPaletteColors() const {
    const auto* table = dynamic_cast<const ColorTableDocument*>(currentPalette);
    return table && table->GetColorCount() > 0 ? &table->GetColors() : nullptr;
}

void TavloDocument::ReplaceTexture(unsigned nameId, Texture&& replacement) {
    history.Do(std::make_unique<TextureChangeAction>(nameId, std::move(replacement)));
}

void TavloDocument::SetModifiedAndUpdate(bool updateViews) {
    SetModifiedFlag();
    if (updateViews) UpdateAllViews(nullptr);
}

void TavloDocument::SelectBuiltInPalette(unsigned id) {
    SetCurrentPalette(
        dynamic_cast<PaletteDocument*>(DocTemplateRegistry::Get().OpenDocument(GetBuiltInPath(id))));
}

void TavloDocument::AddBuiltInReferences() {
    for (const BuiltInFile file : builtInReferences)
        references.push_back(OpenReference(GetBuiltInPath(file)));
    currentBrush = nullptr;
    currentPalette = nullptr;
}

void TavloDocument::ReleaseReferences() {
    currentPalette = nullptr;
    currentBrush = nullptr;
    for (; !references.empty(); references.pop_back()) ReleaseReference(references.back());
}

void TavloDocument::ReformatForSave() {
    const int width = gametexture::FittingSide(texture.GetWidth());
    const int height = gametexture::FittingSide(texture.GetHeight());
    if (width == texture.GetWidth() && height == texture.GetHeight()) return;
    ReplaceTexture(IDS_ACTION_REFORMAT, texture.Resized(width, height));
}

} // namespace keltavlo
