#include "scanservice.h"

#ifdef WIFISCAN_SD_BUS

#include <cstdint>
#include <cstring>
#include <ctime>
#include <string_view>
#include <systemd/sd-bus.h>

namespace wifiscan {

namespace {

constexpr const char* Service = "org.freedesktop.NetworkManager";
constexpr const char* ManagerPath = "/org/freedesktop/NetworkManager";
constexpr const char* Wireless = "org.freedesktop.NetworkManager.Device.Wireless";
constexpr const char* Properties = "org.freedesktop.DBus.Properties";
constexpr const char* LastScan = "LastScan"; // in milliseconds of CLOCK_BOOTTIME, -1 for never

// Within that time of its last scan, in milliseconds, it refuses another one.
constexpr std::int64_t RestAfterScan = 10000;

constexpr int MaxMessages = 1000; // taken at once, so that no flood of them holds us up

std::int64_t bootTimeMs()
{
    timespec time = {};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return std::int64_t{time.tv_sec} * 1000 + time.tv_nsec / 1000000;
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

class NetworkManager : public ScanService {
public:
    explicit NetworkManager(const std::string& interfaceName)
        : m_interfaceName(interfaceName)
    {
    }

    ~NetworkManager() override { sd_bus_close_unref(m_bus); }

    void ask() override
    {
        m_state = ServiceState::Waiting;
        const bool asked = sd_bus_open_system(&m_bus) >= 0
            && sd_bus_call_method_async(m_bus, nullptr, Service, ManagerPath, Service,
                   "GetDeviceByIpIface", &NetworkManager::onDevice, this, "s",
                   m_interfaceName.c_str())
                >= 0;
        if (!asked)
            m_state = ServiceState::Absent;
    }

    ServiceState state() override
    {
        int result = 1;
        for (int i = 0; i < MaxMessages && result > 0 && isOpen(); ++i)
            result = sd_bus_process(m_bus, nullptr);
        if (result < 0) {
            m_lost = true;
            // A scan that was accepted may well go on; the kernel tells its end.
            if (!m_accepted)
                end(ServiceState::Absent);
        }
        return m_state;
    }

    pollfd awaited() const override
    {
        if (!isOpen())
            return {-1, 0, 0};
        const int events = sd_bus_get_events(m_bus);
        return {sd_bus_get_fd(m_bus), static_cast<short>(events < 0 ? 0 : events), 0};
    }

private:
    bool isOpen() const { return m_bus != nullptr && !m_lost && m_state == ServiceState::Waiting; }

    void end(ServiceState state)
    {
        if (m_state == ServiceState::Waiting)
            m_state = state;
    }

    // Matched by name: the texts differ from version to version.
    void refused(const sd_bus_error* error)
    {
        const std::string_view name = error->name == nullptr ? "" : error->name;
        if (endsWith(name, ".ServiceUnknown") || endsWith(name, ".NameHasNoOwner")
            || endsWith(name, ".NoReply") || endsWith(name, ".Disconnected"))
            end(ServiceState::Absent);
        else if (endsWith(name, ".AccessDenied") || endsWith(name, ".PermissionDenied"))
            end(ServiceState::Denied);
        else if (name != "org.freedesktop.NetworkManager.Device.NotAllowed")
            end(ServiceState::Unable);
        else if (m_lastScan >= 0 && bootTimeMs() - m_lastScan < RestAfterScan)
            end(ServiceState::TooSoon);
        else
            m_accepted = true; // a scan of its own is under way
    }

    // These are called by sd_bus_process() only, which state() calls.

    static int onDevice(sd_bus_message* reply, void* self, sd_bus_error*)
    {
        auto* const service = static_cast<NetworkManager*>(self);
        const char* path = nullptr;
        if (sd_bus_message_is_method_error(reply, nullptr) > 0)
            service->refused(sd_bus_message_get_error(reply));
        else if (sd_bus_message_read(reply, "o", &path) < 0 || !service->requestScan(path))
            service->end(ServiceState::Unable);
        return 0;
    }

    // The bus keeps the order, so that no change after the request can be missed.
    bool requestScan(const char* path)
    {
        return sd_bus_match_signal_async(m_bus, nullptr, Service, path, Properties,
                   "PropertiesChanged", &NetworkManager::onChanged, nullptr, this)
            >= 0
            && sd_bus_call_method_async(m_bus, nullptr, Service, path, Properties, "Get",
                   &NetworkManager::onLastScan, this, "ss", Wireless, LastScan)
            >= 0
            && sd_bus_call_method_async(m_bus, nullptr, Service, path, Wireless, "RequestScan",
                   &NetworkManager::onRequested, this, "a{sv}", 0)
            >= 0;
    }

    static int onLastScan(sd_bus_message* reply, void* self, sd_bus_error*)
    {
        // An old version has no such property, and takes requests nevertheless.
        std::int64_t time = -1;
        if (sd_bus_message_is_method_error(reply, nullptr) <= 0
            && sd_bus_message_read(reply, "v", "x", &time) >= 0)
            static_cast<NetworkManager*>(self)->m_lastScan = time;
        return 0;
    }

    static int onRequested(sd_bus_message* reply, void* self, sd_bus_error*)
    {
        auto* const service = static_cast<NetworkManager*>(self);
        if (sd_bus_message_is_method_error(reply, nullptr) > 0)
            service->refused(sd_bus_message_get_error(reply));
        else
            service->m_accepted = true;
        return 0;
    }

    static int onChanged(sd_bus_message* signal, void* self, sd_bus_error*)
    {
        auto* const service = static_cast<NetworkManager*>(self);
        std::int64_t time = service->m_lastScan;
        if (readLastScan(signal, time) && time != service->m_lastScan)
            service->end(ServiceState::Done);
        return 0;
    }

    // False when the signal does not tell it.
    static bool readLastScan(sd_bus_message* signal, std::int64_t& time)
    {
        const char* interface = nullptr;
        if (sd_bus_message_read(signal, "s", &interface) < 0
            || std::strcmp(interface, Wireless) != 0
            || sd_bus_message_enter_container(signal, SD_BUS_TYPE_ARRAY, "{sv}") < 0)
            return false;
        while (sd_bus_message_enter_container(signal, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
            const char* name = nullptr;
            if (sd_bus_message_read(signal, "s", &name) < 0)
                return false;
            if (std::strcmp(name, LastScan) == 0)
                return sd_bus_message_read(signal, "v", "x", &time) >= 0;
            if (sd_bus_message_skip(signal, "v") < 0 || sd_bus_message_exit_container(signal) < 0)
                return false;
        }
        return false;
    }

    const std::string m_interfaceName;
    sd_bus* m_bus = nullptr;
    ServiceState m_state = ServiceState::Absent;
    bool m_accepted = false; // or one of its own is under way
    bool m_lost = false;     // the bus
    std::int64_t m_lastScan = -1;
};

} // namespace

std::unique_ptr<ScanService> networkManager(const std::string& interfaceName)
{
    return std::make_unique<NetworkManager>(interfaceName);
}

} // namespace wifiscan

#else

namespace wifiscan {

std::unique_ptr<ScanService> networkManager(const std::string&)
{
    return nullptr;
}

} // namespace wifiscan

#endif
