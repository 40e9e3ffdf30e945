#pragma once

#include <QByteArray>
#include <QStringList>

class QThread;

/// The world outside the analyser as a test has it. It stands in the place of commands and pauses,
/// so that no test waits, needs the scan tool or wins a race. Commands that make or remove files of
/// the device tree are run; of the others only the trace is left.
namespace world {

/// Forgets everything. The scan tool will write `output` into its file.
void reset(const QByteArray& output = QByteArray());

/// The log since reset(), in order: command lines as they are on the test set, and "pause 1".
QStringList log();

/// Holds the scan tool in the run whose output is read, until it is let go or goes itself.
class Gate {
public:
    Gate();
    ~Gate();
    /// Waits until a scan stands at the gate; false when none comes.
    static bool isReached();
    /// Lets the scan through. From any thread.
    void open();

private:
    bool m_isHolding;
};

/// The thread of the scan that was started last, or null.
QThread* worker();
/// Waits for the end of the scan that was started since the last reset(); false when there is none.
/// Its signals stay queued.
bool waitForThread();
/// The same, and lets its signals arrive.
bool finishScan();

} // namespace world
