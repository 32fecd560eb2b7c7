// What the main window remembers from one run to the next.
#include "app/Settings.h"
#include "app/ui/MainFrame.h"
#include "framework/core/CWinApp.h"
#include "framework/ui/ColorPrompt.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QThread>
#include <QWindow>

namespace keltavlo {

namespace {

constexpr const char* placementValue = "WindowPlacement";
constexpr const char* barStateName = "ToolBarState";
constexpr int paintPatience = 500; // milliseconds

} // namespace

void MainFrame::LoadSettings() {
    const ProfileStore& profile = CWinApp::Get().GetProfile();
    const auto bytes = profile.ReadBinary(mainSection, placementValue);
    if (const auto placement = bytes ? WindowPlacement::FromBytes(*bytes) : std::nullopt) {
        showCommand = placement->showCommand;
        SetWindowPlacement(*placement);
    }
    if (const auto values = ReadGamma(profile)) gamma.SetValues(*values);
    if (const auto colors = ReadCustomColors(profile, mainSection)) SetCustomColors(*colors);
    LoadBarState(barStateName);
}

void MainFrame::SaveSettings() const {
    SaveBarState(barStateName);
    ProfileStore& profile = CWinApp::Get().GetProfile();
    WriteCustomColors(profile, mainSection, GetCustomColors());
    WriteGamma(profile, gamma.GetValues());
    profile.WriteBinary(mainSection, placementValue, GetWindowPlacement().ToBytes());
}

// Written before anybody is asked whether documents are to be saved, and kept whatever the answer.
void MainFrame::closeEvent(QCloseEvent* event) {
    SaveSettings();
    CMDIFrameWnd::closeEvent(event);
}

// The system tells when there is something to paint on. What follows keeps the program busy, so it is awaited
// here; without an answer the program goes on.
void MainFrame::ShowAsLeft() {
    ShowWindow(WindowPlacement::showNormal);
    ShowWindow(showCommand);
    OnIdle();
    QElapsedTimer clock;
    clock.start();
    do {
        QThread::msleep(1);
        QGuiApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    } while (!isMinimized() && !windowHandle()->isExposed() && !clock.hasExpired(paintPatience));
    LiftFloatingBars();
}

} // namespace keltavlo
