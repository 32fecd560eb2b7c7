#pragma once

#include <cstddef>

namespace keltavlo {

class ColorList;
class Texture;
struct IndexingRules;

// Replaces the texture's indices, which refer to its palette, by those in `palette`. Indices of colors that
// are the same in both palettes stay. Where the rules affect them, makes the indices of `levelCount` mip
// levels, otherwise those of the picture only. The texture keeps its pixels and its palette.
void PutInPalette(Texture& texture, const ColorList& palette, const IndexingRules& rules,
                  std::size_t levelCount);

} // namespace keltavlo
