#pragma once

#include "support/readers/Readers.h"

namespace keltavlo {

// Readers that also use what they read and check the result. They throw std::logic_error if it is wrong.

// Runs a script of edits, undos and redos on a document and compares each result with the expected state.
std::optional<std::size_t> RunEditScript(std::span<const std::byte> script, Buffering buffering);
Bytes MakeEditScript();

// The first byte selects a format; the rest is a file of that format, which is read, written and read again.
std::optional<std::size_t> RecodePicture(std::span<const std::byte> bytes, Buffering buffering);
Bytes MakePictureToRecode();
// One picture of each other format.
std::vector<Bytes> MakeMorePicturesToRecode();

} // namespace keltavlo
