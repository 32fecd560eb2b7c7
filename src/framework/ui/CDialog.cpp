#include "framework/ui/CDialog.h"

#include "framework/ui/NormalCursor.h"

namespace keltavlo {

bool CDialog::DoModal() {
    const NormalCursor arrow;
    OnInitDialog();
    return exec() == Accepted;
}

void CDialog::accept() {
    if (UpdateData(true)) QDialog::accept();
}

} // namespace keltavlo
