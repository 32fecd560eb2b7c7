#pragma once

#include "image/EditAction.h"

#include <vector>

namespace keltavlo {

// The recorded changes of one document, and those that were undone.
class UndoHistory {
public:
    // Keeps at most `limit` changes; the oldest goes first.
    UndoHistory(TavloDocument& owner, std::size_t limit);

    // Makes the change and records it. What was undone before can no longer be redone. When memory runs out,
    // as in Undo and Redo, document and history stay as they were.
    void Do(std::unique_ptr<EditAction> action);
    bool CanUndo() const { return !undoStack.empty(); }
    bool CanRedo() const { return !redoStack.empty(); }
    // Only while there is one.
    const std::string& TopUndoName() const { return undoStack.back()->GetName(); }
    const std::string& TopRedoName() const { return redoStack.back()->GetName(); }
    void Undo();
    void Redo();

private:
    using Stack = std::vector<std::unique_ptr<EditAction>>; // most recent at the back

    TavloDocument& document;
    std::size_t capacity;
    Stack undoStack;
    Stack redoStack;
};

} // namespace keltavlo
