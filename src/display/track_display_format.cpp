#include "display/track_display_format.h"

#include "display/geo_track_display.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLatin1String>

#include <array>

namespace {

constexpr int FormatVersion = 1;
constexpr QLatin1String versionKey("version");
constexpr QLatin1String fontFamiliesKey("labelFontFamilies");
constexpr QLatin1String fontSizeKey("labelFontSize");

using Format = TrackDisplayFormat;

struct Switch {
    const char *key;
    bool Format::*field;
    bool (GeoTrackDisplay::*get)() const;
    void (GeoTrackDisplay::*set)(bool);
};

struct Number {
    const char *key;
    int Format::*field;
    int minimum;
    int maximum;
    int (GeoTrackDisplay::*get)() const;
    void (GeoTrackDisplay::*set)(int);
};

using Display = GeoTrackDisplay;

constexpr std::array Switches{
    Switch{"labelVisible", &Format::labelVisible, &Display::labelVisible, &Display::showLabel},
    Switch{"alertIndicator", &Format::alertIndicatorVisible, &Display::alertIndicatorVisible,
        &Display::showAlertIndicator},
    Switch{"trackNum", &Format::trackNumVisible, &Display::trackNumVisible, &Display::showTrackNum},
    Switch{"callsign", &Format::callsignVisible, &Display::callsignVisible, &Display::showCallsign},
    Switch{"icaoAddr", &Format::icaoAddrVisible, &Display::icaoAddrVisible, &Display::showIcaoAddr},
    Switch{"squawk", &Format::squawkVisible, &Display::squawkVisible, &Display::showSquawk},
    Switch{"level", &Format::levelVisible, &Display::levelVisible, &Display::showLevel},
    Switch{"selectedAltitude", &Format::selectedAltitudeVisible, &Display::selectedAltitudeVisible,
        &Display::showSelectedAltitude},
    Switch{"verticalRate", &Format::verticalRateVisible, &Display::verticalRateVisible, &Display::showVerticalRate},
    Switch{"groundSpeed", &Format::groundSpeedVisible, &Display::groundSpeedVisible, &Display::showGroundSpeed},
    Switch{"heading", &Format::headingVisible, &Display::headingVisible, &Display::showHeading},
    Switch{"background", &Format::backgroundVisible, &Display::backGroundVisible, &Display::showBackground},
    Switch{"targetTypeSymbol", &Format::targetTypeSymbol, &Display::targetTypeSymbol, &Display::setTargetTypeSymbol},
    Switch{"trailVisible", &Format::trailVisible, &Display::trailVisible, &Display::showTrail},
    Switch{"vectorVisible", &Format::vectorVisible, &Display::vectorVisible, &Display::showVector},
    Switch{"vectorTimeMode", &Format::vectorTimeMode, &Display::vectorTimeMode, &Display::setVectorTimeMode},
    Switch{"vectorTicks", &Format::vectorTicksVisible, &Display::vectorTicksVisible, &Display::showVectorTicks},
};

constexpr std::array Numbers{
    Number{"backgroundPadding", &Format::backgroundPadding, 0, Format::MaxBackgroundPadding,
        &Display::backgroundPadding, &Display::setBackgroundPadding},
    Number{"symbolSize", &Format::symbolSize, Format::MinSymbolSize, Format::MaxSymbolSize, &Display::symbolSize,
        &Display::setSymbolSize},
    Number{"trailDots", &Format::trailDots, 1, Format::MaxTrailDots, &Display::trailDots, &Display::setTrailDots},
    Number{"vectorRange", &Format::vectorRange, 1, Format::MaxVectorRange, &Display::vectorRange,
        &Display::setVectorRange},
};

// Which fields a label has, and how long trails and vectors are, is no matter of looks.
constexpr std::array LookKeys{fontFamiliesKey, fontSizeKey, QLatin1String("background"),
    QLatin1String("backgroundPadding"), QLatin1String("symbolSize")};

QJsonObject lookOf(const QJsonObject &object)
{
    QJsonObject look;
    for (const QLatin1String key : LookKeys) {
        if (object.contains(key)) {
            look.insert(key, object.value(key));
        }
    }
    return look;
}

// Only what the operator chooses of a font: that it is to be a fixed-width one stays as the display says.
void readFont(const QJsonObject &object, QFont *font)
{
    const QStringList families = object.value(fontFamiliesKey).toVariant().toStringList();
    if (!families.isEmpty()) {
        font->setFamilies(families);
    }
    const int size = object.value(fontSizeKey).toInt();
    if (size >= Format::MinFontSize && size <= Format::MaxFontSize) {
        font->setPointSize(size);
    }
}

} // namespace

void TrackDisplayFormat::readFrom(const GeoTrackDisplay &display)
{
    for (const Switch &entry : Switches) {
        this->*entry.field = (display.*entry.get)();
    }
    for (const Number &entry : Numbers) {
        this->*entry.field = (display.*entry.get)();
    }
    labelFont = display.labelFont();
}

void TrackDisplayFormat::applyTo(GeoTrackDisplay &display) const
{
    for (const Switch &entry : Switches) {
        (display.*entry.set)(this->*entry.field);
    }
    for (const Number &entry : Numbers) {
        (display.*entry.set)(this->*entry.field);
    }
    display.setLabelFont(labelFont);
}

QJsonObject TrackDisplayFormat::look() const
{
    return lookOf(toJson());
}

void TrackDisplayFormat::takeLook(const QJsonObject &look)
{
    takeJson(lookOf(look));
}

QByteArray TrackDisplayFormat::toBytes() const
{
    return QJsonDocument(toJson()).toJson(QJsonDocument::Compact);
}

bool TrackDisplayFormat::fromBytes(const QByteArray &bytes)
{
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    if (!object.value(versionKey).isDouble()) {
        return false;
    }
    takeJson(object);
    return true;
}

QJsonObject TrackDisplayFormat::toJson() const
{
    QJsonObject object{{versionKey, FormatVersion}, {fontSizeKey, labelFont.pointSize()},
        {fontFamiliesKey, QJsonArray::fromStringList(labelFont.families())}};
    for (const Switch &entry : Switches) {
        object.insert(QLatin1String(entry.key), this->*entry.field);
    }
    for (const Number &entry : Numbers) {
        object.insert(QLatin1String(entry.key), this->*entry.field);
    }
    return object;
}

void TrackDisplayFormat::takeJson(const QJsonObject &object)
{
    for (const Switch &entry : Switches) {
        this->*entry.field = object.value(QLatin1String(entry.key)).toBool(this->*entry.field);
    }
    for (const Number &entry : Numbers) {
        const int number = object.value(QLatin1String(entry.key)).toInt(this->*entry.field);
        if (number >= entry.minimum && number <= entry.maximum) {
            this->*entry.field = number;
        }
    }
    readFont(object, &labelFont);
}
