#include "image/UndoHistory.h"

#include <utility>

namespace keltavlo {

namespace {

// Allocates nothing, because both stacks have their memory reserved.
template <class Stack>
void MoveTop(Stack& from, Stack& to) {
    to.push_back(std::move(from.back()));
    from.pop_back();
}

} // namespace

UndoHistory::UndoHistory(TavloDocument& owner, std::size_t limit) : document(owner), capacity(limit) {
    undoStack.reserve(limit);
    redoStack.reserve(limit);
}

void UndoHistory::Do(std::unique_ptr<EditAction> action) {
    action->Redo(document);
    redoStack.clear();
    if (undoStack.size() == capacity) undoStack.erase(undoStack.begin());
    undoStack.push_back(std::move(action));
}

void UndoHistory::Undo() {
    undoStack.back()->Undo(document);
    MoveTop(undoStack, redoStack);
}

void UndoHistory::Redo() {
    redoStack.back()->Redo(document);
    MoveTop(redoStack, undoStack);
}

} // namespace keltavlo
