#include "arguments.h"

#include "displayscale.h"
#include "exitstatus.h"

#include <QCommandLineParser>

namespace testset {

namespace {

const int MaxWaitSeconds = 3600;

const char* const Description =
    "The host application of the test set, on a desk: a window with the display of\n"
    "720 x 480 and the Wi-Fi analyser in it.";
const char* const Environment =
    "The environment variable WIFI_SCAN_REPLAY names the stored scan for the scan\n"
    "tool; --scenario sets it. QT_QPA_PLATFORM chooses the display as usual.\n";

void addOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {"scenario", "Replay a stored scan instead of asking the adapter.", "NAME|FILE"},
        {"list-scenarios", "Print the names of the stored scans."},
        {"interface",
            "Scan with this wireless interface; otherwise with wlan0 or, where there is none, with "
            "the first one.",
            "NAME"},
        {"list-interfaces", "Print the names of the wireless interfaces."},
        {"language",
            "Language of the interface and of reports, such as en or zh_CN; otherwise the user's "
            "own. What is printed is English.",
            "LL"},
        {"scale",
            QString("Show each pixel of the display FACTOR times as large, 1 to %1; otherwise as "
                    "large as fits on the desk's display.")
                .arg(MaxScale),
            "FACTOR"},
        {"plugin", "Load this plug-in file instead of the installed one.", "FILE"},
        {"device-root",
            "Folder with the files of the test set and the reports; otherwise wifiondivo/device in "
            "the user's data folder.",
            "DIR"},
        {"verbose",
            "Leave what the analyser and its commands print on the terminal; otherwise it goes to "
            "tmp/testset.log in the folder of the test set."},
        {"survey",
            "No person and no display: scan, leave pictures of every page in DIR, save a report, "
            "print what was found.",
            "DIR"},
        {"report-name", "Name of the survey's report; otherwise the key pad's own.", "NAME"},
        {"wait",
            QString("How long the survey's scan may take, 1 to %1; otherwise %2.")
                .arg(MaxWaitSeconds)
                .arg(Arguments().waitSeconds),
            "SECONDS", QString::number(Arguments().waitSeconds)},
        {{"h", "help"}, "Print this text."},
        {"version", "Print the version."},
    });
}

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
    addOptions(parser);

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
    else if (arguments.waitSeconds < 1 || arguments.waitSeconds > MaxWaitSeconds)
        arguments.fault = QString("'%1' is no waiting time: it is 1 to %2 seconds.")
                              .arg(parser.value("wait"))
                              .arg(MaxWaitSeconds);
    else if (parser.isSet("scale") && (arguments.scale < 1 || arguments.scale > MaxScale))
        arguments.fault = QString("'%1' is no scale: it is a whole number from 1 to %2.")
                              .arg(parser.value("scale"))
                              .arg(MaxScale);
    else
        arguments.fault = valueFault(parser);
    return arguments;
}

QString helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.setApplicationDescription(Description);
    QString statuses = "Exit status:\n";
    for (const StatusMeaning& row : statusMeanings())
        statuses += QString("  %1  %2\n").arg(row.status, 3).arg(row.meaning);
    return parser.helpText() + '\n' + statuses + '\n' + Environment;
}

} // namespace testset
