#include "recognition/stream_diagnosis.h"

#include "engine/envelope.h"
#include "recognition/recording_analysis.h"
#include "recognition/source_diagnosis.h"

#include <QCoreApplication>
#include <QStringList>

using Level = DiagnosisRemark::Level;
using Topic = DiagnosisRemark::Topic;

namespace {

constexpr int HdlcCheckOctets = 2;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(StreamDiagnosis)
};

QString messagesText(qint64 messages)
{
    return messages == 1 ? Text::tr("1 message") : Text::tr("%1 messages").arg(countText(messages));
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
            .arg(formatText(stream.format()), parts.join(QStringLiteral(", "))));
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
        : Text::tr("%1 of them have that many, the others between 1 and 32.").arg(countText(trailers.alike));
    *remarks += makeRemark(Level::Note, Topic::Trailer,
        Text::tr(
            "In %1 of %2 the last block is followed by %3 that begin no other one, as recorders and gateways append "
            "them; they are passed over.")
            .arg(countText(trailers.messages), messagesText(stream.messages),
                trailers.octets == 1 ? Text::tr("1 octet") : Text::tr("%1 octets").arg(trailers.octets)),
        alike);
}

void addCutShort(const StreamFindings &stream, Diagnosis *remarks)
{
    if (stream.cutShort > 0) {
        *remarks += makeRemark(Level::Wrong, Topic::Damage,
            Text::tr("%1 of %2 end within a block: they are cut short, or what follows their blocks is something else.")
                .arg(countText(stream.cutShort), messagesText(stream.messages)));
    }
}

} // namespace

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
