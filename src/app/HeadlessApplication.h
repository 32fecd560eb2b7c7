#pragma once

#include "app/Workshop.h"
#include "framework/core/CWinApp.h"
#include "framework/core/Exceptions.h"
#include "framework/core/UserInterface.h"

#include <functional>

namespace keltavlo {

// The application without windows. The caller receives the messages, and every question gets a fixed answer.
class HeadlessApplication : public CWinApp, public UserInterface {
public:
    // `show` receives each message for the user.
    explicit HeadlessApplication(std::function<void(const std::string&)> show)
        : CWinApp(ProfileStore()), showMessage(std::move(show)), workshop(*this) {}
    // Documents need the workshop until they are deleted.
    ~HeadlessApplication() override { CloseAllDocuments(); }

    void ShowMessage(const std::string& text) override { showMessage(text); }
    void ReportMemoryShortage() noexcept override {
        try {
            showMessage(memoryMessage);
        } catch (const std::bad_alloc&) { // the receiver lacks memory as well
        }
    }
    SaveAnswer AskToSave(const std::string&) override { return saveAnswer; }
    ChangeAnswer AskAboutChange(const ChangedFile&) override { return changeAnswer; }
    RescueAnswer AskAboutRescued(const std::string&, bool) override { return rescueAnswer; }
    std::optional<std::string> PromptFileName(const FileNameQuestion&) override { return fileName; }
    const CDocTemplate* PromptNewType() override { return newType; }
    void BeginWaitCursor() override {}
    void EndWaitCursor() override {}
    FrameFactory* GetFrameFactory() override { return nullptr; }

    FileSystem& GetFileSystem() { return workshop.GetFileSystem(); }

    // The answers to questions.
    SaveAnswer saveAnswer = SaveAnswer::discard;
    ChangeAnswer changeAnswer = ChangeAnswer::keep;
    RescueAnswer rescueAnswer = RescueAnswer::later;
    std::optional<std::string> fileName;
    const CDocTemplate* newType = nullptr;

private:
    std::function<void(const std::string&)> showMessage;
    const std::string memoryMessage = CMemoryException().what(); // made while there is memory
    Workshop workshop;
};

} // namespace keltavlo
