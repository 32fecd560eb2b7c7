#include "image/UndoHistory.h"

#include <utility>

namespace {

template <class Stack>
auto Pop(Stack& stack) {
    auto action = std::move(stack.back());
    stack.pop_back();
    return action;
}

} // namespace

UndoHistory::UndoHistory(TavloDocument& owner, std::size_t limit) : document(owner), capacity(limit) {
    undoStack.reserve(limit);
    redoStack.reserve(limit);
}

void UndoHistory::Add(std::unique_ptr<EditAction> action) {
    redoStack.clear();
    if (undoStack.size() == capacity) undoStack.erase(undoStack.begin());
    undoStack.push_back(std::move(action));
}

void UndoHistory::Undo() {
    auto action = Pop(undoStack);
    action->Undo(document);
    redoStack.push_back(std::move(action));
}

void UndoHistory::Redo() {
    auto action = Pop(redoStack);
    action->Redo(document);
    undoStack.push_back(std::move(action));
}
