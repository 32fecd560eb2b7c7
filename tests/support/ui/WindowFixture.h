#pragma once

#include "framework/core/CDocument.h"
#include "framework/core/CWinApp.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
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

// A program of the framework's classes alone, with one visible and one hidden type of documents.

constexpr CommandId viewCommand = 40001, documentCommand = 40002, frameCommand = 40003, mainCommand = 40004,
                    appCommand = 40005, unknownCommand = 40006, everywhereCommand = 40007;
constexpr unsigned ownMenu = 1, documentMenu = 2;
inline constexpr unsigned shownType = 9001, hiddenType = 9002;

inline constexpr StringRow testStrings[] = {
    {shownType, "\nshown\nShown\n\n\n\n"}, {hiddenType, "\nhidden\n\n\n\n\n"},
    {AFX_IDS_APP_TITLE, "KelTavlo"},       {mainCommand, "Main prompt\nMain tip"},
    {documentCommand, "Document prompt"},
};
inline constexpr MenuRow ownItems[] = {{"&Main", mainCommand}, {"&Unknown\tCtrl+U", unknownCommand}};
inline constexpr MenuRow ownRows[] = {{"&Own", 0, ownItems}};
inline constexpr MenuRow documentItems[] = {
    {"&Document\tCtrl+D", documentCommand}, {}, {"Recent", ID_FILE_MRU_FIRST}, {}, {"E&xit", 0}};
inline constexpr MenuRow windowItems[] = {{"&New Window", ID_WINDOW_NEW}};
inline constexpr MenuRow documentRows[] = {{"&File", 0, documentItems}, {"&Window", 0, windowItems}};
inline constexpr unsigned paneSamples[] = {shownType, shownType};
inline constexpr AcceleratorRow accelerators[] = {{"Ctrl+D", documentCommand}, {"Ctrl+W", mainCommand}};

// Returns the events in order.
inline std::vector<std::string>& Log() {
    static std::vector<std::string> log;
    return log;
}

// Logs its name when it handles one of its commands.
template <ClassName name, class Base, CommandId... commands>
struct Noting : Base {
    using Base::Base;

    bool blocked = false; // its commands are disabled

    const CommandMap& GetCommandMap() const override {
        static const CommandMap map{Base::GetCommandMap(),
                                    {Command<&Noting::OnCommand, &Noting::OnUpdateCommand>(commands)...}};
        return map;
    }
    void OnCommand() { Log().emplace_back(name.View()); }
    void OnUpdateCommand(CCmdUI& state) {
        state.Enable(!blocked);
        state.SetText("&Renamed\tCtrl+D");
    }
};

struct TestDocument : Dynamic<"TestDocument", TestDocument,
                              Noting<"document", CDocument, documentCommand, everywhereCommand>> {
    ~TestDocument() override { Log().push_back("end " + GetTitle()); }
    bool DoFileSave() override { return true; }
    void Serialize(CArchive&) override {}
};

struct TestView : Dynamic<"TestView", TestView, Noting<"view", CView, viewCommand>> {
    void OnActivateView(bool activate, CView*, CView*) override {
        Log().push_back((activate ? "activate " : "deactivate ") + GetDocument()->GetTitle());
    }
};

struct TestFrame
    : Dynamic<"TestFrame", TestFrame, Noting<"frame", ChildFrame, frameCommand, everywhereCommand>> {};

struct TestHiddenFrame : Dynamic<"TestHiddenFrame", TestHiddenFrame, CMDIChildWnd> {
    void ActivateFrame() override {}
};

struct TestMainFrame : Noting<"main", CMDIFrameWnd, mainCommand, everywhereCommand> {
    TestMainFrame() : Noting(paneSamples) {
        LoadFrame(ownMenu, accelerators);
        resize(640, 480);
        show();
    }
    std::span<const MenuRow> GetMenuRows(unsigned menuId) const override {
        return menuId == ownMenu ? std::span<const MenuRow>(ownRows) : std::span<const MenuRow>(documentRows);
    }
};

// The main frame takes its title from the strings, so they come first.
struct TestStrings {
    TestStrings() { AddStrings(testStrings); }
};

struct TestProgram : Noting<"application", CWinApp, appCommand, everywhereCommand>, WindowedUserInterface {
    explicit TestProgram(const std::string& settings) : Noting(ProfileStore(settings)) {
        GetFrameFactory()->SetMainFrame(&mainFrame);
        for (const CRuntimeClass* type :
             {&TestFrame::runtimeClass, &TestHiddenFrame::runtimeClass, &TestView::runtimeClass})
            GetFrameFactory()->GetClasses().Register(*type);
        for (const CDocTemplate::Row& row :
             {CDocTemplate::Row{shownType, documentMenu, &TestDocument::runtimeClass, "TestFrame",
                                "TestView"},
              {hiddenType, ownMenu, &TestDocument::runtimeClass, "TestHiddenFrame", "TestView"}})
            AddDocTemplate(std::make_unique<CDocTemplate>(row));
    }
    ~TestProgram() override { CloseAllDocuments(); }

    std::optional<std::string> PromptFileName(const FileNameQuestion&) override { return std::nullopt; }

    TestStrings strings;
    TestMainFrame mainFrame;
};

struct WindowFixture : FolderTest {
    WindowFixture() {
        Log().clear();
        QApplication::setActiveWindow(&mainFrame);
    }

    TestDocument& NewDocument(std::size_t type = 0) {
        return dynamic_cast<TestDocument&>(*program.GetTemplates().at(type)->OpenDocumentFile({}));
    }
    bool Send(CommandId id) { return SendCommand(mainFrame, id); }
    static CMDIChildWnd& FrameOf(const CDocument& document) {
        return dynamic_cast<CMDIChildWnd&>(*document.GetFrame());
    }

    TestProgram program{PathTo("settings.ini")};
    TestMainFrame& mainFrame = program.mainFrame;
};

} // namespace keltavlo
