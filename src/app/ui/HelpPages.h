#pragma once

#include "framework/core/CCmdUI.h"

namespace keltavlo {

// Returns the help page about a command or a bar, such as "models.html", or null for an id without one.
const char* HelpPageFor(CommandId id);

} // namespace keltavlo
