#pragma once

#include "framework/ui/DialogControls.h"

#include <QWidget>

namespace keltavlo {

class CPropertySheet;

// A page of a property sheet. A page that a person never looked at is neither filled nor applied.
class CPropertyPage : public QWidget, public DialogControls {
public:
    // The title is on the page's tab.
    explicit CPropertyPage(const QString& title);
    ~CPropertyPage() override;

    // The sheet that the page was added to; null without one.
    CPropertySheet* GetSheet() const { return sheet; }
    bool IsModified() const { return modified; }
    // Gives the keys to the page's first control.
    void FocusFirstControl();

    // The page is about to be seen for the first time. Here: fills the controls.
    virtual void OnInitDialog() { UpdateData(false); }
    // The page is to be left, or the sheet confirmed. False, the person having been told, keeps it. Here:
    // reads the controls.
    virtual bool OnKillActive() { return UpdateData(true); }
    // The sheet is confirmed. False keeps it open. Here: nothing is left to apply.
    virtual bool OnApply();

protected:
    // Says whether there is something to apply, for the sheet's Apply button.
    void SetModified(bool isModified);

private:
    friend class CPropertySheet;

    CPropertySheet* sheet = nullptr;
    bool shown = false;
    bool modified = false;
};

} // namespace keltavlo
