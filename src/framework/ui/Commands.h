#pragma once

#include "framework/core/CCmdUI.h"

#include <string>

namespace keltavlo {

class CCmdTarget;

// Returns the state of the command in the target and those it forwards to; disabled if nothing
// handles the command.
CCmdUI AskCommand(CCmdTarget& target, CommandId id);
// Carries out the command if it is currently enabled. Returns false if it is not, or if memory ran out, after
// telling the user.
bool SendCommand(CCmdTarget& target, CommandId id);
// The parts of the command's string: the prompt before the line break and the tool tip after it.
std::string CommandPrompt(CommandId id);
std::string CommandToolTip(CommandId id);

} // namespace keltavlo
