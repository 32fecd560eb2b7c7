#pragma once

#include "framework/core/StringTable.h"
#include "image/TavloDocument.h"

namespace keltavlo {

// A change of the property that the document's accessors `get` and `set` name. Stores the value of the other
// state, which is the new one at first.
template <auto get, auto set>
class PropertyChangeAction final : public EditAction {
public:
    using Value = std::decay_t<decltype((std::declval<const TavloDocument&>().*get)())>;

    // `nameId` is an id of the string table.
    PropertyChangeAction(unsigned nameId, Value value)
        : EditAction(LoadString(nameId)), stored(std::move(value)) {}

    void Undo(TavloDocument& document) override {
        auto current = (document.*get)();
        (document.*set)(std::exchange(stored, std::move(current)));
        document.SetModifiedAndUpdate(false);
    }

private:
    Value stored;
};

} // namespace keltavlo
