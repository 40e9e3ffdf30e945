#include "accessibility.h"
#include "adapter.h"
#include "arguments.h"
#include "childprocesses.h"
#include "cwidgetstyle.h"
#include "devicefolder.h"
#include "displayscale.h"
#include "exitstatus.h"
#include "installation.h"
#include "language.h"
#include "pluginloader.h"
#include "scenarios.h"
#include "survey.h"
#include "terminal.h"
#include "termination.h"
#include "testsetwindow.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QScreen>

#include <cstdlib>
#include <memory>

namespace {

using namespace testset;

using terminal::complain;
using terminal::print;

int fail(const Outcome& outcome)
{
    complain("testset: " + terminal::printable(outcome.sentence) + '\n');
    return outcome.status;
}

/// Prints the text that the program was asked for; its exit status.
int answer(const QString& text)
{
    return print(text) ? Success : fail({OutputLost, "The output cannot be written."});
}

/// The settings by which Qt finds a display; empty if there is no display.
QString displayNames()
{
    QStringList names;
    for (const char* const variable : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            names << QString("%1=%2").arg(variable, qEnvironmentVariable(variable));
    }
    return names.join(", ");
}

/// Qt's messages from its start, kept until their destination is known.
QStringList& earlyMessages()
{
    static QStringList messages;
    return messages;
}

/// During start-up Qt's only fatal error is a display that it cannot open; it is reported here,
/// since Qt would abort.
void onEarlyMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtFatalMsg)
        std::_Exit(fail({NoDisplay,
            QString("The display cannot be opened (%1); --survey DIR needs none.")
                .arg(displayNames())}));
    earlyMessages() << text;
}

/// How the program ends when something in it calls exit(), as Qt does when its display goes away
/// and as a plug-in can; a success when that is the program's own end.
Outcome& endByExit()
{
    static Outcome outcome;
    return outcome;
}

void onExit()
{
    if (endByExit().status == Success)
        return;
    {
        const ChildProcessEnder ender; // a scan's commands end with the program
    }
    std::_Exit(fail(endByExit()));
}

/// Names the window to the desktop, which thereby finds its entry and its icon. Where neither is
/// installed, or Qt reads no SVG, the same picture in fixed sizes serves.
void introduceToDesktop()
{
    const QString name = "com.korvane.wifiondivo";
    QIcon icon;
    for (const int size : {16, 32, 48, 128})
        icon.addFile(QString(":/icon-%1.png").arg(size));
    QGuiApplication::setDesktopFileName(name);
    QApplication::setWindowIcon(QIcon::fromTheme(name, icon));
}

int listScenarios(const QString& folder)
{
    const QStringList names = scenarioNames(folder);
    if (names.isEmpty())
        return fail({UnknownScenario, "There are no scenarios in " + folder + '.'});
    return answer(names.join('\n') + '\n');
}

int survey(TestSetWindow& window, const DeviceFolder& device, const Arguments& arguments,
    const Termination& termination)
{
    SurveyOptions options;
    options.folder = arguments.surveyFolder;
    options.reportName = arguments.reportName;
    options.waitSeconds = arguments.waitSeconds;
    Survey survey(window, device, options);
    const Outcome outcome = survey.run();
    if (termination.signalNumber() != 0)
        return EndedBySignal + termination.signalNumber();
    QString lines;
    for (const QString& line : survey.lines())
        lines += "survey: " + terminal::printable(line) + '\n';
    const int status = answer(lines);
    return outcome.status == Success ? status : fail(outcome);
}

/// Finds the stored scan that is asked for, if any, and lets the scan tool replay it.
Outcome prepareReplay(const Arguments& arguments, const QString& folder)
{
    if (arguments.scenario.isEmpty())
        return {};
    const QString file = findScenario(folder, arguments.scenario);
    if (file.isNull())
        return {UnknownScenario,
            QString("There is no scenario and no readable file '%1'; the scenarios are: %2.")
                .arg(arguments.scenario, scenarioNames(folder).join(", "))};
    const QString fault = scenarioFault(file);
    if (!fault.isEmpty())
        return {UnknownScenario, fault + '.'};
    replay(file);
    return {};
}

Outcome chooseLanguage(const Arguments& arguments, Translation& translation)
{
    const QString language = arguments.language.isEmpty() ? translation.preferred()
                                                          : translation.find(arguments.language);
    if (language.isNull())
        return {WrongUsage,
            QString("There is no language '%1'; the languages are: %2.")
                .arg(arguments.language, translation.codes().join(", "))};
    if (!translation.use(language))
        complain("testset: The texts in the language " + language + " cannot be read.\n");
    return {};
}

/// Lays out the device folder and sends the output of the analyser and its commands to its log.
Outcome prepareDevice(
    const Arguments& arguments, const Installation& installation, DeviceFolder& device)
{
    adapter::useInterface(
        arguments.interface.isEmpty() ? adapter::interfaceInUse() : arguments.interface);
    Outcome prepared = device.prepare(installation);
    if (prepared.status != Success || arguments.verbose)
        return prepared;
    const QString fault = terminal::sendOthersTo(device.log());
    return fault.isEmpty() ? Outcome() : Outcome{DeviceFolderUnusable, fault + '.'};
}

int run(const Arguments& arguments)
{
    const Termination termination;
    const Installation installation(QApplication::applicationDirPath());
    Translation translation(installation.translationFolder());
    DeviceFolder device(arguments.deviceRoot);
    Outcome prepared = prepareReplay(arguments, installation.scenarioFolder());
    // Before there is a utility, so that each of its texts is in this language from the first.
    if (prepared.status == Success)
        prepared = chooseLanguage(arguments, translation);
    if (prepared.status == Success)
        prepared = prepareDevice(arguments, installation, device);
    if (prepared.status != Success)
        return fail(prepared);
    qInstallMessageHandler(nullptr);
    for (const QString& message : earlyMessages())
        qWarning("%s", qUtf8Printable(message));

    const QString file = arguments.plugin.isEmpty() ? installation.pluginFile() : arguments.plugin;
    endByExit() = {NotAPlugin, "The plug-in " + file + " ended the program."};
    const LoadedPlugin plugin = loadPlugin(file);
    if (!plugin.utility)
        return fail(plugin.outcome);

    const bool isSurvey = !arguments.surveyFolder.isEmpty();
    endByExit() = isSurvey ? Outcome{UtilityUnusable, "The utility ended the program."}
                           : Outcome{NoDisplay, "The display has gone."};
    TestSetWindow window(*plugin.utility, translation, device);
    window.show();
    if (isSurvey)
        return survey(window, device, arguments, termination);
    if (adapter::interfaces().isEmpty())
        window.offerStoredScans(installation.scenarioFolder());
    const int status = QApplication::exec();
    return termination.signalNumber() != 0 ? EndedBySignal + termination.signalNumber() : status;
}

/// The application, with or without the desk's display, in the scale that was asked for or fits. A
/// second one takes the place of the first where the first one finds a larger display: only an
/// application knows its screen, and only a new one takes a scale.
std::unique_ptr<QApplication> createApplication(const Arguments& arguments, char** argv)
{
    static int programOnly = 1; // Qt must not see the options: it has its own "plugin"
    const bool isSurvey = !arguments.surveyFolder.isEmpty();
    int scale = isSurvey ? 1 : qMax(1, arguments.scale);
    useScale(scale);
    auto application = std::make_unique<QApplication>(programOnly, argv);
    if (!isSurvey && arguments.scale == 0)
        scale = fittingScale(QApplication::primaryScreen()->availableSize());
    if (scale > 1 && arguments.scale == 0) {
        application.reset();
        useScale(scale);
        application = std::make_unique<QApplication>(programOnly, argv);
    }
    QApplication::setApplicationName("testset");
    introduceToDesktop();
    CWidgetStyle::applyTo(*application);
    QApplication::setQuitOnLastWindowClosed(!isSurvey);
    return application;
}

} // namespace

int main(int argc, char** argv)
{
    QStringList words;
    for (int word = 0; word < argc; ++word) {
        words << QFile::decodeName(argv[word]);
        if (QFile::encodeName(words.last()) != argv[word])
            return fail({WrongUsage,
                QString("The argument '%1' is not text in the character set of this locale.")
                    .arg(words.last())});
    }
    const Arguments arguments = parseArguments(words);
    if (!arguments.fault.isEmpty())
        return fail({WrongUsage, arguments.fault + " testset --help lists the options."});
    if (arguments.help) {
        const QCoreApplication application(argc, argv);
        return answer(helpText());
    }
    if (arguments.version)
        return answer("testset " TESTSET_VERSION "\n");
    if (arguments.listInterfaces) {
        QString names;
        for (const QString& name : adapter::interfaces())
            names += name + '\n';
        return answer(names);
    }
    if (arguments.listScenarios) {
        const QCoreApplication application(argc, argv);
        return listScenarios(Installation(QCoreApplication::applicationDirPath()).scenarioFolder());
    }
    if (!arguments.surveyFolder.isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen"); // it needs no display
    else if (displayNames().isEmpty())
        return fail(
            {NoDisplay, "There is no display to show a window on; --survey DIR needs none."});

    qInstallMessageHandler(onEarlyMessage);
    const std::unique_ptr<QApplication> application = createApplication(arguments, argv);
    installAccessibility();
    endByExit() = {}; // made before the handler is known, it outlives it
    std::atexit(onExit);
    const int status = run(arguments);
    endByExit() = {};
    return status;
}
