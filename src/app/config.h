#pragma once

#include "app/lan_interface.h"
#include "app/setting_group.h"
#include "app/tile_services.h"
#include "geo/geo_coordinate.h"
#include "modes/mode_s_encapsulation.h"
#include "sensors/sensor_type.h"

#include <QColor>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHostAddress>
#include <QList>
#include <QSharedPointer>
#include <QString>

class QObject;
class SensorInfo;

// Every setting of the terminal, as a plain value. Each key of the settings file is a member of the same name; a
// member's initialiser is the key's default. A new key needs a member here and a line in the table of setting.cpp. The
// spelling "Altitute" is part of the file format.
class Config {
    Q_DECLARE_TR_FUNCTIONS(Config)

public:
    enum class InputComm { Udp = 0, Serial = 1, File = 2 };
    enum class ProcessorType { Asterix = 0, ModeS = 1, AleniaSirM = 2 };
    enum class AsterixFormat { Raw = 0, Hdlc = 1, ManagAir = 2 };
    enum class AleniaSirMFormat { Raw = 0, Hdlc = 1, ManagAir = 2 };
    enum class TrackLabelLayout { Standard = 0, Compact = 1 };

    static QString inputMethodName(InputComm comm);
    static QString processorName(ProcessorType type);
    static QString asterixFormatName(AsterixFormat format);
    static QString aleniaSirMFormatName(AleniaSirMFormat format);

    // Back to the defaults.
    void reset();

    // Writes every key to an INI file: whole or, when it cannot be written, not at all. Errors are not reported.
    void save(const QString &fileName) const;
    // The same; false when it cannot be written.
    bool trySave(const QString &fileName) const;
    // A key that the file lacks leaves its member as it is, so that older files load, and a missing file changes
    // nothing. Values are not range-checked; one that does not convert gives zero.
    void load(const QString &fileName);

    // The groups in which at least one setting differs.
    static SettingGroups changedGroups(const Config &a, const Config &b);

    // The one configured sensor as a record.
    // Copies the fields that every sensor has and those of its own type; false for a null pointer.
    bool setSensor(const QSharedPointer<SensorInfo> &sensor);
    // A new record; a null pointer when no sensor type is configured.
    QSharedPointer<SensorInfo> sensor(QObject *parent) const;

    // Display
    GeoCoordinate displayCenterCoordinate = GeoCoordinate::fromATCString(QStringLiteral("400300N1164400E"));
    QString displayLocalTimeZoneName = defaultTimeZoneName(); // IANA identifier, or "LCL" for the system's own
    QString displayTheme = QStringLiteral("Classic"); // the theme chosen last
    QString displayStyle = QStringLiteral("windowsvista"); // key of a widget style
    QString displayLanguage = QStringLiteral("en"); // empty: the system's
    bool displayToolbarText = true;
    int displayFontScale = 100; // of the windows' text, percent of the system's
    QString settingsLock; // salted hash of the password that settings are locked with; empty: not locked
    int logFileSize = 4; // where a new log file is begun, MiB; 0: no log file
    int logFileCount = 5; // kept, the one being written among them

    // Inputs
    bool inputAutoStart = false; // with the program
    InputComm inputComm = InputComm::Udp;
    bool inputUdpMulticast1 = true;
    LanInterface inputUdpMcastLanInterface1; // none: the system chooses
    QHostAddress inputUdpMcastAddress1{QStringLiteral("239.0.0.1")};
    quint16 inputUdpPort1 = 50000;
    bool inputEnable2 = false;
    bool inputUdpMulticast2 = true;
    LanInterface inputUdpMcastLanInterface2;
    QHostAddress inputUdpMcastAddress2{QStringLiteral("239.0.0.2")};
    quint16 inputUdpPort2 = 50001;
    QString inputSerialDevice;
    int inputSerialBaudRate = 9600;
    int inputSerialDataBits = 8;
    int inputSerialParity = 0; // QSerialPort::Parity
    int inputSerialStopBits = 1; // QSerialPort::StopBits
    QFileInfo inputFileName;
    bool inputFileAutoRewind = false;

    // Processor
    ProcessorType processorType = ProcessorType::Asterix;
    AsterixFormat processorAsterixFormat = AsterixFormat::Raw;
    int processorAsterixUap = 0; // 0: automatic
    bool processorAsterixIgnoreWgs84Coordinates = false;
    bool processorAsterixIgnoreCartesianCoordinates = false;
    bool processorAsterixCorrectLongitudeWrap = false;
    bool processorAsterixVerifySacSic = false;
    korvane::modes::ModeSEncapsulation::Format processorModeSEncapsulation = korvane::modes::ModeSEncapsulation::Beast;
    bool processorModeSIgnoreTimeStamp = true;
    bool processorModeSBaroAltituteChecking = false;
    unsigned int processorModeSBaroAltituteCheckingTime = 4;
    unsigned int processorModeSBaroAltituteMaxChange = 150;
    unsigned int processorModeSNoUpdatedTargetDeletionTime = 10;
    AleniaSirMFormat processorAleniaSirMFormat = AleniaSirMFormat::Raw;

    // Sensor
    SensorType sensorType = UnknownSensor;
    QString sensorName;
    quint8 sensorSac = 0;
    quint8 sensorSic = 0;
    GeoCoordinate sensorLocation;
    int sensorRadarAntennaAltitude = 0;
    double sensorRadarRotationPeriod = 4.0; // seconds
    bool sensorRadarIsPrimary = false;
    bool sensorRadarIsSecondary = true;
    bool sensorRadarIsModeS = true;
    int sensorRadarCoveragePrimary = 70;
    int sensorRadarCoverageSecondary = 250;
    int sensorAdsbCoverage = 250;
    double sensorAdsbUpdateInterval = 0.0; // seconds
    int sensorMlatCoverage = 250;
    int sensorSdpsCoverage = 512;
    double sensorSdpsUpdateInterval = 0.0; // seconds
    int sensorSmrAntennaAltitude = 0;
    double sensorSmrRotationPeriod = 1.0; // seconds
    double sensorSmrCoverage = 5.0;
    QString sensorDatabase; // path of the sensor file

    // Online tiles. Directories are in the form of AppPaths::storePath.
    bool mapTileConsent = false; // the operator has agreed that online services are asked
    int mapTileDimming = 0; // of the bottom layer, percent towards the background colour
    int mapTileDesaturation = 0; // of the bottom layer, percent towards grey
    QString mapCustomTileUrl; // a template with {z} {x} {y} {-y} {quadkey} {s}
    QString mapCustomTileHeader; // "Name: value", sent with each request; empty: none
    int mapCustomTileMaxLevel = 18;
    QString mapCustomTileFile; // an MBTiles file, which goes before the template
    // Where a service is asked instead of at its own addresses, such as "https://proxy.example:8443"; empty: there.
    QString mapBingTileServer;
    QString mapOpenAipTileServer;
    QString mapGoogleTileServer;
    QString mapTiandituTileServer;
    QString mapFaaTileServer;
    bool mapSmoothPixmapTransform = false;
    QColor mapBackgroundColor{173, 173, 173};
    bool mapTileService = true;
    bool mapTileVisible = true;
    bool mapTileTopLayerEnable = false;
    TileService mapTileTopLayerProvider = TileService::OpenAip;
    TileService mapTileBottomLayerProvider = TileService::BingMaps;
    QString mapTileCacheDir = defaultDirectory(QStringLiteral("/TileCache/"));
    bool mapTileUseProxy = false;
    QString mapTileProxyHostname = QStringLiteral("localhost");
    quint16 mapTileProxyPort = 1080;
    QString mapTileProxyUser;
    QString mapTileProxyPassword;
    bool mapTileProxyHostnameLookup = true;
    BingTileImagery mapBingImagery = BingTileImagery::Aerial;
    QString mapBingCulture = QStringLiteral("en-US");
    QString mapBingTileDir = defaultDirectory(QStringLiteral("/BingMaps/"));
    bool mapBingSaveTileFiles = true;
    bool mapBingOfflinePriority = true;
    bool mapBingOfflineOnly = false;
    QString mapOpenAipApiKey;
    QString mapOpenAipTileDir = defaultDirectory(QStringLiteral("/OpenAIP/"));
    bool mapOpenAipSaveTileFiles = true;
    bool mapOpenAipOfflinePriority = true;
    bool mapOpenAipOfflineOnly = false;
    GoogleTileLayer mapGoogleLayer = GoogleTileLayer::Road;
    QString mapGoogleHostLanguage = QStringLiteral("en");
    QString mapGoogleGeographyLocation = QStringLiteral("us");
    bool mapGoogleHiDpiTiles = true;
    QString mapGoogleTileDir = defaultDirectory(QStringLiteral("/GoogleMaps/"));
    bool mapGoogleSaveTileFiles = true;
    bool mapGoogleOfflinePriority = true;
    bool mapGoogleOfflineOnly = false;
    TiandituTileLayer mapTiandituLayer = TiandituTileLayer::Imagery;
    QString mapTiandituApiKey;
    QString mapTiandituTileDir = defaultDirectory(QStringLiteral("/Tianditu/"));
    bool mapTiandituSaveTileFiles = true;
    bool mapTiandituOfflinePriority = true;
    bool mapTiandituOfflineOnly = false;
    FaaTileChart mapFaaChart = FaaTileChart::VfrSectional;
    QString mapFaaTileDir = defaultDirectory(QStringLiteral("/FAA/"));
    bool mapFaaSaveTileFiles = true;
    bool mapFaaOfflinePriority = true;
    bool mapFaaOfflineOnly = false;

    // Weather and video. Opacities are 0 to 255, validities seconds.
    bool mapWeatherVisible = false;
    QList<QColor> mapWeatherColor = defaultWeatherColors(); // one an intensity level; its length is fixed
    int mapWeatherOpacity = 128;
    int mapWeatherValidity = 900;
    double mapWeatherVectorWidth = 0.35;
    bool mapWeatherAutoVectorWidth = true;
    bool mapWeatherIgnoreEmptyPicture = true;
    bool mapVideoVisible = false;
    QColor mapVideoHighColor{255, 255, 0};
    QColor mapVideoLowColor{255, 255, 190};
    int mapVideoHighOpacity = 255;
    int mapVideoLowOpacity = 64;
    int mapVideoThreshold = 30;
    int mapVideoValidity = 5;

    // Static maps, sensor layer, range rings
    QString mapIndex = QStringLiteral("map.idx");
    QString mapStyleSheet = QStringLiteral("style.mss");
    bool mapStaticVisible = true;
    int mapStaticSymbolSize = 32;
    bool mapSensorVisible = true;
    bool mapSensorCoverageVisible = true;
    bool mapSensorRadarNorthMarkerVisible = true;
    bool mapSensorRadarAntennaLineVisible = true;
    bool mapSensorNameVisible = true;
    bool mapSensorRadarNorthMarkerShort = false; // a tick at the rim of the coverage instead of a line from the site
    QColor mapSensorColor{0x00, 0x66, 0x33};
    QColor mapSensorRadarNorthMarkerColor{Qt::red};
    QColor mapSensorRadarAntennaLineColor{0x00, 0x66, 0x33};
    bool mapRangeRingVisible = false;
    QColor mapRangeRingColor{0x39, 0x3F, 0x42};
    int mapRangeRingNumber = 5;
    double mapRangeRingDistance = 50.0;
    bool mapRangeRingLabelVisible = true; // the distance, on four bearings
    QColor mapRangeRingLabelColor{0x39, 0x3F, 0x42}; // also of compass rose, scale bar and key
    bool mapCompassRoseVisible = false;
    bool mapScaleBarVisible = false;
    bool mapKeyVisible = false; // what the symbols and weather colours mean

    // Plots
    bool mapPlotVisible = false;
    double mapPlotSeconds = 0.0; // how long a plot is seen; 0: three revolutions or reporting periods of the sensor
    QColor mapPlotColor{0x00, 0x5A, 0x82};

    // Tracks
    TrackLabelLayout trackLabelLayout = TrackLabelLayout::Standard;
    bool trackLabelAutoPlace = false;
    QColor trackSymbolColor{0x00, 0x8F, 0xCC};
    QColor trackSymbolCasingColor{Qt::black}; // round symbols, so that they stand out from whatever lies under them
    QColor trackLeaderColor{0x00, 0x8F, 0xCC};
    QColor trackCoastingColor{0x00, 0x8F, 0xCC}; // of tracks without a report for too long
    QColor trackCautionColor{0xFF, 0xB4, 0x54}; // of emergencies and of what needs a look but is no alert
    QColor trackLabelDetailColor{Qt::white}; // of what stands in a label beside the identity
    QColor trackLabelAlertTextColor{Qt::white}; // on a ground of the alert colour
    QColor trackLabelColor{Qt::white};
    QColor trackLabelSelectedColor{Qt::green};
    QColor trackLabelAlertColor{Qt::red};
    QColor trackLabelBackgroundColor{80, 80, 80};
    int trackLabelBackgroundOpacity = 100; // percent

private:
    static QString defaultTimeZoneName();
    // A directory in the application data directory, in the form in which paths are stored.
    static QString defaultDirectory(const QString &suffix);
    static QList<QColor> defaultWeatherColors();
};
