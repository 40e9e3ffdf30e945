#include "adapter.h"
#include "arguments.h"
#include "cwidgetstyle.h"
#include "devicefolder.h"
#include "exitstatus.h"
#include "installation.h"
#include "pluginloader.h"
#include "scenarios.h"
#include "survey.h"
#include "testsetwindow.h"

#include <QApplication>
#include <QTextStream>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

using namespace testset;

void print(FILE* file, const QString& text)
{
    std::fputs(text.toUtf8().constData(), file);
    std::fflush(file);
}

int fail(const Outcome& outcome)
{
    print(stderr, "testset: " + outcome.sentence + '\n');
    return outcome.status;
}

/// Whether there is something to show a window on. A survey needs no display and brings its own
/// when there is none.
bool chooseDisplay(bool isSurvey)
{
    const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    if (!hasDisplay && isSurvey)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return hasDisplay || isSurvey;
}

int listScenarios(const QString& folder)
{
    const QStringList names = scenarioNames(folder);
    if (names.isEmpty())
        return fail({UnknownScenario, "There are no scenarios in " + folder + '.'});
    print(stdout, names.join('\n') + '\n');
    return Success;
}

/// A scan tool that hangs would keep the plug-in, which lets every scan end, and so an unattended
/// program from ending.
void endWithinHalfAMinute()
{
    std::signal(SIGALRM, [](int) { _exit(ScanWithoutEnd); });
    alarm(30);
}

int survey(TestSetWindow& window, const Arguments& arguments)
{
    SurveyOptions options;
    options.folder = arguments.surveyFolder;
    options.reportName = arguments.reportName;
    options.waitSeconds = arguments.waitSeconds;
    options.language = arguments.language;
    Survey survey(window, options);
    const Outcome outcome = survey.run();
    for (const QString& line : survey.lines())
        print(stdout, "survey: " + line + '\n');
    if (outcome.status == ScanWithoutEnd)
        endWithinHalfAMinute();
    return outcome.status == Success ? Success : fail(outcome);
}

int run(const Arguments& arguments)
{
    const Installation installation(QApplication::applicationDirPath());
    if (!arguments.scenario.isEmpty()) {
        const QString file = findScenario(installation.scenarioFolder(), arguments.scenario);
        if (file.isNull())
            return fail({UnknownScenario,
                QString("There is no scenario and no readable file '%1'; the scenarios are: %2.")
                    .arg(arguments.scenario,
                        scenarioNames(installation.scenarioFolder()).join(", "))});
        const QString fault = scenarioFault(file);
        if (!fault.isEmpty())
            return fail({UnknownScenario, fault + '.'});
        replay(file);
    }

    adapter::useInterface(
        arguments.interface.isEmpty() ? adapter::interfaceInUse() : arguments.interface);
    DeviceFolder device(arguments.deviceRoot);
    const Outcome prepared = device.prepare(installation);
    if (prepared.status != Success)
        return fail(prepared);

    const LoadedPlugin plugin =
        loadPlugin(arguments.plugin.isEmpty() ? installation.pluginFile() : arguments.plugin);
    if (!plugin.utility)
        return fail(plugin.outcome);

    Translation translation(installation.translationFile());
    TestSetWindow window(*plugin.utility, translation, device);
    window.show();
    if (!arguments.surveyFolder.isEmpty())
        return survey(window, arguments);
    window.setLanguage(arguments.language);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QStringList words;
    for (int word = 0; word < argc; ++word)
        words << QString::fromLocal8Bit(argv[word]);
    const Arguments arguments = parseArguments(words);
    if (!arguments.fault.isEmpty()) {
        const int status = fail({WrongUsage, arguments.fault});
        print(stderr, usage());
        return status;
    }
    if (arguments.help) {
        print(stdout, usage());
        return Success;
    }
    if (arguments.version) {
        print(stdout, "testset " TESTSET_VERSION "\n");
        return Success;
    }
    if (arguments.listInterfaces) {
        for (const QString& name : adapter::interfaces())
            print(stdout, name + '\n');
        return Success;
    }
    if (arguments.listScenarios) {
        const QCoreApplication application(argc, argv);
        return listScenarios(Installation(QCoreApplication::applicationDirPath()).scenarioFolder());
    }
    if (!chooseDisplay(!arguments.surveyFolder.isEmpty()))
        return fail(
            {NoDisplay, "There is no display to show a window on; --survey DIR needs none."});

    // Qt sees none of the options: it has a "plugin" of its own.
    int programOnly = 1;
    const QApplication application(programOnly, argv);
    QApplication::setApplicationName("testset");
    QApplication::setStyle("Fusion");
    QApplication::setFont(CWidgetStyle::font());
    QApplication::setQuitOnLastWindowClosed(arguments.surveyFolder.isEmpty());
    return run(arguments);
}
