#pragma once

#include "preview3d/ui/ThreeDimensionalView.h"

// The view of models that are not drawn.
class ModelView : public Dynamic<"ModelView", ModelView, ThreeDimensionalView> {};
