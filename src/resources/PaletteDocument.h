#pragma once

#include "image/picture/Color.h"
#include "resources/ReferenceDocument.h"

namespace keltavlo {

// A document that an image can take its colours from: a list of colours or a whole colour space.
class PaletteDocument : public Dynamic<"PaletteDocument", PaletteDocument, ReferenceDocument> {
public:
    // Whether it is a list of colours.
    virtual bool IsColorTable() const = 0;
    virtual std::size_t GetColorCount() const = 0;
    // The colour at the index; std::out_of_range past the end of a list.
    virtual Color GetColor(std::size_t index) const = 0;
};

} // namespace keltavlo
