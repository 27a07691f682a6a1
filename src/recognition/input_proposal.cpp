#include "recognition/input_proposal.h"

#include "sensors/radar_sensor_info.h"
#include "sensors/sensor_manager.h"
#include "sensors/sensor_type_text.h"
#include "sensors/smr_sensor_info.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using Processor = Config::ProcessorType;

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(InputProposal)
};

// What is shown best comes first: tracks that say where they are, then those that are placed by their radar.
constexpr std::array TypesByWorth = {SdpsSensor, AdsbSensor, MlatSensor, RadarSensor, SmrSensor};

// Data that are shown beside the tracks.
constexpr int WeatherCategory = 8;
constexpr int VideoCategory = 240;

bool hasPicture(const SourceFindings &source)
{
    return source.find(WeatherCategory) || source.find(VideoCategory);
}

// Whether the source had better be shown alone. Numbers of tracks mean nothing without their source, polar positions
// and pictures would be drawn around the wrong place. ADS-B stations add to each other.
bool harmedByOthers(const StreamFindings &findings, const SourceFindings &source, SensorType type)
{
    bool rivals = false;
    bool pictures = false;
    for (const SourceFindings &other : findings.sources) {
        rivals = rivals || (&other != &source && other.records(type) > 0);
        pictures = pictures || (&other != &source && hasPicture(other));
    }
    return type == AdsbSensor ? pictures && !rivals : pictures || rivals;
}

qint64 targetSum(const SourceFindings &source, SensorType type, qint64 CategoryFindings::*count)
{
    qint64 total = 0;
    for (const CategoryFindings &category : source.categories) {
        total += category.sensorType() == type && category.reportsTargets() ? category.*count : 0;
    }
    return total;
}

// Positions that mean nothing without the place of the sensor.
bool hasRelativePlaces(const SourceFindings &source, SensorType type)
{
    return targetSum(source, type, &CategoryFindings::polarPositions)
        + targetSum(source, type, &CategoryFindings::cartesianPositions)
        > 0;
}

QString whyNoTracks(const SourceFindings &source, SensorType type)
{
    if (targetSum(source, type, &CategoryFindings::records) == 0) {
        return Text::tr("It holds no reports of targets.");
    }
    const bool identified = targetSum(source, type, &CategoryFindings::trackNumbers) > 0
        || (type != SmrSensor && targetSum(source, type, &CategoryFindings::addresses) > 0);
    if (!identified && type == AdsbSensor) {
        return Text::tr("Its reports carry no aircraft addresses, so they make no tracks.");
    }
    if (!identified) {
        return hasRelativePlaces(source, type) || targetSum(source, type, &CategoryFindings::wgs84Positions) > 0
            ? Text::tr("Its reports carry no track numbers, so they make no tracks; the plot layer shows them.")
            : Text::tr("Its reports carry no track numbers, so they make no tracks.");
    }
    switch (type) {
    case SmrSensor:
        return Text::tr("Its reports carry no polar positions (I010/040), without which they make no tracks.");
    case AdsbSensor:
        return Text::tr("Its reports carry no positions in WGS-84, so they make no tracks.");
    default:
        return Text::tr("No report carries both an identity and a position, so they make no tracks.");
    }
}

} // namespace

// One source, taken for one type of sensor.
struct InputProposal::Candidate {
    const SourceFindings *source = nullptr;
    SensorType type = UnknownSensor;
    std::size_t rank = 0; // the lower the better
    qint64 records = 0;

    bool isBetterThan(const Candidate &other) const
    {
        return !other.source || (rank != other.rank ? rank < other.rank : records > other.records);
    }

    static QList<Candidate> of(const SourceFindings &source)
    {
        QList<Candidate> candidates;
        for (std::size_t i = 0; i < TypesByWorth.size(); ++i) {
            const SensorType type = TypesByWorth[i];
            if (const qint64 trackable = source.trackable(type); trackable > 0) {
                candidates += Candidate{&source, type, i, trackable};
            } else if (const qint64 records = source.records(type); records > 0) {
                const bool pictures = type == RadarSensor && hasPicture(source);
                candidates += Candidate{&source, type, (pictures ? 1 : 2) * TypesByWorth.size() + i, records};
            }
        }
        if (candidates.isEmpty()) {
            const SensorType type = hasPicture(source) ? RadarSensor : SdpsSensor;
            candidates += Candidate{&source, type, 3 * TypesByWorth.size(), 0};
        }
        return candidates;
    }
};

InputProposal::InputProposal(const StreamFindings &findings, const SensorManager &sensors)
{
    m_processor.processorType = *findings.kind;
    m_processor.processorAsterixFormat = findings.asterixFormat;
    m_processor.processorModeSEncapsulation = findings.modeSEncapsulation;
    m_processor.processorAleniaSirMFormat = findings.aleniaSirMFormat;
    switch (*findings.kind) {
    case Processor::Asterix:
        chooseAsterix(findings, sensors);
        break;
    case Processor::ModeS:
        chooseModeS(findings.modeS, sensors);
        break;
    case Processor::AleniaSirM:
        chooseSirM(findings.sirM, sensors);
        break;
    }
}

void InputProposal::chooseAsterix(const StreamFindings &findings, const SensorManager &sensors)
{
    Candidate best;
    for (const SourceFindings &source : findings.sources) {
        for (const Candidate &candidate : Candidate::of(source)) {
            best = candidate.isBetterThan(best) ? candidate : best;
        }
    }
    const SourceFindings &source = *best.source;
    m_processor.processorAsterixVerifySacSic = source.identified && harmedByOthers(findings, source, best.type);
    m_sourcesLeftOut =
        std::count_if(findings.sources.begin(), findings.sources.end(), [this, &best](const SourceFindings &other) {
            return &other != best.source && (m_processor.processorAsterixVerifySacSic || other.records(best.type) == 0);
        });
    takeSensor(best.type, source.sac, source.sic, sensors);
    describeSource(source, best.type);
    m_shortfall = source.trackable(best.type) > 0 ? QString() : whyNoTracks(source, best.type);
}

// The sensor of the file with this identification, or a new one.
void InputProposal::takeSensor(SensorType type, quint8 sac, quint8 sic, const SensorManager &sensors)
{
    for (const QString &name : sensors.sensorNames()) {
        const auto known = sensors.findSensor(name);
        if (known->type() == type && known->sac() == sac && known->sic() == sic && (sac != 0 || sic != 0)) {
            m_sensor = known;
            m_fromSensorFile = true;
            return;
        }
    }
    Config defaults;
    defaults.sensorType = type;
    m_sensor = defaults.sensor(nullptr);
    m_sensor->setSacSic(sac, sic);
    m_sensor->setName(
        sac == 0 && sic == 0 ? sensorTypeText(type) : Text::tr("%1 %2/%3").arg(sensorTypeText(type)).arg(sac).arg(sic));
}

void InputProposal::describeSource(const SourceFindings &source, SensorType type)
{
    // Where there are both, the WGS-84 positions say the same without the reference point of the others.
    m_processor.processorAsterixIgnoreCartesianCoordinates = targetSum(source, type, &CategoryFindings::wgs84Positions)
        >= std::max<qint64>(targetSum(source, type, &CategoryFindings::cartesianPositions), 1);
    if (m_fromSensorFile) {
        return;
    }
    placeSource(source, type);
    m_rotationPeriodMissing = type == RadarSensor && source.rotationPeriod <= 0.0;
    if (auto *radar = qobject_cast<RadarSensorInfo *>(m_sensor.data())) {
        radar->setRadarType(source.primary, source.secondary, source.modeS);
    }
    setRotationPeriod(source.rotationPeriod);
}

// Reports without a track are drawn as plots.
void InputProposal::placeSource(const SourceFindings &source, SensorType type)
{
    const bool relative =
        type == RadarSensor || type == SmrSensor || !m_processor.processorAsterixIgnoreCartesianCoordinates;
    m_siteMissing = relative && type != AdsbSensor && !source.site.isValid()
        && (hasRelativePlaces(source, type) || hasPicture(source));
    m_sensor->setLocation(source.site.isValid() ? source.site : m_siteMissing ? GeoCoordinate() : source.area.center);
}

void InputProposal::chooseModeS(const ModeSFindings &modeS, const SensorManager &sensors)
{
    takeSensor(AdsbSensor, 0, 0, sensors);
    m_sensor->setLocation(modeS.area.center);
    if (modeS.aircraft == 0) {
        m_shortfall = Text::tr("It holds no extended squitters, without which there are no tracks.");
    } else if (modeS.area.positions == 0) {
        m_shortfall = Text::tr("No position of an aircraft could be made out.");
    }
}

// These radars send a number in the place of SAC/SIC.
void InputProposal::chooseSirM(const SirMFindings &sirM, const SensorManager &sensors)
{
    takeSensor(RadarSensor, 0, static_cast<quint8>(sirM.radarId), sensors);
    m_siteMissing = !m_fromSensorFile;
    if (!m_fromSensorFile) {
        m_rotationPeriodMissing = sirM.rotationPeriod <= 0.0;
        setRotationPeriod(sirM.rotationPeriod);
    }
    if (sirM.tracks == 0) {
        m_shortfall = sirM.plots > 0 ? Text::tr("It holds no tracks; the plot layer shows its plots.")
                                     : Text::tr("It holds no tracks.");
    }
}

void InputProposal::setSite(const GeoCoordinate &site)
{
    m_sensor->setLocation(site);
    m_siteMissing = !site.isValid();
}

void InputProposal::setRotationPeriod(double period)
{
    if (auto *radar = qobject_cast<RadarSensorInfo *>(m_sensor.data())) {
        radar->setRotationPeriod(period);
    } else if (auto *smr = qobject_cast<SmrSensorInfo *>(m_sensor.data())) {
        smr->setRotationPeriod(period);
    }
    m_rotationPeriodMissing = m_rotationPeriodMissing && period <= 0.0;
}

void InputProposal::applyTo(Config *config) const
{
    config->processorType = m_processor.processorType;
    config->processorAsterixFormat = m_processor.processorAsterixFormat;
    config->processorAsterixUap = m_processor.processorAsterixUap;
    config->processorAsterixIgnoreWgs84Coordinates = m_processor.processorAsterixIgnoreWgs84Coordinates;
    config->processorAsterixIgnoreCartesianCoordinates = m_processor.processorAsterixIgnoreCartesianCoordinates;
    config->processorAsterixCorrectLongitudeWrap = m_processor.processorAsterixCorrectLongitudeWrap;
    config->processorAsterixVerifySacSic = m_processor.processorAsterixVerifySacSic;
    config->processorModeSEncapsulation = m_processor.processorModeSEncapsulation;
    config->processorAleniaSirMFormat = m_processor.processorAleniaSirMFormat;
    config->setSensor(m_sensor);
}

QString InputProposal::choiceText() const
{
    QString text = m_fromSensorFile
        ? Text::tr("Played as %1 \"%2\" of the sensor file").arg(sensorTypeText(m_sensor->type()), m_sensor->name())
        : Text::tr("Played as %1").arg(m_sensor->name());
    if (m_sourcesLeftOut > 0) {
        text += m_sourcesLeftOut == 1 ? Text::tr(", the other source left out")
                                      : Text::tr(", %1 other sources left out").arg(m_sourcesLeftOut);
    }
    if (m_siteMissing) {
        text += Text::tr("; where it stands is not known, and its positions are relative to that");
    }
    return text + u'.';
}
