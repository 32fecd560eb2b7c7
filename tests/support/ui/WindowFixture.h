#pragma once

#include "framework/core/CDocument.h"
#include "framework/core/CWinApp.h"
#include "framework/core/StandardIds.h"
#include "framework/ui/CMDIFrameWnd.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/CView.h"
#include "framework/ui/ChildFrame.h"
#include "framework/ui/Commands.h"
#include "framework/ui/WindowedUserInterface.h"
#include "support/FolderTest.h"
#include "support/ui/DialogAnswer.h"

namespace keltavlo {

using testing::ElementsAre;

// A program of the framework's classes alone, with one type that people see and one that stays hidden.

constexpr CommandId viewCommand = 40001, documentCommand = 40002, frameCommand = 40003, mainCommand = 40004,
                    appCommand = 40005, unknownCommand = 40006, everywhereCommand = 40007;
constexpr unsigned ownMenu = 1, documentMenu = 2;

// What happened, in order.
std::vector<std::string>& Log();

// Notes its name when one of its commands comes.
template <ClassName name, class Base, CommandId... commands>
class Noting : public Base {
public:
    using Base::Base;

    bool blocked = false; // its commands are disabled

protected:
    const CommandMap& GetCommandMap() const override {
        static const CommandMap map{Base::GetCommandMap(),
                                    {Command<&Noting::OnCommand, &Noting::OnUpdateCommand>(commands)...}};
        return map;
    }

private:
    void OnCommand() { Log().emplace_back(name.View()); }
    void OnUpdateCommand(CCmdUI& state) {
        state.Enable(!blocked);
        state.SetText("&Renamed\tCtrl+D");
    }
};

class TestDocument : public Dynamic<"TestDocument", TestDocument,
                                    Noting<"document", CDocument, documentCommand, everywhereCommand>> {
public:
    ~TestDocument() override { Log().push_back("end " + GetTitle()); }
    bool DoFileSave() override { return true; }

protected:
    void Serialize(CArchive&) override {}
};

class TestView : public Dynamic<"TestView", TestView, Noting<"view", CView, viewCommand>> {
public:
    void OnActivateView(bool activate, CView*, CView*) override;
};

class TestFrame
    : public Dynamic<"TestFrame", TestFrame, Noting<"frame", ChildFrame, frameCommand, everywhereCommand>> {};

class TestHiddenFrame : public Dynamic<"TestHiddenFrame", TestHiddenFrame, CMDIChildWnd> {
public:
    void ActivateFrame() override {}
};

class TestMainFrame : public Noting<"main", CMDIFrameWnd, mainCommand, everywhereCommand> {
public:
    TestMainFrame();

protected:
    std::span<const MenuRow> GetMenuRows(unsigned menuId) const override;
};

// The strings must be there before the main frame, which takes its title from them.
struct TestStrings {
    TestStrings();
};

class TestProgram : public Noting<"application", CWinApp, appCommand, everywhereCommand>,
                    public WindowedUserInterface {
public:
    explicit TestProgram(const std::string& settings);
    ~TestProgram() override { CloseAllDocuments(); }

    std::optional<std::string> PromptFileName(const FileNameQuestion&) override { return std::nullopt; }

    TestStrings strings;
    TestMainFrame mainFrame;
};

struct WindowFixture : FolderTest {
    WindowFixture();

    TestDocument& NewDocument(std::size_t type = 0);
    bool Send(CommandId id) { return SendCommand(mainFrame, id); }
    static CMDIChildWnd& FrameOf(const CDocument& document);

    TestProgram program{PathTo("settings.ini")};
    TestMainFrame& mainFrame = program.mainFrame;
};

} // namespace keltavlo
