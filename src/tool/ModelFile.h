#pragma once

#include "tool/archives/ModelSkin.h"

#include <optional>
#include <vector>

namespace keltavlo {

class Tool;
struct TreeFile;

// Reads the textures in a model (".mdl"), which may be in an archive. If it cannot be read, reports why and
// returns nothing.
std::optional<std::vector<ModelSkin>> ReadModelFile(Tool& tool, const TreeFile& model);

} // namespace keltavlo
