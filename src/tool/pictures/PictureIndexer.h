#pragma once

#include <cstddef>

namespace keltavlo {

class ColorList;
class Texture;
struct IndexingRules;

// Replaces the texture's indices, which refer to its palette, with those in `palette`. Indices stay if their
// colors are the same in both palettes. Makes the indices of `levelCount` mip levels if the rules affect
// these, otherwise only those of the picture. The texture keeps its pixels and palette.
void PutInPalette(Texture& texture, const ColorList& palette, const IndexingRules& rules,
                  std::size_t levelCount);

} // namespace keltavlo
