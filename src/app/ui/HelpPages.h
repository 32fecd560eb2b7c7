#pragma once

#include "framework/core/CCmdUI.h"

// The help page about a command or a bar, such as "models.html"; null for an id without one.
const char* HelpPageFor(CommandId id);
