#include "framework/ui/WindowedUserInterface.h"

#include "framework/core/CWinApp.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/MessageBoxes.h"
#include "framework/ui/NormalCursor.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace keltavlo {

namespace {

// Asks which type a new document should have.
class CNewTypeDlg : public QDialog {
public:
    CNewTypeDlg(QWidget* owner, std::vector<const CDocTemplate*> choices);

    // Returns the type selected in the list.
    const CDocTemplate* GetSelected() const;

private:
    std::vector<const CDocTemplate*> types;
    QListWidget* list; // a child of this window
};

CNewTypeDlg::CNewTypeDlg(QWidget* owner, std::vector<const CDocTemplate*> choices)
    : QDialog(owner), types(std::move(choices)), list(new QListWidget(this)) {
    setWindowTitle(ToQString(LoadString(AFX_IDS_NEW_TITLE)));
    for (const CDocTemplate* type : types)
        list->addItem(ToQString(type->GetDocString(CDocTemplate::fileNewName)));
    list->setCurrentRow(0);
    auto* label = new QLabel(ToQString(LoadString(AFX_IDS_NEW_LABEL)), this);
    label->setBuddy(list);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(list);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
}

const CDocTemplate* CNewTypeDlg::GetSelected() const {
    const int row = list->currentRow();
    return row < 0 ? nullptr : types[static_cast<std::size_t>(row)];
}

} // namespace

void WindowedUserInterface::ShowMessage(const std::string& text) {
    ShowMessageBox(text);
}

SaveAnswer WindowedUserInterface::AskToSave(const std::string& name) {
    return AskSaveChanges(name);
}

ChangeAnswer WindowedUserInterface::AskAboutChange(const ChangedFile& file) {
    return AskReload(file);
}

RescueAnswer WindowedUserInterface::AskAboutRescued(const std::string& name, bool isNew) {
    return AskToOpenRescued(name, isNew);
}

// Skips types without a name for new documents. If only one type is left, returns it without asking.
const CDocTemplate* WindowedUserInterface::PromptNewType() {
    std::vector<const CDocTemplate*> types;
    for (const CDocTemplate* type : CWinApp::Get().GetTemplates())
        if (!type->GetDocString(CDocTemplate::fileNewName).empty()) types.push_back(type);
    if (types.size() < 2) return types.empty() ? nullptr : types.front();
    const NormalCursor arrow;
    CNewTypeDlg dialog(GetDialogOwner(), std::move(types));
    return dialog.exec() == QDialog::Accepted ? dialog.GetSelected() : nullptr;
}

void WindowedUserInterface::BeginWaitCursor() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void WindowedUserInterface::EndWaitCursor() {
    QGuiApplication::restoreOverrideCursor();
}

} // namespace keltavlo
