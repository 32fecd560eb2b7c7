#include "image/TavloDocument.h"

#include "formats/Codec.h"
#include "formats/GameTexture.h"
#include "framework/core/MenuItems.h"
#include "framework/core/StringTable.h"
#include "image/picture/TextureState.h"
#include "res/CommandIds.h"
#include "res/StringIds.h"
#include "resources/Brush.h"
#include "resources/BuiltInFiles.h"
#include "resources/DocTemplateRegistry.h"
#include "resources/MenuItemList.h"
#include "resources/PaletteDocument.h"
#include "resources/Shell.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>
#include <utility>

namespace keltavlo {

namespace {

constexpr BuiltInFile builtInReferences[] = {
    texelBrushFile, colorPickerFile,    grayScaleColors,  quakePalette,   quake2Palette,
    hexen2Palette,  internetSafeColors, alphaScaleColors, rgbaColorSpace,
};

// Throws badIndex for a class without a picture format.
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

// A change of the picture. Stores the whole texture of the other state, which is the new one at first.
class TextureChangeAction final : public EditAction {
public:
    // `nameId` is an id of the string table.
    TextureChangeAction(unsigned nameId, Texture&& replacement)
        : EditAction(LoadString(nameId)), snapshot(std::move(replacement)) {}

    void Undo(TavloDocument& document) override {
        std::swap(snapshot, document.GetTexture());
        document.SetModifiedAndUpdate(true);
    }

private:
    Texture snapshot;
};

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

// Returns the document that the menus list under the id, or null.
CObject* ListedUnder(CommandId id) {
    const MenuItemList* list = MenuItemList::FindList(id);
    return list ? list->GetItem(id) : nullptr;
}

void UpdateListedItem(CCmdUI& state, const CDocument* selected) {
    const auto* document = dynamic_cast<const CDocument*>(ListedUnder(state.id));
    if (!document) return;
    state.SetText(MenuText(document->GetTitle()));
    state.SetCheck(document == selected);
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

// If the stream has no name, as for an archive entry, the class of the document selects the format.
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

void TavloDocument::WriteState(OutputStream& out) {
    WriteTextureState(out, texture);
}

void TavloDocument::ReadState(InputStream& in) {
    ReadTextureState(in, texture);
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

void TavloDocument::SetTexel(unsigned x, unsigned y, Color color) {
    if (GetTexel(x, y) == color) return;
    texture.SetPixelWrapped(x, y, color);
    TexelChange change(static_cast<int>(x % static_cast<unsigned>(texture.GetWidth())),
                       static_cast<int>(y % static_cast<unsigned>(texture.GetHeight())));
    UpdateAllViews(nullptr, 0, &change);
}

void TavloDocument::SetModifiedAndUpdate(bool updateViews) {
    SetModifiedFlag();
    if (updateViews) UpdateAllViews(nullptr);
}

void TavloDocument::TakeContents(CDocument& loaded) {
    ReplaceTexture(IDS_ACTION_RELOAD, std::move(dynamic_cast<TavloDocument&>(loaded).texture));
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

const CommandMap& TavloDocument::GetCommandMap() const {
    using Self = TavloDocument;
    static const CommandMap map(
        BaseDocument::GetCommandMap(),
        {
            Command<&Self::OnEditUndo, &Self::OnUpdateEditUndo>(ID_EDIT_UNDO),
            Command<&Self::OnEditRedo, &Self::OnUpdateEditRedo>(ID_EDIT_REDO),
            Command<&Self::OnEditProperties>(ID_EDIT_PROPERTIES),
            CommandRange<&Self::OnBrush, &Self::OnUpdateBrush>(ID_BRUSH_FIRST, ID_BRUSH_LAST),
            Command<&Self::OnBrushNone, &Self::OnUpdateBrushNone>(ID_BRUSH_NONE),
            CommandRange<&Self::OnPalette, &Self::OnUpdatePalette>(ID_COLOR_TABLE_FIRST, ID_COLOR_TABLE_LAST),
            Command<&Self::OnPaletteNone, &Self::OnUpdatePaletteNone>(ID_PALETTE_NONE),
            Command<&Self::OnFormatNearest, &Self::OnUpdateFormat>(ID_FORMAT_NEAREST),
            Command<&Self::OnFormatDither, &Self::OnUpdateFormat>(ID_FORMAT_DITHER),
        });
    return map;
}

void TavloDocument::OnUpdateEditUndo(CCmdUI& state) const {
    const std::string* name = history.CanUndo() ? &history.TopUndoName() : nullptr;
    UpdateHistoryItem(state, name, IDS_UNDO_NAMED, IDS_UNDO, IDS_CANNOT_UNDO);
}

void TavloDocument::OnUpdateEditRedo(CCmdUI& state) const {
    const std::string* name = history.CanRedo() ? &history.TopRedoName() : nullptr;
    UpdateHistoryItem(state, name, IDS_REDO_NAMED, IDS_REDO, IDS_CANNOT_REDO);
}

void TavloDocument::OnEditProperties() {
    if (Shell* shell = Shell::Find()) shell->EditProperties(*this);
}

// An item without a document, such as "(None)", selects no brush. An id that is in no menu changes nothing.
void TavloDocument::OnBrush(CommandId id) {
    if (MenuItemList::FindList(id)) SetCurrentBrush(dynamic_cast<BrushDocument*>(ListedUnder(id)));
}

void TavloDocument::OnUpdateBrush(CCmdUI& state) const {
    UpdateListedItem(state, currentBrush);
}

void TavloDocument::OnPalette(CommandId id) {
    if (MenuItemList::FindList(id)) SelectPalette(dynamic_cast<PaletteDocument*>(ListedUnder(id)));
}

// Also updates all views, because a filter may show the palette's colors.
void TavloDocument::SelectPalette(PaletteDocument* palette) {
    SetCurrentPalette(palette);
    UpdateAllViews(nullptr);
}

void TavloDocument::OnUpdatePalette(CCmdUI& state) const {
    UpdateListedItem(state, currentPalette);
}

void TavloDocument::OnFormatNearest() {
    ConvertPicture(IDS_ACTION_NEAREST, &Image::ConvertToNearest);
}

void TavloDocument::OnFormatDither() {
    ConvertPicture(IDS_ACTION_DITHER, &Image::ConvertByErrorDiffusion);
}

void TavloDocument::ConvertPicture(unsigned nameId, void (Image::*convert)(const ColorList&)) {
    const ColorList* colors = GetPaletteColors();
    if (!colors) return;
    Texture converted = texture;
    (converted.*convert)(*colors);
    if (!std::ranges::equal(converted.Pixels(), texture.Pixels()))
        ReplaceTexture(nameId, std::move(converted));
}

} // namespace keltavlo
