#include "device/system.h"

#include <QThread>

namespace wifiondivo {
namespace device {

namespace {

/// Qt 4 lets only threads of its own classes sleep.
struct Sleeper : QThread {
    using QThread::sleep;
};

} // namespace

void pause(unsigned long seconds)
{
    Sleeper::sleep(seconds);
}

} // namespace device
} // namespace wifiondivo
