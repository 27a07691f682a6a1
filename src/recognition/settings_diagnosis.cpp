#include "recognition/settings_diagnosis.h"

#include "recognition/source_diagnosis.h"
#include "sensors/sensor_type_text.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

using Level = DiagnosisRemark::Level;
using Topic = DiagnosisRemark::Topic;

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(StreamDiagnosis)
};

void addProcessor(const StreamFindings &stream, const Config &config, Diagnosis *remarks)
{
    const StreamFormat set{config.processorType, config.processorAsterixFormat, config.processorModeSEncapsulation,
        config.processorAleniaSirMFormat};
    const StreamFormat found = stream.format();
    const bool isFormatWrong = (found.kind == Config::ProcessorType::Asterix && set.asterix != found.asterix)
        || (found.kind == Config::ProcessorType::ModeS && set.modeS != found.modeS)
        || (found.kind == Config::ProcessorType::AleniaSirM && set.aleniaSirM != found.aleniaSirM);
    if (set.kind != found.kind) {
        *remarks += makeRemark(Level::Wrong, Topic::Processor,
            Text::tr("The processor is set to \"%1\", but what arrives is %2.")
                .arg(Config::processorName(set.kind), formatText(found)));
    } else if (isFormatWrong) {
        *remarks += makeRemark(Level::Wrong, Topic::Processor,
            Text::tr("The processor is set to %1, but what arrives is %2.").arg(formatText(set), formatText(found)));
    }
}

// The edition that a profile has for CAT021; empty for those that leave the choice to the contents.
QString forcedEdition(int profile)
{
    switch (profile) {
    case 4:
        return QStringLiteral("0.23");
    case 5:
        return QStringLiteral("0.26");
    case 6:
        return QStringLiteral("2.1");
    case 1:
    case 7:
        return QStringLiteral("2.7");
    default:
        return {};
    }
}

void addProfile(const StreamFindings &stream, const Config &config, Diagnosis *remarks)
{
    constexpr int AdsbReports = 21;
    const QString forced = forcedEdition(config.processorAsterixUap);
    for (const SourceFindings &source : stream.sources) {
        const CategoryFindings *reports = source.find(AdsbReports);
        if (forced.isEmpty() || !reports || reports->edition.isEmpty() || reports->edition == forced) {
            continue;
        }
        const auto set = std::find_if(reports->editions.begin(), reports->editions.end(),
            [&forced](const EditionFindings &edition) { return edition.edition == forced; });
        if (set == reports->editions.end() || doesAsWell(reports->editions.first(), *set)) {
            continue;
        }
        DiagnosisRemark found = makeRemark(Level::Wrong, Topic::Processor,
            Text::tr("The profile reads CAT021 in edition %1, but %2 sends edition %3: set it to automatic.")
                .arg(forced, source.name(), reports->edition),
            editionEvidence(*reports));
        found.source = source.name();
        found.category = AdsbReports;
        *remarks += found;
    }
}

void addIdentity(const StreamFindings &stream, const Config &config, Diagnosis *remarks)
{
    const auto isOurs = [&config](const SourceFindings &source) {
        return !source.identified || (source.sac == config.sensorSac && source.sic == config.sensorSic);
    };
    if (!config.processorAsterixVerifySacSic || stream.sources.isEmpty()
        || std::any_of(stream.sources.begin(), stream.sources.end(), isOurs)) {
        return;
    }
    QStringList names;
    for (const SourceFindings &source : stream.sources) {
        names += source.name();
    }
    *remarks += makeRemark(Level::Wrong, Topic::Sensor,
        Text::tr("Only reports of the sensor's SAC/SIC %1/%2 are taken, but those that arrive are of %3.")
            .arg(config.sensorSac)
            .arg(config.sensorSic)
            .arg(names.join(QStringLiteral(", "))));
}

// Reports of targets for the sensor's tracker, and for those of other types.
void addSensorType(const StreamFindings &stream, const Config &config, Diagnosis *remarks)
{
    qint64 own = 0;
    SensorType other = UnknownSensor;
    for (const SourceFindings &source : stream.sources) {
        for (const CategoryFindings &category : source.categories) {
            const bool isTarget = category.reportsTargets() && category.records > 0;
            own += isTarget && category.sensorType() == config.sensorType ? category.records : 0;
            other = isTarget && category.sensorType() != config.sensorType ? category.sensorType() : other;
        }
    }
    const bool isModeS = stream.kind == Config::ProcessorType::ModeS;
    const SensorType found = isModeS ? AdsbSensor : other;
    if (found != UnknownSensor && own == 0 && found != config.sensorType) {
        *remarks += makeRemark(Level::Wrong, Topic::Sensor,
            Text::tr("The sensor is set to %1, but what arrives are reports of %2.")
                .arg(sensorTypeText(config.sensorType), sensorTypeText(found)));
    }
}

} // namespace

Diagnosis diagnoseSettings(const StreamFindings &stream, const Config &config)
{
    Diagnosis remarks;
    if (!stream.kind) {
        return remarks;
    }
    addProcessor(stream, config, &remarks);
    if (stream.kind == Config::ProcessorType::Asterix) {
        addProfile(stream, config, &remarks);
        addIdentity(stream, config, &remarks);
    }
    addSensorType(stream, config, &remarks);
    return remarks;
}
