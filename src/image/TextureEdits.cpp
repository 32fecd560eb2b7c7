#include "image/TextureEdits.h"

#include "image/PropertyChangeAction.h"
#include "res/StringIds.h"

namespace keltavlo {

namespace {

template <auto get, auto set, class Value>
void Change(TavloDocument& document, unsigned nameId, const Value& value) {
    if ((document.*get)() == value) return;
    document.GetHistory().Do(std::make_unique<PropertyChangeAction<get, set>>(nameId, value));
}

} // namespace

using Document = TavloDocument;

void ResizePicture(TavloDocument& document, int width, int height) {
    const Texture& texture = document.GetTexture();
    if (texture.GetWidth() == width && texture.GetHeight() == height) return;
    document.ReplaceTexture(IDS_ACTION_RESIZE, texture.Resized(width, height));
}

void ChangeQuakeName(TavloDocument& document, const std::string& name) {
    Change<&Document::GetQuakeName, &Document::SetQuakeName>(document, IDS_ACTION_QUAKE_NAME, name);
}

void ChangeQuake2Names(TavloDocument& document, const Quake2Names& names) {
    Change<&Document::GetQuake2Names, &Document::SetQuake2Names>(document, IDS_ACTION_QUAKE2_NAME, names);
}

void ChangeSurfaceFlags(TavloDocument& document, std::uint32_t flags) {
    Change<&Document::GetSurfaceFlags, &Document::SetSurfaceFlags>(document, IDS_ACTION_QUAKE2_SURFACE,
                                                                   flags);
}

void ChangeContents(TavloDocument& document, std::uint32_t contents) {
    Change<&Document::GetContents, &Document::SetContents>(document, IDS_ACTION_QUAKE2_CONTENTS, contents);
}

void ChangeValue(TavloDocument& document, std::uint32_t value) {
    Change<&Document::GetValue, &Document::SetValue>(document, IDS_ACTION_QUAKE2_VALUE, value);
}

void PastePicture(TavloDocument& document, Image&& picture) {
    Texture pasted;
    static_cast<Image&>(pasted) = std::move(picture);
    document.ReplaceTexture(IDS_ACTION_PASTE, std::move(pasted));
}

} // namespace keltavlo
