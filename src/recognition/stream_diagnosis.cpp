#include "recognition/stream_diagnosis.h"

#include "engine/envelope.h"
#include "recognition/recording_analysis.h"
#include "sensors/sensor_type_text.h"
#include "tracking/fault_text.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>

using Level = DiagnosisRemark::Level;
using Topic = DiagnosisRemark::Topic;

namespace {

// Values that are out of range now and then are the source's habit; many of them speak against the edition.
constexpr qint64 OddShare = 20; // one in so many
// From so many of them on, blocks of another edition are no accident.
constexpr qint64 MixedShare = 20;
constexpr int HdlcCheckOctets = 2;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(StreamDiagnosis)
};

QString number(qint64 value)
{
    return QLocale(QLocale::English).toString(value);
}

QString counted(qint64 count, const char *one, const char *many)
{
    return count == 1 ? Text::tr(one) : Text::tr(many).arg(number(count));
}

QString blocksText(qint64 blocks)
{
    return counted(
        blocks, QT_TRANSLATE_NOOP("StreamDiagnosis", "1 block"), QT_TRANSLATE_NOOP("StreamDiagnosis", "%1 blocks"));
}

QString messagesText(qint64 messages)
{
    return counted(messages, QT_TRANSLATE_NOOP("StreamDiagnosis", "1 message"),
        QT_TRANSLATE_NOOP("StreamDiagnosis", "%1 messages"));
}

// "CAT021 from 25/11"
QString subject(const SourceFindings &source, const CategoryFindings &category)
{
    return Text::tr("%1 from %2").arg(categoryName(category.category), source.name());
}

DiagnosisRemark makeRemark(Level level, Topic topic, const QString &sentence, const QString &evidence = {})
{
    DiagnosisRemark remark;
    remark.level = level;
    remark.topic = topic;
    remark.sentence = sentence;
    remark.evidence = evidence;
    return remark;
}

// ---- editions --------------------------------------------------------------------------------------------------

bool isMixed(const CategoryFindings &category)
{
    return (category.records - category.editionRecords) * MixedShare >= category.records && category.records > 0;
}

// Whether the other edition would do as well, for all that can be seen.
bool isEqual(const EditionFindings &best, const EditionFindings &other)
{
    return other.wholeBlocks >= best.wholeBlocks && other.oddRecords <= best.oddRecords;
}

QString evidenceOf(const EditionFindings &edition, qint64 blocks)
{
    QString text = edition.wholeBlocks == blocks ? Text::tr("edition %1 reads all").arg(edition.edition)
        : edition.wholeBlocks == 0               ? Text::tr("edition %1 reads none").arg(edition.edition)
                                   : Text::tr("edition %1 reads %2").arg(edition.edition, number(edition.wholeBlocks));
    if (edition.onlyBlocks > 0) {
        text += edition.onlyBlocks == blocks
            ? Text::tr(", and no other edition reads any")
            : Text::tr("; %1 of these no other edition reads").arg(number(edition.onlyBlocks));
    }
    if (edition.oddRecords > 0) {
        text += Text::tr(", with implausible values in %1 of %2 records")
                    .arg(number(edition.oddRecords), number(edition.records));
    }
    return text;
}

QString evidenceOf(const CategoryFindings &category)
{
    QStringList parts;
    for (const EditionFindings &edition : category.editions) {
        parts += evidenceOf(edition, category.judgedBlocks);
    }
    const QString looked = category.judgedBlocks == 1
        ? Text::tr("Of 1 block that was looked at")
        : Text::tr("Of %1 blocks that were looked at").arg(number(category.judgedBlocks));
    return looked + QStringLiteral(": ") + parts.join(QStringLiteral("; ")) + u'.';
}

// Which of the editions it is: of categories of which there are several.
DiagnosisRemark editionRemark(const SourceFindings &source, const CategoryFindings &category)
{
    const QString who = subject(source, category);
    if (isMixed(category)) {
        return makeRemark(Level::Wrong, Topic::Edition,
            Text::tr(
                "%1 comes in more than one edition: %2 of %3 records are of edition %4, the others of another one.")
                .arg(who, number(category.editionRecords), number(category.records), category.edition),
            evidenceOf(category));
    }
    QStringList equals;
    for (const EditionFindings &other : category.editions.mid(1)) {
        if (isEqual(category.editions.first(), other)) {
            equals += other.edition;
        }
    }
    if (!equals.isEmpty()) {
        return makeRemark(Level::Note, Topic::Edition,
            Text::tr("%1 is read in edition %2, but nothing in it tells that from edition %3.")
                .arg(who, category.edition, equals.join(Text::tr(" or "))),
            evidenceOf(category));
    }
    return makeRemark(
        Level::Fine, Topic::Edition, Text::tr("%1 is of edition %2.").arg(who, category.edition), evidenceOf(category));
}

// The one edition of its category that is known. That need not be the edition's fault.
DiagnosisRemark oddRemark(const SourceFindings &source, const CategoryFindings &category)
{
    const EditionFindings &edition = category.editions.first();
    return makeRemark(Level::Note, Topic::Edition,
        Text::tr(
            "In %1 of %2 records of %3 a time, a place or an aircraft identification cannot be right, or bits are set "
            "that edition %4 leaves unused.")
            .arg(number(edition.oddRecords), number(edition.records), subject(source, category), edition.edition));
}

DiagnosisRemark identificationRemark(const SourceFindings &source, const CategoryFindings &category)
{
    return makeRemark(Level::Note, Topic::Edition,
        Text::tr(
            "In %1 of %2 records of %3 the aircraft identification cannot be right: its callsigns are not to be relied "
            "on.")
            .arg(number(category.oddIdentifications), number(category.records), subject(source, category)),
        Text::tr("Blanks stand before or between its characters, as in \"%1\".").arg(category.oddIdentification));
}

// Beyond those that another remark accounts for.
bool isOdd(const CategoryFindings &category)
{
    const EditionFindings &edition = category.editions.first();
    return (edition.oddRecords - category.oddIdentifications) * OddShare > edition.records;
}

DiagnosisRemark undecodableRemark(const SourceFindings &source, const CategoryFindings &category)
{
    const QString who = subject(source, category);
    if (!category.hasTable) {
        return makeRemark(Level::Note, Topic::Category,
            Text::tr("%1 is passed over: nothing here reads this category (%2, %3 octets).")
                .arg(who, blocksText(category.undecodableBlocks), number(category.undecodableOctets)));
    }
    const QString edition = category.edition.isEmpty() && !category.editions.isEmpty()
        ? category.editions.first().edition
        : category.edition;
    const QString sentence = category.records == 0
        ? Text::tr("%1 cannot be decoded: of %2 none fits edition %3, so it is of another edition, or damaged.")
              .arg(who, blocksText(category.undecodableBlocks), edition)
        : Text::tr("%1 of %2 of %3 cannot be decoded in edition %4: damaged on the way, or of another edition.")
              .arg(number(category.undecodableBlocks), blocksText(category.blocks), who, edition);
    return makeRemark(Level::Wrong, Topic::Damage, sentence,
        Text::tr("The first fault: %1, at octet %2 of the block.")
            .arg(faultText(category.fault))
            .arg(category.faultOffset));
}

Diagnosis diagnose(const SourceFindings &source, const CategoryFindings &category)
{
    Diagnosis remarks;
    if (category.undecodableBlocks > 0) {
        remarks += undecodableRemark(source, category);
    }
    if (category.editions.size() > 1 && category.records > 0) {
        remarks += editionRemark(source, category);
    } else if (!category.editions.isEmpty() && isOdd(category)) {
        remarks += oddRemark(source, category);
    }
    if (category.oddIdentifications * OddShare > category.records) {
        remarks += identificationRemark(source, category);
    }
    for (DiagnosisRemark &remark : remarks) {
        remark.source = source.identified ? source.name() : QString();
        remark.category = category.category;
    }
    return remarks;
}

// ---- the whole stream ------------------------------------------------------------------------------------------

StreamFormat formatOf(const StreamFindings &stream)
{
    return {*stream.kind, stream.asterixFormat, stream.modeSEncapsulation, stream.aleniaSirMFormat};
}

DiagnosisRemark contentsRemark(const StreamFindings &stream)
{
    if (stream.messages == 0) {
        return makeRemark(Level::Wrong, Topic::Contents, Text::tr("Nothing has come."));
    }
    if (!stream.kind) {
        return makeRemark(Level::Wrong, Topic::Format,
            Text::tr("In %1 nothing makes sense as ASTERIX, Mode S or Alenia SIR-M, in whatever encapsulation.")
                .arg(messagesText(stream.messages)),
            Text::tr("The first one begins with the octets %1.").arg(QString::fromLatin1(stream.beginning.toHex(' '))));
    }
    return makeRemark(Level::Fine, Topic::Contents, Text::tr("The stream holds %1.").arg(describe(stream)));
}

void addEnvelope(const StreamFindings &stream, Diagnosis *remarks)
{
    const bool isAsterix = stream.kind == Config::ProcessorType::Asterix;
    const std::size_t octets = isAsterix                   ? envelopeSize(stream.asterixFormat)
        : stream.kind == Config::ProcessorType::AleniaSirM ? envelopeSize(stream.aleniaSirMFormat)
                                                           : 0;
    if (octets > 0) {
        const QString name = isAsterix ? Config::asterixFormatName(stream.asterixFormat)
                                       : Config::aleniaSirMFormatName(stream.aleniaSirMFormat);
        *remarks += makeRemark(Level::Note, Topic::Format,
            Text::tr("Each message begins with %1 octets of its transport: the format is \"%2\".")
                .arg(octets)
                .arg(name));
    }
}

void addMixture(const StreamFindings &stream, Diagnosis *remarks)
{
    if (stream.admixtures.isEmpty()) {
        return;
    }
    QStringList parts;
    for (const Admixture &other : stream.admixtures) {
        parts += Text::tr("%1 in %2").arg(formatText(other.format), messagesText(other.messages));
    }
    *remarks += makeRemark(Level::Wrong, Topic::Mixture,
        Text::tr(
            "Several formats arrive together: beside %1 there is %2. One is shown at a time; each needs a port of its "
            "own.")
            .arg(formatText(formatOf(stream)), parts.join(QStringLiteral(", "))));
}

void addTrailers(const StreamFindings &stream, Diagnosis *remarks)
{
    const TrailerFindings &trailers = stream.trailers;
    const bool isCheck = stream.asterixFormat == Config::AsterixFormat::Hdlc && trailers.octets == HdlcCheckOctets;
    if (trailers.messages == 0 || (isCheck && trailers.alike == trailers.messages)) {
        return;
    }
    const QString alike = trailers.alike == trailers.messages
        ? QString()
        : Text::tr("%1 of them have that many, the others between 1 and 32.").arg(number(trailers.alike));
    *remarks += makeRemark(Level::Note, Topic::Trailer,
        Text::tr(
            "In %1 of %2 the last block is followed by %3 that begin no other one, as recorders and gateways append "
            "them; they are passed over.")
            .arg(number(trailers.messages), messagesText(stream.messages),
                trailers.octets == 1 ? Text::tr("1 octet") : Text::tr("%1 octets").arg(trailers.octets)),
        alike);
}

void addCutShort(const StreamFindings &stream, Diagnosis *remarks)
{
    if (stream.cutShort > 0) {
        *remarks += makeRemark(Level::Wrong, Topic::Damage,
            Text::tr("%1 of %2 end within a block: they are cut short, or what follows their blocks is something else.")
                .arg(number(stream.cutShort), messagesText(stream.messages)));
    }
}

// ---- settings --------------------------------------------------------------------------------------------------

void addProcessor(const StreamFindings &stream, const Config &config, Diagnosis *remarks)
{
    const StreamFormat set{config.processorType, config.processorAsterixFormat, config.processorModeSEncapsulation,
        config.processorAleniaSirMFormat};
    const StreamFormat found = formatOf(stream);
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
        if (set == reports->editions.end() || isEqual(reports->editions.first(), *set)) {
            continue;
        }
        DiagnosisRemark found = makeRemark(Level::Wrong, Topic::Processor,
            Text::tr("The profile reads CAT021 in edition %1, but %2 sends edition %3: set it to automatic.")
                .arg(forced, source.name(), reports->edition),
            evidenceOf(*reports));
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

const char *levelName(Level level)
{
    switch (level) {
    case Level::Fine:
        return "fine";
    case Level::Note:
        return "note";
    case Level::Wrong:
        break;
    }
    return "wrong";
}

const char *topicName(Topic topic)
{
    static constexpr const char *Names[] = {
        "contents", "format", "mixture", "trailer", "damage", "edition", "category", "processor", "sensor"};
    return Names[static_cast<std::size_t>(topic)];
}

Diagnosis diagnose(const SourceFindings &source)
{
    Diagnosis remarks;
    for (const CategoryFindings &category : source.categories) {
        remarks += diagnose(source, category);
    }
    return remarks;
}

Diagnosis diagnose(const StreamFindings &stream)
{
    Diagnosis remarks = {contentsRemark(stream)};
    if (!stream.kind) {
        return remarks;
    }
    addEnvelope(stream, &remarks);
    addMixture(stream, &remarks);
    addCutShort(stream, &remarks);
    addTrailers(stream, &remarks);
    for (const SourceFindings &source : stream.sources) {
        remarks += diagnose(source);
    }
    return remarks;
}

Diagnosis diagnose(const RecordingFindings &recording)
{
    if (!recording.playable()) {
        Diagnosis remarks = {
            makeRemark(Level::Wrong, Topic::Damage, Text::tr("It cannot be played: %1").arg(recording.fault))};
        if (recording.stream.messages > 0 && !recording.stream.kind) {
            remarks.first().evidence = contentsRemark(recording.stream).evidence;
        }
        return remarks;
    }
    Diagnosis remarks = diagnose(recording.stream);
    if (!recording.damage.isEmpty()) {
        remarks.insert(1,
            makeRemark(Level::Wrong, Topic::Damage,
                Text::tr("The file is damaged, and nothing can be played beyond that place: %1")
                    .arg(recording.damage)));
    }
    return remarks;
}

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

bool isAnyWrong(const Diagnosis &diagnosis)
{
    return std::any_of(
        diagnosis.begin(), diagnosis.end(), [](const DiagnosisRemark &remark) { return remark.level == Level::Wrong; });
}

QString remarkText(const DiagnosisRemark &remark)
{
    return remark.evidence.isEmpty() ? remark.sentence : remark.sentence + u' ' + remark.evidence;
}
