// The commands of an image document.
#include "framework/core/MenuItems.h"
#include "framework/core/StringTable.h"
#include "image/TavloDocument.h"
#include "res/CommandIds.h"
#include "res/StringIds.h"
#include "resources/Brush.h"
#include "resources/MenuItemList.h"
#include "resources/PaletteDocument.h"
#include "resources/Shell.h"

#include <algorithm>

namespace keltavlo {

namespace {

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

// The document that the menus list under the id, or null.
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

// An item without a document, such as "(None)", selects none; an id that no menu has changes nothing.
void TavloDocument::OnBrush(CommandId id) {
    if (MenuItemList::FindList(id)) SetCurrentBrush(dynamic_cast<BrushDocument*>(ListedUnder(id)));
}

void TavloDocument::OnUpdateBrush(CCmdUI& state) const {
    UpdateListedItem(state, currentBrush);
}

void TavloDocument::OnPalette(CommandId id) {
    if (MenuItemList::FindList(id)) SelectPalette(dynamic_cast<PaletteDocument*>(ListedUnder(id)));
}

// Views that show the palette's colours show other ones by it.
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
