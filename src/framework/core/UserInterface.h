#pragma once

#include "framework/core/Service.h"

#include <optional>
#include <string>

namespace keltavlo {

class CDocTemplate;
class FrameFactory;

enum class SaveAnswer { save, discard, cancel };

// What file dialogs are asked for.
struct FileNameQuestion {
    std::string proposal; // a path or a name; may be empty
    unsigned titleId = 0; // string of the dialog's title
    bool open = true;     // else save
    bool mustExist = false;
    const CDocTemplate* type = nullptr; // whose filter and extension come first; may be null
};

// The user at the program, as documents and the application's core see them.
class UserInterface : public Service<UserInterface> {
public:
    virtual void ShowMessage(const std::string& text) = 0;
    // Says, now or soon, that memory ran out; for where there may be none for a text of one's own.
    virtual void ReportMemoryShortage() noexcept = 0;
    // "Save changes to NAME?"
    virtual SaveAnswer AskToSave(const std::string& name) = 0;
    // The path chosen, or nothing when the user cancelled.
    virtual std::optional<std::string> PromptFileName(const FileNameQuestion& question) = 0;
    // Which of the named document types a new document is to have; null when the user cancelled.
    virtual const CDocTemplate* PromptNewType() = 0;
    // The pointer shows that the program is at work between the two.
    virtual void BeginWaitCursor() = 0;
    virtual void EndWaitCursor() = 0;
    // Null where there are no windows.
    virtual FrameFactory* GetFrameFactory() = 0;
};

// Shows the wait cursor for as long as it lives.
class CWaitCursor {
public:
    CWaitCursor() { UserInterface::Get().BeginWaitCursor(); }
    ~CWaitCursor() { UserInterface::Get().EndWaitCursor(); }
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

} // namespace keltavlo
