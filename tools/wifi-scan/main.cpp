#include "nl80211scan.h"
#include "output.h"
#include "replay.h"
#include "writer.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <getopt.h>
#include <memory>
#include <unistd.h>

using namespace wifiscan;

namespace {

constexpr const char* Usage = "usage: wifi-scan [--record FILE] IFACE scanning";

struct Arguments {
    std::string interfaceName;
    std::string recordPath; // empty: nothing is kept
    bool help = false;
};

// False when the command line is not one that Usage describes.
bool readArguments(int argc, char** argv, Arguments& arguments)
{
    static constexpr option Options[] = {
        {"record", required_argument, nullptr, 'r'},
        {"help", no_argument, nullptr, 'h'},
        {nullptr, 0, nullptr, 0},
    };
    for (int chosen = 0; (chosen = getopt_long(argc, argv, "", Options, nullptr)) != -1;) {
        if (chosen == 'h')
            arguments.help = true;
        else if (chosen == 'r' && *optarg != '\0')
            arguments.recordPath = optarg;
        else
            return false;
    }
    if (arguments.help)
        return true;
    if (argc - optind != 2 || std::strcmp(argv[optind + 1], "scanning") != 0)
        return false;
    arguments.interfaceName = argv[optind];
    return true;
}

// The one place that knows which sources there are.
std::unique_ptr<Source> chooseSource(const std::string& interfaceName)
{
    const char* const replayPath = std::getenv("WIFI_SCAN_REPLAY");
    if (replayPath != nullptr && *replayPath != '\0')
        return std::make_unique<ReplaySource>(replayPath);
    return std::make_unique<KernelSource>(interfaceName);
}

int complain(const std::string& what)
{
    std::fprintf(stderr, "wifi-scan: cannot write %s: %s\n", what.c_str(), std::strerror(errno));
    return static_cast<int>(ExitStatus::CannotWrite);
}

} // namespace

int main(int argc, char** argv)
{
    Arguments arguments;
    const bool understood = readArguments(argc, argv, arguments);
    if (arguments.help) {
        std::puts(Usage);
        return 0;
    }
    // Whoever reads the output waits for a closing line, whatever went wrong.
    const Report report = understood ? chooseSource(arguments.interfaceName)->scan()
                                     : failure(ExitStatus::Usage, Usage);
    const Output output = linesOf(report);
    for (const std::string& remark : output.remarks)
        std::fprintf(stderr, "wifi-scan: %s\n", remark.c_str());
    if (!writeAll(STDOUT_FILENO, output.text))
        return complain("standard output");
    if (report.status == ExitStatus::Done && !arguments.recordPath.empty()
        && !keep(arguments.recordPath, output.text))
        return complain(arguments.recordPath);
    return static_cast<int>(report.status);
}
