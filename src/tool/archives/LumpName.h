#pragma once

#include <string>
#include <string_view>

namespace keltavlo {

// The names of lumps in WAD files and of textures in maps may contain characters that file systems refuse. In
// a file name, each of these is written as "_x" and two hexadecimal digits: "*water" becomes "_x2Awater". The
// characters are "*", "?", ":", "<", ">", "|", the double quote, "/", "\", control characters, those outside
// ASCII, and a dot or a space at the end. An underscore that looks like the start of an escape is escaped
// itself, so that each name can be restored.

// Returns the name of the file for a lump.
std::string FileNameOfLump(std::string_view lumpName);
// Returns the name of the lump for a file, whether or not FileNameOfLump made the file's name.
std::string LumpNameOfFile(std::string_view fileName);

} // namespace keltavlo
