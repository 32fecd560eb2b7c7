#include "image/TextureChangeAction.h"

#include "framework/core/StringTable.h"
#include "image/TavloDocument.h"

#include <utility>

TextureChangeAction::TextureChangeAction(unsigned nameId, TavloDocument& document)
    : EditAction(LoadString(nameId)), snapshot(document.GetTexture()) {}

void TextureChangeAction::Undo(TavloDocument& document) {
    std::swap(snapshot, document.GetTexture());
    document.SetModifiedAndUpdate(true);
}
