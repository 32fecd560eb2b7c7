#include "image/TextureEdits.h"

#include "image/PropertyChangeAction.h"
#include "image/TextureChangeAction.h"
#include "res/StringIds.h"

namespace {

template <auto get, auto set, class Value>
void Change(TavloDocument& document, unsigned nameId, const Value& value) {
    if ((document.*get)() == value) return;
    auto action = std::make_unique<PropertyChangeAction<get, set>>(nameId, document);
    (document.*set)(value);
    document.SetModifiedAndUpdate(false);
    document.GetHistory().Add(std::move(action));
}

} // namespace

using Document = TavloDocument;

void ResizePicture(TavloDocument& document, int width, int height) {
    Texture& texture = document.GetTexture();
    if (texture.GetWidth() == width && texture.GetHeight() == height) return;
    auto action = std::make_unique<TextureChangeAction>(IDS_ACTION_RESIZE, document);
    texture.Resize(width, height);
    document.SetModifiedAndUpdate(true);
    document.GetHistory().Add(std::move(action));
    document.UpdateAllViews(nullptr);
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

// All memory is taken before anything changes.
void PastePicture(TavloDocument& document, Image&& picture) {
    auto action = std::make_unique<TextureChangeAction>(IDS_ACTION_PASTE, document);
    Texture pasted;
    static_cast<Image&>(pasted) = std::move(picture);
    document.GetTexture() = std::move(pasted);
    document.SetModifiedAndUpdate(true);
    document.GetHistory().Add(std::move(action));
}
