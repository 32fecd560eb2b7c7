#include "framework/ui/CPropertySheet.h"

#include "framework/ui/NormalCursor.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace keltavlo {

namespace {

// The window around a sheet that runs on its own. The sheet is its child only while it runs.
class SheetDialog : public QDialog {
public:
    SheetDialog(CPropertySheet& guest, QWidget* owner) : QDialog(owner), sheet(guest) {}
    ~SheetDialog() override { sheet.setParent(nullptr); }

    // Not in the constructor: if that failed, Qt would delete the sheet with the dialog's other children.
    void SetUp() {
        auto* column = new QVBoxLayout(this);
        column->addWidget(&sheet);
        column->addWidget(&buttons);
        connect(&buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(&buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        connect(GetApplyButton(), &QPushButton::clicked, this, [this] { sheet.Apply(); });
    }
    QPushButton* GetApplyButton() const { return buttons.button(QDialogButtonBox::Apply); }
    void accept() override {
        if (sheet.Apply()) QDialog::accept();
    }

private:
    CPropertySheet& sheet;
    QDialogButtonBox buttons{QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply};
};

} // namespace

CPropertyPage::CPropertyPage(const QString& title) {
    setWindowTitle(title);
}

CPropertyPage::~CPropertyPage() {
    if (sheet) sheet->RemovePage(*this);
}

void CPropertyPage::FocusFirstControl() {
    for (QWidget* control : findChildren<QWidget*>()) {
        if (!(control->focusPolicy() & Qt::TabFocus) || !control->isEnabled()) continue;
        return control->setFocus(Qt::TabFocusReason); // with this reason, Qt also selects the text of an edit
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

CPropertySheet::CPropertySheet(const QString& caption, QWidget* dialogOwner)
    : owner(dialogOwner), tabs(new QTabWidget(this)) {
    setWindowTitle(caption);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tabs);
    connect(tabs, &QTabWidget::currentChanged, this, [this](int index) { ActivatePage(index); });
}

CPropertySheet::~CPropertySheet() {
    while (!pages.empty()) RemovePage(*pages.back());
}

// Blocks the signals, because adding the first tab would activate its page before the sheet is shown.
void CPropertySheet::AddPage(CPropertyPage& page) {
    const QSignalBlocker quiet(tabs);
    page.sheet = this;
    pages.push_back(&page);
    tabs->addTab(&page, page.windowTitle());
}

void CPropertySheet::RemovePage(CPropertyPage& page) {
    const QSignalBlocker quiet(tabs);
    page.setParent(nullptr); // removes its tab, too
    page.sheet = nullptr;
    std::erase(pages, &page);
    if (activePage == &page) activePage = nullptr;
}

void CPropertySheet::DoModal() {
    const NormalCursor arrow;
    SheetDialog dialog(*this, owner);
    dialog.SetUp();
    dialog.setWindowTitle(windowTitle());
    applyButton = dialog.GetApplyButton();
    UpdateApplyButton();
    ActivatePage(tabs->currentIndex());
    activePage->FocusFirstControl();
    dialog.exec();
    applyButton = nullptr;
}

void CPropertySheet::Create(QWidget& parentWindow) {
    setParent(&parentWindow);
    ActivatePage(tabs->currentIndex());
    show();
}

bool CPropertySheet::KillActivePage() {
    return !activePage || activePage->OnKillActive();
}

// Qt changes the page before it reports the change. The old page is shown again first, so that it is on top
// when it refuses to be left and its control can take the focus.
void CPropertySheet::ActivatePage(int index) {
    const QSignalBlocker quiet(tabs);
    if (activePage) tabs->setCurrentWidget(activePage);
    if (!KillActivePage()) return KeepFocus();
    activePage = pages.at(static_cast<std::size_t>(index));
    tabs->setCurrentWidget(activePage);
    if (activePage->shown) return;
    activePage->shown = true;
    activePage->OnInitDialog();
}

// Focuses the control again later: after its shortcut for the next page, Qt focuses the tabs, because no
// window is active right after a message.
void CPropertySheet::KeepFocus() {
    if (QWidget* control = window()->focusWidget())
        QTimer::singleShot(0, control, [control] { control->setFocus(); });
}

bool CPropertySheet::Apply() {
    if (!KillActivePage()) return false;
    for (CPropertyPage* page : pages) {
        if (!page->shown || page->OnApply()) continue;
        tabs->setCurrentWidget(page);
        return false;
    }
    return true;
}

void CPropertySheet::UpdateApplyButton() {
    if (applyButton)
        applyButton->setEnabled(std::ranges::any_of(pages, [](const auto* page) { return page->modified; }));
}

} // namespace keltavlo
