#include "arguments.h"

#include "displayscale.h"

#include <QCommandLineParser>

namespace testset {

namespace {

const int LongestWaitSeconds = 3600;

QString valueFault(const QCommandLineParser& parser)
{
    for (const char* const option :
        {"plugin", "scenario", "interface", "device-root", "language", "survey"}) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return QString("Option '%1' needs a value.").arg(option);
    }
    for (const char* const option : {"report-name", "wait"}) {
        if (parser.isSet(option) && !parser.isSet("survey"))
            return QString("Option '%1' belongs to --survey.").arg(option);
    }
    return QString();
}

} // namespace

Arguments parseArguments(const QStringList& words)
{
    QCommandLineParser parser;
    parser.addOptions({
        {{"h", "help"}, {}},
        {"version", {}},
        {"verbose", {}},
        {"list-scenarios", {}},
        {"plugin", {}, "FILE"},
        {"scenario", {}, "NAME|FILE"},
        {"interface", {}, "NAME"},
        {"list-interfaces", {}},
        {"device-root", {}, "DIR"},
        {"language", {}, "LL"},
        {"scale", {}, "FACTOR"},
        {"survey", {}, "DIR"},
        {"report-name", {}, "NAME"},
        {"wait", {}, "SECONDS", "90"},
    });

    Arguments arguments;
    if (!parser.parse(words)) {
        arguments.fault = parser.errorText();
        return arguments;
    }
    arguments.help = parser.isSet("help");
    arguments.version = parser.isSet("version");
    arguments.verbose = parser.isSet("verbose");
    arguments.listScenarios = parser.isSet("list-scenarios");
    arguments.plugin = parser.value("plugin");
    arguments.scenario = parser.value("scenario");
    arguments.listInterfaces = parser.isSet("list-interfaces");
    arguments.interface = parser.value("interface");
    arguments.deviceRoot = parser.value("device-root");
    arguments.surveyFolder = parser.value("survey");
    if (parser.isSet("report-name"))
        arguments.reportName = parser.value("report-name");
    arguments.waitSeconds = parser.value("wait").toInt();
    arguments.scale = parser.value("scale").toInt();
    arguments.language = parser.value("language");

    if (!parser.positionalArguments().isEmpty())
        arguments.fault =
            QString("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    else if (arguments.waitSeconds < 1 || arguments.waitSeconds > LongestWaitSeconds)
        arguments.fault = QString("'%1' is no waiting time: it is 1 to %2 seconds.")
                              .arg(parser.value("wait"))
                              .arg(LongestWaitSeconds);
    else if (parser.isSet("scale") && (arguments.scale < 1 || arguments.scale > LargestScale))
        arguments.fault = QString("'%1' is no scale: it is a whole number from 1 to %2.")
                              .arg(parser.value("scale"))
                              .arg(LargestScale);
    else
        arguments.fault = valueFault(parser);
    return arguments;
}

QString usage()
{
    return QStringLiteral(
        R"(Usage: testset [options]

The host application of the test set, on a desk: a window with the display of
720 x 480 and the Wi-Fi analyser in it.

  --scenario NAME|FILE  replay a stored scan instead of asking the adapter
  --list-scenarios      print the names of the stored scans
  --interface NAME      scan with this wireless interface; otherwise with wlan0
                        or, where there is none, with the first one
  --list-interfaces     print the names of the wireless interfaces
  --language LL         language of the interface and of reports, such as en or
                        zh_CN; otherwise the user's own. What is printed is
                        English
  --scale FACTOR        show each pixel of the display FACTOR times as large, 1 to
                        8; otherwise as large as fits on the desk's display
  --plugin FILE         load this plug-in file instead of the installed one
  --device-root DIR     folder with the files of the test set and the reports;
                        otherwise wifiondivo/device in the user's data folder
  --verbose             leave what the analyser and its commands print on the
                        terminal; otherwise it goes to tmp/testset.log in the
                        folder of the test set
  --help, -h            print this text
  --version             print the version

  --survey DIR          no person and no display: scan, leave pictures of every
                        page in DIR, save a report, print what was found
  --report-name NAME    name of the survey's report; otherwise the key pad's own
  --wait SECONDS        how long a scan may take, 1 to 3600; otherwise 90

Exit status:
   0  success: the program was used and closed, or the survey's scan finished
   2  wrong usage              3  plug-in file missing
   4  no plug-in               5  plug-in made for another Qt
   6  no utility plug-in       7  unknown scenario
   8  no display               9  utility unusable
  10  folder not writable     11  no adapter
  12  no results              13  scan failed
  14  scan did not end        15  report not saved
  16  device folder unusable  17  another test set uses the device folder
  18  scan not possible       128 and a signal's number: ended by that signal

The environment variable WIFI_SCAN_REPLAY names the stored scan for the scan
tool; --scenario sets it. QT_QPA_PLATFORM chooses the display as usual.
)");
}

} // namespace testset
