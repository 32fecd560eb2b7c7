#pragma once

#include <QWidget>

#include <vector>

class QPushButton;
class QTabWidget;

namespace keltavlo {

class CPropertyPage;

// Pages with tabs: in a dialog of their own (DoModal) or as a child of another window.
class CPropertySheet : public QWidget {
public:
    CPropertySheet(const QString& caption, QWidget* dialogOwner);
    ~CPropertySheet() override;

    // Pages stand in the order in which they are added; they stay the caller's.
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
