#pragma once

#include "archives/ui/ArchiveListView.h"

#include <QStyle>

#include <functional>

class QLineEdit;
class QToolButton;

// The lower part of the file dialog: the list of what an archive holds, the name of the chosen file, and
// three buttons.
class ArchivePanel final : public QWidget {
public:
    explicit ArchivePanel(QWidget* parent);

    ArchiveListView& GetList() { return *list; }
    // Idle, nothing in it can be used.
    void SetActive(bool active);
    void SetName(const QString& name);
    std::function<void()> onUpOneLevel;

private:
    QToolButton* AddButton(QLayout& row, QStyle::StandardPixmap icon, const QString& tip);
    void SetStyle(ArchiveListView::Style style);

    ArchiveListView* list;
    QLineEdit* nameBox;
    QToolButton* up;
    QToolButton* listButton;
    QToolButton* detailsButton;
};
