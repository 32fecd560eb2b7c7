#pragma once

#include "framework/ui/CMDIChildWnd.h"

namespace keltavlo {

// The frame of a document that is never shown: it enters no list of windows and can never be active.
class HiddenChildFrame : public Dynamic<"HiddenChildFrame", HiddenChildFrame, CMDIChildWnd> {
public:
    void ActivateFrame() override {}
};

} // namespace keltavlo
