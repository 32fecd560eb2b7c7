#pragma once

#include "framework/core/CDocument.h"
#include "framework/core/CWinApp.h"
#include "framework/ui/CMDIFrameWnd.h"
#include "framework/ui/CView.h"
#include "framework/ui/ChildFrame.h"
#include "framework/ui/WindowedUserInterface.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

// A program of the framework's classes alone, with one type that people see and one that stays hidden.

constexpr CommandId viewCommand = 40001, documentCommand = 40002, frameCommand = 40003, mainCommand = 40004,
                    appCommand = 40005, unknownCommand = 40006, everywhereCommand = 40007;
constexpr unsigned ownMenu = 1, documentMenu = 2;

// What happened, in order.
std::vector<std::string>& Log();

class TestDocument : public Dynamic<"TestDocument", TestDocument, CDocument> {
public:
    ~TestDocument() override { Log().push_back("end " + GetTitle()); }
    bool DoFileSave() override { return true; }
    bool blocked = false; // its command is disabled

protected:
    void Serialize(CArchive&) override {}
    const CommandMap& GetCommandMap() const override;

private:
    void OnCommand() { Log().push_back("document"); }
    void OnUpdateCommand(CCmdUI& state);
};

class TestView : public Dynamic<"TestView", TestView, CView> {
public:
    void OnActivateView(bool activate, CView*, CView*) override;

protected:
    const CommandMap& GetCommandMap() const override;

private:
    void OnCommand() { Log().push_back("view"); }
};

class TestFrame : public Dynamic<"TestFrame", TestFrame, ChildFrame> {
protected:
    const CommandMap& GetCommandMap() const override;

private:
    void OnCommand() { Log().push_back("frame"); }
};

class TestHiddenFrame : public Dynamic<"TestHiddenFrame", TestHiddenFrame, CMDIChildWnd> {
public:
    void ActivateFrame() override {}
};

class TestMainFrame : public Dynamic<"TestMainFrame", TestMainFrame, CMDIFrameWnd> {
public:
    TestMainFrame();

protected:
    std::span<const MenuRow> GetMenuRows(unsigned menuId) const override;
    const CommandMap& GetCommandMap() const override;

private:
    void OnCommand() { Log().push_back("main"); }
};

// The strings must be there before the main frame, which takes its title from them.
struct TestStrings {
    TestStrings();
};

class TestProgram : public Dynamic<"TestProgram", TestProgram, CWinApp>, public WindowedUserInterface {
public:
    explicit TestProgram(const std::string& settings);
    ~TestProgram() override { CloseAllDocuments(); }

    std::optional<std::string> PromptFileName(const FileNameQuestion&) override { return std::nullopt; }

    TestStrings strings;
    TestMainFrame mainFrame;

protected:
    const CommandMap& GetCommandMap() const override;

private:
    void OnCommand() { Log().push_back("application"); }
};

class WindowFixture : public testing::Test {
protected:
    WindowFixture();

    TestDocument& NewDocument(std::size_t type = 0);
    static CMDIChildWnd& FrameOf(const CDocument& document);

    QTemporaryDir folder;
    TestProgram program{folder.filePath("settings.ini").toStdString()};
    TestMainFrame& mainFrame = program.mainFrame;
};
