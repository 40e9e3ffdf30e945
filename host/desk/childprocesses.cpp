#include "childprocesses.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <chrono>
#include <csignal>
#include <map>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace testset {

namespace {

typedef std::chrono::steady_clock Clock;

const std::chrono::milliseconds Look(50);
const std::chrono::seconds Patience(1); ///< from asking a process to killing it
/// A process that is left after this time waits for a device, and ends when that answers.
const std::chrono::seconds MaxWait(2);

/// As /proc/PID/stat has it. The start time, in ticks since the machine's own, tells a process from
/// a later one of the same number.
struct Process {
    pid_t id;
    qulonglong started;

    bool operator<(const Process& other) const
    {
        return id != other.id ? id < other.id : started < other.started;
    }
};

struct ProcessState {
    char state;
    pid_t parent;
    qulonglong started;
};

/// False when there is no such process.
bool readState(pid_t id, ProcessState& state)
{
    QFile file(QString("/proc/%1/stat").arg(id));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = file.readAll();
    // The second field, the program's name in brackets, may hold blanks and brackets itself.
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    if (fields.size() < 20)
        return false;
    state = {fields[0].at(0), fields[1].toInt(), fields[19].toULongLong()};
    return true;
}

/// This process's children and theirs, the ones that have ended but were not waited for left out.
std::vector<Process> descendants()
{
    std::multimap<pid_t, Process> byParent;
    for (const QString& name : QDir("/proc").entryList(QDir::Dirs)) {
        const pid_t id = name.toInt();
        ProcessState state;
        if (id > 0 && readState(id, state) && state.state != 'Z')
            byParent.insert({state.parent, {id, state.started}});
    }
    std::vector<Process> found;
    std::vector<pid_t> parents{::getpid()};
    while (!parents.empty()) {
        const auto children = byParent.equal_range(parents.back());
        parents.pop_back();
        for (auto child = children.first; child != children.second; ++child) {
            found.push_back(child->second);
            parents.push_back(child->second.id);
        }
    }
    return found;
}

} // namespace

bool hasChildProcesses()
{
    // Not from /proc, which can hide a process with a file capability.
    siginfo_t ended;
    return ::waitid(P_ALL, 0, &ended, WEXITED | WNOHANG | WNOWAIT) == 0;
}

ChildProcessEnder::ChildProcessEnder()
{
    // A process that is begun just before its parent ends would get away: now it becomes a child of
    // this one.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    try {
        m_thread = std::thread(&ChildProcessEnder::run, this);
    } catch (const std::system_error&) {
        // No further thread can be had: the commands end by themselves.
    }
}

ChildProcessEnder::~ChildProcessEnder()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
    }
    m_wake.notify_one();
    if (m_thread.joinable())
        m_thread.join();
    ::prctl(PR_SET_CHILD_SUBREAPER, 0);
    while (::waitpid(-1, nullptr, WNOHANG) > 0) // adopted processes
        continue;
}

void ChildProcessEnder::run()
{
    std::map<Process, Clock::time_point> asked;
    std::unique_lock<std::mutex> lock(m_mutex);
    // A look may miss a process that begins while its parent ends; the next one sees it.
    int looksWithoutAny = 0;
    for (Clock::time_point over;;) {
        if (m_isOver && over == Clock::time_point())
            over = Clock::now();
        lock.unlock();
        const std::vector<Process> running = descendants();
        looksWithoutAny = running.empty() ? looksWithoutAny + 1 : 0;
        for (const Process& process : running) {
            const auto when = asked.insert({process, Clock::now()});
            if (when.second)
                ::kill(process.id, SIGTERM);
            else if (Clock::now() - when.first->second > Patience)
                ::kill(process.id, SIGKILL);
        }
        lock.lock();
        if (m_isOver && over != Clock::time_point()
            && (looksWithoutAny > 1 || Clock::now() - over > MaxWait))
            return;
        m_wake.wait_for(lock, Look);
    }
}

} // namespace testset
