#pragma once

#include <QObject>

namespace testset {

/// Lets SIGINT, SIGTERM and SIGHUP end the program in order, at any moment: the application's event
/// loops return, those of modal windows too, so that windows close and commands are ended. One
/// object, made in the GUI thread after the application object and before any thread is started.
/// A signal that the program was started with as ignored stays so.
class Termination : public QObject {
public:
    Termination();

    /// The signal that came; 0 before it.
    int signalNumber() const;

private:
    void onSignal();

    int m_signal = 0;
};

} // namespace testset
