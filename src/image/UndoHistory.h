#pragma once

#include "image/EditAction.h"

#include <vector>

// The recorded changes of one document, and those that were undone.
class UndoHistory {
public:
    // Keeps at most `limit` changes; the oldest goes first.
    UndoHistory(TavloDocument& owner, std::size_t limit);

    // Records a change that was just made, which takes no memory: it always succeeds. What was undone before
    // can no longer be redone.
    void Add(std::unique_ptr<EditAction> action);
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
