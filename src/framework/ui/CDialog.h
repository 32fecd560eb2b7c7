#pragma once

#include "framework/ui/DialogControls.h"
#include "framework/ui/NormalCursor.h"

#include <QDialog>

namespace keltavlo {

// A dialog whose controls carry values.
class CDialog : public QDialog, public DialogControls {
public:
    using QDialog::QDialog;

    // Runs the dialog until it is closed. True when it was confirmed.
    bool DoModal() {
        const NormalCursor arrow;
        OnInitDialog();
        return exec() == Accepted;
    }
    // OK: confirmed when no value is refused.
    void accept() override {
        if (UpdateData(true)) QDialog::accept();
    }

protected:
    // The dialog is about to be seen. Here: fills the controls.
    virtual void OnInitDialog() { UpdateData(false); }
};

} // namespace keltavlo
