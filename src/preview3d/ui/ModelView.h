#pragma once

#include "preview3d/ui/ThreeDimensionalView.h"

// The view of models that nothing is drawn of.
class ModelView : public Dynamic<"ModelView", ModelView, ThreeDimensionalView> {};
