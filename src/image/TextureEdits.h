#pragma once

#include <cstdint>
#include <string>

namespace keltavlo {

class Image;
class TavloDocument;
struct Quake2Names;

// The undoable changes of a texture that the user asks for with a value. One that changes nothing records
// nothing, and one that memory is too small for changes nothing.

// Crops the picture or repeats its edges.
void ResizePicture(TavloDocument& document, int width, int height);
void ChangeQuakeName(TavloDocument& document, const std::string& name);
void ChangeQuake2Names(TavloDocument& document, const Quake2Names& names);
void ChangeSurfaceFlags(TavloDocument& document, std::uint32_t flags);
void ChangeContents(TavloDocument& document, std::uint32_t contents);
void ChangeValue(TavloDocument& document, std::uint32_t value);
// Replaces the picture by another one, without palette, names and properties. Recorded in any case.
void PastePicture(TavloDocument& document, Image&& picture);

} // namespace keltavlo
