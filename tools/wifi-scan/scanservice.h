#pragma once

#include <memory>
#include <poll.h>
#include <string>

namespace wifiscan {

/// The state of a service that scans for users without the privilege.
enum class ServiceState {
    Absent,  ///< no such service is running
    Unable,  ///< it does not scan with this interface
    Denied,  ///< this user may not ask it
    TooSoon, ///< it has scanned a few seconds ago and does not scan again
    Waiting, ///< it has not answered yet, or has accepted, or another scan of its own is under way
    Done,    ///< it has scanned since it was asked
};

/// A service of this machine that is asked for a scan. Nothing here waits.
class ScanService {
public:
    ScanService() = default;
    ScanService(const ScanService&) = delete;
    ScanService& operator=(const ScanService&) = delete;
    virtual ~ScanService() = default;

    /// Begins to ask. Comes first, and once.
    virtual void ask() = 0;

    /// The state after all messages that have arrived. Once it is not Waiting
    /// it stays as it is.
    virtual ServiceState state() = 0;

    /// The event after which state() can change; the file is -1 if it cannot change any more.
    virtual pollfd awaited() const = 0;
};

/// NetworkManager, asked over the system bus for a scan with the interface of that name. Null if
/// the program was built without sd-bus.
std::unique_ptr<ScanService> networkManager(const std::string& interfaceName);

} // namespace wifiscan
