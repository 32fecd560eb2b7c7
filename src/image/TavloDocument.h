#pragma once

#include "image/UndoHistory.h"
#include "image/picture/Texture.h"
#include "resources/BaseDocument.h"
#include "resources/Brush.h"

namespace keltavlo {

class BrushDocument;
class ColorList;
class PaletteDocument;

// The names that a Quake II texture stores: its own and that of the next frame of its animation.
struct Quake2Names {
    std::string name;
    std::string nextFrameName;

    bool operator==(const Quake2Names&) const = default;
};

// What views get as the object of an update when a stroke changed a single texel.
class TexelChange final : public CObject {
public:
    TexelChange(int column, int row) : x(column), y(row) {}

    const int x;
    const int y;
};

// A texture that is being edited: its picture with what the games store beside it, the documents that it
// works with, and its history. The class of a document does not fix its format: a file is read and written as
// its name says.
class TavloDocument : public Dynamic<"TavloDocument", TavloDocument, BaseDocument>, public BrushTarget {
public:
    TavloDocument();

    bool OnNewDocument() override;
    bool OnOpenDocument(const std::string& path) override;
    void OnCloseDocument() override;
    // badIndex for a name whose type is none of the picture formats.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override;

    Texture& GetTexture() { return texture; }
    const Texture& GetTexture() const { return texture; }
    UndoHistory& GetHistory() { return history; }

    // What the games store beside the picture. Setting it changes nothing else: whoever does it marks the
    // document modified.
    const std::string& GetQuakeName() const { return texture.quakeName; }
    void SetQuakeName(std::string name) { texture.quakeName = std::move(name); }
    Quake2Names GetQuake2Names() const { return {texture.quake2.name, texture.quake2.nextFrameName}; }
    void SetQuake2Names(Quake2Names names);
    std::uint32_t GetSurfaceFlags() const { return texture.quake2.surfaceFlags; }
    void SetSurfaceFlags(std::uint32_t flags) { texture.quake2.surfaceFlags = flags; }
    std::uint32_t GetContents() const { return texture.quake2.contents; }
    void SetContents(std::uint32_t contents) { texture.quake2.contents = contents; }
    std::uint32_t GetValue() const { return texture.quake2.value; }
    void SetValue(std::uint32_t value) { texture.quake2.value = value; }

    Color GetTexel(unsigned x, unsigned y) const override { return texture.GetPixelWrapped(x, y); }
    // Tells all views with a TexelChange. Not in the history: whoever ends the stroke marks the document
    // modified.
    void SetTexel(unsigned x, unsigned y, Color color) override;

    // The brush and the palette chosen for this document; null is "None".
    bool HasBrush() const { return currentBrush != nullptr; }
    bool HasPalette() const { return currentPalette != nullptr; }
    BrushDocument* GetCurrentBrush() const { return currentBrush; }
    void SetCurrentBrush(BrushDocument* brush) { currentBrush = brush; }
    PaletteDocument* GetCurrentPalette() const { return currentPalette; }
    void SetCurrentPalette(PaletteDocument* palette) { currentPalette = palette; }
    // The colors of the chosen palette to which a picture can be brought; null without a palette and for one
    // that lists no colors.
    const ColorList* GetPaletteColors() const;

    // Replaces the texture as an undoable change of that name.
    void ReplaceTexture(unsigned nameId, Texture&& replacement);
    // Marks the document modified; a changed picture must be told to the views as well.
    void SetModifiedAndUpdate(bool updateViews);
    const std::vector<BaseDocument*>& GetReferences() const { return references; }

protected:
    const CommandMap& GetCommandMap() const override;
    void SelectBuiltInPalette(unsigned id);

private:
    void AddBuiltInReferences();
    void ReleaseReferences();
    // Brings the sides to what the games allow, as an undoable change.
    void ReformatForSave();

    // Brings the picture to the palette's colors, as an undoable change unless it has only such already.
    void ConvertPicture(unsigned nameId, void (Image::*convert)(const ColorList&));

    void OnEditUndo() { history.Undo(); }
    void OnEditRedo() { history.Redo(); }
    void OnUpdateEditUndo(CCmdUI& state) const;
    void OnUpdateEditRedo(CCmdUI& state) const;
    void OnEditProperties();
    void OnBrush(CommandId id);
    void OnBrushNone() { SetCurrentBrush(nullptr); }
    void OnUpdateBrush(CCmdUI& state) const;
    void OnUpdateBrushNone(CCmdUI& state) const { state.SetCheck(!HasBrush()); }
    void OnPalette(CommandId id);
    void OnPaletteNone() { SelectPalette(nullptr); }
    void SelectPalette(PaletteDocument* palette);
    void OnUpdatePalette(CCmdUI& state) const;
    void OnUpdatePaletteNone(CCmdUI& state) const { state.SetCheck(!HasPalette()); }
    void OnFormatNearest();
    void OnFormatDither();
    void OnUpdateFormat(CCmdUI& state) const { state.Enable(HasPalette()); }

    static constexpr std::size_t historyCapacity = 16;

    Texture texture;
    std::vector<BaseDocument*>
        references; // open for as long as the program runs; null where one could not be opened
    BrushDocument* currentBrush = nullptr;
    PaletteDocument* currentPalette = nullptr;
    UndoHistory history{*this, historyCapacity};
};

} // namespace keltavlo
