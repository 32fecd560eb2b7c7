#pragma once

#include "archives/ui/ArchiveListView.h"

#include <QStyle>

#include <functional>

class QLabel;
class QLineEdit;
class QToolButton;

namespace keltavlo {

// The lower part of the file dialog: the list of an archive's contents, the name of the chosen file, and
// three buttons.
class ArchivePanel final : public QWidget {
public:
    explicit ArchivePanel(QWidget* parent);

    ArchiveListView& GetList() { return *list; }
    // An inactive panel is disabled.
    void SetActive(bool active);
    void SetName(const QString& name);
    // Sets the title above the list.
    void SetTitle(const QString& newTitle);
    void SetStyle(ArchiveListView::Style style);
    std::function<void()> onUpOneLevel;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowTitle();
    QToolButton* AddButton(QLayout& row, QStyle::StandardPixmap icon, const QString& tip);

    QString title;
    QLabel* titleLabel;
    ArchiveListView* list;
    QLineEdit* nameBox;
    QToolButton* up;
    QToolButton* listButton;
    QToolButton* detailsButton;
};

} // namespace keltavlo
