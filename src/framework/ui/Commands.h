#pragma once

#include "framework/core/CCmdUI.h"

#include <string>

namespace keltavlo {

class CCmdTarget;

// The state of the command for the target and those behind it; disabled when nobody handles it.
CCmdUI AskCommand(CCmdTarget& target, CommandId id);
// Carries the command out if it is enabled at this moment; false when it is not, and when memory ran out, of
// which is reported to the user.
bool SendCommand(CCmdTarget& target, CommandId id);
// What the command's string says to the user: the prompt before a line break, the tool tip behind it.
std::string CommandPrompt(CommandId id);
std::string CommandToolTip(CommandId id);

} // namespace keltavlo
