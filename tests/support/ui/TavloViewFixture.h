#pragma once

#include "image/ImageDocuments.h"
#include "image/ui/TavloView.h"
#include "image/ui/TavloViewFrame.h"
#include "resources/Brush.h"
#include "resources/BuiltInFiles.h"
#include "support/ui/ProgramFixture.h"

#include <QPaintEvent>

namespace keltavlo {

// Gathers what a widget repaints.
class PaintSpy : public QObject {
public:
    explicit PaintSpy(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion region;
};

// The program with a 64 x 32 texture in one window.
struct TavloViewFixture : ProgramFixture {
    TavloViewFixture() {
        program.InitInstance({Put("floor.wal", MakeWal(64, 32))});
        for (CDocument* open : program.GetDocuments())
            if (auto* wal = dynamic_cast<WALDocument*>(open)) document = wal;
        frame = dynamic_cast<TavloViewFrame*>(document->GetFrame());
        view = dynamic_cast<TavloView*>(frame->GetActiveView());
        QCoreApplication::processEvents();
    }

    Texture& GetTexture() { return document->GetTexture(); }
    std::string PaneText(std::size_t pane) { return GetMainFrame().GetStatusBar().GetPaneText(pane); }
    Color ColorShownAt(int x, int y) { return view->grab().toImage().pixel(x, y); }
    void Choose(BuiltInFile brush) {
        document->SetCurrentBrush(
            dynamic_cast<BrushDocument*>(BaseDocument::OpenReference(GetBuiltInPath(brush))));
    }

    WALDocument* document = nullptr;
    TavloViewFrame* frame = nullptr;
    TavloView* view = nullptr;
};

} // namespace keltavlo
