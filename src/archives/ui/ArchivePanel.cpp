#include "archives/ui/ArchivePanel.h"

#include "archives/ui/DialogUnits.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace keltavlo {

ArchivePanel::ArchivePanel(QWidget* parent)
    : QWidget(parent), titleLabel(new QLabel(this)), list(new ArchiveListView(this)),
      nameBox(new QLineEdit(this)) {
    list->setMinimumSize(FromDialogUnits(*this, {272, 84}));
    list->setObjectName(QStringLiteral("lowerList"));
    titleLabel->setObjectName(QStringLiteral("lowerTitle"));
    titleLabel->setTextFormat(Qt::PlainText);
    titleLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    nameBox->setObjectName(QStringLiteral("nameBox"));
    nameBox->setReadOnly(true); // the user chooses files only in the list
    auto* label = new QLabel(QStringLiteral("File na&me:"), this);
    label->setBuddy(nameBox);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(nameBox, 1);
    up = AddButton(*row, QStyle::SP_FileDialogToParent, QStringLiteral("Up One Level"));
    listButton = AddButton(*row, QStyle::SP_FileDialogListView, QStringLiteral("List"));
    detailsButton = AddButton(*row, QStyle::SP_FileDialogDetailedView, QStringLiteral("Details"));
    listButton->setCheckable(true);
    detailsButton->setCheckable(true);
    connect(up, &QToolButton::clicked, [this] { onUpOneLevel(); });
    connect(listButton, &QToolButton::clicked, [this] { SetStyle(ArchiveListView::Style::list); });
    connect(detailsButton, &QToolButton::clicked, [this] { SetStyle(ArchiveListView::Style::details); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(titleLabel);
    layout->addWidget(list, 1);
    layout->addLayout(row);
    SetStyle(ArchiveListView::Style::list);
}

QToolButton* ArchivePanel::AddButton(QLayout& row, QStyle::StandardPixmap icon, const QString& tip) {
    auto* button = new QToolButton(this);
    button->setIcon(style()->standardIcon(icon));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    row.addWidget(button);
    return button;
}

void ArchivePanel::SetActive(bool active) {
    for (QWidget* control :
         {static_cast<QWidget*>(list), static_cast<QWidget*>(nameBox), static_cast<QWidget*>(up),
          static_cast<QWidget*>(listButton), static_cast<QWidget*>(detailsButton)})
        control->setEnabled(active);
}

void ArchivePanel::SetName(const QString& name) {
    nameBox->setText(name);
}

void ArchivePanel::SetTitle(const QString& newTitle) {
    title = newTitle;
    ShowTitle();
}

void ArchivePanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ShowTitle();
}

void ArchivePanel::ShowTitle() {
    titleLabel->setText(titleLabel->fontMetrics().elidedText(title, Qt::ElideMiddle, width()));
}

void ArchivePanel::SetStyle(ArchiveListView::Style newStyle) {
    list->SetStyle(newStyle);
    listButton->setChecked(newStyle == ArchiveListView::Style::list);
    detailsButton->setChecked(newStyle == ArchiveListView::Style::details);
}

} // namespace keltavlo
