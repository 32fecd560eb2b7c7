#pragma once

#include <memory>
#include <string>

namespace keltavlo {

class TavloDocument;

// A recorded change. It contains the other state, so undo and redo are the same exchange.
class EditAction {
public:
    explicit EditAction(std::string actionName) : name(std::move(actionName)) {}
    EditAction(const EditAction&) = delete;
    EditAction& operator=(const EditAction&) = delete;
    virtual ~EditAction() = default;

    virtual void Undo(TavloDocument& document) = 0;
    virtual void Redo(TavloDocument& document) { Undo(document); }
    // The name in the Edit menu.
    const std::string& GetName() const { return name; }

private:
    std::string name;
};

} // namespace keltavlo
