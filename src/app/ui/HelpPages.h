#pragma once

#include "framework/core/CCmdUI.h"

namespace keltavlo {

// The help page about a command or a bar, such as "models.html"; null for an id without one.
const char* HelpPageFor(CommandId id);

} // namespace keltavlo
