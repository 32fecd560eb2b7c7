#pragma once

#include "tool/archives/PackPlan.h"

namespace keltavlo {

class OutputPlace;
class Tool;

// The files of an input of "pack": all below a folder or an archive, in the order of their names, or those
// that a list names. Each becomes an input of `outputs`. Reports an input that is neither.
std::vector<PackSource> GatherPackSources(Tool& tool, const std::string& input, OutputPlace& outputs);

// The paths in a text file: one a line, relative to the folder of the file. Empty lines and those that begin
// with "#" are left out. Throws CException for a file that is not such a list.
std::vector<std::string> ReadPathList(const std::string& path);

} // namespace keltavlo
