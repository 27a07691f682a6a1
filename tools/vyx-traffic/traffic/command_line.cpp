#include "traffic/command_line.h"

#include <QHash>
#include <QSet>

namespace {

using Action = TrafficOptions::Action;

const QSet<QString> OptionsWithValue{QStringLiteral("--to"), QStringLiteral("--seed"), QStringLiteral("--duration"),
    QStringLiteral("--speed"), QStringLiteral("--pcap"), QStringLiteral("--ast"), QStringLiteral("--category"),
    QStringLiteral("--start-time"), QStringLiteral("--aircraft"), QStringLiteral("--rate")};

const QHash<QString, Action> OptionsOfAction{{QStringLiteral("--list"), Action::List},
    {QStringLiteral("--sensor-json"), Action::SensorJson}, {QStringLiteral("--help"), Action::Help},
    {QStringLiteral("-h"), Action::Help}, {QStringLiteral("--version"), Action::Version}};

} // namespace

QString TrafficCommandLine::helpText()
{
    return tr("Usage: vyx-traffic [OPTION]... [SCENARIO.json|NAME]\n"
              "Plays an air traffic scenario (\"demo\" unless another is named) and sends or records what its "
              "sources report.\n"
              "\n"
              "  --to udp:HOST:PORT              send datagrams there\n"
              "  --to udp:GROUP:PORT@INTERFACE   send them to a multicast group\n"
              "  --pcap FILE.pcap                write a network capture\n"
              "  --ast FILE.ast                  write the data blocks back to back\n"
              "  --seed N                        another seed than the scenario's\n"
              "  --start-time TIME               another start time, such as 2025-06-01T08:00:00Z\n"
              "  --wall-clock                    the scenario starts now\n"
              "  --duration S                    end after S seconds of the scenario\n"
              "  --speed F                       F times real time\n"
              "  --fast                          as fast as possible; always so without --to\n"
              "  --category 048|001              target reports of this category from all radars\n"
              "  --with-parent                   end when the program that started this one ends\n"
              "  --aircraft N --rate R           load: R datagrams a second, each with one plot of one of N aircraft\n"
              "  --sensor-json                   print the scenario's sensor as an object of a sensor file\n"
              "  --list                          print the built-in scenarios\n"
              "  --help, --version               print this, or the version\n");
}

bool TrafficCommandLine::parse(const QStringList &arguments)
{
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const qsizetype equals = arguments[i].indexOf(QLatin1Char('='));
        const bool inOne = arguments[i].startsWith(QLatin1String("--")) && equals > 0;
        const QString option = inOne ? arguments[i].left(equals) : arguments[i];
        if (!OptionsWithValue.contains(option)) {
            if (!apply(arguments[i], QString())) {
                return false;
            }
        } else if (!inOne && i + 1 >= arguments.size()) {
            return fail(tr("%1 needs a value").arg(option));
        } else if (!apply(option, inOne ? arguments[i].mid(equals + 1) : arguments[++i])) {
            return false;
        }
    }
    return checkTogether();
}

bool TrafficCommandLine::apply(const QString &option, const QString &value)
{
    if (OptionsOfAction.contains(option)) {
        m_options.action = OptionsOfAction.value(option);
    } else if (option == QLatin1String("--with-parent")) {
        m_options.withParent = true;
    } else if (!option.startsWith(QLatin1Char('-'))) {
        if (m_scenarioGiven) {
            return fail(tr("more than one scenario: %1").arg(option));
        }
        m_scenarioGiven = true;
        m_options.scenario = option;
    } else {
        return applyOutput(option, value);
    }
    return true;
}

bool TrafficCommandLine::applyOutput(const QString &option, const QString &value)
{
    if (option == QLatin1String("--to")) {
        m_options.destination = UdpDestination::parse(value, m_error);
        return m_options.destination.has_value();
    }
    if (option == QLatin1String("--category")) {
        if (value != QLatin1String("048") && value != QLatin1String("001")) {
            return fail(tr("--category must be 048 or 001"));
        }
        m_options.category = value == QLatin1String("001") ? ScenarioRadar::TargetCategory::Cat001
                                                           : ScenarioRadar::TargetCategory::Cat048;
    } else if (option == QLatin1String("--pcap")) {
        m_options.pcapFile = value;
    } else if (option == QLatin1String("--ast")) {
        m_options.blockFile = value;
    } else {
        return applyTime(option, value);
    }
    return true;
}

bool TrafficCommandLine::applyTime(const QString &option, const QString &value)
{
    if (option == QLatin1String("--start-time")) {
        m_options.startTime = QDateTime::fromString(value, Qt::ISODate).toUTC();
        return m_options.startTime->isValid() || fail(tr("--start-time must be a time like 2025-06-01T08:00:00Z"));
    }
    if (option == QLatin1String("--wall-clock")) {
        m_options.wallClock = true;
    } else if (option == QLatin1String("--fast")) {
        m_options.speed = 0;
    } else {
        return applyNumber(option, value);
    }
    return true;
}

bool TrafficCommandLine::applyNumber(const QString &option, const QString &value)
{
    bool ok = false;
    if (option == QLatin1String("--seed")) {
        m_options.seed = value.toULongLong(&ok);
        return ok || fail(tr("--seed must be a whole number from 0 on"));
    }
    const double number = value.toDouble(&ok);
    if (OptionsWithValue.contains(option) && (!ok || !(number > 0) || number > 1e9)) {
        return fail(tr("%1 must be a number above 0").arg(option));
    }
    if (option == QLatin1String("--duration")) {
        m_options.duration = number;
    } else if (option == QLatin1String("--speed")) {
        m_options.speed = number;
        m_speedGiven = true;
    } else if (option == QLatin1String("--rate")) {
        m_options.rate = number;
    } else if (option == QLatin1String("--aircraft")) {
        m_options.aircraft = value.toInt(&ok);
        return ok || fail(tr("--aircraft must be a whole number"));
    } else {
        return fail(tr("unknown option %1; --help lists them").arg(option));
    }
    return true;
}

bool TrafficCommandLine::checkTogether()
{
    if (m_options.action != Action::Run) {
        return true;
    }
    if (m_speedGiven && m_options.speed == 0) {
        return fail(tr("--speed and --fast exclude each other"));
    }
    if (m_options.wallClock && m_options.startTime) {
        return fail(tr("--wall-clock and --start-time exclude each other"));
    }
    if ((m_options.aircraft > 0) != (m_options.rate > 0)) {
        return fail(tr("--aircraft and --rate go together"));
    }
    if (m_options.aircraft > 0) {
        m_options.action = Action::Load;
    }
    if (m_options.action == Action::Load && (!m_options.destination || !m_options.pcapFile.isEmpty())) {
        return fail(tr("--aircraft and --rate need --to, and write no file"));
    }
    if (!m_options.destination && m_options.pcapFile.isEmpty() && m_options.blockFile.isEmpty()) {
        return fail(tr("nothing to do: give --to, --pcap or --ast"));
    }
    return true;
}

bool TrafficCommandLine::fail(const QString &error)
{
    m_error = error;
    return false;
}
