#pragma once

#include "framework/ui/CView.h"

namespace keltavlo {

// The view of a document that is never shown.
class HiddenView : public Dynamic<"HiddenView", HiddenView, CView> {};

} // namespace keltavlo
