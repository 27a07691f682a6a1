#pragma once

#include <QString>

#include <array>

// The kinds of surveillance source, their identifiers in files and their names on screen.
enum SensorType : unsigned int {
    UnknownSensor = 0,
    RadarSensor = 1,
    AdsbSensor = 2,
    MlatSensor = 3,
    SdpsSensor = 4,
    SmrSensor = 5,
};

// The type for a number, UnknownSensor outside 1 to 5.
constexpr SensorType sensorType(unsigned int value)
{
    return value <= SmrSensor ? static_cast<SensorType>(value) : UnknownSensor;
}

// The identifier under which files know the type: "radar", "adsb", ...; "nil" for what is none of them.
inline QString sensorTypeToString(SensorType type)
{
    static constexpr std::array Texts{"nil", "radar", "adsb", "mlat", "sdps", "smr"};
    return QString::fromLatin1(Texts.at(sensorType(type)));
}

// The name shown to the operator: "Radar", "ADS-B", ...; "Unknown" for what is none of them.
inline QString sensorTypeFullName(SensorType type)
{
    static constexpr std::array Texts{"Unknown", "Radar", "ADS-B", "MLAT", "SDPS", "SMR"};
    return QString::fromLatin1(Texts.at(sensorType(type)));
}

// Exact, case-sensitive; "wam" is multilateration, "atcas" and "atm" are SDPS; any other text gives UnknownSensor.
inline SensorType sensorTypeFromString(const QString &text)
{
    struct Entry {
        const char *text;
        SensorType type;
    };
    static constexpr std::array Entries{Entry{"radar", RadarSensor}, Entry{"adsb", AdsbSensor},
        Entry{"mlat", MlatSensor}, Entry{"wam", MlatSensor}, Entry{"sdps", SdpsSensor}, Entry{"atcas", SdpsSensor},
        Entry{"atm", SdpsSensor}, Entry{"smr", SmrSensor}};
    for (const Entry &entry : Entries) {
        if (text == QLatin1String(entry.text)) {
            return entry.type;
        }
    }
    return UnknownSensor;
}
