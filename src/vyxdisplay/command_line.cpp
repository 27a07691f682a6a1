#include "vyxdisplay/command_line.h"

#include "app/app_identity.h"

#include <QGuiApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

using Input = CommandLine::Input;
using Sensor = CommandLine::Sensor;

std::optional<quint16> portOf(const QString &text)
{
    bool isNumber = false;
    const auto port = text.toUShort(&isNumber);
    return isNumber && port > 0 ? std::optional(port) : std::nullopt;
}

// PORT or GROUP:PORT[@INTERFACE]
std::optional<Input> udpInput(const QString &text, QString *error)
{
    const auto at = text.lastIndexOf(QLatin1Char('@'));
    const auto address = at < 0 ? text : text.left(at);
    const auto colon = address.lastIndexOf(QLatin1Char(':'));
    const auto port = portOf(address.mid(colon + 1));
    if (!port) {
        *error = CommandLine::tr("'%1' is not a UDP port (1 to 65535)").arg(address.mid(colon + 1));
        return {};
    }
    Input input;
    input.port = *port;
    if (colon >= 0 && (!input.group.setAddress(address.left(colon)) || !input.group.isMulticast())) {
        *error = CommandLine::tr("'%1' is not a multicast group").arg(address.left(colon));
        return {};
    }
    if (at >= 0) {
        input.interface = QNetworkInterface::interfaceFromName(text.mid(at + 1));
    }
    if (at >= 0 && (colon < 0 || !input.interface.isValid())) {
        *error = colon < 0 ? CommandLine::tr("an interface needs a multicast group")
                           : CommandLine::tr("there is no network interface '%1'").arg(text.mid(at + 1));
        return {};
    }
    return input;
}

// DEVICE[:BAUD]. Names of devices may hold colons themselves; a baud rate is digits only.
std::optional<Input> serialInput(const QString &text, QString *error)
{
    static const QRegularExpression pattern(QStringLiteral("^(.+?)(?::([0-9]+))?$"));
    const auto match = pattern.match(text);
    Input input;
    input.comm = Config::InputComm::Serial;
    input.path = match.captured(1);
    const auto baudRate = match.captured(2);
    input.baudRate = baudRate.toInt();
    if (!match.hasMatch()) {
        *error = CommandLine::tr("a serial input needs a device");
    } else if (!baudRate.isEmpty() && input.baudRate <= 0) {
        *error = CommandLine::tr("'%1' is not a baud rate").arg(baudRate);
    } else {
        return input;
    }
    return {};
}

std::optional<Input> fileInput(const QString &text, QString *error)
{
    if (text.isEmpty()) {
        *error = CommandLine::tr("a file input needs a path");
        return {};
    }
    Input input;
    input.comm = Config::InputComm::File;
    input.path = text;
    return input;
}

std::optional<Input> parsedInput(const QString &text, QString *error)
{
    const auto colon = text.indexOf(QLatin1Char(':'));
    const auto kind = colon < 0 ? text : text.left(colon);
    const auto rest = colon < 0 ? QString() : text.mid(colon + 1);
    if (kind == QLatin1String("udp")) {
        return udpInput(rest, error);
    }
    if (kind == QLatin1String("serial")) {
        return serialInput(rest, error);
    }
    if (kind == QLatin1String("file")) {
        return fileInput(rest, error);
    }
    *error = CommandLine::tr("'%1' is not a kind of input (udp, serial, file)").arg(kind);
    return {};
}

// Decimal degrees with a comma between them, or degrees, minutes and seconds as 395427N1162317E.
GeoCoordinate parsedLocation(const QString &text)
{
    const auto parts = text.split(QLatin1Char(','));
    if (parts.size() != 2) {
        return GeoCoordinate::fromATCString(text.toUpper());
    }
    bool isLatitude = false;
    bool isLongitude = false;
    const GeoCoordinate location(parts.at(0).toDouble(&isLatitude), parts.at(1).toDouble(&isLongitude));
    if (isLatitude && isLongitude) {
        return location;
    }
    return GeoCoordinate::fromATCString(QString(text).remove(QLatin1Char(',')).toUpper());
}

// TYPE:LOCATION[:NAME]
std::optional<Sensor> parsedSensor(const QString &text, QString *error)
{
    Sensor sensor;
    const auto type = text.section(QLatin1Char(':'), 0, 0);
    sensor.type = sensorTypeFromString(type);
    if (sensor.type == UnknownSensor) {
        *error = CommandLine::tr("'%1' is not a type of sensor (radar, adsb, mlat, sdps, smr)").arg(type);
        return {};
    }
    const auto location = text.section(QLatin1Char(':'), 1, 1);
    sensor.location = parsedLocation(location);
    if (!sensor.location.isValid()) {
        *error = CommandLine::tr("'%1' is not a location (LATITUDE,LONGITUDE in degrees)").arg(location);
        return {};
    }
    sensor.name = text.section(QLatin1Char(':'), 2);
    if (sensor.name.isEmpty()) {
        sensor.name = sensorTypeFullName(sensor.type);
    }
    return sensor;
}

std::optional<std::chrono::milliseconds> parsedSeconds(const QString &text, QString *error)
{
    constexpr double longest = 1e6; // some eleven days, and well inside a timer's range
    bool isNumber = false;
    const double seconds = text.toDouble(&isNumber);
    if (isNumber && seconds > 0.0 && seconds <= longest) {
        return std::chrono::milliseconds(qRound64(seconds * 1000.0));
    }
    *error = CommandLine::tr("'%1' is not a number of seconds").arg(text);
    return {};
}

std::optional<QString> parsedSpeed(const QString &text, QString *error)
{
    for (const char *name : {"0.5x", "1x", "2x", "4x", "8x", "Max"}) {
        if (text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) {
            return QString::fromLatin1(name);
        }
    }
    *error = CommandLine::tr("'%1' is not a speed (0.5x, 1x, 2x, 4x, 8x, Max)").arg(text);
    return {};
}

void applyInput(const Input &input, Config &config)
{
    config.inputComm = input.comm;
    switch (input.comm) {
    case Config::InputComm::Udp:
        config.inputUdpMulticast1 = !input.group.isNull();
        config.inputUdpPort1 = input.port;
        config.inputEnable2 = false;
        if (!input.group.isNull()) {
            config.inputUdpMcastAddress1 = input.group;
            config.inputUdpMcastLanInterface1 = input.interface;
        }
        break;
    case Config::InputComm::Serial:
        config.inputSerialDevice = input.path;
        if (input.baudRate > 0) {
            config.inputSerialBaudRate = input.baudRate;
        }
        break;
    case Config::InputComm::File:
        config.inputFileName.setFile(input.path);
        break;
    }
}

// Options that the toolkit reads and removes by itself, written with one dash or two.
bool isToolkitSwitch(const QString &name)
{
    static constexpr std::array names{"reverse", "widgetcount"};
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isToolkitOption(const QString &name)
{
    static constexpr std::array names{"platform", "platformpluginpath", "platformtheme", "plugin", "style",
        "stylesheet", "qwindowgeometry", "qwindowicon", "qwindowtitle", "display", "session"};
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Walks over the arguments. An option's value is the next argument or follows an equals sign.
class Parser {
public:
    explicit Parser(const QStringList &arguments) : m_arguments(arguments.mid(1)) { }

    // The first thing that is wrong, or empty.
    QString run()
    {
        while (m_error.isEmpty() && !m_arguments.isEmpty()) {
            takeOption(m_arguments.takeFirst());
        }
        if (m_error.isEmpty() && m_result.demo && (m_result.input || m_result.sensor)) {
            m_error = CommandLine::tr("--demo brings an input and a sensor of its own");
        }
        return m_error;
    }

    const CommandLine &result() const { return m_result; }

private:
    void takeOption(const QString &argument)
    {
        const auto equals = argument.indexOf(QLatin1Char('='));
        m_option = equals < 0 ? argument : argument.left(equals);
        m_inlineValue = equals < 0 ? std::nullopt : std::optional(argument.mid(equals + 1));
        const auto name = m_option.mid(m_option.startsWith(QLatin1String("--")) ? 2 : 1);
        if (!argument.startsWith(QLatin1Char('-')) && !argument.isEmpty() && !m_result.input) {
            takeRecording(argument);
        } else if (name.isEmpty() || !argument.startsWith(QLatin1Char('-'))) {
            m_error = CommandLine::tr("unexpected argument '%1'").arg(argument);
        } else if (isToolkitOption(name)) {
            value();
        } else if (!isToolkitSwitch(name) && !takeSwitch() && !takeOptionWithValue()) {
            m_error = CommandLine::tr("unknown option '%1'").arg(m_option);
        }
    }

    // A recording named by itself is played at once.
    void takeRecording(const QString &path)
    {
        m_result.input = fileInput(path, &m_error);
        m_result.start = true;
    }

    bool takeSwitch()
    {
        if (m_option == QLatin1String("--help") || m_option == QLatin1String("-h")) {
            m_result.help = true;
        } else if (m_option == QLatin1String("--version") || m_option == QLatin1String("-v")) {
            m_result.version = true;
        } else if (m_option == QLatin1String("--start")) {
            m_result.start = true;
        } else if (m_option == QLatin1String("--exit-at-end")) {
            m_result.exitAtEnd = true;
        } else {
            return false;
        }
        if (m_inlineValue) {
            m_error = CommandLine::tr("%1 takes no value").arg(m_option);
        }
        return true;
    }

    bool takeOptionWithValue()
    {
        if (m_option == QLatin1String("--demo")) {
            m_result.demo = optionalValue();
        } else if (m_option == QLatin1String("--input")) {
            m_result.input = parsedValue(parsedInput);
        } else if (m_option == QLatin1String("--sensor")) {
            m_result.sensor = parsedValue(parsedSensor);
        } else if (m_option == QLatin1String("--exit-after")) {
            m_result.exitAfter = parsedValue(parsedSeconds);
        } else if (m_option == QLatin1String("--replay-speed")) {
            m_result.replaySpeed = parsedValue(parsedSpeed).value_or(QString());
        } else if (m_option == QLatin1String("--screenshot")) {
            m_result.screenshot = value();
        } else if (m_option == QLatin1String("--snapshot")) {
            m_result.snapshot = value();
        } else {
            return false;
        }
        return true;
    }

    QString value()
    {
        const auto text = optionalValue();
        if (text.isEmpty()) {
            m_error = CommandLine::tr("%1 needs a value").arg(m_option);
        }
        return text;
    }

    // Empty when none follows: another option is no value.
    QString optionalValue()
    {
        if (m_inlineValue) {
            return *m_inlineValue;
        }
        const bool follows = !m_arguments.isEmpty() && !m_arguments.constFirst().startsWith(QLatin1Char('-'));
        return follows ? m_arguments.takeFirst() : QString();
    }

    template <typename Value>
    std::optional<Value> parsedValue(std::optional<Value> (*parse)(const QString &, QString *))
    {
        const auto text = value();
        if (!m_error.isEmpty()) {
            return {};
        }
        const auto parsed = parse(text, &m_error);
        if (!parsed) {
            m_error.prepend(m_option + QStringLiteral(": "));
        }
        return parsed;
    }

    QStringList m_arguments; // those not yet read
    QString m_option; // the one being read
    std::optional<QString> m_inlineValue;
    CommandLine m_result;
    QString m_error;
};

} // namespace

std::optional<CommandLine> CommandLine::parse(const QStringList &arguments, QString *error)
{
    Parser parser(arguments);
    *error = parser.run();
    return error->isEmpty() ? std::optional(parser.result()) : std::nullopt;
}

QString CommandLine::helpText()
{
    return tr("Usage: vyxdisplay [options] [RECORDING]\n"
              "Air-traffic surveillance display.\n"
              "\n"
              "  --demo [SCENARIO]     show simulated traffic, with settings of its own;\n"
              "                        SCENARIO is a file or one of those that --demo list\n"
              "                        prints\n"
              "  --input INPUT         in place of the configured input, for this run:\n"
              "                          udp:PORT\n"
              "                          udp:GROUP:PORT[@INTERFACE]\n"
              "                          serial:DEVICE[:BAUD]\n"
              "                          file:PATH\n"
              "  --sensor TYPE:LAT,LON[:NAME]\n"
              "                        in place of the configured sensor, for this run;\n"
              "                        TYPE is radar, adsb, mlat, sdps or smr, the location\n"
              "                        decimal degrees or 395427N1162317E\n"
              "  RECORDING             play that file, as --input file:RECORDING --start\n"
              "  --replay-speed SPEED  of recordings: 0.5x, 1x, 2x, 4x, 8x or Max\n"
              "  --start               open the input at once\n"
              "  --exit-at-end         exit when the input has ended, as recordings do\n"
              "  --exit-after SECONDS  exit after that time\n"
              "  --screenshot FILE     at exit, write the window as a PNG picture\n"
              "  --snapshot FILE       at exit, write the newest tracks and alerts as JSON\n"
              "  --help                show this text\n"
              "  --version             show the version\n");
}

QString CommandLine::versionText()
{
    return tr("%1 %2 (%3)\n")
        .arg(QGuiApplication::applicationDisplayName(), QCoreApplication::applicationVersion(), buildRevision());
}

void CommandLine::applyTo(Config &config) const
{
    if (input) {
        applyInput(*input, config);
    }
    if (sensor) {
        config.sensorType = sensor->type;
        config.sensorLocation = sensor->location;
        config.sensorName = sensor->name;
    }
}
