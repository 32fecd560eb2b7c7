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

void UndoHistory::Add(std::unique_ptr<EditAction> action) {
    redoStack.clear();
    undoStack.push_back(std::move(action));
    if (undoStack.size() > capacity) undoStack.pop_front();
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
