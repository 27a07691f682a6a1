#include "health/record_text.h"

#include "asterix/json_writer.h"
#include "asterix/profile.h"
#include "explanation/report_view.h"
#include "tracking/fault_text.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

using korvane::asterix::Profile;
using korvane::asterix::TextBuffer;

namespace {

constexpr int OctetsInLine = 16;
constexpr qsizetype HeaderSize = 3; // of a data block: category and length

QString recordText(const char *source)
{
    return QCoreApplication::translate("RecordText", source);
}

QByteArray blockOf(quint8 category, const QByteArray &record)
{
    const auto length = static_cast<quint16>(record.size() + HeaderSize);
    QByteArray block;
    block.append(static_cast<char>(category));
    block.append(static_cast<char>(length >> 8));
    block.append(static_cast<char>(length & 0xFF));
    return block + record;
}

QString itemsOf(const _ast_datarecord_t &record)
{
    TextBuffer json;
    korvane::asterix::appendRecordJson(json, record, {}, korvane::asterix::Expansion::AsObject);
    const QByteArray line(json.text().data(), static_cast<qsizetype>(json.size()));
    return QString::fromUtf8(QJsonDocument(QJsonDocument::fromJson(line)["items"].toObject()).toJson());
}

// Of forms other than ASTERIX: name, value and meaning, a line each.
QString fieldsOf(const ReportView &view)
{
    qsizetype width = 0;
    for (const ReportField &field : view.fields) {
        width = std::max(width, field.name.size());
    }
    QStringList lines{view.name};
    for (const ReportField &field : view.fields) {
        const QString line = field.name.leftJustified(width) + QStringLiteral("  ") + field.text();
        lines += field.title.isEmpty() ? line : QStringLiteral("%1  (%2)").arg(line, field.title);
    }
    return lines.join(u'\n');
}

} // namespace

void RecordText::read(const SourceStatistics &source, const ReportExample &example,
    const std::function<void(const _ast_datarecord_t &)> &look)
{
    if (source.form != TakenReport::Form::Asterix || example.octets.isEmpty()) {
        return;
    }
    Profile profile;
    profile.select(source.category, source.edition.toStdString());
    const QByteArray octets = blockOf(source.category, example.octets);
    _ast_datablock_t block;
    const auto *data = reinterpret_cast<const unsigned char *>(octets.constData());
    const bool decoded = ast_datablock_decode(&block, data, static_cast<std::size_t>(octets.size()), profile.uap());
    if (decoded && !block.records.empty()) {
        look(block.records.front());
    }
}

QString RecordText::decoded(const SourceStatistics &source, const ReportExample &example)
{
    if (!example.fault.isEmpty()) {
        return recordText(QT_TRANSLATE_NOOP("RecordText", "Not decoded: %1, at octet %2."))
            .arg(faultText(example.fault))
            .arg(example.faultOffset);
    }
    if (example.octets.size() < example.size) {
        return recordText(QT_TRANSLATE_NOOP("RecordText", "Only the first %1 of its %2 octets are kept."))
            .arg(example.octets.size())
            .arg(example.size);
    }
    if (source.form != TakenReport::Form::Asterix) {
        return fieldsOf(viewReport({source.form, example.timeMs, nullptr, example.octets}));
    }
    QString items;
    read(source, example, [&items](const _ast_datarecord_t &record) { items = itemsOf(record); });
    return items.isEmpty() ? recordText(QT_TRANSLATE_NOOP("RecordText", "There is no table that reads this.")) : items;
}

QString RecordText::octets(const ReportExample &example)
{
    QString lines;
    for (qsizetype i = 0; i < example.octets.size(); ++i) {
        if (i % OctetsInLine == 0) {
            lines += QStringLiteral("%1%2 ").arg(i == 0 ? "" : "\n").arg(i, 4, 16, QLatin1Char('0'));
        }
        const auto octet = QStringLiteral("%1").arg(static_cast<uchar>(example.octets[i]), 2, 16, QLatin1Char('0'));
        const bool atFault = !example.fault.isEmpty() && i == static_cast<qsizetype>(example.faultOffset);
        lines += atFault ? QStringLiteral("[%1]").arg(octet) : QStringLiteral(" %1").arg(octet);
    }
    return lines;
}
