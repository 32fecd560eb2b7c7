#include "framework/ui/CNewTypeDlg.h"

#include "framework/core/CDocTemplate.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace keltavlo {

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

} // namespace keltavlo
