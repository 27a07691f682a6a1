#include "health/health_pane.h"

#include "health/input_health.h"
#include "health/rate_curve_delegate.h"
#include "widgets/arrow_keys.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int Margin = 4; // pixels
constexpr int MostSentences = 3; // the others are in the tooltip: the table needs the room
} // namespace

HealthPane::HealthPane(const InputHealth *health, QWidget *parent)
    : QWidget(parent), m_health(health), m_model(new SourceTableModel(this)), m_remarks(new QLabel(this)),
      m_diagnosis(new QLabel(this)), m_table(new QTableView(this))
{
    makeTable();
    m_remarks->setTextFormat(Qt::PlainText);
    m_remarks->setWordWrap(true);
    m_remarks->setMargin(Margin);
    m_diagnosis->setObjectName("diagnosis");
    m_diagnosis->setTextFormat(Qt::PlainText);
    m_diagnosis->setWordWrap(true);
    m_diagnosis->setMargin(Margin);
    m_diagnosis->hide();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_remarks);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_diagnosis);
    refresh();
}

void HealthPane::makeTable()
{
    m_table->setObjectName("sources");
    m_table->setAccessibleName(tr("Sources"));
    m_table->setModel(m_model);
    m_table->setItemDelegateForColumn(SourceTableModel::Curve, new RateCurveDelegate(m_table));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    new ArrowKeys(m_table);
    m_table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // what is said over it goes first
    m_table->setShowGrid(false);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    QHeaderView *header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    fitColumns();
    connect(m_table, &QTableView::clicked, this, [this](const QModelIndex &index) { open(index.row()); });
    connect(m_table, &QTableView::activated, this, [this](const QModelIndex &index) { open(index.row()); });
}

void HealthPane::fitColumns()
{
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 6);
    const QFontMetrics metrics = m_table->fontMetrics();
    const auto setWidth = [&](int column, const QString &widest) {
        const int title = m_table->horizontalHeader()->sectionSizeHint(column);
        m_table->setColumnWidth(column, std::max(title, metrics.horizontalAdvance(widest) + 16));
    };
    setWidth(SourceTableModel::Source, QCoreApplication::translate("SourceJudge", "no SAC/SIC") + " CAT240 oo");
    setWidth(SourceTableModel::Rate, "1000.0/s");
    setWidth(SourceTableModel::Curve, SourceTableModel::tr("Last 10 minutes"));
    setWidth(SourceTableModel::Delay, "-10.0 s");
    setWidth(SourceTableModel::Shown, SourceTableModel::tr("Used") + " 1");
    setWidth(SourceTableModel::State, QCoreApplication::translate("SourceJudge", "silent since %1").arg("00:00:00"));
    setWidth(SourceTableModel::ColumnCount - 1, {}); // takes the rest, where there is any
}

void HealthPane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fitColumns();
    }
}

void HealthPane::refresh()
{
    const int selected = m_table->currentIndex().row();
    const SourceHealth before = selected >= 0 ? m_model->source(selected) : SourceHealth();
    m_model->setSources(m_health->sources());
    if (selected >= 0 && m_table->currentIndex().row() != selected) {
        m_table->selectRow(m_model->rowOf(before));
    }
    m_remarks->setText(m_health->remarks());
    m_remarks->setVisible(!m_remarks->text().isEmpty());
    if (m_window) {
        const int shown = m_model->rowOf(m_window->source());
        if (shown >= 0) {
            m_window->setSource(m_model->source(shown));
        }
    }
}

void HealthPane::setDiagnosis(const QStringList &sentences)
{
    m_diagnosis->setText(sentences.mid(0, MostSentences).join('\n'));
    m_diagnosis->setToolTip(sentences.join('\n'));
    m_diagnosis->setVisible(!sentences.isEmpty());
}

void HealthPane::open(int row)
{
    if (!m_window) {
        m_window = new SourceWindow(window());
        m_window->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_window, &SourceWindow::cureRequested, this, &HealthPane::cureRequested);
    }
    m_window->setSource(m_model->source(row));
    m_window->show();
    m_window->raise();
}
