#pragma once

#include "image/EditAction.h"

#include <vector>

namespace keltavlo {

// The recorded changes of a document, and those that were undone.
class UndoHistory {
public:
    // Keeps at most `limit` changes and drops the oldest.
    UndoHistory(TavloDocument& owner, std::size_t limit);

    // Makes the change, records it and discards the changes that could be redone. If memory runs out here, in
    // Undo or in Redo, document and history stay unchanged.
    void Do(std::unique_ptr<EditAction> action);
    bool CanUndo() const { return !undoStack.empty(); }
    bool CanRedo() const { return !redoStack.empty(); }
    // Only if CanUndo or CanRedo.
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
