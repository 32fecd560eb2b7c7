#pragma once

#include "image/ImageDocuments.h"
#include "image/ui/TavloView.h"
#include "image/ui/TavloViewFrame.h"
#include "resources/Brush.h"
#include "resources/BuiltInFiles.h"
#include "support/ui/ProgramFixture.h"

namespace keltavlo {

// The program with a 64 x 32 texture in one window.
struct TavloViewFixture : ProgramFixture {
    TavloViewFixture() { QCoreApplication::processEvents(); }

    Texture& GetTexture() { return document->GetTexture(); }
    std::string PaneText(std::size_t pane) { return GetMainFrame().GetStatusBar().GetPaneText(pane); }
    Color ColorShownAt(int x, int y) { return view->grab().toImage().pixel(x, y); }
    void Choose(BuiltInFile brush) {
        document->SetCurrentBrush(
            dynamic_cast<BrushDocument*>(BaseDocument::OpenReference(GetBuiltInPath(brush))));
    }

    bool started = program.InitInstance({Put("floor.wal", MakeWal(64, 32))});
    TavloViewFrame* frame = dynamic_cast<TavloViewFrame*>(GetMainFrame().MDIGetActive());
    WALDocument* document = dynamic_cast<WALDocument*>(frame->GetActiveDocument());
    TavloView* view = dynamic_cast<TavloView*>(frame->GetActiveView());
};

} // namespace keltavlo
