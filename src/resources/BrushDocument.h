#pragma once

#include "resources/Brush.h"
#include "resources/ReferenceDocument.h"

namespace keltavlo {

// A brush file (".kelbrush"): a tagged file that names a kind of brush and its title. Read only.
class BrushDocument final : public Dynamic<"BrushDocument", BrushDocument, ReferenceDocument> {
public:
    static constexpr unsigned arrowCursor = 0; // the standard pointer

    // Nothing without a brush.
    void Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint second);
    unsigned GetCursor() const { return brush ? brush->GetCursor() : arrowCursor; }

    // badSchema for a kind that is not known; a file without a kind opens without a brush.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // generic

private:
    std::unique_ptr<Brush> brush;
};

} // namespace keltavlo
