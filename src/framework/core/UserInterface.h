#pragma once

#include "framework/core/Service.h"

#include <optional>
#include <string>

namespace keltavlo {

class CDocTemplate;
class FrameFactory;

enum class SaveAnswer { save, discard, cancel };

// A document's file that another program has changed.
struct ChangedFile {
    std::string path; // as the user sees it
    bool isModified;  // the document has changes of its own
    bool canUndo;     // Undo takes a reload back
    bool isSaving;    // the document is about to be saved
};

enum class RescueAnswer { open, discard, later };

enum class ChangeAnswer { reload, keep, cancel };

// What a file dialog shows at first.
struct FileNameQuestion {
    std::string proposal; // the name shown at first: a path, a name or nothing
    unsigned titleId = 0; // string of the dialog's title
    bool open = true;     // false: for saving
    bool mustExist = false;
    const CDocTemplate* type = nullptr; // its filter and extension come first; may be null
};

// The user, as documents and the application's core see them.
class UserInterface : public Service<UserInterface> {
public:
    virtual void ShowMessage(const std::string& text) = 0;
    // Reports now or soon that memory ran out. For callers that may lack the memory for a message of
    // their own.
    virtual void ReportMemoryShortage() noexcept = 0;
    // Asks "Save changes to NAME?".
    virtual SaveAnswer AskToSave(const std::string& name) = 0;
    // Asks whether to reload the document or to keep it, which means to overwrite the file when saving. Only
    // a save can be cancelled.
    virtual ChangeAnswer AskAboutChange(const ChangedFile& file) = 0;
    // Asks what to do with a document that a program left unsaved when it ended. `name` is the path or, of a
    // new document, the title.
    virtual RescueAnswer AskAboutRescued(const std::string& name, bool isNew) = 0;
    // Returns the path chosen, or null if the user cancelled.
    virtual std::optional<std::string> PromptFileName(const FileNameQuestion& question) = 0;
    // Asks which document type a new document should have. Returns null if the user cancelled.
    virtual const CDocTemplate* PromptNewType() = 0;
    // Between these two calls, the pointer shows that the program is busy.
    virtual void BeginWaitCursor() = 0;
    virtual void EndWaitCursor() = 0;
    // Returns null if there are no windows.
    virtual FrameFactory* GetFrameFactory() = 0;
};

// Shows the wait cursor as long as it lives.
class CWaitCursor {
public:
    CWaitCursor() { UserInterface::Get().BeginWaitCursor(); }
    ~CWaitCursor() { UserInterface::Get().EndWaitCursor(); }
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

} // namespace keltavlo
