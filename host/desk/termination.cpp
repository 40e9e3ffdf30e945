#include "termination.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <pthread.h>
#include <thread>
#include <unistd.h>

namespace testset {

namespace {

int pipeEnds[2] = {-1, -1};

void tell(int signalNumber)
{
    const int error = errno; // of whatever was interrupted
    const unsigned char byte = static_cast<unsigned char>(signalNumber);
    const ssize_t written = ::write(pipeEnds[1], &byte, sizeof byte);
    static_cast<void>(written); // a full pipe has told enough
    errno = error;
}

bool isIgnored(int signalNumber)
{
    struct sigaction now;
    return ::sigaction(signalNumber, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
}

/// The C library ignores SIGINT for the whole process while a command runs, and so a handler would
/// miss it. Blocked in all threads it is not lost, and a thread of its own takes it. Commands
/// inherit that: at a terminal's interrupt key they are ended by the test set, not beside it.
void takeInterrupts()
{
    sigset_t interrupt;
    ::sigemptyset(&interrupt);
    ::sigaddset(&interrupt, SIGINT);
    ::pthread_sigmask(SIG_BLOCK, &interrupt, nullptr);
    std::thread([interrupt] {
        for (int number = 0;;) {
            if (::sigwait(&interrupt, &number) == 0)
                tell(number);
        }
    }).detach();
}

} // namespace

Termination::Termination()
{
    if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // without it the signals end the program at once
    connect(new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this),
        &QSocketNotifier::activated, this, &Termination::onSignal);
    for (const int number : {SIGTERM, SIGHUP}) {
        if (!isIgnored(number))
            std::signal(number, tell);
    }
    if (!isIgnored(SIGINT))
        takeInterrupts();
}

int Termination::signalNumber() const
{
    return m_signal;
}

void Termination::onSignal()
{
    unsigned char byte = 0;
    if (::read(pipeEnds[0], &byte, sizeof byte) != sizeof byte)
        return;
    m_signal = byte;
    QCoreApplication::quit();
}

} // namespace testset
