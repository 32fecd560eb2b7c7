#pragma once

#include "tool/archives/PackPlan.h"

namespace keltavlo {

class OutputPlace;
class Tool;

// Returns the files of an input of "pack": all below a folder or an archive, sorted by name, or those in a
// list. Adds each to the inputs of `outputs`. Reports an input that is neither.
std::vector<PackSource> GatherPackSources(Tool& tool, const std::string& input, OutputPlace& outputs);

// Returns the paths in a text file: one per line, relative to the file's folder. Skips empty lines and those
// that begin with "#". Throws CException for a file that is not such a list.
std::vector<std::string> ReadPathList(const std::string& path);

} // namespace keltavlo
