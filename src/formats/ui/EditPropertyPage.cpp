#include "formats/ui/EditPropertyPage.h"

#include "formats/ui/EditPropertySheet.h"

TavloDocument& EditPropertyPage::GetDocument() const {
    return dynamic_cast<EditPropertySheet&>(*GetSheet()).GetDocument();
}
