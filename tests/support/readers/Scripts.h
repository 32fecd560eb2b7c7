#pragma once

#include "support/readers/Readers.h"

namespace keltavlo {

// Readers with a state: they do something with what they read, and check that it comes out as promised. A
// broken promise is a std::logic_error.

// A script of edits, undos and redos on a document, each compared with what the history must lead to.
std::optional<std::size_t> RunEditScript(std::span<const std::byte> script, Buffering buffering);
Bytes MakeEditScript();

// The first byte picks a format; the rest is a file of it, which is read, written and read again.
std::optional<std::size_t> RecodePicture(std::span<const std::byte> bytes, Buffering buffering);
Bytes MakePictureToRecode();
// One of each other format.
std::vector<Bytes> MakeMorePicturesToRecode();

} // namespace keltavlo
