#pragma once

#include "preview3d/ui/ModelView.h"

namespace keltavlo {

// Draws the first frame of a Quake II model.
class MD2View final : public Dynamic<"MD2View", MD2View, ModelView> {
public:
    void DrawScene() override;

private:
    void PutOnTexture() const;
    static void PutOnColor();
};

} // namespace keltavlo
