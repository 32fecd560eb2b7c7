#include "formats/ui/EditPropertyPage.h"

#include "formats/ui/EditPropertySheet.h"

namespace keltavlo {

TavloDocument& EditPropertyPage::GetDocument() const {
    return dynamic_cast<EditPropertySheet&>(*GetSheet()).GetDocument();
}

} // namespace keltavlo
