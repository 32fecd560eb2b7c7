#pragma once

#include "preview3d/ui/ThreeDimensionalView.h"

namespace keltavlo {

// The view of models that nothing is drawn of.
class ModelView : public Dynamic<"ModelView", ModelView, ThreeDimensionalView> {};

} // namespace keltavlo
