#pragma once

#include "framework/ui/CMDIChildWnd.h"

namespace keltavlo {

// The frame of a document that is never shown. It is in no list of windows and never active.
class HiddenChildFrame : public Dynamic<"HiddenChildFrame", HiddenChildFrame, CMDIChildWnd> {
public:
    void ActivateFrame() override {}
};

} // namespace keltavlo
