#pragma once

#include <functional>

#include <sys/wait.h>
#include <unistd.h>

namespace velmora::test
{

/// A second process that waits to be let go. It is made before the files are opened, so that it shares no
/// open file with this one. Its work returns the process's exit code.
class OtherProcess
{
public:
    explicit OtherProcess(const std::function<int()> &work)
    {
        if (pipe(m_gate) != 0) return;
        m_child = fork();
        if (m_child != 0) return;
        char go = 0;
        const bool released = read(m_gate[0], &go, 1) == 1;
        _exit(released ? work() : 255);
    }
    ~OtherProcess()
    {
        close(m_gate[1]);
        if (m_child > 0) waitpid(m_child, nullptr, 0);
        close(m_gate[0]);
    }
    OtherProcess(const OtherProcess &) = delete;
    OtherProcess &operator=(const OtherProcess &) = delete;

    /// Lets the process go and waits for its exit code; -1 if it didn't end by itself.
    int run() { return start() ? wait() : -1; }

    /// The two halves of `run`, for processes that work side by side.
    bool start()
    {
        const char go = 1;
        return m_child > 0 && write(m_gate[1], &go, 1) == 1;
    }
    int wait()
    {
        int outcome = 0;
        waitpid(m_child, &outcome, 0);
        m_child = 0;
        return WIFEXITED(outcome) ? WEXITSTATUS(outcome) : -1;
    }

private:
    int m_gate[2] = {-1, -1};
    pid_t m_child = 0;
};

} // namespace velmora::test
