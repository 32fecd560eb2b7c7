#include "framework/ui/CMDIChildWnd.h"

#include "framework/core/StandardIds.h"
#include "framework/ui/Commands.h"
#include "framework/ui/WindowFixture.h"
#include "support/ui/DialogAnswer.h"

#include <QDialogButtonBox>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

using CMDIChildWndTest = WindowFixture;

TEST_F(CMDIChildWndTest, NumbersTheWindowsOfADocument) {
    TestDocument& document = NewDocument();
    document.SetTitle("a&b\tc[*]");
    CMDIChildWnd& first = FrameOf(document);
    EXPECT_EQ(first.windowTitle(), "a&b\tc[*][*]"); // the toolkit shows a doubled mark once
    ASSERT_TRUE(SendCommand(mainFrame, ID_WINDOW_NEW));
    CMDIChildWnd& second = *mainFrame.MDIGetActive();
    document.SetTitle("d");
    EXPECT_EQ(first.windowTitle(), "d:1");
    EXPECT_EQ(second.windowTitle(), "d:2");
    EXPECT_FALSE(first.close()); // the window goes by itself, later
    EXPECT_EQ(second.windowTitle(), "d");
    EXPECT_THAT(document.GetViews(), ElementsAre(second.GetActiveView()));
    EXPECT_THAT(mainFrame.GetChildren(), ElementsAre(&second));
}

TEST_F(CMDIChildWndTest, TheLastWindowAsksBeforeItTakesTheDocumentAlong) {
    TestDocument& document = NewDocument();
    document.SetModifiedFlag();
    {
        const DialogAnswer cancel(Press(QDialogButtonBox::Cancel));
        FrameOf(document).close();
    }
    EXPECT_EQ(program.GetDocuments().size(), 1U);
    {
        const DialogAnswer discard(Press(QDialogButtonBox::No));
        EXPECT_TRUE(SendCommand(mainFrame, ID_FILE_CLOSE));
    }
    EXPECT_TRUE(program.GetDocuments().empty());
    EXPECT_EQ(mainFrame.MDIGetActive(), nullptr);
}

TEST_F(CMDIChildWndTest, AMaximizedWindowNamesItselfInTheMainTitle) {
    TestDocument& document = NewDocument();
    EXPECT_EQ(mainFrame.windowTitle(), "KelTavlo");
    FrameOf(document).showMaximized();
    EXPECT_EQ(mainFrame.windowTitle(), "KelTavlo - [shown1]");
    TestDocument& second = NewDocument();
    EXPECT_EQ(mainFrame.windowTitle(), "KelTavlo - [shown2]");
    second.SetTitle("b&c");
    EXPECT_EQ(mainFrame.windowTitle(), "KelTavlo - [b&c]");
    second.OnCloseDocument();
    EXPECT_EQ(mainFrame.windowTitle(), "KelTavlo - [shown1]");
    document.OnCloseDocument();
    EXPECT_EQ(mainFrame.windowTitle(), "KelTavlo");
}

} // namespace
