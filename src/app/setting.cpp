#include "app/setting.h"

#include "app/setting_codec.h"

#include <QCoreApplication>
#include <QSettings>

#include <algorithm>
#include <array>

namespace {

using Group = SettingGroup;
using Unit = Setting::Unit;
using WholeSeconds = CoordinateCodec<GeoCoordinate::NormalPrecision>;
using Hundredths = CoordinateCodec<GeoCoordinate::HighPrecision>;

template <typename T>
T typeOf(T Config::*member);
template <auto Member>
using MemberType = decltype(typeOf(Member));

template <typename T>
bool sameValue(const T &a, const T &b)
{
    return a == b;
}

// As named: whether two names lead to one file is for the disk to say, which is not asked here.
bool sameValue(const QFileInfo &a, const QFileInfo &b)
{
    return a.filePath() == b.filePath();
}

template <auto Member, typename Codec = SettingCodec<MemberType<Member>>>
struct Column {
    static void save(QVariantMap &values, const QString &key, const Config &config)
    {
        values.insert(key, Codec::encoded(config.*Member));
    }
    static void load(const QVariantMap &values, const QString &key, Config &config)
    {
        if (values.contains(key)) {
            config.*Member = Codec::decoded(values.value(key));
        }
    }
    static bool same(const Config &a, const Config &b) { return sameValue(a.*Member, b.*Member); }
    static void copy(const Config &from, Config &to) { to.*Member = from.*Member; }
    static const void *address(const Config &config) { return &(config.*Member); }
};

// A key each level of intensity. How many there are is for the record to say, not for the file.
struct WeatherColors : Column<&Config::mapWeatherColor> {
    static void save(QVariantMap &values, const QString &key, const Config &config)
    {
        for (int level = 0; level < config.mapWeatherColor.size(); ++level) {
            values.insert(key.arg(level), OpaqueColorCodec::encoded(config.mapWeatherColor.at(level)));
        }
    }
    static void load(const QVariantMap &values, const QString &key, Config &config)
    {
        for (int level = 0; level < config.mapWeatherColor.size(); ++level) {
            if (values.contains(key.arg(level))) {
                config.mapWeatherColor[level] = OpaqueColorCodec::decoded(values.value(key.arg(level)));
            }
        }
    }
};

template <typename Column>
constexpr Setting row(const char *key, SettingGroups groups)
{
    return {key, groups, {Column::save, Column::load, Column::same, Column::copy, Column::address}};
}

// Key and member are one name.
#define SETTING(name, groups, ...) row<Column<&Config::name __VA_OPT__(, ) __VA_ARGS__>>(#name, groups)

constexpr std::array Table{
    SETTING(displayCenterCoordinate, Group::PlanView, WholeSeconds),
    SETTING(displayLocalTimeZoneName, Group::General),
    SETTING(displayTheme, Group::General).ofThemes(),
    SETTING(displayStyle, Group::General).ofThemes(),
    SETTING(displayLanguage, Group::General),
    SETTING(displayToolbarText, Group::General),
    SETTING(displayFontScale, Group::General).within(100, 200, Unit::Percent),
    SETTING(settingsLock, Group::General),
    SETTING(logFileSize, Group::General).within(0, 1024, Unit::Mebibytes),
    SETTING(logFileCount, Group::General).within(1, 100),
    SETTING(inputAutoStart, Group::General),
    SETTING(inputComm, Group::Input),
    SETTING(inputUdpMulticast1, Group::Input),
    SETTING(inputUdpMcastLanInterface1, Group::Input),
    SETTING(inputUdpMcastAddress1, Group::Input),
    SETTING(inputUdpPort1, Group::Input).within(1, 65535),
    SETTING(inputEnable2, Group::Input),
    SETTING(inputUdpMulticast2, Group::Input),
    SETTING(inputUdpMcastLanInterface2, Group::Input),
    SETTING(inputUdpMcastAddress2, Group::Input),
    SETTING(inputUdpPort2, Group::Input).within(1, 65535),
    SETTING(inputSerialDevice, Group::Input),
    SETTING(inputSerialBaudRate, Group::Input).within(1, 100e6),
    SETTING(inputSerialDataBits, Group::Input),
    SETTING(inputSerialParity, Group::Input),
    SETTING(inputSerialStopBits, Group::Input),
    SETTING(inputFileName, Group::Input),
    SETTING(inputFileAutoRewind, Group::Replay),
    SETTING(processorType, Group::Processor),
    SETTING(processorAsterixFormat, Group::Processor),
    SETTING(processorAsterixUap, Group::Processor),
    SETTING(processorAsterixIgnoreWgs84Coordinates, Group::Processor),
    SETTING(processorAsterixIgnoreCartesianCoordinates, Group::Processor),
    SETTING(processorAsterixCorrectLongitudeWrap, Group::Processor),
    SETTING(processorAsterixVerifySacSic, Group::Processor),
    SETTING(processorModeSEncapsulation, Group::Processor),
    SETTING(processorModeSIgnoreTimeStamp, Group::Processor),
    SETTING(processorModeSBaroAltituteChecking, Group::Processor),
    SETTING(processorModeSBaroAltituteCheckingTime, Group::Processor).within(1, 600, Unit::Seconds),
    SETTING(processorModeSBaroAltituteMaxChange, Group::Processor).within(1, 10000, Unit::Feet),
    SETTING(processorModeSNoUpdatedTargetDeletionTime, Group::Processor).within(1, 3600, Unit::Seconds),
    SETTING(processorAleniaSirMFormat, Group::Processor),
    SETTING(sensorType, Group::Sensor),
    SETTING(sensorName, Group::Sensor),
    SETTING(sensorSac, Group::Sensor).within(0, 255),
    SETTING(sensorSic, Group::Sensor).within(0, 255),
    SETTING(sensorLocation, Group::Sensor, Hundredths),
    SETTING(sensorRadarAntennaAltitude, Group::Sensor).within(-1000, 100000, Unit::Metres),
    SETTING(sensorRadarRotationPeriod, Group::Sensor).within(0, 3600, Unit::Seconds),
    SETTING(sensorRadarIsPrimary, Group::Sensor),
    SETTING(sensorRadarIsSecondary, Group::Sensor),
    SETTING(sensorRadarIsModeS, Group::Sensor),
    SETTING(sensorRadarCoveragePrimary, Group::Sensor).within(0, 100000, Unit::NauticalMiles),
    SETTING(sensorRadarCoverageSecondary, Group::Sensor).within(0, 100000, Unit::NauticalMiles),
    SETTING(sensorAdsbCoverage, Group::Sensor).within(0, 100000, Unit::NauticalMiles),
    SETTING(sensorAdsbUpdateInterval, Group::Sensor).within(0, 3600, Unit::Seconds),
    SETTING(sensorMlatCoverage, Group::Sensor).within(0, 100000, Unit::NauticalMiles),
    SETTING(sensorSdpsCoverage, Group::Sensor).within(0, 100000, Unit::NauticalMiles),
    SETTING(sensorSdpsUpdateInterval, Group::Sensor).within(0, 3600, Unit::Seconds),
    SETTING(sensorSmrAntennaAltitude, Group::Sensor).within(-1000, 100000, Unit::Metres),
    SETTING(sensorSmrRotationPeriod, Group::Sensor).within(0, 3600, Unit::Seconds),
    SETTING(sensorSmrCoverage, Group::Sensor).within(0, 1000, Unit::NauticalMiles),
    SETTING(sensorDatabase, Group::SensorFile),
    SETTING(mapSmoothPixmapTransform, Group::StaticMaps | Group::Tiles),
    SETTING(mapBackgroundColor, Group::PlanView).ofThemes(),
    SETTING(mapTileConsent, Group::Tiles),
    SETTING(mapTileDimming, Group::Tiles).within(0, 100, Unit::Percent).ofThemes(),
    SETTING(mapTileDesaturation, Group::Tiles).within(0, 100, Unit::Percent).ofThemes(),
    SETTING(mapCustomTileUrl, Group::Tiles),
    SETTING(mapCustomTileHeader, Group::Tiles),
    SETTING(mapCustomTileMaxLevel, Group::Tiles).within(0, 24),
    SETTING(mapCustomTileFile, Group::Tiles),
    SETTING(mapBingTileServer, Group::Tiles),
    SETTING(mapOpenAipTileServer, Group::Tiles),
    SETTING(mapGoogleTileServer, Group::Tiles),
    SETTING(mapTiandituTileServer, Group::Tiles),
    SETTING(mapFaaTileServer, Group::Tiles),
    SETTING(mapTileService, Group::Tiles),
    SETTING(mapTileVisible, Group::Tiles),
    SETTING(mapTileTopLayerEnable, Group::Tiles),
    SETTING(mapTileTopLayerProvider, Group::Tiles),
    SETTING(mapTileBottomLayerProvider, Group::Tiles),
    SETTING(mapTileCacheDir, Group::Tiles),
    SETTING(mapTileUseProxy, Group::Tiles),
    SETTING(mapTileProxyHostname, Group::Tiles),
    SETTING(mapTileProxyPort, Group::Tiles).within(1, 65535),
    SETTING(mapTileProxyUser, Group::Tiles),
    SETTING(mapTileProxyPassword, Group::Tiles),
    SETTING(mapTileProxyHostnameLookup, Group::Tiles),
    SETTING(mapBingImagery, Group::Tiles),
    SETTING(mapBingCulture, Group::Tiles),
    SETTING(mapBingTileDir, Group::Tiles),
    SETTING(mapBingSaveTileFiles, Group::Tiles),
    SETTING(mapBingOfflinePriority, Group::Tiles),
    SETTING(mapBingOfflineOnly, Group::Tiles),
    SETTING(mapOpenAipApiKey, Group::Tiles),
    SETTING(mapOpenAipTileDir, Group::Tiles),
    SETTING(mapOpenAipSaveTileFiles, Group::Tiles),
    SETTING(mapOpenAipOfflinePriority, Group::Tiles),
    SETTING(mapOpenAipOfflineOnly, Group::Tiles),
    SETTING(mapGoogleLayer, Group::Tiles),
    SETTING(mapGoogleHostLanguage, Group::Tiles),
    SETTING(mapGoogleGeographyLocation, Group::Tiles),
    SETTING(mapGoogleHiDpiTiles, Group::Tiles),
    SETTING(mapGoogleTileDir, Group::Tiles),
    SETTING(mapGoogleSaveTileFiles, Group::Tiles),
    SETTING(mapGoogleOfflinePriority, Group::Tiles),
    SETTING(mapGoogleOfflineOnly, Group::Tiles),
    SETTING(mapTiandituLayer, Group::Tiles),
    SETTING(mapTiandituApiKey, Group::Tiles),
    SETTING(mapTiandituTileDir, Group::Tiles),
    SETTING(mapTiandituSaveTileFiles, Group::Tiles),
    SETTING(mapTiandituOfflinePriority, Group::Tiles),
    SETTING(mapTiandituOfflineOnly, Group::Tiles),
    SETTING(mapFaaChart, Group::Tiles),
    SETTING(mapFaaTileDir, Group::Tiles),
    SETTING(mapFaaSaveTileFiles, Group::Tiles),
    SETTING(mapFaaOfflinePriority, Group::Tiles),
    SETTING(mapFaaOfflineOnly, Group::Tiles),
    SETTING(mapWeatherVisible, Group::Weather),
    row<WeatherColors>("mapWeatherColor%1", Group::Weather).ofThemes(),
    SETTING(mapWeatherOpacity, Group::Weather).within(0, 255).ofThemes(),
    SETTING(mapWeatherValidity, Group::Weather).within(1, 86400, Unit::Seconds),
    SETTING(mapWeatherVectorWidth, Group::Weather).within(0.01, 45, Unit::Degrees),
    SETTING(mapWeatherAutoVectorWidth, Group::Weather),
    SETTING(mapWeatherIgnoreEmptyPicture, Group::Weather),
    SETTING(mapVideoVisible, Group::Video),
    SETTING(mapVideoHighColor, Group::Video, OpaqueColorCodec).ofThemes(),
    SETTING(mapVideoLowColor, Group::Video, OpaqueColorCodec).ofThemes(),
    SETTING(mapVideoHighOpacity, Group::Video).within(0, 255).ofThemes(),
    SETTING(mapVideoLowOpacity, Group::Video).within(0, 255).ofThemes(),
    SETTING(mapVideoThreshold, Group::Video).within(0, 255),
    SETTING(mapVideoValidity, Group::Video).within(1, 3600, Unit::Seconds),
    SETTING(mapIndex, Group::StaticMaps),
    SETTING(mapStyleSheet, Group::StaticMaps).ofThemes(),
    SETTING(mapStaticVisible, Group::StaticMaps),
    SETTING(mapStaticSymbolSize, Group::StaticMaps).within(4, 256, Unit::Pixels).ofThemes(),
    SETTING(mapSensorVisible, Group::SensorLayer),
    SETTING(mapSensorCoverageVisible, Group::SensorLayer),
    SETTING(mapSensorRadarNorthMarkerVisible, Group::SensorLayer),
    SETTING(mapSensorRadarAntennaLineVisible, Group::SensorLayer),
    SETTING(mapSensorNameVisible, Group::SensorLayer).ofThemes(),
    SETTING(mapSensorRadarNorthMarkerShort, Group::SensorLayer).ofThemes(),
    SETTING(mapSensorColor, Group::SensorLayer).ofThemes(),
    SETTING(mapSensorRadarNorthMarkerColor, Group::SensorLayer).ofThemes(),
    SETTING(mapSensorRadarAntennaLineColor, Group::SensorLayer).ofThemes(),
    SETTING(mapRangeRingVisible, Group::RangeRings),
    SETTING(mapRangeRingColor, Group::RangeRings).ofThemes(),
    SETTING(mapRangeRingNumber, Group::RangeRings).within(1, 50),
    SETTING(mapRangeRingDistance, Group::RangeRings).within(0.1, 1000, Unit::NauticalMiles),
    SETTING(mapRangeRingLabelVisible, Group::RangeRings).ofThemes(),
    SETTING(mapRangeRingLabelColor, Group::RangeRings | Group::Orientation).ofThemes(),
    SETTING(mapCompassRoseVisible, Group::Orientation).ofThemes(),
    SETTING(mapScaleBarVisible, Group::Orientation).ofThemes(),
    SETTING(mapKeyVisible, Group::Orientation).ofThemes(),
    SETTING(mapPlotVisible, Group::Plots),
    SETTING(mapPlotSeconds, Group::Plots).within(0, 3600, Unit::Seconds),
    SETTING(mapPlotColor, Group::Plots).ofThemes(),
    SETTING(trackLabelLayout, Group::Tracks).within(0, 1).ofThemes(),
    SETTING(trackLabelAutoPlace, Group::Tracks).ofThemes(),
    SETTING(trackSymbolColor, Group::Tracks).ofThemes(),
    SETTING(trackSymbolCasingColor, Group::Tracks).ofThemes(),
    SETTING(trackLeaderColor, Group::Tracks).ofThemes(),
    SETTING(trackCoastingColor, Group::Tracks).ofThemes(),
    SETTING(trackCautionColor, Group::Tracks).ofThemes(),
    SETTING(trackLabelDetailColor, Group::Tracks).ofThemes(),
    SETTING(trackLabelAlertTextColor, Group::Tracks).ofThemes(),
    SETTING(trackLabelColor, Group::Tracks).ofThemes(),
    SETTING(trackLabelSelectedColor, Group::Tracks).ofThemes(),
    SETTING(trackLabelAlertColor, Group::Tracks).ofThemes(),
    SETTING(trackLabelBackgroundColor, Group::Tracks).ofThemes(),
    SETTING(trackLabelBackgroundOpacity, Group::Tracks).within(0, 100, Unit::Percent).ofThemes(),
};

#undef SETTING

} // namespace

std::span<const Setting> Setting::all()
{
    return Table;
}

const Config &Setting::probe()
{
    static const Config config;
    return config;
}

const Setting &Setting::at(const void *addressInProbe)
{
    const auto *const found = std::find_if(Table.begin(), Table.end(),
        [addressInProbe](const Setting &setting) { return setting.m_access.address(probe()) == addressInProbe; });
    Q_ASSERT_X(found != Table.end(), "Setting::of", "a member that no setting fills");
    return *found;
}

QVariantMap Setting::values(const Config &config) const
{
    QVariantMap values;
    m_access.save(values, key(), config);
    return values;
}

void Setting::save(QSettings &file, const Config &config) const
{
    const QVariantMap written = values(config);
    for (auto value = written.begin(); value != written.end(); ++value) {
        file.setValue(value.key(), value.value());
    }
}

void Setting::load(const QSettings &file, Config &config) const
{
    QVariantMap read = values(config);
    for (auto value = read.begin(); value != read.end();) {
        if (file.contains(value.key())) {
            *value = file.value(value.key());
            ++value;
        } else {
            value = read.erase(value);
        }
    }
    setValues(read, config);
}

QString Setting::unitSuffix() const
{
    switch (m_unit) {
    case Unit::Seconds:
        return QCoreApplication::translate("Setting", " s");
    case Unit::NauticalMiles:
        return QCoreApplication::translate("Setting", " NM");
    case Unit::Metres:
        return QCoreApplication::translate("Setting", " m");
    case Unit::Feet:
        return QCoreApplication::translate("Setting", " ft");
    case Unit::Degrees:
        return QCoreApplication::translate("Setting", "°");
    case Unit::Pixels:
        return QCoreApplication::translate("Setting", " pixels");
    case Unit::Percent:
        return QCoreApplication::translate("Setting", " %");
    case Unit::Mebibytes:
        return QCoreApplication::translate("Setting", " MiB");
    case Unit::None:
        break;
    }
    return {};
}
