#include "vyx-asterix/doctor_command.h"

#include "recognition/input_proposal.h"
#include "recognition/recording_analysis.h"
#include "recognition/stream_diagnosis.h"
#include "sensors/sensor_manager.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using korvane::astfile::RecFile;

namespace {

constexpr int LineWidth = 118;
constexpr int Indent = 8;

// The text in lines of a readable length, the second and later ones indented.
QString wrapped(const QString &head, const QString &text)
{
    QString out = head;
    qsizetype column = head.size();
    for (const QString &word : text.split(u' ')) {
        if (column + 1 + word.size() > LineWidth) {
            out += u'\n' + QString(Indent - 1, u' ');
            column = Indent - 1;
        }
        out += u' ' + word;
        column += 1 + word.size();
    }
    return out + u'\n';
}

// How the terminal would play it, where there is something that it plays.
QStringList playing(const RecordingFindings &recording)
{
    if (!recording.playable()) {
        return {};
    }
    const SensorManager noSensors;
    const InputProposal proposal(recording.stream, noSensors);
    QStringList sentences = {proposal.choiceText()};
    if (!proposal.shortfallText().isEmpty()) {
        sentences += proposal.shortfallText();
    }
    return sentences;
}

QString summary(const RecordingFindings &recording)
{
    const StreamFindings &stream = recording.stream;
    QString text = QStringLiteral("%1, %2 %3, %4 octets")
                       .arg(RecFile::formatName(recording.format))
                       .arg(stream.messages)
                       .arg(stream.messages == 1 ? "message" : "messages")
                       .arg(stream.octets);
    if (stream.first.isValid()) {
        const QString format = QStringLiteral("yyyy-MM-dd hh:mm:ss");
        text += QStringLiteral(", %1 to %2 UTC").arg(stream.first.toString(format), stream.last.toString(format));
    }
    return recording.whole ? text : text + QStringLiteral(" (the beginning; there is more)");
}

QString textOf(const RecordingFindings &recording, const Diagnosis &diagnosis)
{
    QString out = recording.fileName + QStringLiteral(": ") + summary(recording) + u'\n';
    for (const DiagnosisRemark &remark : diagnosis) {
        const QString level = QString::fromLatin1(levelName(remark.level)) + u':';
        out += wrapped(QStringLiteral("  ") + level.leftJustified(Indent - 3), remarkText(remark));
    }
    if (const QStringList sentences = playing(recording); !sentences.isEmpty()) {
        out += wrapped(QStringLiteral("  play:"), sentences.join(u' '));
    }
    return out
        + (isAnyWrong(diagnosis) ? QStringLiteral("Something is wrong.\n") : QStringLiteral("Nothing is wrong.\n"));
}

QJsonObject jsonOf(const DiagnosisRemark &remark)
{
    QJsonObject object{
        {"level", levelName(remark.level)}, {"topic", topicName(remark.topic)}, {"sentence", remark.sentence}};
    const auto insert = [&object](const char *key, const QString &text) {
        if (!text.isEmpty()) {
            object.insert(QLatin1String(key), text);
        }
    };
    insert("evidence", remark.evidence);
    insert("source", remark.source);
    if (remark.category > 0) {
        object.insert("category", remark.category);
    }
    return object;
}

QJsonObject jsonOf(const CategoryFindings &category)
{
    QJsonArray editions;
    for (const EditionFindings &edition : category.editions) {
        editions += QJsonObject{{"edition", edition.edition}, {"wholeBlocks", edition.wholeBlocks},
            {"onlyBlocks", edition.onlyBlocks}, {"records", edition.records}, {"oddRecords", edition.oddRecords}};
    }
    return {{"category", category.category}, {"edition", category.edition}, {"blocks", category.blocks},
        {"records", category.records}, {"undecodableBlocks", category.undecodableBlocks},
        {"judgedBlocks", category.judgedBlocks}, {"editions", editions}};
}

QJsonObject jsonOf(const SourceFindings &source)
{
    QJsonArray categories;
    for (const CategoryFindings &category : source.categories) {
        categories += jsonOf(category);
    }
    QJsonObject object{{"categories", categories}};
    if (source.identified) {
        object.insert("sac", source.sac);
        object.insert("sic", source.sic);
    }
    return object;
}

QByteArray jsonOf(const RecordingFindings &recording, const Diagnosis &diagnosis)
{
    QJsonArray remarks;
    for (const DiagnosisRemark &remark : diagnosis) {
        remarks += jsonOf(remark);
    }
    QJsonArray sources;
    for (const SourceFindings &source : recording.stream.sources) {
        sources += jsonOf(source);
    }
    const QJsonObject object{{"file", recording.fileName}, {"format", RecFile::formatName(recording.format)},
        {"messages", recording.stream.messages}, {"octets", recording.stream.octets}, {"whole", recording.whole},
        {"wrong", isAnyWrong(diagnosis)}, {"remarks", remarks}, {"sources", sources},
        {"playing", QJsonArray::fromStringList(playing(recording))}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

int runDoctor(const CommandLine &command, const TextSink &out, const LineSink &)
{
    const RecordingFindings recording = analyseRecording(QString::fromStdString(command.fileName));
    const Diagnosis diagnosis = diagnose(recording);
    const QByteArray text = command.isJson ? jsonOf(recording, diagnosis) : textOf(recording, diagnosis).toUtf8();
    const bool isWritten = out(std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
    return isWritten && !isAnyWrong(diagnosis) ? 0 : 1;
}
