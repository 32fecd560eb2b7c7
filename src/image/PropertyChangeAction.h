#pragma once

#include "framework/core/StringTable.h"
#include "image/TavloDocument.h"

// A change of one property of the texture, which the document's pair of accessors names: keeps the property's
// value of the other state. Make it before the change.
template <auto get, auto set>
class PropertyChangeAction final : public EditAction {
public:
    // The name is a string of the program's table.
    PropertyChangeAction(unsigned nameId, const TavloDocument& document)
        : EditAction(LoadString(nameId)), stored((document.*get)()) {}

    void Undo(TavloDocument& document) override {
        auto current = (document.*get)();
        (document.*set)(std::exchange(stored, std::move(current)));
        document.SetModifiedAndUpdate(false);
    }

private:
    std::decay_t<decltype((std::declval<const TavloDocument&>().*get)())> stored;
};
