#pragma once

namespace keltavlo {

// Returns the cause of the exception of that class that the action throws; -1 if it throws none.
template <class Exception, class Action>
int CauseOf(Action action) {
    try {
        action();
    } catch (const Exception& exception) {
        return exception.cause;
    }
    return -1;
}

} // namespace keltavlo
