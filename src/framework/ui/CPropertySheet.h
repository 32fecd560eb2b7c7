#pragma once

#include "framework/ui/DialogControls.h"

#include <QWidget>

#include <vector>

class QPushButton;
class QTabWidget;

namespace keltavlo {

class CPropertySheet;

// A page of a property sheet. A page that the user never looked at is neither filled nor applied.
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
    // The page is to be left, or the sheet confirmed. False, the user having been told, keeps it. Here:
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

// Pages with tabs: in a dialog of their own (DoModal) or as a child of another window.
class CPropertySheet : public QWidget {
public:
    CPropertySheet(const QString& caption, QWidget* dialogOwner);
    ~CPropertySheet() override;

    // Pages appear in the order in which they are added; the caller keeps owning them.
    void AddPage(CPropertyPage& page);
    void RemovePage(CPropertyPage& page);
    // The page that is on top; null before the sheet is seen.
    CPropertyPage* GetActivePage() const { return activePage; }

    // Runs the sheet with OK, Cancel and Apply until it is closed.
    void DoModal();
    // Makes the sheet a child of the window, without buttons.
    void Create(QWidget& parentWindow);

    // Asks the page on top whether it may be left.
    bool KillActivePage();
    // What OK and Apply do: applies the pages that were shown, in their order. False as soon as one refuses;
    // that page is on top then.
    bool Apply();
    void UpdateApplyButton();

private:
    void ActivatePage(int index);
    void KeepFocus();

    QWidget* owner;
    QTabWidget* tabs;                   // a child of this window
    QPushButton* applyButton = nullptr; // while the sheet runs in a dialog
    std::vector<CPropertyPage*> pages;
    CPropertyPage* activePage = nullptr;
};

} // namespace keltavlo
