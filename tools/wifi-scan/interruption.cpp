#include "interruption.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace wifiscan {

namespace {

int writingEnd = -1;

void onSignal(int)
{
    const int error = errno;
    const ssize_t ignored = ::write(writingEnd, "", 1);
    static_cast<void>(ignored);
    errno = error;
}

int install()
{
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return -1;
    writingEnd = ends[1];
    for (const int number : {SIGTERM, SIGINT}) {
        struct sigaction before = {};
        struct sigaction action = {};
        action.sa_handler = onSignal;
        action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
        if (::sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            ::sigaction(number, &action, nullptr);
    }
    return ends[0];
}

} // namespace

int interruption()
{
    static const int file = install();
    return file;
}

} // namespace wifiscan
