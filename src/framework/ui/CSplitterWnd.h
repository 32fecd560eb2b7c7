#pragma once

#include <QWidget>

class CDocument;
struct CRuntimeClass;
class CView;
class QScrollBar;

// The client area of a frame: a view, with the scroll bars at the splitter's edges.
class CSplitterWnd : public QWidget {
public:
    explicit CSplitterWnd(QWidget* parent = nullptr);

    // Makes a view of the class in the pane, on the document.
    CView& CreateView(int row, int column, const CRuntimeClass& viewClass, CDocument& document);
    // Null where the splitter has no such pane.
    CView* GetPane(int row, int column) const;
    // The bar of the column (horizontal) or row (vertical) in which the view stands.
    QScrollBar& GetScrollBar(const CView& view, Qt::Orientation orientation) const;

private:
    CView* pane = nullptr;
    QScrollBar* horizontalBar; // children of this window
    QScrollBar* verticalBar;
};
