#include "exitstatus.h"

namespace testset {

QList<StatusMeaning> statusMeanings()
{
    return {
        {Success, "the program was used and closed, or the survey's scan finished"},
        {WrongUsage, "an unknown option or a bad value"},
        {PluginMissing, "the plug-in file is missing or cannot be read"},
        {NotAPlugin, "the file cannot be loaded or lacks a plug-in's entry points"},
        {WrongRecord, "the plug-in is made for another Qt than the test set's"},
        {WrongInterface, "a plug-in, but not a utility"},
        {UnknownScenario, "neither the name of a scenario nor a file that can be replayed"},
        {NoDisplay, "a window was asked for where there is no display"},
        {UtilityUnusable, "the utility did not start or lacks the controls of a survey"},
        {FolderNotWritable, "the survey's folder or a picture in it cannot be written"},
        {NoAdapter, "no adapter: the utility answered Scan with a message"},
        {NoResults, "the scan found no access point"},
        {ScanFailed, "the scan failed"},
        {ScanWithoutEnd, "the scan did not end within its time"},
        {ReportNotSaved, "the report or one of its pictures was not saved"},
        {DeviceFolderUnusable, "the files of a test set cannot be laid out in the device folder"},
        {DeviceFolderInUse, "another test set uses the device folder"},
        {ScanNotPossible, "the scan tool cannot be started or its output not be written"},
        {OutputLost, "the program's own output cannot be written"},
        {EndedBySignal, "and a signal's number: ended by that signal"},
    };
}

} // namespace testset
