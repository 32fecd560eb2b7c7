#pragma once

#include "app/ui/CKelTavloApp.h"
#include "app/ui/MainFrame.h"
#include "framework/ui/Commands.h"
#include "support/TestApplication.h"
#include "support/ui/DialogAnswer.h"

#include <QTest>

// The program with its windows and a folder for files.
class ProgramFixture : public testing::Test {
protected:
    std::string PathTo(const std::string& name) const { return folder.path().toStdString() + "/" + name; }
    // Writes the file and tells its path.
    std::string Put(const std::string& name, const Bytes& bytes) const {
        WriteFile(PathTo(name), bytes);
        return PathTo(name);
    }
    // Starts the program without a document.
    void Start() { Start(program); }
    static void Start(CKelTavloApp& anyProgram) {
        const DialogAnswer cancel([](QDialog& dialog) { dialog.reject(); });
        anyProgram.InitInstance({});
    }

    MainFrame& GetMainFrame() { return *program.GetMainFrame(); }
    bool Send(CommandId id) { return SendCommand(GetMainFrame(), id); }
    CCmdUI StateOf(CommandId id) { return AskCommand(GetMainFrame(), id); }

    QTemporaryDir folder;
    CKelTavloApp program{std::make_unique<ProfileStore>(PathTo("settings.ini"))};
};
