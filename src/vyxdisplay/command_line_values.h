#pragma once

#include "vyxdisplay/command_line.h"

// The values of options. Where one is wrong nothing is returned, and error says so in a line that lists what is
// possible.
namespace CommandLineValues {

// udp:PORT, udp:GROUP:PORT[@INTERFACE], serial:DEVICE[:BAUD] or file:PATH
std::optional<CommandLine::Input> parsedInput(const QString &text, QString *error);
std::optional<CommandLine::Input> fileInput(const QString &path, QString *error);
// TYPE:LOCATION[:NAME]
std::optional<CommandLine::Sensor> parsedSensor(const QString &text, QString *error);
// TYPE[:FORMAT]
std::optional<CommandLine::Processor> parsedProcessor(const QString &text, QString *error);
// The number under which settings know the profile.
std::optional<int> parsedUap(const QString &text, QString *error);
std::optional<std::chrono::milliseconds> parsedSeconds(const QString &text, QString *error);
// A name for a profile.
std::optional<QString> parsedProfile(const QString &text, QString *error);
// A JSON object.
std::optional<QJsonObject> parsedParameters(const QString &text, QString *error);
// WIDTHxHEIGHT
std::optional<QSize> parsedSize(const QString &text, QString *error);
// The name as menus have it.
std::optional<QString> parsedSpeed(const QString &text, QString *error);

} // namespace CommandLineValues
