#pragma once

#include "tool/archives/ModelSkin.h"

#include <optional>
#include <vector>

namespace keltavlo {

class Tool;
struct TreeFile;

// The textures in the model (".mdl") of that path, which may lead into an archive. Nothing, after reporting
// why, if it cannot be read.
std::optional<std::vector<ModelSkin>> ReadModelFile(Tool& tool, const TreeFile& model);

} // namespace keltavlo
