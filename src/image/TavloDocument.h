#pragma once

#include "image/UndoHistory.h"
#include "image/picture/Texture.h"
#include "resources/BaseDocument.h"
#include "resources/Brush.h"

namespace keltavlo {

class BrushDocument;
class ColorList;
class PaletteDocument;

// The names that a Quake II texture stores: its own and that of its animation's next frame.
struct Quake2Names {
    std::string name;
    std::string nextFrameName;

    bool operator==(const Quake2Names&) const = default;
};

// Tells views that a stroke has changed a single texel.
class TexelChange final : public CObject {
public:
    TexelChange(int column, int row) : x(column), y(row) {}

    const int x;
    const int y;
};

// A texture that is being edited: its picture, what the games store beside it, the documents that it works
// with, and its history. The class of a document does not fix its format: the file's name selects the format
// for reading and writing.
class TavloDocument : public Dynamic<"TavloDocument", TavloDocument, BaseDocument>, public BrushTarget {
public:
    TavloDocument();

    bool OnNewDocument() override;
    bool OnOpenDocument(const std::string& path) override;
    void OnCloseDocument() override;
    // Fails with badIndex if the name's type is not a picture format.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override;
    // These lose nothing, unlike a picture format.
    void WriteState(OutputStream& out) override;
    void ReadState(InputStream& in) override;

    Texture& GetTexture() { return texture; }
    const Texture& GetTexture() const { return texture; }
    UndoHistory& GetHistory() { return history; }

    // What the games store beside the picture. The setters do not mark the document modified; that is left to
    // the caller.
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
    // Notifies all views with a TexelChange. The change is not in the history, and the end of the stroke
    // marks the document modified.
    void SetTexel(unsigned x, unsigned y, Color color) override;

    // The brush and palette selected for this document; null is "None".
    bool HasBrush() const { return currentBrush != nullptr; }
    bool HasPalette() const { return currentPalette != nullptr; }
    BrushDocument* GetCurrentBrush() const { return currentBrush; }
    void SetCurrentBrush(BrushDocument* brush) { currentBrush = brush; }
    PaletteDocument* GetCurrentPalette() const { return currentPalette; }
    void SetCurrentPalette(PaletteDocument* palette) { currentPalette = palette; }
    // Returns the colors of the selected palette for conversions, or null without a palette or for one
    // without colors.
    const ColorList* GetPaletteColors() const;

    // Replaces the texture as an undoable change with that name.
    void ReplaceTexture(unsigned nameId, Texture&& replacement);
    // Marks the document modified. If the picture has changed, the views must be updated as well.
    void SetModifiedAndUpdate(bool updateViews);
    const std::vector<BaseDocument*>& GetReferences() const { return references; }

protected:
    const CommandMap& GetCommandMap() const override;
    void SelectBuiltInPalette(unsigned id);
    // As an undoable change.
    void TakeContents(CDocument& loaded) override;
    bool CanUndoReload() const override { return true; }

private:
    void AddBuiltInReferences();
    void ReleaseReferences();
    // Resizes the picture to sides that the games allow, as an undoable change.
    void ReformatForSave();

    // Converts the picture to the palette's colors, as an undoable change. Does nothing if no pixel changes.
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
    std::vector<BaseDocument*> references; // open until the program ends; null if opening failed
    BrushDocument* currentBrush = nullptr;
    PaletteDocument* currentPalette = nullptr;
    UndoHistory history{*this, historyCapacity};
};

} // namespace keltavlo
