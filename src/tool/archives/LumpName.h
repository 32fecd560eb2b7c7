#pragma once

#include <string>
#include <string_view>

namespace keltavlo {

// The names of lumps in WAD files and of textures in maps may contain characters that file systems refuse. In
// the name of a file, each of these is "_x" and two hexadecimal digits: "*water" becomes "_x2Awater". The
// characters are "*", "?", ":", "<", ">", "|", the double quote, "/", "\", control characters, those beyond
// ASCII, and a dot or a space at the end. An underscore that could be taken for such an escape is escaped
// itself, so that every name comes back as it was.

// The name of the file for a lump.
std::string FileNameOfLump(std::string_view lumpName);
// The name of the lump for a file, which FileNameOfLump may have made or not.
std::string LumpNameOfFile(std::string_view fileName);

} // namespace keltavlo
