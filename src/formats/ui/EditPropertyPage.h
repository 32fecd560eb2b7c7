#pragma once

#include "framework/ui/CPropertySheet.h"

namespace keltavlo {

class TavloDocument;

// The texture that a property sheet edits.
class EditTarget {
public:
    virtual ~EditTarget() = default;
    virtual TavloDocument& GetDocument() const = 0;
};

// A page of the sheet for a texture's properties.
class EditPropertyPage : public CPropertyPage {
public:
    using CPropertyPage::CPropertyPage;

    // Returns the document of the page's sheet.
    TavloDocument& GetDocument() const { return dynamic_cast<EditTarget&>(*GetSheet()).GetDocument(); }
};

} // namespace keltavlo
