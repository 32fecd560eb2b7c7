#include "framework/ui/Commands.h"

#include "framework/core/CCmdTarget.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/core/UserInterface.h"

namespace keltavlo {

CCmdUI AskCommand(CCmdTarget& target, CommandId id) {
    CCmdUI state(id);
    target.OnCmdMsg(id, &state);
    return state;
}

// Qt's menus lose track of their state when an exception passes through them.
bool SendCommand(CCmdTarget& target, CommandId id) try {
    return AskCommand(target, id).enabled && target.OnCmdMsg(id, nullptr);
} catch (const std::bad_alloc&) {
    UserInterface::Get().ReportMemoryShortage();
    return false;
}

std::string CommandPrompt(CommandId id) {
    return std::string(Field(LoadString(id), '\n', 0));
}

std::string CommandToolTip(CommandId id) {
    return std::string(Field(LoadString(id), '\n', 1));
}

} // namespace keltavlo
