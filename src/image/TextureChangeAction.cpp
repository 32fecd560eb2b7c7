#include "image/TextureChangeAction.h"

#include "framework/core/StringTable.h"
#include "image/TavloDocument.h"

#include <utility>

namespace keltavlo {

TextureChangeAction::TextureChangeAction(unsigned nameId, Texture&& replacement)
    : EditAction(LoadString(nameId)), snapshot(std::move(replacement)) {}

void TextureChangeAction::Undo(TavloDocument& document) {
    std::swap(snapshot, document.GetTexture());
    document.SetModifiedAndUpdate(true);
}

} // namespace keltavlo
