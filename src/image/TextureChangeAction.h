#pragma once

#include "image/EditAction.h"
#include "image/picture/Texture.h"

// A change of the picture: keeps the whole texture of the other state. Make it before the change.
class TextureChangeAction final : public EditAction {
public:
    // The name is a string of the program's table.
    TextureChangeAction(unsigned nameId, TavloDocument& document);
    void Undo(TavloDocument& document) override;

private:
    Texture snapshot;
};
