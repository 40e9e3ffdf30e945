#pragma once

#include <memory>
#include <poll.h>
#include <string>

namespace wifiscan {

/// What a service that scans for those without the privilege has come to.
enum class ServiceState {
    Absent,  ///< there is none that runs
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

    /// What it has come to, with all that has arrived taken into account. Once it is not Waiting
    /// it stays as it is.
    virtual ServiceState state() = 0;

    /// What to wait for before state() can change; the file is -1 when it cannot any more.
    virtual pollfd awaited() const = 0;
};

/// NetworkManager, asked over the system bus for a scan with the interface of that name. None when
/// the program was built without sd-bus.
std::unique_ptr<ScanService> networkManager(const std::string& interfaceName);

} // namespace wifiscan
