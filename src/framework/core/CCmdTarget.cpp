#include "framework/core/CCmdTarget.h"

namespace keltavlo {

bool CCmdTarget::OnCmdMsg(CommandId id, CCmdUI* state) {
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

const CommandMap& CCmdTarget::GetCommandMap() const {
    static const CommandMap map;
    return map;
}

} // namespace keltavlo
