#include "framework/ui/Commands.h"

#include "framework/core/CCmdTarget.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"

CCmdUI AskCommand(CCmdTarget& target, CommandId id) {
    CCmdUI state(id);
    target.OnCmdMsg(id, &state);
    return state;
}

bool SendCommand(CCmdTarget& target, CommandId id) {
    return AskCommand(target, id).enabled && target.OnCmdMsg(id, nullptr);
}

std::string CommandPrompt(CommandId id) {
    return std::string(Field(LoadString(id), '\n', 0));
}

std::string CommandToolTip(CommandId id) {
    return std::string(Field(LoadString(id), '\n', 1));
}
