#include "anonymous.h"
#include "atomicfile.h"
#include "environment.h"
#include "ifconfig.h"
#include "interfaces.h"
#include "json.h"
#include "nl80211scan.h"
#include "privilege.h"
#include "replay.h"
#include "scenario.h"
#include "writer.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <getopt.h>
#include <memory>
#include <string_view>
#include <unistd.h>

using namespace wifiscan;

namespace {

constexpr const char* Usage =
    "usage: wifi-scan [--json] [--anonymous] [--record FILE] IFACE scanning";
constexpr const char* Help = R"(
Scans with the wireless interface IFACE and lists the access points in reach.

  --json          one JSON document instead of lines, with the 6 GHz band too
  --anonymous     other names and addresses, the same ones throughout
  --record FILE   also keep the lines in FILE, from which they can be replayed
  --help          print this text
  --version       print the version

wifi-scan --list-interfaces prints the names of the wireless interfaces. Called by
the name ifconfig, "IFACE up" brings an interface up where that is allowed.

Environment:
  TESTSET_INTERFACE  the interface that the name wlan0 stands for
  WIFI_SCAN_REMARKS  path of a file that gets what stands on standard error
  WIFI_SCAN_REPLAY   path of a file to replay instead of a scan: a scenario, the
                     text of "iw dev IFACE scan", or a capture of frames
                     (pcap or pcapng with radiotap)

Exit status:
)";
constexpr const char* UpUsage = "usage: ifconfig IFACE up";

struct Arguments {
    std::string interfaceName;
    std::string recordPath; // empty: nothing is kept
    bool json = false;
    bool anonymous = false;
    bool help = false;
    bool version = false;
    bool listInterfaces = false;
};

// False when the command line is not one that Usage describes. It is read to its end even so: the
// answer is in JSON then too.
bool readArguments(int argc, char** argv, Arguments& arguments)
{
    static constexpr option Options[] = {
        {"record", required_argument, nullptr, 'r'},
        {"json", no_argument, nullptr, 'j'},
        {"anonymous", no_argument, nullptr, 'a'},
        {"list-interfaces", no_argument, nullptr, 'l'},
        {"help", no_argument, nullptr, 'h'},
        {"version", no_argument, nullptr, 'v'},
        {nullptr, 0, nullptr, 0},
    };
    bool understood = true;
    for (int chosen = 0; (chosen = getopt_long(argc, argv, "", Options, nullptr)) != -1;) {
        arguments.json |= chosen == 'j';
        arguments.anonymous |= chosen == 'a';
        arguments.help |= chosen == 'h';
        arguments.version |= chosen == 'v';
        arguments.listInterfaces |= chosen == 'l';
        if (chosen == 'r')
            arguments.recordPath = optarg;
        understood &= chosen != '?' && (chosen != 'r' || *optarg != '\0');
    }
    if (understood && arguments.listInterfaces)
        return optind == argc;
    if (!understood || argc - optind != 2 || std::strcmp(argv[optind + 1], "scanning") != 0)
        return false;
    arguments.interfaceName = argv[optind];
    return true;
}

std::string helpText()
{
    std::string text = std::string(Usage) + "\n" + Help;
    for (const AboutStatus& entry : Statuses) {
        char line[128];
        std::snprintf(
            line, sizeof line, "  %2d  %s\n", static_cast<int>(entry.status), entry.meaning);
        text += line;
    }
    return text;
}

// The value of an environment variable; empty if it is not set.
std::string setting(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value == nullptr ? "" : value;
}

// The test set's own commands always say "wlan0".
std::string interfaceMeant(const std::string& name)
{
    return name == wireless::UsualName && !setting(environment::Interface).empty()
        ? wireless::interfaceInUse()
        : name;
}

// The one place that knows which sources there are.
std::unique_ptr<Source> chooseSource(const Arguments& arguments)
{
    const std::string replayPath = setting(environment::Replay);
    if (!replayPath.empty()) {
        dropPrivilege();
        return std::make_unique<ReplaySource>(replayPath);
    }
    return std::make_unique<KernelSource>(
        interfaceMeant(arguments.interfaceName), arguments.json ? Bands::All : Bands::Listed);
}

ScanResult scan(const Arguments& arguments)
{
    ScanResult result = chooseSource(arguments)->scan();
    if (!result.scenario.empty() && (arguments.json || arguments.anonymous))
        result = readScenario(result.scenario);
    if (arguments.anonymous)
        anonymise(result.heard);
    return result;
}

std::string cannotWrite(const std::string& what)
{
    return "cannot write " + what + ": " + std::strerror(errno);
}

// Keeps the lines and tells of it in the result when it cannot.
void keepLines(const std::string& path, ScanResult& result, Output& lines)
{
    if (keep(path, lines.text))
        return;
    result.remarks.push_back(cannotWrite(path));
    lines.remarks.push_back(result.remarks.back());
    result.status = ExitStatus::CannotWrite;
}

int print(const std::string& text, ExitStatus status)
{
    if (writeAll(STDOUT_FILENO, text))
        return static_cast<int>(status);
    std::fprintf(stderr, "wifi-scan: %s\n", cannotWrite("standard output").c_str());
    return static_cast<int>(ExitStatus::CannotWrite);
}

// The names of all wireless interfaces, one a line.
int listInterfaces()
{
    std::string text;
    for (const wireless::Interface& interface : wireless::interfaces())
        text += interface.name + "\n";
    return print(text, ExitStatus::Done);
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
    if (setting(environment::Replay).empty())
        bringUp(interfaceMeant(argv[1]));
    return 0;
}

// One line each, whatever they quote.
std::string textOf(const std::vector<std::string>& remarks, const std::string& prefix)
{
    std::string text;
    for (std::string remark : remarks) {
        std::replace(remark.begin(), remark.end(), '\n', ' ');
        text += prefix + remark + "\n";
    }
    return text;
}

// A file that is opened later must not take the place of standard output. A standard
// file that the caller has closed is empty when read, and fails when written.
void openStandardFiles()
{
    while (true) {
        const int file = ::open("/dev/null", O_RDONLY);
        if (file > STDERR_FILENO)
            ::close(file);
        if (file < 0 || file > STDERR_FILENO)
            return;
    }
}

} // namespace

int main(int argc, char** argv)
{
    openStandardFiles();
    lowerPrivilege();
    if (isCalledIfconfig(argv[0]))
        return ifconfig(argc, argv);
    Arguments arguments;
    const bool understood = readArguments(argc, argv, arguments);
    if (arguments.help)
        return print(helpText(), ExitStatus::Done);
    if (arguments.version)
        return print("wifi-scan " WIFI_SCAN_VERSION "\n", ExitStatus::Done);
    if (understood && arguments.listInterfaces)
        return listInterfaces();
    // Whoever reads the output waits for its end, whatever went wrong.
    ScanResult result = understood ? scan(arguments) : failure(ExitStatus::Usage, Usage);
    Output lines = linesOf(result);
    if (result.status == ExitStatus::Done && !arguments.recordPath.empty())
        keepLines(arguments.recordPath, result, lines);
    const std::vector<std::string>& remarks = arguments.json ? result.remarks : lines.remarks;
    std::fputs(textOf(remarks, "wifi-scan: ").c_str(), stderr);
    const std::string remarksPath = setting(environment::Remarks);
    if (!remarksPath.empty() && !keep(remarksPath, textOf(remarks, ""))) {
        std::fprintf(stderr, "wifi-scan: %s\n", cannotWrite(remarksPath).c_str());
        result.status = ExitStatus::CannotWrite;
    }
    return print(arguments.json ? jsonOf(result) : lines.text, result.status);
}
