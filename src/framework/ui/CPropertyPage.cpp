#include "framework/ui/CPropertyPage.h"

#include "framework/ui/CPropertySheet.h"

namespace keltavlo {

CPropertyPage::CPropertyPage(const QString& title) {
    setWindowTitle(title);
}

CPropertyPage::~CPropertyPage() {
    if (sheet) sheet->RemovePage(*this);
}

void CPropertyPage::FocusFirstControl() {
    for (QWidget* control : findChildren<QWidget*>()) {
        if (!(control->focusPolicy() & Qt::TabFocus) || !control->isEnabled()) continue;
        return control->setFocus(Qt::TabFocusReason); // which also marks an edit's text
    }
}

bool CPropertyPage::OnApply() {
    SetModified(false);
    return true;
}

void CPropertyPage::SetModified(bool isModified) {
    modified = isModified;
    if (sheet) sheet->UpdateApplyButton();
}

} // namespace keltavlo
