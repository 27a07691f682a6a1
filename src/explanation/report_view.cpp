#include "explanation/report_view.h"

#include "asterix/json_writer.h"
#include "explanation/report_view_forms.h"

#include <QDateTime>

const ReportField *ReportView::find(const QString &key) const
{
    for (const ReportField &field : fields) {
        if (field.key == key) {
            return &field;
        }
    }
    return nullptr;
}

int ReportView::fieldAt(int bit) const
{
    int found = -1;
    for (int i = 0; i < fields.size(); ++i) {
        const bool narrower = found < 0 || fields[i].bits.count < fields[found].bits.count;
        if (fields[i].bits.contains(bit) && narrower) {
            found = i;
        }
    }
    return found;
}

QString ReportView::itemName(const QString &item) const
{
    return QString("I%1/%2").arg(category, 3, 10, QChar('0')).arg(item);
}

ReportView viewReport(const KeptReport &report)
{
    ReportView view;
    view.timeMs = report.timeMs;
    view.octets = report.octets;
    switch (report.form) {
    case TakenReport::Form::Asterix:
        viewAsterix(report, view);
        break;
    case TakenReport::Form::ModeS:
        viewModeS(report, view);
        break;
    case TakenReport::Form::AleniaSirM:
        viewAleniaSirM(report, view);
        break;
    }
    return view;
}

QByteArray reportJson(const KeptReport &report)
{
    _ast_datarecord_t record;
    if (report.form == TakenReport::Form::Asterix && decodeKept(report, record)) {
        korvane::asterix::TextBuffer text;
        appendRecordJson(text, record, {.block = 1, .hasTime = true, .timeMilliseconds = report.timeMs},
            korvane::asterix::Expansion::AsObject);
        return {text.text().data(), static_cast<qsizetype>(text.size())};
    }
    const QByteArray key = report.form == TakenReport::Form::ModeS ? "frame" : "message";
    const QByteArray time = QByteArray::number(static_cast<double>(report.timeMs) / 1000.0, 'f', 3);
    return "{\"time\":" + time + ",\"" + key + "\":\"" + report.octets.toHex() + "\"}\n";
}

QString reportHex(const ReportView &view)
{
    return QString::fromLatin1(view.octets.toHex(' '));
}

QString reportText(const ReportView &view)
{
    const auto time = QDateTime::fromMSecsSinceEpoch(view.timeMs, Qt::UTC);
    QString text = QString("%1  %2\n%3\n").arg(time.toString("yyyy-MM-dd HH:mm:ss.zzz"), view.name, reportHex(view));
    for (const ReportField &field : view.fields) {
        text += QString("%1\t%2\n").arg(field.name, field.text());
    }
    return text;
}
