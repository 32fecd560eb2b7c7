#pragma once

#include "image/EditAction.h"
#include "image/picture/Texture.h"

namespace keltavlo {

// A change of the picture: keeps the whole texture of the other state, which is the new one at first.
class TextureChangeAction final : public EditAction {
public:
    // The name is a string of the program's table.
    TextureChangeAction(unsigned nameId, Texture&& replacement);
    void Undo(TavloDocument& document) override;

private:
    Texture snapshot;
};

} // namespace keltavlo
