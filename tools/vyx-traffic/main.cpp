// vyx-traffic: plays air traffic scenarios as the sensors of an area would report them.

#include "traffic/command_line.h"
#include "traffic/scenario_reader.h"
#include "traffic/sensor_json.h"
#include "traffic/traffic_run.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <atomic>
#include <cstdio>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr int ExitRunFailed = 1;
constexpr int ExitWrongArguments = 2;

std::atomic<bool> stopRequested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

void requestStop(int)
{
    stopRequested = true;
}

void catchSignals()
{
    struct sigaction action = {};
    action.sa_handler = requestStop;
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
}

// A parent that is gone already leaves us to another process: then there is nothing to wait for.
void endWithParent()
{
    const pid_t parent = ::getppid();
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != parent) {
        stopRequested = true;
    }
}

int fail(int status, const QString &text)
{
    std::fprintf(stderr, "vyx-traffic: %s\n", qUtf8Printable(text));
    return status;
}

int print(const QString &text)
{
    std::fputs(qUtf8Printable(text), stdout);
    return 0;
}

// One line each: the name, and what is to be seen.
QString listOfScenarios()
{
    QString list;
    const QStringList names = ScenarioReader::builtInNames();
    for (const QString &name : names) {
        list += QStringLiteral("%1  %2\n").arg(name, -8).arg(ScenarioReader::description(name));
    }
    return list;
}

int runScenario(const TrafficOptions &options)
{
    ScenarioReader reader;
    const std::optional<Scenario> scenario = reader.read(options.scenario);
    if (!scenario) {
        return fail(ExitWrongArguments, reader.error());
    }
    if (options.action == TrafficOptions::Action::SensorJson) {
        return print(QString::fromUtf8(QJsonDocument(sensorJson(*scenario)).toJson()));
    }
    catchSignals();
    if (options.withParent) {
        endWithParent();
    }
    TrafficRun run(options, *scenario, stopRequested);
    const bool done = run.run();
    return fail(done ? 0 : ExitRunFailed, run.text());
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    TrafficCommandLine commandLine;
    if (!commandLine.parse(QCoreApplication::arguments())) {
        return fail(ExitWrongArguments, commandLine.error());
    }
    switch (commandLine.options().action) {
    case TrafficOptions::Action::Help:
        return print(TrafficCommandLine::helpText());
    case TrafficOptions::Action::Version:
        return print(QStringLiteral("vyx-traffic %1\n").arg(QLatin1String(VYX_VERSION)));
    case TrafficOptions::Action::List:
        return print(listOfScenarios());
    default:
        return runScenario(commandLine.options());
    }
}
