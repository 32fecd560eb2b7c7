#pragma once

#include "framework/ui/CView.h"

// The view of a document that is never shown: shows nothing.
class HiddenView : public Dynamic<"HiddenView", HiddenView, CView> {};
