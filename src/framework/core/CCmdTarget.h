#pragma once

#include "framework/core/CommandMap.h"
#include "framework/core/RuntimeClass.h"

namespace keltavlo {

// Something that commands are offered to: a view, a document, a frame, the application.
class CCmdTarget : public Dynamic<"CCmdTarget", CCmdTarget, CObject> {
public:
    // Offers a command. With `state`, only asks for the command's state; without, carries it out.
    // False when nothing here handles the id. Routers override it to pass the command on.
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
    // The class's own commands and, behind them, its base's. A class with commands overrides it:
    //     const CommandMap& GetCommandMap() const override;
    virtual const CommandMap& GetCommandMap() const {
        static const CommandMap map;
        return map;
    }
};

} // namespace keltavlo
