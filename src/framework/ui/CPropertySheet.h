#pragma once

#include "framework/ui/DialogControls.h"

#include <QWidget>

#include <vector>

class QPushButton;
class QTabWidget;

namespace keltavlo {

class CPropertySheet;

// A page of a property sheet. A page that was never shown is neither filled nor applied.
class CPropertyPage : public QWidget, public DialogControls {
public:
    // The page's tab shows the title.
    explicit CPropertyPage(const QString& title);
    ~CPropertyPage() override;

    // Returns the sheet that the page was added to, or null.
    CPropertySheet* GetSheet() const { return sheet; }
    bool IsModified() const { return modified; }
    // Gives the keyboard focus to the page's first control.
    void FocusFirstControl();

    // Called before the page is shown for the first time. This version fills the controls.
    virtual void OnInitDialog() { UpdateData(false); }
    // Called before the page is left or the sheet is confirmed. Returns false, after telling the user why, to
    // stay on the page. This version reads the controls.
    virtual bool OnKillActive() { return UpdateData(true); }
    // Called when the sheet is confirmed. Returns false to keep it open. This version has nothing to apply.
    virtual bool OnApply();

protected:
    // Enables the sheet's Apply button if there is something to apply.
    void SetModified(bool isModified);

private:
    friend class CPropertySheet;

    CPropertySheet* sheet = nullptr;
    bool shown = false;
    bool modified = false;
};

// Pages with tabs, in a dialog of their own (DoModal) or as a child of another window.
class CPropertySheet : public QWidget {
public:
    CPropertySheet(const QString& caption, QWidget* dialogOwner);
    ~CPropertySheet() override;

    // Pages appear in the order in which they are added. The caller keeps ownership.
    void AddPage(CPropertyPage& page);
    void RemovePage(CPropertyPage& page);
    // Returns the page on top, or null before the sheet is shown.
    CPropertyPage* GetActivePage() const { return activePage; }

    // Runs the sheet with OK, Cancel and Apply until it is closed.
    void DoModal();
    // Makes the sheet a child of the window, without buttons.
    void Create(QWidget& parentWindow);

    // Returns whether the page on top may be left.
    bool KillActivePage();
    // Applies the pages that were shown, in their order, as OK and Apply do. Returns false as soon as a page
    // refuses, with that page on top.
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
