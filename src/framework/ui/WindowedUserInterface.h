#pragma once

#include "framework/core/UserInterface.h"
#include "framework/ui/GuardedApplication.h"
#include "framework/ui/MDIFrameFactory.h"

namespace keltavlo {

// Talks to the user through dialogs above the program's windows.
class WindowedUserInterface : public UserInterface {
public:
    void ShowMessage(const std::string& text) override;
    void ReportMemoryShortage() noexcept override { memoryWarning.Raise(); }
    SaveAnswer AskToSave(const std::string& name) override;
    ChangeAnswer AskAboutChange(const ChangedFile& file) override;
    RescueAnswer AskAboutRescued(const std::string& name, bool isNew) override;
    const CDocTemplate* PromptNewType() override;
    void BeginWaitCursor() override;
    void EndWaitCursor() override;
    MDIFrameFactory* GetFrameFactory() override { return &frameFactory; }

private:
    MDIFrameFactory frameFactory;
    MemoryWarning memoryWarning;
};

} // namespace keltavlo
