// A process of its own for what a test must not do to itself: another user, another set of disks.
#pragma once

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

/// Runs something in a child process and tells what it returned, 0 to 255; -1 if the child has ended otherwise.
inline int InChild(const std::function<int()> &run)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(run());
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child)
        return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
