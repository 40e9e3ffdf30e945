#include "ifconfig.h"
#include "interfaces.h"
#include "nl80211scan.h"
#include "output.h"
#include "replay.h"
#include "writer.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <getopt.h>
#include <memory>
#include <string_view>
#include <unistd.h>

using namespace wifiscan;

namespace {

constexpr const char* Usage = "usage: wifi-scan [--record FILE] IFACE scanning";
constexpr const char* UpUsage = "usage: ifconfig IFACE up";

struct Arguments {
    std::string interfaceName;
    std::string recordPath; // empty: nothing is kept
    bool help = false;
    bool listInterfaces = false;
};

// False when the command line is not one that Usage describes.
bool readArguments(int argc, char** argv, Arguments& arguments)
{
    static constexpr option Options[] = {
        {"record", required_argument, nullptr, 'r'},
        {"list-interfaces", no_argument, nullptr, 'l'},
        {"help", no_argument, nullptr, 'h'},
        {nullptr, 0, nullptr, 0},
    };
    for (int chosen = 0; (chosen = getopt_long(argc, argv, "", Options, nullptr)) != -1;) {
        if (chosen == 'h')
            arguments.help = true;
        else if (chosen == 'l')
            arguments.listInterfaces = true;
        else if (chosen == 'r' && *optarg != '\0')
            arguments.recordPath = optarg;
        else
            return false;
    }
    if (arguments.help)
        return true;
    if (arguments.listInterfaces)
        return optind == argc;
    if (argc - optind != 2 || std::strcmp(argv[optind + 1], "scanning") != 0)
        return false;
    arguments.interfaceName = argv[optind];
    return true;
}

// What an environment variable is set to; empty when it is not set.
std::string setting(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value == nullptr ? "" : value;
}

// The test set's own commands always say "wlan0".
std::string interfaceMeant(const std::string& name)
{
    return name == wireless::UsualName && !setting("TESTSET_INTERFACE").empty()
        ? wireless::interfaceInUse()
        : name;
}

// The one place that knows which sources there are.
std::unique_ptr<Source> chooseSource(const std::string& interfaceName)
{
    const std::string replayPath = setting("WIFI_SCAN_REPLAY");
    if (!replayPath.empty())
        return std::make_unique<ReplaySource>(replayPath);
    return std::make_unique<KernelSource>(interfaceMeant(interfaceName));
}

int complain(const std::string& what)
{
    std::fprintf(stderr, "wifi-scan: cannot write %s: %s\n", what.c_str(), std::strerror(errno));
    return static_cast<int>(ExitStatus::CannotWrite);
}

// The names of all wireless interfaces, one a line.
int listInterfaces()
{
    std::string text;
    for (const wireless::Interface& interface : wireless::interfaces())
        text += interface.name + "\n";
    return writeAll(STDOUT_FILENO, text) ? 0 : complain("standard output");
}

// The test set brings its interface up with a command of that name.
bool isCalledIfconfig(const char* path)
{
    const std::string_view name = path == nullptr ? "" : path;
    return name.substr(name.rfind('/') + 1) == "ifconfig";
}

int ifconfig(int argc, char** argv)
{
    if (argc != 3 || std::strcmp(argv[2], "up") != 0) {
        std::fprintf(stderr, "%s\n", UpUsage);
        return static_cast<int>(ExitStatus::Usage);
    }
    if (setting("WIFI_SCAN_REPLAY").empty())
        bringUp(interfaceMeant(argv[1]));
    return 0;
}

// One line each, whatever they quote.
std::string remarksOf(const Report& report, const std::string& prefix)
{
    std::string text;
    for (std::string remark : report.remarks) {
        std::replace(remark.begin(), remark.end(), '\n', ' ');
        text += prefix + remark + "\n";
    }
    return text;
}

} // namespace

int main(int argc, char** argv)
{
    if (isCalledIfconfig(argv[0]))
        return ifconfig(argc, argv);
    Arguments arguments;
    const bool understood = readArguments(argc, argv, arguments);
    if (arguments.help) {
        std::puts(Usage);
        return 0;
    }
    if (understood && arguments.listInterfaces)
        return listInterfaces();
    // Whoever reads the output waits for a closing line, whatever went wrong.
    const Report report = understood ? chooseSource(arguments.interfaceName)->scan()
                                     : failure(ExitStatus::Usage, Usage);
    std::fputs(remarksOf(report, "wifi-scan: ").c_str(), stderr);
    const std::string remarksPath = setting("WIFI_SCAN_REMARKS");
    const bool remarked = remarksPath.empty() || keep(remarksPath, remarksOf(report, ""))
        || complain(remarksPath) == 0;
    if (!writeAll(STDOUT_FILENO, report.text))
        return complain("standard output");
    if (report.status == ExitStatus::Done && !arguments.recordPath.empty()
        && !keep(arguments.recordPath, report.text))
        return complain(arguments.recordPath);
    return static_cast<int>(remarked ? report.status : ExitStatus::CannotWrite);
}
