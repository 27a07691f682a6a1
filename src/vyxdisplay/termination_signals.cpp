#include "vyxdisplay/termination_signals.h"

#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// A signal handler may do no more than write to a pipe.
int pipeEnds[2] = {-1, -1};
struct sigaction previousInterrupt;
struct sigaction previousTerminate;

void writeToPipe(int)
{
    const char octet = 0;
    static_cast<void>(!write(pipeEnds[1], &octet, 1));
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    m_notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &TerminationSignals::receive);
    struct sigaction action = {};
    action.sa_handler = writeToPipe;
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, &previousInterrupt);
    sigaction(SIGTERM, &action, &previousTerminate);
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier) {
        return;
    }
    sigaction(SIGINT, &previousInterrupt, nullptr);
    sigaction(SIGTERM, &previousTerminate, nullptr);
    delete m_notifier;
    close(pipeEnds[0]);
    close(pipeEnds[1]);
}

void TerminationSignals::receive()
{
    char octets[16];
    while (read(pipeEnds[0], octets, sizeof octets) > 0) { }
    Q_EMIT requested();
}

#else

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent) { }
TerminationSignals::~TerminationSignals() = default;
void TerminationSignals::receive() { }

#endif
