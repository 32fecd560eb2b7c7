#pragma once

#include "framework/ui/DialogControls.h"
#include "framework/ui/NormalCursor.h"

#include <QDialog>

namespace keltavlo {

// A dialog whose controls exchange values with members.
class CDialog : public QDialog, public DialogControls {
public:
    using QDialog::QDialog;

    // Runs the dialog until it is closed. Returns true if the user confirmed it.
    bool DoModal() {
        const NormalCursor arrow;
        OnInitDialog();
        return exec() == Accepted;
    }
    // OK: closes the dialog unless a value is refused.
    void accept() override {
        if (UpdateData(true)) QDialog::accept();
    }

protected:
    // Called before the dialog is shown. This version fills the controls.
    virtual void OnInitDialog() { UpdateData(false); }
};

} // namespace keltavlo
