#pragma once

#include "framework/ui/CPropertySheet.h"

namespace keltavlo {

class TavloDocument;

// What a sheet of properties edits.
class EditTarget {
public:
    virtual ~EditTarget() = default;
    virtual TavloDocument& GetDocument() const = 0;
};

// A page of the sheet that edits a texture's properties.
class EditPropertyPage : public CPropertyPage {
public:
    using CPropertyPage::CPropertyPage;

    // The document of the sheet that holds the page.
    TavloDocument& GetDocument() const { return dynamic_cast<EditTarget&>(*GetSheet()).GetDocument(); }
};

} // namespace keltavlo
