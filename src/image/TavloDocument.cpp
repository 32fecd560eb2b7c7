#include "image/TavloDocument.h"

#include "formats/Codec.h"
#include "formats/GameTexture.h"
#include "framework/core/StringTable.h"
#include "image/TextureChangeAction.h"
#include "res/CommandIds.h"
#include "res/StringIds.h"
#include "resources/BuiltInPalettes.h"
#include "resources/BuiltInPath.h"
#include "resources/DocTemplateRegistry.h"
#include "resources/PaletteDocument.h"
#include "resources/streams/OutputStream.h"

namespace {

constexpr BuiltInFile builtInReferences[] = {
    texelBrushFile, colorPickerFile,    grayScaleColors,  quakePalette,   quake2Palette,
    hexen2Palette,  internetSafeColors, alphaScaleColors, rgbaColorSpace,
};

// badIndex for a class that stands for no picture format.
const Codec& CodecOf(const CRuntimeClass* documentClass) {
    const Codec* codec = documentClass ? FindCodec(documentClass->name) : nullptr;
    if (!codec) throw CArchiveException(CArchiveException::badIndex);
    return *codec;
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

void UpdateHistoryItem(CCmdUI& state, const std::string* name, unsigned namedText, unsigned plainText,
                       unsigned disabledText) {
    state.Enable(name != nullptr);
    if (!name)
        state.SetText(LoadString(disabledText));
    else if (name->empty())
        state.SetText(LoadString(plainText));
    else
        state.SetText(FormatString(namedText, name->c_str()));
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

void TavloDocument::SetModifiedAndUpdate(bool updateViews) {
    SetModifiedFlag();
    if (updateViews) UpdateAllViews(nullptr);
}

const CommandMap& TavloDocument::GetCommandMap() const {
    static const CommandMap map(
        BaseDocument::GetCommandMap(),
        {
            Command<&TavloDocument::OnEditUndo, &TavloDocument::OnUpdateEditUndo>(ID_EDIT_UNDO),
            Command<&TavloDocument::OnEditRedo, &TavloDocument::OnUpdateEditRedo>(ID_EDIT_REDO),
        });
    return map;
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
    auto action = std::make_unique<TextureChangeAction>(IDS_ACTION_REFORMAT, *this);
    texture.Resize(width, height);
    SetModifiedAndUpdate(true);
    history.Add(std::move(action));
}

void TavloDocument::OnUpdateEditUndo(CCmdUI& state) const {
    const std::string* name = history.CanUndo() ? &history.TopUndoName() : nullptr;
    UpdateHistoryItem(state, name, IDS_UNDO_NAMED, IDS_UNDO, IDS_CANNOT_UNDO);
}

void TavloDocument::OnUpdateEditRedo(CCmdUI& state) const {
    const std::string* name = history.CanRedo() ? &history.TopRedoName() : nullptr;
    UpdateHistoryItem(state, name, IDS_REDO_NAMED, IDS_REDO, IDS_CANNOT_REDO);
}
