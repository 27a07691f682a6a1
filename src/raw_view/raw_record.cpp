#include "raw_view/raw_record.h"

#include "asterix/asterix.h"
#include "asterix/record_map.h"
#include "explanation/report_view.h"
#include "recognition/stream_findings.h"
#include "tracking/fault_text.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(RawRecord)
};

QString octal(unsigned code)
{
    return QStringLiteral("%1").arg(code, 4, 8, QLatin1Char('0'));
}

QString addressText(quint32 address)
{
    return QStringLiteral("%1").arg(address, 6, 16, QLatin1Char('0')).toUpper();
}

void addAsterixIdentity(const RawRecord &raw, QStringList &parts)
{
    const StreamBatch::Record &facts = raw.facts;
    const auto octets = raw.octets();
    _ast_datarecord_t record;
    if (!facts.uap || !korvane::asterix::decodeRecord(&record, octets.data(), octets.size(), facts.uap)) {
        return;
    }
    const auto callsign = ast_datarecord_get_callsign(record);
    if (callsign.present) {
        parts += QString::fromLatin1(callsign.text).trimmed();
    }
    if (const auto code = korvane::asterix::mode3aOf(record)) {
        parts += octal(*code);
    }
    const auto address = ast_datarecord_get_icaoaddr(record);
    if (address.present) {
        parts += addressText(address.address);
    }
}

} // namespace

KeptReport RawRecord::kept() const
{
    KeptReport report;
    report.form = facts.form;
    report.timeMs = facts.timeMs;
    report.uap = facts.uap;
    const auto held = octets();
    report.octets = QByteArray(reinterpret_cast<const char *>(held.data()), static_cast<qsizetype>(held.size()));
    return report;
}

QString formText(const RawRecord &record)
{
    switch (record.facts.form) {
    case TakenReport::Form::Asterix:
        return categoryName(record.facts.category);
    case TakenReport::Form::ModeS:
        return Text::tr("Mode S");
    case TakenReport::Form::AleniaSirM:
        break;
    }
    return Text::tr("SIR-M");
}

QString sourceText(const RawRecord &record)
{
    const StreamBatch::Record &facts = record.facts;
    return facts.identified ? QStringLiteral("%1/%2").arg(facts.sac).arg(facts.sic) : QString();
}

QString identityText(const RawRecord &record)
{
    const StreamBatch::Record &facts = record.facts;
    QStringList parts;
    if (facts.form == TakenReport::Form::Asterix) {
        addAsterixIdentity(record, parts);
    } else if (facts.address != StreamBatch::NoAddress) {
        parts += addressText(facts.address);
    }
    if (facts.trackNumber > 0) {
        parts += QStringLiteral("#%1").arg(facts.trackNumber);
    }
    parts.removeAll(QString());
    return parts.join(u' ');
}

QString outcomeText(const RawRecord &record)
{
    const StreamBatch::Record &facts = record.facts;
    const QString outcome = reportOutcomeText(facts.outcome);
    return facts.fault ? Text::tr("%1: %2, at octet %3")
                             .arg(outcome, faultText(QString::fromLatin1(facts.fault)))
                             .arg(facts.faultOffset)
                       : outcome;
}

QString contentsText(const RawRecord &record)
{
    if (record.facts.form != TakenReport::Form::Asterix) {
        return viewReport(record.kept()).name;
    }
    QStringList items;
    for (const ReportField &field : viewReport(record.kept()).fields) {
        const auto end =
            std::find_if(field.key.begin(), field.key.end(), [](QChar c) { return c == u'/' || c == u'['; });
        const QString item = field.key.left(end - field.key.begin());
        if (!item.startsWith(QStringLiteral("bds")) && (items.isEmpty() || items.last() != item)) {
            items += item;
        }
    }
    return items.join(u' ');
}

QString fullText(const RawRecord &record)
{
    return QStringList{formText(record), sourceText(record), identityText(record), outcomeText(record),
        reportText(viewReport(record.kept()))}
        .join(u'\n');
}
