#include "inspection/inspection_pane.h"

#include "explanation/track_value_text.h"
#include "inspection/octet_view.h"
#include "inspection/report_table.h"
#include "widgets/quiet_hint.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QString longestValueName()
{
    QString longest;
    for (int value = 0; value <= static_cast<int>(TrackValue::Spi); ++value) {
        const QString name = trackValueName(static_cast<TrackValue>(value));
        longest = name.size() > longest.size() ? name : longest;
    }
    return longest;
}

constexpr int Margin = 4;

// Pixels, at first.
constexpr int RuleLines = 2; // that the longest rule takes
constexpr int ValuesWidth = 760;
constexpr int ReportWidth = 290;

QString ageText(qint64 ms)
{
    return QString("%1 s").arg(static_cast<double>(ms) / 1000.0, 0, 'f', 1);
}

QWidget *column(std::initializer_list<QWidget *> parts, QWidget *parent)
{
    auto *holder = new QWidget(parent);
    auto *layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (QWidget *part : parts) {
        layout->addWidget(part);
    }
    return holder;
}

} // namespace

InspectionPane::InspectionPane(QWidget *parent) : QWidget(parent)
{
    m_stack = new QStackedWidget(this);
    m_hint = makeQuietHint({}, m_stack);
    m_hint->setObjectName("inspectionHint");
    m_stack->addWidget(m_hint);
    m_stack->addWidget(makeExplanation());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(m_stack);
}

QWidget *InspectionPane::makeExplanation()
{
    m_title = new QLabel(this);
    m_title->setTextFormat(Qt::PlainText);
    auto *copyButton = new QToolButton(this);
    copyButton->setObjectName("copyExplanation");
    copyButton->setText(tr("Copy"));
    copyButton->setPopupMode(QToolButton::InstantPopup);
    copyButton->setMenu(makeCopyMenu());
    auto *head = new QHBoxLayout;
    head->addWidget(m_title, 1);
    head->addWidget(copyButton);
    m_values = new ReportTable({tr("Value"), tr("Shown"), tr("From"), tr("Age"), tr("Rule")},
        {longestValueName(), "595959.99N1791717.00E", "I048/040/RHO, THETA", "99.9 s", ""}, this);
    m_values->setObjectName("explainedValues");
    m_values->setAccessibleName(tr("Values shown"));
    m_values->setSelectionMode(QAbstractItemView::NoSelection);
    connect(m_values, &ReportTable::rowPointed, this, [this](int row) { pointAt(Place::Values, row); });
    m_rule = new QLabel(this);
    m_rule->setObjectName("rule");
    m_rule->setTextFormat(Qt::PlainText);
    m_rule->setWordWrap(true);
    m_rule->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_rule->setMinimumHeight(RuleLines * m_rule->fontMetrics().lineSpacing()); // nothing jumps
    auto *left = column({}, this);
    static_cast<QVBoxLayout *>(left->layout())->addLayout(head);
    left->layout()->addWidget(m_values);
    left->layout()->addWidget(m_rule);
    auto *splitter = new QSplitter(Qt::Horizontal, this);
    splitter->addWidget(left);
    splitter->addWidget(makeReportSide());
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({ValuesWidth, m_reports->fullWidth() + ReportWidth});
    return splitter;
}

QWidget *InspectionPane::makeReportSide()
{
    m_reports = new ReportTable({tr("Arrived"), tr("Age"), tr("Report")}, {"23:59:59.999", "99.9 s", "CAT048"}, this);
    m_reports->setObjectName("keptReports");
    m_reports->setAccessibleName(tr("Last reports"));
    connect(m_reports, &QTableWidget::currentCellChanged, this, [this](int row) { chooseReport(row); });
    m_reportTitle = new QLabel(this);
    m_reportTitle->setTextFormat(Qt::PlainText);
    m_octets = new OctetView(this);
    connect(m_octets, &OctetView::bitHovered, this, [this](int bit) { pointAt(Place::Octets, bit); });
    m_octetScroll = new QScrollArea(this);
    m_octetScroll->setWidgetResizable(true);
    m_octetScroll->setFrameShape(QFrame::NoFrame);
    m_octetScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_octetScroll->setWidget(m_octets);
    m_fields =
        new ReportTable({tr("Item"), tr("Value"), tr("Meaning")}, {"I048/070/MODE3A", "359.1234567 °", ""}, this);
    m_fields->setObjectName("reportFields");
    m_fields->setAccessibleName(tr("Items of the report"));
    m_fields->setSelectionMode(QAbstractItemView::NoSelection);
    connect(m_fields, &ReportTable::rowPointed, this, [this](int row) { pointAt(Place::Fields, row); });
    auto *report = new QSplitter(Qt::Vertical, this);
    report->addWidget(column({m_reportTitle, m_octetScroll}, this));
    report->addWidget(m_fields);
    auto *side = new QSplitter(Qt::Horizontal, this);
    side->addWidget(m_reports);
    side->addWidget(report);
    side->setStretchFactor(1, 1);
    side->setSizes({m_reports->fullWidth(), ReportWidth});
    return side;
}

QMenu *InspectionPane::makeCopyMenu()
{
    auto *menu = new QMenu(this);
    menu->addAction(tr("Values"), this, [this] { copy(explanationText(m_explained)); });
    menu->addSeparator();
    const auto ofReport = [this](const auto &write) {
        const int report = shownReport();
        if (report >= 0) {
            copy(write(report));
        }
    };
    menu->addAction(tr("Report as Text"), this,
        [this, ofReport] { ofReport([this](int report) { return reportText(m_views[report]); }); });
    menu->addAction(tr("Report as NDJSON"), this,
        [this, ofReport] { ofReport([this](int report) { return QString::fromUtf8(reportJson(m_kept[report])); }); });
    menu->addAction(tr("Report as Hexadecimal"), this,
        [this, ofReport] { ofReport([this](int report) { return reportHex(m_views[report]); }); });
    menu->addSeparator();
    menu->addAction(tr("All Reports as NDJSON"), this, [this] { copy(allAsJson()); });
    return menu;
}

void InspectionPane::copy(const QString &text) const
{
    QGuiApplication::clipboard()->setText(text);
}

// In the order of their arrival, as a recording would have them.
QString InspectionPane::allAsJson() const
{
    QByteArray lines;
    std::for_each(
        m_kept.crbegin(), m_kept.crend(), [&lines](const KeptReport &report) { lines += reportJson(report); });
    return QString::fromUtf8(lines);
}

void InspectionPane::showHint(const QString &text)
{
    m_hint->setText(text);
    m_stack->setCurrentIndex(0);
    m_kept.clear();
    m_views.clear();
    m_explained.clear();
    m_chosen.reset();
}

void InspectionPane::explain(const QString &name, const QList<ExplainedValue> &values, const QList<KeptReport> &reports,
    const QList<ReportView> &views, const QDateTime &now, const QStringList &kinds)
{
    keepChoice(reports);
    m_explained = values;
    m_kept = reports;
    m_views = views;
    m_kinds = kinds;
    m_title->setText(name);
    QList<QStringList> rows;
    for (const ExplainedValue &value : values) {
        rows.append({value.name, value.value, value.item, value.ageMs ? ageText(*value.ageMs) : QString(), value.rule});
    }
    m_values->setRows(rows);
    fillReports(now);
    markPointed();
    m_stack->setCurrentIndex(1);
}

// Newer reports move it down the list; when it has gone the newest is shown again.
void InspectionPane::keepChoice(const QList<KeptReport> &reports)
{
    if (!m_chosen) {
        return;
    }
    const KeptReport before = m_kept.value(*m_chosen);
    const auto same = std::find_if(reports.begin(), reports.end(), [&before](const KeptReport &report) {
        return report.timeMs == before.timeMs && report.octets == before.octets;
    });
    m_chosen = same == reports.end() ? std::nullopt : std::optional(static_cast<int>(same - reports.begin()));
}

void InspectionPane::fillReports(const QDateTime &now)
{
    QList<QStringList> rows;
    for (const ReportView &view : m_views) {
        const auto time = QDateTime::fromMSecsSinceEpoch(view.timeMs, Qt::UTC);
        const qint64 age = std::max<qint64>(0, now.toMSecsSinceEpoch() - view.timeMs);
        rows.append({time.toString("HH:mm:ss.zzz"), ageText(age), view.name.section(',', 0, 0)});
    }
    const QSignalBlocker quiet(m_reports); // the program moves the choice, not the operator
    m_reports->setRows(rows);
    if (m_chosen) {
        m_reports->setCurrentCell(*m_chosen, 0);
    } else {
        m_reports->clearSelection();
        m_reports->setCurrentItem(nullptr);
    }
}

int InspectionPane::shownReport() const
{
    return m_views.isEmpty() ? -1 : m_chosen.value_or(0);
}

void InspectionPane::chooseReport(int row)
{
    m_chosen = row >= 0 && row < m_views.size() ? std::optional(row) : std::nullopt;
    markPointed();
}

void InspectionPane::showReport(int report)
{
    m_shown = report;
    const ReportView view = m_views.value(report);
    m_octets->setOctets(view.octets);
    // A row would be cut else, as nothing scrolls to the side.
    m_octetScroll->setMinimumWidth(
        m_octets->minimumSizeHint().width() + m_octetScroll->verticalScrollBar()->sizeHint().width());
    m_reportTitle->setText(report < 0 ? tr("No report is kept")
                                      : tr("%1: %2, %3 octets").arg(kindOf(report), view.name).arg(view.octets.size()));
    QList<QStringList> rows;
    for (const ReportField &field : view.fields) {
        rows.append({field.name, field.text(), field.title});
    }
    m_fields->setRows(rows);
}

QString InspectionPane::kindOf(int report) const
{
    if (report < m_kinds.size()) {
        return m_kinds[report];
    }
    return report == 0 ? tr("Newest report") : tr("Report %1 before the newest").arg(report);
}

void InspectionPane::clearMarks()
{
    m_octets->setMarks({});
    m_values->setLitRows({});
    m_fields->setLitRows({});
    m_rule->clear();
    showReport(shownReport());
}

// In sight, wherever they stand among the octets: the pointer is elsewhere.
void InspectionPane::markBits(const QList<BitRange> &bits)
{
    m_octets->setMarks(bits);
    if (!bits.isEmpty()) {
        const QPoint place = m_octets->placeOfBit(bits.first().first).center().toPoint();
        m_octetScroll->ensureVisible(place.x(), place.y());
    }
}

void InspectionPane::pointAt(Place place, int index)
{
    m_pointedPlace = index < 0 ? Place::Nowhere : place;
    m_pointedIndex = index;
    markPointed();
}

// Also when the reports have moved on under a pointer that rests.
void InspectionPane::markPointed()
{
    clearMarks();
    switch (m_pointedPlace) {
    case Place::Nowhere:
        break;
    case Place::Values:
        return markValue(m_pointedIndex);
    case Place::Fields:
        return markField(m_pointedIndex);
    case Place::Octets:
        return markBit(m_pointedIndex);
    }
}

// What was taken from another report than the one that is shown brings that one up.
void InspectionPane::markValue(int row)
{
    const ExplainedValue value = m_explained.value(row);
    m_rule->setText(value.rule);
    if (value.report < 0) {
        return;
    }
    showReport(value.report);
    markBits(value.bits);
    QList<int> lit;
    for (const BitRange &bits : value.bits) {
        lit.append(m_views[value.report].fieldAt(bits.first));
    }
    m_fields->setLitRows(lit);
}

void InspectionPane::markField(int row)
{
    const ReportView view = m_views.value(m_shown);
    if (row < view.fields.size()) {
        markBits({view.fields[row].bits});
        lightValuesAt(view.fields[row].bits.first);
    }
}

void InspectionPane::markBit(int bit)
{
    const ReportView view = m_views.value(m_shown);
    const int field = view.fieldAt(bit);
    if (field >= 0) {
        m_octets->setMarks({view.fields[field].bits});
        m_fields->setLitRows({field});
        lightValuesAt(bit);
    }
}

void InspectionPane::lightValuesAt(int bit)
{
    QList<int> lit;
    for (int row = 0; row < m_explained.size(); ++row) {
        const ExplainedValue &value = m_explained[row];
        const bool holds = std::any_of(
            value.bits.begin(), value.bits.end(), [bit](const BitRange &bits) { return bits.contains(bit); });
        if (holds && value.report == m_shown) {
            lit.append(row);
        }
    }
    m_values->setLitRows(lit);
}
