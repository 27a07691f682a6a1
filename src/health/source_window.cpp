#include "health/source_window.h"

#include "health/record_text.h"
#include "widgets/figure_font.h"

#include <QBoxLayout>
#include <QDateTime>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>

#include <utility>

namespace {

constexpr auto GeometryKey = "sourceWindow";
constexpr int OutcomeRole = Qt::UserRole;

QPlainTextEdit *makeReader(QWidget *parent)
{
    auto *reader = new QPlainTextEdit(parent);
    reader->setReadOnly(true);
    reader->setFont(figureFont());
    reader->setLineWrapMode(QPlainTextEdit::NoWrap);
    return reader;
}

void setRow(QTableWidget *table, int row, int outcome, const QStringList &texts)
{
    for (int column = 0; column < texts.size(); ++column) {
        QTableWidgetItem *item = table->item(row, column);
        if (!item) {
            item = new QTableWidgetItem;
            table->setItem(row, column, item);
        }
        item->setText(texts[column]);
        item->setTextAlignment(column == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter);
        item->setData(OutcomeRole, outcome);
    }
}

QString heardText(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC).toString(QStringLiteral("HH:mm:ss"));
}

} // namespace

SourceWindow::SourceWindow(QWidget *parent)
    : GeometryDialog(GeometryKey, parent), m_sentence(new QLabel(this)), m_cure(new QPushButton(this)),
      m_figures(new QLabel(this)), m_outcomes(new QTableWidget(0, 3, this)), m_decoded(makeReader(this)),
      m_octets(makeReader(this))
{
    m_decoded->setObjectName("decoded");
    m_octets->setObjectName("octets");
    m_sentence->setWordWrap(true);
    m_sentence->setTextFormat(Qt::PlainText);
    m_figures->setTextFormat(Qt::PlainText);
    m_figures->setWordWrap(true);
    m_outcomes->setHorizontalHeaderLabels({tr("What became of its records"), tr("Records"), tr("Share")});
    m_outcomes->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_outcomes->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_outcomes->verticalHeader()->hide();
    m_outcomes->setTabKeyNavigation(false);
    m_outcomes->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_outcomes->setSelectionMode(QAbstractItemView::SingleSelection);
    m_outcomes->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto *top = new QHBoxLayout;
    top->addWidget(m_sentence, 1);
    top->addWidget(m_cure);
    auto *examples = new QSplitter(this);
    examples->addWidget(m_decoded);
    examples->addWidget(m_octets);
    auto *halves = new QSplitter(Qt::Vertical, this);
    halves->addWidget(m_outcomes);
    halves->addWidget(examples);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_figures);
    layout->addWidget(halves, 1);
    connect(m_cure, &QPushButton::clicked, this, [this] { Q_EMIT cureRequested(m_source); });
    connect(m_outcomes, &QTableWidget::currentCellChanged, this, [this](int row, int, int before, int) {
        if (row != before) {
            showExample();
        }
    });
    resize(820, 560);
}

void SourceWindow::setSource(const SourceHealth &source)
{
    const bool another = !m_source.isSameAs(source) || m_outcomes->rowCount() == 0;
    m_source = source;
    setWindowTitle(tr("Source %1").arg(SourceJudge::nameOf(source.statistics)));
    m_sentence->setText(source.judgement.sentence);
    m_cure->setText(source.judgement.cureText);
    m_cure->setVisible(source.judgement.cure != SourceJudgement::Cure::None);
    showFigures();
    showOutcomes(another);
}

void SourceWindow::showFigures()
{
    const SourceStatistics &s = m_source.statistics;
    QStringList figures{tr("%1 records, %2 octets").arg(s.records).arg(s.octets),
        tr("%1/s over 10 s, %2/s over 60 s").arg(s.rate10, 0, 'f', 1).arg(s.rate60, 0, 'f', 1),
        tr("heard from %1 to %2").arg(heardText(s.firstArrivalMs), heardText(s.lastArrivalMs))};
    if (!s.edition.isEmpty()) {
        figures += tr("edition %1").arg(QString::fromLatin1(s.edition));
    }
    if (s.delay.samples > 0) {
        figures += tr("delay %1 s, 95 % within %2 s, shortest %3 s")
                       .arg(s.delay.median, 0, 'f', 2)
                       .arg(s.delay.percentile95, 0, 'f', 2)
                       .arg(s.delay.smallest, 0, 'f', 2);
    }
    if (s.antenna.period > 0.0) {
        figures += tr("a revolution takes %1 s ± %2 s")
                       .arg(s.antenna.period, 0, 'f', 3)
                       .arg(s.antenna.periodDeviation, 0, 'f', 3);
    }
    if (s.antenna.missingSectors > 0) {
        figures += tr("%1 sectors missing").arg(s.antenna.missingSectors);
    }
    m_figures->setText(figures.join(QStringLiteral("; ")));
}

void SourceWindow::showOutcomes(bool another)
{
    const SourceStatistics &s = m_source.statistics;
    int row = 0;
    for (int i = 0; i < ReportOutcomeCount; ++i) {
        const auto outcome = static_cast<ReportOutcome>(i);
        if (s.outcome(outcome) == 0) {
            continue;
        }
        if (row >= m_outcomes->rowCount()) {
            m_outcomes->insertRow(row);
        }
        const double share = 100.0 * static_cast<double>(s.outcome(outcome)) / static_cast<double>(s.records);
        setRow(m_outcomes, row++, i,
            {reportOutcomeText(outcome), QString::number(s.outcome(outcome)), tr("%1 %").arg(share, 0, 'f', 1)});
    }
    m_outcomes->setRowCount(row);
    if (another || m_outcomes->currentRow() < 0) {
        const int reason = m_source.judgement.reason ? static_cast<int>(*m_source.judgement.reason) : -1;
        int chosen = 0;
        for (int i = 0; i < row; ++i) {
            chosen = m_outcomes->item(i, 0)->data(OutcomeRole).toInt() == reason ? i : chosen;
        }
        m_outcomes->setCurrentCell(chosen, 0);
        showExample();
    }
}

void SourceWindow::showExample()
{
    const QTableWidgetItem *item = m_outcomes->item(m_outcomes->currentRow(), 0);
    const ReportExample example = item
        ? m_source.statistics.examples[static_cast<std::size_t>(item->data(OutcomeRole).toInt())]
        : ReportExample();
    m_octets->setVisible(!example.octets.isEmpty());
    if (example.octets.isEmpty()) {
        m_decoded->setPlainText(tr("No example is kept."));
        m_octets->clear();
        return;
    }
    m_decoded->setPlainText(RecordText::decoded(m_source.statistics, example));
    m_octets->setPlainText(RecordText::octets(example));
}
