#pragma once

#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace keltavlo {

// A process that runs an action. It ends with this object, or with the test's process if that is killed.
class ChildProcess {
public:
    // The action returns the exit code. It must not throw, because the child would continue with the tests.
    template <class Action>
    explicit ChildProcess(Action action) : id(fork()) {
        if (id != 0) return;
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        [&]() noexcept { _exit(action()); }();
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() {
        if (id > 0) kill(id, SIGKILL);
        Wait();
    }
    // Returns the status of waitpid; -1 without a process.
    int Wait() {
        int status = -1;
        if (const pid_t ended = std::exchange(id, -1); ended > 0) waitpid(ended, &status, 0);
        return status;
    }

private:
    pid_t id;
};

} // namespace keltavlo
