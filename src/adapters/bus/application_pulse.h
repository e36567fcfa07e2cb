#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "contract/application_proxy.h"

#include <functional>

namespace bus {

// Asks the desk something every second, from its making on, and tells when it hasn't answered for five, and when
// it answers again. An open dialog doesn't keep the desk from answering.
class Pulse : public QObject {
    Q_OBJECT

public:
    // Calls are made from the event loop.
    Pulse(ApplicationProxy& desk, std::function<void()> falls_silent, std::function<void()> answers);
    ~Pulse() override; // says that it answers where it was silent
    Pulse(const Pulse&) = delete;
    Pulse& operator=(const Pulse&) = delete;

private:
    void beat();
    void end_silence();

    ApplicationProxy& desk_;
    std::function<void()> falls_silent_, answers_;
    QTimer timer_;
    QElapsedTimer since_asked_; // valid while an answer is owed
    bool is_silent_ = false;
};

} // namespace bus
