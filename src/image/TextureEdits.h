#pragma once

#include <cstdint>
#include <string>

namespace keltavlo {

class Image;
class TavloDocument;
struct Quake2Names;

// The user's undoable changes to a texture. Setting a value that is already there is not recorded. If memory
// runs out, nothing changes.

// Crops the picture or repeats its edges.
void ResizePicture(TavloDocument& document, int width, int height);
void ChangeQuakeName(TavloDocument& document, const std::string& name);
void ChangeQuake2Names(TavloDocument& document, const Quake2Names& names);
void ChangeSurfaceFlags(TavloDocument& document, std::uint32_t flags);
void ChangeContents(TavloDocument& document, std::uint32_t contents);
void ChangeValue(TavloDocument& document, std::uint32_t value);
// Replaces the texture with a picture without palette, names and properties. Always recorded.
void PastePicture(TavloDocument& document, Image&& picture);

} // namespace keltavlo
