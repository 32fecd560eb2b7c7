#pragma once

#include "preview3d/ui/ThreeDimensionalView.h"

namespace keltavlo {

// The view of models that are not drawn.
class ModelView : public Dynamic<"ModelView", ModelView, ThreeDimensionalView> {};

} // namespace keltavlo
