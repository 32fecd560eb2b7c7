#pragma once

#include "framework/core/CommandMap.h"
#include "framework/core/RuntimeClass.h"

namespace keltavlo {

// Base of everything that receives commands: views, documents, frames, the application.
class CCmdTarget : public Dynamic<"CCmdTarget", CCmdTarget, CObject> {
public:
    // Carries out the command if `state` is null; otherwise only fills `state`. Returns false if nothing here
    // handles the id. Classes that forward commands override this function.
    virtual bool OnCmdMsg(CommandId id, CCmdUI* state) {
        const CommandRow* row = GetCommandMap().Find(id);
        if (!row) return false;
        if (!state) {
            row->execute(*this, id);
            return true;
        }
        state->Enable(true);
        if (row->update) row->update(*this, *state);
        return true;
    }

protected:
    // The class's own commands, followed by those of its base. A class with commands overrides this function:
    //     const CommandMap& GetCommandMap() const override;
    virtual const CommandMap& GetCommandMap() const {
        static const CommandMap map;
        return map;
    }
};

} // namespace keltavlo
