#pragma once

#include "app/ui/CKelTavloApp.h"
#include "app/ui/MainFrame.h"
#include "framework/ui/CStatusBar.h"
#include "image/ImageDocuments.h"
#include "image/ui/TavloView.h"
#include "image/ui/TavloViewFrame.h"
#include "support/TestApplication.h"

#include <QCoreApplication>
#include <QTemporaryDir>

// The program with a 64 x 32 texture in one window.
class TavloViewFixture : public testing::Test {
protected:
    TavloViewFixture() {
        const std::string path = folder.filePath("floor.wal").toStdString();
        WriteFile(path, MakeWal(64, 32));
        program.InitInstance({path});
        for (CDocument* open : program.GetDocuments())
            if (auto* wal = dynamic_cast<WALDocument*>(open)) document = wal;
        frame = dynamic_cast<TavloViewFrame*>(document->GetFrame());
        view = dynamic_cast<TavloView*>(frame->GetActiveView());
        QCoreApplication::processEvents();
    }

    std::string PaneText(int pane) {
        return program.GetMainFrame()->GetStatusBar().GetPaneText(static_cast<std::size_t>(pane));
    }
    Color ColorShownAt(int x, int y) { return view->grab().toImage().pixel(x, y); }

    QTemporaryDir folder;
    CKelTavloApp program{std::make_unique<ProfileStore>(folder.filePath("settings.ini").toStdString())};
    WALDocument* document = nullptr;
    TavloViewFrame* frame = nullptr;
    TavloView* view = nullptr;
};
