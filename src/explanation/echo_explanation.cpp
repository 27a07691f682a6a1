#include "explanation/echo_explanation.h"

#include "explanation/explained_fields.h"

#include <QCoreApplication>

#include <optional>

namespace {

constexpr double MetresPerMile = 1852.0;
constexpr int CellBits = 8; // other video is not drawn

QString echoText(const char *text)
{
    return QCoreApplication::translate("EchoExplanation", text);
}

// Nanoseconds or femtoseconds, as the sender counts them.
QString headerOf(const ReportView &view)
{
    return view.find("040/STARTRG") ? "040" : "041";
}

std::optional<quint64> numberIn(const ReportView &view, const QString &key)
{
    const ReportField *field = view.find(key);
    return field ? std::optional(field->value.toULongLong()) : std::nullopt;
}

// Which octet of the record's cells it is; nothing where the record does not reach so far.
std::optional<quint64> offsetIn(const ReportView &view, quint64 cell)
{
    const auto start = numberIn(view, headerOf(view) + "/STARTRG");
    const auto cells = numberIn(view, "049/NBCELLS");
    const bool holds = start && cells && cell >= *start && cell - *start < *cells;
    return holds ? std::optional(cell - *start) : std::nullopt;
}

class EchoExplainer {
public:
    EchoExplainer(const ShownEcho &echo, const QList<ReportView> &reports, const QDateTime &now)
        : m_echo(echo), m_reports(reports), m_now(now)
    {
        for (m_report = 0; m_report < reports.size() && !offsetIn(reports[m_report], echo.cell); ++m_report) { }
    }

    QList<ExplainedValue> run()
    {
        const QString header = view() ? headerOf(*view()) : QString("041");
        addAmplitude();
        add(echoText(QT_TRANSLATE_NOOP("EchoExplanation", "Range")), header + "/STARTRG " + header + "/CELLDUR",
            QString("%1 NM").arg(m_echo.range / MetresPerMile, 0, 'f', 2),
            echoText(QT_TRANSLATE_NOOP("EchoExplanation", "cell %1 from the antenna on, each %2 m long"))
                .arg(m_echo.cell)
                .arg(m_echo.cellSize, 0, 'f', 1));
        add(echoText(QT_TRANSLATE_NOOP("EchoExplanation", "Azimuth")), header + "/STARTAZ " + header + "/ENDAZ",
            QString("%1°").arg(m_echo.azimuth, 0, 'f', 2),
            echoText(QT_TRANSLATE_NOOP(
                         "EchoExplanation", "one of %1 directions of a turn; the newest radial over its middle counts"))
                .arg(m_echo.directions));
        add(echoText(QT_TRANSLATE_NOOP("EchoExplanation", "Resolution")), "048/RES 048/C", bitsText(),
            echoText(QT_TRANSLATE_NOOP("EchoExplanation", "only uncompressed video of 8 bits a cell is drawn")));
        add(echoText(QT_TRANSLATE_NOOP("EchoExplanation", "Cells in radial")), "049/NBCELLS", {}, {});
        add(echoText(QT_TRANSLATE_NOOP("EchoExplanation", "Time of day")), "140", timeText(), {});
        add(echoText(QT_TRANSLATE_NOOP("EchoExplanation", "Message number")), "020", {},
            echoText(QT_TRANSLATE_NOOP("EchoExplanation", "gaps in it are counted as missing messages")));
        add(echoText(QT_TRANSLATE_NOOP("EchoExplanation", "Source")), "010/SAC 010/SIC", sourceText(),
            echoText(QT_TRANSLATE_NOOP("EchoExplanation", "drawn around the place of the sensor of that SAC/SIC")));
        return m_values;
    }

private:
    const ReportView *view() const { return m_report < m_reports.size() ? &m_reports[m_report] : nullptr; }

    QString sourceText() const
    {
        const ReportField *sac = view() ? view()->find("010/SAC") : nullptr;
        const ReportField *sic = view() ? view()->find("010/SIC") : nullptr;
        return sac && sic ? sac->value + '/' + sic->value : QString();
    }

    QString timeText() const
    {
        const ReportField *time = view() ? view()->find("140") : nullptr;
        return time ? timeOfDayText(time->value.toDouble()) : QString();
    }

    QString bitsText() const
    {
        return view() && view()->find("048/RES")
            ? echoText(QT_TRANSLATE_NOOP("EchoExplanation", "%1 bits a cell")).arg(CellBits)
            : QString();
    }

    void add(const QString &name, const QString &keys, const QString &text, const QString &rule)
    {
        const auto fields = view() ? explainedFields(name, keys, *view(), m_report, m_now) : std::nullopt;
        addExplained(m_values, name, fields, text, rule);
    }

    void addAmplitude()
    {
        ExplainedValue row;
        row.name = echoText(QT_TRANSLATE_NOOP("EchoExplanation", "Amplitude"));
        int amplitude = m_echo.amplitude;
        if (view()) {
            pointAtCell(row, amplitude, *offsetIn(*view(), m_echo.cell));
        }
        row.value = echoText(QT_TRANSLATE_NOOP("EchoExplanation", "%1 of 255")).arg(amplitude);
        row.rule = amplitudeRule(amplitude);
        m_values.append(row);
    }

    QString amplitudeRule(int amplitude) const
    {
        if (!view()) {
            return echoText(QT_TRANSLATE_NOOP(
                "EchoExplanation", "as drawn; the radar's next radial of this direction is waited for"));
        }
        if (amplitude <= m_echo.threshold) {
            return echoText(QT_TRANSLATE_NOOP("EchoExplanation", "not above the threshold of %1, so it is not drawn"))
                .arg(m_echo.threshold);
        }
        return echoText(QT_TRANSLATE_NOOP("EchoExplanation", "above the threshold of %1; fades within %2 s"))
            .arg(m_echo.threshold)
            .arg(static_cast<double>(m_echo.validityMs) / 1000.0, 0, 'f', 0);
    }

    // Blocks of cells follow each other.
    void pointAtCell(ExplainedValue &row, int &amplitude, quint64 offset) const
    {
        for (const char *item : {"050", "051", "052"}) {
            const ReportField *block = view()->find(QString("%1[1]").arg(item));
            const int bit = block ? block->bits.first + static_cast<int>(offset) * CellBits : 0;
            if (!block || bit + CellBits > view()->octets.size() * 8) {
                continue;
            }
            row.item = echoText(QT_TRANSLATE_NOOP("EchoExplanation", "%1, octet %2"))
                           .arg(view()->itemName(item))
                           .arg(offset + 1);
            row.bits = {{bit, CellBits}};
            row.report = m_report;
            row.ageMs = std::max<qint64>(0, m_now.toMSecsSinceEpoch() - view()->timeMs);
            amplitude = static_cast<unsigned char>(view()->octets[bit / CellBits]);
            return;
        }
    }

    const ShownEcho &m_echo;
    const QList<ReportView> &m_reports;
    const QDateTime m_now;
    int m_report = 0; // the newest that reaches the cell
    QList<ExplainedValue> m_values;
};

} // namespace

QList<ExplainedValue> explainEcho(const ShownEcho &echo, const QList<ReportView> &reports, const QDateTime &now)
{
    return EchoExplainer(echo, reports, now).run();
}
