#include "vyxdisplay/command_line_values.h"

#include "app/app_paths.h"
#include "app/uap_profile.h"

#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

using Input = CommandLine::Input;
using Processor = CommandLine::Processor;
using Sensor = CommandLine::Sensor;
using Encapsulation = korvane::modes::ModeSEncapsulation;

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

// What stands behind a name, and where the name is none of them a line that lists them.
template <typename T>
struct Choice {
    QString name;
    T value;
};

template <typename T>
std::optional<T> chosen(const QList<Choice<T>> &choices, const QString &name, const QString &problem, QString *error)
{
    QStringList names;
    for (const Choice<T> &choice : choices) {
        if (choice.name.compare(name, Qt::CaseInsensitive) == 0) {
            return choice.value;
        }
        names.append(choice.name);
    }
    *error = problem.arg(name, names.join(QStringLiteral(", ")));
    return {};
}

template <typename Format>
std::optional<Format> envelope(const QString &name, QString *error)
{
    const QList<Choice<Format>> formats{{QStringLiteral("raw"), Format::Raw}, {QStringLiteral("hdlc"), Format::Hdlc},
        {QStringLiteral("managair"), Format::ManagAir}};
    return chosen(formats, name, CommandLine::tr("'%1' is not a format (%2)"), error);
}

std::optional<Encapsulation::Format> encapsulation(const QString &name, QString *error)
{
    QList<Choice<Encapsulation::Format>> formats;
    for (const auto format : {Encapsulation::Raw, Encapsulation::Avr, Encapsulation::Beast, Encapsulation::RawRssi}) {
        formats.append({QString::fromStdString(Encapsulation::identifier(format)), format});
    }
    return chosen(formats, name, CommandLine::tr("'%1' is not an encapsulation (%2)"), error);
}

} // namespace

std::optional<Input> CommandLineValues::fileInput(const QString &path, QString *error)
{
    if (path.isEmpty()) {
        *error = CommandLine::tr("a file input needs a path");
        return {};
    }
    Input input;
    input.comm = Config::InputComm::File;
    input.path = path;
    return input;
}

std::optional<Input> CommandLineValues::parsedInput(const QString &text, QString *error)
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

std::optional<Sensor> CommandLineValues::parsedSensor(const QString &text, QString *error)
{
    Sensor sensor;
    const auto type = text.section(QLatin1Char(':'), 0, 0);
    sensor.type = sensorTypeFromString(type);
    if (sensor.type == UnknownSensor) {
        *error = CommandLine::tr("'%1' is not a type of sensor (auto, radar, adsb, mlat, sdps, smr)").arg(type);
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

std::optional<std::chrono::milliseconds> CommandLineValues::parsedSeconds(const QString &text, QString *error)
{
    constexpr double Longest = 1e6; // some eleven days, and well inside a timer's range
    bool isNumber = false;
    const double seconds = text.toDouble(&isNumber);
    if (isNumber && seconds > 0.0 && seconds <= Longest) {
        return std::chrono::milliseconds(qRound64(seconds * 1000.0));
    }
    *error = CommandLine::tr("'%1' is not a number of seconds").arg(text);
    return {};
}

std::optional<QString> CommandLineValues::parsedProfile(const QString &text, QString *error)
{
    if (AppPaths::isProfileName(text)) {
        return text;
    }
    *error = CommandLine::tr("'%1' is not a name for a profile (letters, digits and - _ . only)").arg(text);
    return {};
}

std::optional<QJsonObject> CommandLineValues::parsedParameters(const QString &text, QString *error)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (document.isObject()) {
        return document.object();
    }
    *error = CommandLine::tr("'%1' is not a JSON object").arg(text);
    return {};
}

std::optional<QSize> CommandLineValues::parsedSize(const QString &text, QString *error)
{
    constexpr int Smallest = 240; // a window that is narrower or lower shows nothing of use
    constexpr int Largest = 16384;
    static const QRegularExpression pattern(QStringLiteral("^([0-9]{1,5})[xX]([0-9]{1,5})$"));
    const auto match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto fits = [](int length) { return length >= Smallest && length <= Largest; };
    if (fits(size.width()) && fits(size.height())) {
        return size;
    }
    *error = CommandLine::tr("'%1' is not a size (WIDTHxHEIGHT, %2 to %3 pixels)").arg(text).arg(Smallest).arg(Largest);
    return {};
}

std::optional<QString> CommandLineValues::parsedSpeed(const QString &text, QString *error)
{
    for (const char *name : {"0.5x", "1x", "2x", "4x", "8x", "Max"}) {
        if (text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) {
            return QString::fromLatin1(name);
        }
    }
    *error = CommandLine::tr("'%1' is not a speed (0.5x, 1x, 2x, 4x, 8x, Max)").arg(text);
    return {};
}

std::optional<Processor> CommandLineValues::parsedProcessor(const QString &text, QString *error)
{
    using Type = Config::ProcessorType;
    const QList<Choice<Type>> types{{QStringLiteral("asterix"), Type::Asterix}, {QStringLiteral("modes"), Type::ModeS},
        {QStringLiteral("sirm"), Type::AleniaSirM}};
    const auto type =
        chosen(types, text.section(QLatin1Char(':'), 0, 0), CommandLine::tr("'%1' is not a processor (%2)"), error);
    if (!type) {
        return {};
    }
    Processor processor;
    processor.type = *type;
    if (!text.contains(QLatin1Char(':'))) {
        return processor;
    }
    const QString format = text.section(QLatin1Char(':'), 1);
    switch (*type) {
    case Type::Asterix:
        processor.asterixFormat = envelope<Config::AsterixFormat>(format, error);
        break;
    case Type::ModeS:
        processor.encapsulation = encapsulation(format, error);
        break;
    case Type::AleniaSirM:
        processor.sirMFormat = envelope<Config::AleniaSirMFormat>(format, error);
        break;
    }
    return error->isEmpty() ? std::optional(processor) : std::nullopt;
}

std::optional<int> CommandLineValues::parsedUap(const QString &text, QString *error)
{
    QList<Choice<int>> profiles;
    for (const UapProfile &profile : uapProfiles()) {
        profiles.append({QString::fromLatin1(profile.identifier), static_cast<int>(profiles.size())});
    }
    return chosen(profiles, text, CommandLine::tr("'%1' is not a user application profile (%2)"), error);
}
