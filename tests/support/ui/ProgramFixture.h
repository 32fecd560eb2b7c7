#pragma once

#include "app/ui/CKelTavloApp.h"
#include "app/ui/MainFrame.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/Commands.h"
#include "res/CommandIds.h"
#include "support/FolderTest.h"
#include "support/builders/TextureBuilder.h"
#include "support/ui/DialogAnswer.h"

namespace keltavlo {

// The program with its windows and a folder for files.
struct ProgramFixture : FolderTest {
    bool Start() { return Start(program); }
    static bool Start(CKelTavloApp& anyProgram) {
        const DialogAnswer cancel([](QDialog& dialog) { dialog.reject(); });
        return anyProgram.InitInstance({});
    }
    template <class Document>
    Document* Open(const std::string& path) {
        return dynamic_cast<Document*>(program.OpenDocumentFile(path));
    }

    MainFrame& GetMainFrame() { return *program.GetMainFrame(); }
    bool Send(CommandId id) { return SendCommand(GetMainFrame(), id); }
    CCmdUI StateOf(CommandId id) { return AskCommand(GetMainFrame(), id); }

    CKelTavloApp program{ProfileStore(PathTo("settings.ini"))};
};

} // namespace keltavlo
