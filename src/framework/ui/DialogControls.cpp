#include "framework/ui/DialogControls.h"

#include "framework/ui/CDataExchange.h"
#include "framework/ui/MessageBoxes.h"

#include <QLineEdit>

namespace keltavlo {

DialogControls::~DialogControls() = default;

bool DialogControls::UpdateData(bool saveAndValidate) {
    CDataExchange exchange(*this, saveAndValidate);
    DoDataExchange(exchange);
    if (!exchange.WasRefused()) return true;
    ShowMessageBox(exchange.GetRefusal());
    exchange.GetRefusedEdit().setFocus();
    exchange.GetRefusedEdit().selectAll();
    return false;
}

} // namespace keltavlo
