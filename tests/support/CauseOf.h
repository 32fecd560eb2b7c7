#pragma once

namespace keltavlo {

// Why the action fails with an exception of the class; -1 when it does not fail.
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
