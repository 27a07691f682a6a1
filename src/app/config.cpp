#include "app/config.h"

#include "app/app_paths.h"
#include "app/setting.h"
#include "app/weather_color_scheme.h"

#include <QSettings>
#include <QTimeZone>

QString Config::inputMethodName(InputComm comm)
{
    switch (comm) {
    case InputComm::Udp:
        return tr("UDP");
    case InputComm::Serial:
        return tr("Async Serial");
    case InputComm::File:
        return tr("Recording File");
    }
    return tr("Unknown Input Method"); // a number read from a file
}

QString Config::processorName(ProcessorType type)
{
    switch (type) {
    case ProcessorType::Asterix:
        return tr("ASTERIX Processor");
    case ProcessorType::ModeS:
        return tr("1090ES ADS-B Processor");
    case ProcessorType::AleniaSirM:
        return tr("Alenia SIR-M Radar Processor");
    }
    return tr("Unknown Processor");
}

QString Config::asterixFormatName(AsterixFormat format)
{
    switch (format) {
    case AsterixFormat::Raw:
        return tr("Raw ASTERIX Datablock(s)");
    case AsterixFormat::Hdlc:
        return tr("HDLC Frame");
    case AsterixFormat::ManagAir:
        return tr("ManagAir Message");
    }
    return tr("Unknown Format");
}

QString Config::aleniaSirMFormatName(AleniaSirMFormat format)
{
    switch (format) {
    case AleniaSirMFormat::Raw:
        return tr("Raw Radar Data");
    case AleniaSirMFormat::Hdlc:
        return tr("HDLC Frame");
    case AleniaSirMFormat::ManagAir:
        return tr("ManagAir Message");
    }
    return tr("Unknown Format");
}

void Config::reset()
{
    *this = Config();
}

void Config::save(const QString &fileName) const
{
    trySave(fileName);
}

bool Config::trySave(const QString &fileName) const
{
    QSettings file(fileName, QSettings::IniFormat);
    for (const Setting &setting : Setting::all()) {
        setting.save(file, *this);
    }
    file.sync();
    return file.status() == QSettings::NoError;
}

void Config::load(const QString &fileName)
{
    const QSettings file(fileName, QSettings::IniFormat);
    for (const Setting &setting : Setting::all()) {
        setting.load(file, *this);
    }
}

SettingGroups Config::changedGroups(const Config &a, const Config &b)
{
    SettingGroups changed;
    for (const Setting &setting : Setting::all()) {
        if (!setting.same(a, b)) {
            changed |= setting.groups();
        }
    }
    return changed;
}

QString Config::defaultTimeZoneName()
{
    const auto id = QTimeZone::systemTimeZoneId();
    return id.isEmpty() ? QStringLiteral("LCL") : QString::fromUtf8(id);
}

QString Config::defaultDirectory(const QString &suffix)
{
    return AppPaths::storePath(AppPaths::appDataDir() + suffix);
}

QList<QColor> Config::defaultWeatherColors()
{
    QList<QColor> colors = WeatherColorScheme::defaultScheme().colors();
    colors.resize(WeatherColorScheme::Levels);
    return colors;
}
