#pragma once

#include <string>

namespace keltavlo {

class InputStream;

// A sentence that names the kind of a file that no document type reads, recognized by its first bytes; empty
// for any other file. Moves the stream.
std::string DescribeForeignFile(InputStream& in);

} // namespace keltavlo
