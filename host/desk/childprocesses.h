#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

namespace testset {

/// Whether a command that this process has started, or one that such a command has, is running.
bool hasChildProcesses();

/// Ends the commands that this process has started, and theirs, for as long as it lives: the
/// utility lets a scan end before it goes, and its worker starts one command after the other. Each
/// is asked to end first and killed when it has not within a second. When this object goes, which
/// is to be when nothing of this process waits for a command any more, none is left.
///
/// It works in a thread of its own, so that the one that made it may be blocked meanwhile.
class ChildProcessEnder {
public:
    ChildProcessEnder();
    ~ChildProcessEnder();
    ChildProcessEnder(const ChildProcessEnder&) = delete;
    ChildProcessEnder& operator=(const ChildProcessEnder&) = delete;

private:
    void run();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_isOver = false; ///< under the mutex
    std::thread m_thread; ///< not running if the system has no more threads: then the utility waits
};

} // namespace testset
