#pragma once

#include "framework/ui/CPropertyPage.h"

namespace keltavlo {

class TavloDocument;

// A page of the sheet that edits a texture's properties.
class EditPropertyPage : public CPropertyPage {
public:
    using CPropertyPage::CPropertyPage;

    // The document of the sheet that holds the page.
    TavloDocument& GetDocument() const;
};

} // namespace keltavlo
