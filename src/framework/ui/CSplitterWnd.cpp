#include "framework/ui/CSplitterWnd.h"

#include "framework/ui/CView.h"
#include "framework/ui/WindowClasses.h"

#include <QGridLayout>
#include <QScrollBar>

CSplitterWnd::CSplitterWnd(QWidget* parent)
    : QWidget(parent), horizontalBar(new QScrollBar(Qt::Horizontal, this)),
      verticalBar(new QScrollBar(Qt::Vertical, this)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(verticalBar, 0, 1);
    grid->addWidget(horizontalBar, 1, 0);
    grid->setRowStretch(0, 1);
    grid->setColumnStretch(0, 1);
}

CView& CSplitterWnd::CreateView(int row, int column, const CRuntimeClass& viewClass, CDocument& document) {
    Q_ASSERT(row == 0 && column == 0 && !pane);
    pane = CreateViewWindow(viewClass).release();
    static_cast<QGridLayout*>(layout())->addWidget(pane, row, column);
    pane->Attach(document, this);
    return *pane;
}

CView* CSplitterWnd::GetPane(int row, int column) const {
    return row == 0 && column == 0 ? pane : nullptr;
}

QScrollBar& CSplitterWnd::GetScrollBar(const CView&, Qt::Orientation orientation) const {
    return orientation == Qt::Horizontal ? *horizontalBar : *verticalBar;
}
