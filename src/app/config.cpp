#include "app/config.h"

#include "app/app_paths.h"
#include "app/weather_color_scheme.h"

#include <QSettings>
#include <QTimeZone>

#include <type_traits>

namespace {

using korvane::modes::ModeSEncapsulation;

// How a value stands in the file. Whole numbers, switches, colours and plain texts are stored as they are; enumerations
// without texts as their number.
template <typename T>
QVariant encoded(const T &value)
{
    if constexpr (std::is_enum_v<T>) {
        return static_cast<int>(value);
    } else {
        return QVariant::fromValue(value);
    }
}

QVariant encoded(quint8 value)
{
    return static_cast<uint>(value);
}
QVariant encoded(quint16 value)
{
    return static_cast<uint>(value);
}
QVariant encoded(const QNetworkInterface &value)
{
    return value.name();
}
QVariant encoded(const QHostAddress &value)
{
    return value.toString();
}
QVariant encoded(const QFileInfo &value)
{
    return value.filePath();
}
QVariant encoded(SensorType value)
{
    return sensorTypeToString(value);
}
QVariant encoded(ModeSEncapsulation::Format value)
{
    return QString::fromStdString(ModeSEncapsulation::identifier(value));
}
QVariant encoded(TileService value)
{
    return tileServiceIdentifier(value);
}
QVariant encoded(BingTileImagery value)
{
    return bingTileImageryToString(value);
}
QVariant encoded(GoogleTileLayer value)
{
    return googleTileLayerToCode(value);
}
QVariant encoded(TiandituTileLayer value)
{
    return tiandituTileLayerToCode(value);
}
QVariant encoded(FaaTileChart value)
{
    return faaTileChartToString(value);
}

template <typename T>
void decode(const QVariant &stored, T &value)
{
    if constexpr (std::is_enum_v<T>) {
        value = static_cast<T>(stored.toInt());
    } else {
        value = stored.value<T>();
    }
}

void decode(const QVariant &stored, quint8 &value)
{
    value = static_cast<quint8>(stored.toUInt());
}
void decode(const QVariant &stored, quint16 &value)
{
    value = static_cast<quint16>(stored.toUInt());
}
void decode(const QVariant &stored, QNetworkInterface &value)
{
    value = QNetworkInterface::interfaceFromName(stored.toString());
}
void decode(const QVariant &stored, QHostAddress &value)
{
    value.setAddress(stored.toString());
}
void decode(const QVariant &stored, QFileInfo &value)
{
    value.setFile(stored.toString());
}
void decode(const QVariant &stored, SensorType &value)
{
    value = sensorTypeFromString(stored.toString());
}
void decode(const QVariant &stored, ModeSEncapsulation::Format &value)
{
    value = ModeSEncapsulation::fromIdentifier(stored.toString().toStdString());
}
void decode(const QVariant &stored, TileService &value)
{
    value = tileServiceFromIdentifier(stored.toString());
}
void decode(const QVariant &stored, BingTileImagery &value)
{
    value = bingTileImageryFromString(stored.toString());
}
void decode(const QVariant &stored, GoogleTileLayer &value)
{
    value = googleTileLayerFromCode(stored.toString());
}
void decode(const QVariant &stored, TiandituTileLayer &value)
{
    value = tiandituTileLayerFromCode(stored.toString());
}
void decode(const QVariant &stored, FaaTileChart &value)
{
    value = faaTileChartFromString(stored.toString());
}

// The view centre is kept to the second, as it is typed; a sensor's site to the hundredth, as it is surveyed.
struct CoordinateText {
    GeoCoordinate::ATCStringFormat format;
};

class Writer {
public:
    explicit Writer(const QString &fileName) : m_settings(fileName, QSettings::IniFormat) { }

    template <typename T>
    void operator()(const QString &key, const T &value)
    {
        m_settings.setValue(key, encoded(value));
    }
    void operator()(const QString &key, const GeoCoordinate &value, CoordinateText text)
    {
        m_settings.setValue(key, value.toATCString(text.format));
    }
    void opaque(const QString &key, const QColor &value) { m_settings.setValue(key, value); }

private:
    QSettings m_settings;
};

class Reader {
public:
    explicit Reader(const QString &fileName) : m_settings(fileName, QSettings::IniFormat) { }

    template <typename T>
    void operator()(const QString &key, T &value)
    {
        if (m_settings.contains(key)) {
            decode(m_settings.value(key), value);
        }
    }
    void operator()(const QString &key, GeoCoordinate &value, CoordinateText)
    {
        if (m_settings.contains(key)) {
            value = GeoCoordinate::fromATCString(m_settings.value(key).toString());
        }
    }
    // Transparency has keys of its own; a colour's alpha never counts.
    void opaque(const QString &key, QColor &value)
    {
        (*this)(key, value);
        value.setAlpha(255);
    }

private:
    QSettings m_settings;
};

// The keys in the order of the file, for both directions: File is a Writer and Settings const, or a Reader and not.
// Key and member are one name.
#define VYX_KEY(name) QStringLiteral(#name), config.name

template <typename Settings, typename File>
void visitDisplay(Settings &config, File &file)
{
    file(VYX_KEY(displayCenterCoordinate), CoordinateText{GeoCoordinate::NormalPrecision});
    file(VYX_KEY(displayLocalTimeZoneName));
    file(VYX_KEY(displayStyle));
    file(VYX_KEY(displayLanguage));
    file(VYX_KEY(displayToolbarText));
}

template <typename Settings, typename File>
void visitInputs(Settings &config, File &file)
{
    file(VYX_KEY(inputComm));
    file(VYX_KEY(inputUdpMulticast1));
    file(VYX_KEY(inputUdpMcastLanInterface1));
    file(VYX_KEY(inputUdpMcastAddress1));
    file(VYX_KEY(inputUdpPort1));
    file(VYX_KEY(inputEnable2));
    file(VYX_KEY(inputUdpMulticast2));
    file(VYX_KEY(inputUdpMcastLanInterface2));
    file(VYX_KEY(inputUdpMcastAddress2));
    file(VYX_KEY(inputUdpPort2));
    file(VYX_KEY(inputSerialDevice));
    file(VYX_KEY(inputSerialBaudRate));
    file(VYX_KEY(inputSerialDataBits));
    file(VYX_KEY(inputSerialParity));
    file(VYX_KEY(inputSerialStopBits));
    file(VYX_KEY(inputFileName));
    file(VYX_KEY(inputFileAutoRewind));
}

template <typename Settings, typename File>
void visitProcessor(Settings &config, File &file)
{
    file(VYX_KEY(processorType));
    file(VYX_KEY(processorAsterixFormat));
    file(VYX_KEY(processorAsterixUap));
    file(VYX_KEY(processorAsterixIgnoreWgs84Coordinates));
    file(VYX_KEY(processorAsterixIgnoreCartesianCoordinates));
    file(VYX_KEY(processorAsterixCorrectLongitudeWrap));
    file(VYX_KEY(processorAsterixVerifySacSic));
    file(VYX_KEY(processorModeSEncapsulation));
    file(VYX_KEY(processorModeSIgnoreTimeStamp));
    file(VYX_KEY(processorModeSBaroAltituteChecking));
    file(VYX_KEY(processorModeSBaroAltituteCheckingTime));
    file(VYX_KEY(processorModeSBaroAltituteMaxChange));
    file(VYX_KEY(processorModeSNoUpdatedTargetDeletionTime));
    file(VYX_KEY(processorAleniaSirMFormat));
}

template <typename Settings, typename File>
void visitSensor(Settings &config, File &file)
{
    file(VYX_KEY(sensorType));
    file(VYX_KEY(sensorName));
    file(VYX_KEY(sensorSac));
    file(VYX_KEY(sensorSic));
    file(VYX_KEY(sensorLocation), CoordinateText{GeoCoordinate::HighPrecision});
    file(VYX_KEY(sensorRadarAntennaAltitude));
    file(VYX_KEY(sensorRadarRotationPeriod));
    file(VYX_KEY(sensorRadarIsPrimary));
    file(VYX_KEY(sensorRadarIsSecondary));
    file(VYX_KEY(sensorRadarIsModeS));
    file(VYX_KEY(sensorRadarCoveragePrimary));
    file(VYX_KEY(sensorRadarCoverageSecondary));
    file(VYX_KEY(sensorAdsbCoverage));
    file(VYX_KEY(sensorAdsbUpdateInterval));
    file(VYX_KEY(sensorMlatCoverage));
    file(VYX_KEY(sensorSdpsCoverage));
    file(VYX_KEY(sensorSdpsUpdateInterval));
    file(VYX_KEY(sensorSmrAntennaAltitude));
    file(VYX_KEY(sensorSmrRotationPeriod));
    file(VYX_KEY(sensorSmrCoverage));
    file(VYX_KEY(sensorDatabase));
}

template <typename Settings, typename File>
void visitTiles(Settings &config, File &file)
{
    file(VYX_KEY(mapSmoothPixmapTransform));
    file(VYX_KEY(mapBackgroundColor));
    file(VYX_KEY(mapTileService));
    file(VYX_KEY(mapTileVisible));
    file(VYX_KEY(mapTileTopLayerEnable));
    file(VYX_KEY(mapTileTopLayerProvider));
    file(VYX_KEY(mapTileBottomLayerProvider));
    file(VYX_KEY(mapTileCacheDir));
    file(VYX_KEY(mapTileUseProxy));
    file(VYX_KEY(mapTileProxyHostname));
    file(VYX_KEY(mapTileProxyPort));
    file(VYX_KEY(mapTileProxyUser));
    file(VYX_KEY(mapTileProxyPassword));
    file(VYX_KEY(mapTileProxyHostnameLookup));
}

template <typename Settings, typename File>
void visitTileServices(Settings &config, File &file)
{
    file(VYX_KEY(mapBingImagery));
    file(VYX_KEY(mapBingCulture));
    file(VYX_KEY(mapBingTileDir));
    file(VYX_KEY(mapBingSaveTileFiles));
    file(VYX_KEY(mapBingOfflinePriority));
    file(VYX_KEY(mapBingOfflineOnly));
    file(VYX_KEY(mapOpenAipApiKey));
    file(VYX_KEY(mapOpenAipTileDir));
    file(VYX_KEY(mapOpenAipSaveTileFiles));
    file(VYX_KEY(mapOpenAipOfflinePriority));
    file(VYX_KEY(mapOpenAipOfflineOnly));
    file(VYX_KEY(mapGoogleLayer));
    file(VYX_KEY(mapGoogleHostLanguage));
    file(VYX_KEY(mapGoogleGeographyLocation));
    file(VYX_KEY(mapGoogleHiDpiTiles));
    file(VYX_KEY(mapGoogleTileDir));
    file(VYX_KEY(mapGoogleSaveTileFiles));
    file(VYX_KEY(mapGoogleOfflinePriority));
    file(VYX_KEY(mapGoogleOfflineOnly));
    file(VYX_KEY(mapTiandituLayer));
    file(VYX_KEY(mapTiandituApiKey));
    file(VYX_KEY(mapTiandituTileDir));
    file(VYX_KEY(mapTiandituSaveTileFiles));
    file(VYX_KEY(mapTiandituOfflinePriority));
    file(VYX_KEY(mapTiandituOfflineOnly));
    file(VYX_KEY(mapFaaChart));
    file(VYX_KEY(mapFaaTileDir));
    file(VYX_KEY(mapFaaSaveTileFiles));
    file(VYX_KEY(mapFaaOfflinePriority));
    file(VYX_KEY(mapFaaOfflineOnly));
}

template <typename Settings, typename File>
void visitWeatherAndVideo(Settings &config, File &file)
{
    file(VYX_KEY(mapWeatherVisible));
    int index = 0;
    for (auto &color : config.mapWeatherColor) {
        file.opaque(QStringLiteral("mapWeatherColor%1").arg(index++), color);
    }
    file(VYX_KEY(mapWeatherOpacity));
    file(VYX_KEY(mapWeatherValidity));
    file(VYX_KEY(mapWeatherVectorWidth));
    file(VYX_KEY(mapWeatherAutoVectorWidth));
    file(VYX_KEY(mapWeatherIgnoreEmptyPicture));
    file(VYX_KEY(mapVideoVisible));
    file.opaque(VYX_KEY(mapVideoHighColor));
    file.opaque(VYX_KEY(mapVideoLowColor));
    file(VYX_KEY(mapVideoHighOpacity));
    file(VYX_KEY(mapVideoLowOpacity));
    file(VYX_KEY(mapVideoThreshold));
    file(VYX_KEY(mapVideoValidity));
}

template <typename Settings, typename File>
void visitStaticMapsAndSensorLayer(Settings &config, File &file)
{
    file(VYX_KEY(mapIndex));
    file(VYX_KEY(mapStyleSheet));
    file(VYX_KEY(mapStaticVisible));
    file(VYX_KEY(mapStaticSymbolSize));
    file(VYX_KEY(mapSensorVisible));
    file(VYX_KEY(mapSensorCoverageVisible));
    file(VYX_KEY(mapSensorRadarNorthMarkerVisible));
    file(VYX_KEY(mapSensorRadarAntennaLineVisible));
    file(VYX_KEY(mapSensorColor));
    file(VYX_KEY(mapSensorRadarNorthMarkerColor));
    file(VYX_KEY(mapSensorRadarAntennaLineColor));
    file(VYX_KEY(mapRangeRingVisible));
    file(VYX_KEY(mapRangeRingColor));
    file(VYX_KEY(mapRangeRingNumber));
    file(VYX_KEY(mapRangeRingDistance));
}

template <typename Settings, typename File>
void visitTracks(Settings &config, File &file)
{
    file(VYX_KEY(trackSymbolColor));
    file(VYX_KEY(trackLabelColor));
    file(VYX_KEY(trackLabelSelectedColor));
    file(VYX_KEY(trackLabelAlertColor));
    file(VYX_KEY(trackLabelBackgroundColor));
    file(VYX_KEY(trackLabelBackgroundOpacity));
}

#undef VYX_KEY

template <typename Settings, typename File>
void visitKeys(Settings &config, File &&file)
{
    visitDisplay(config, file);
    visitInputs(config, file);
    visitProcessor(config, file);
    visitSensor(config, file);
    visitTiles(config, file);
    visitTileServices(config, file);
    visitWeatherAndVideo(config, file);
    visitStaticMapsAndSensorLayer(config, file);
    visitTracks(config, file);
}

} // namespace

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
    visitKeys(*this, Writer(fileName));
}

void Config::load(const QString &fileName)
{
    visitKeys(*this, Reader(fileName));
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
