#include "raw_view/raw_view_window.h"

#include "engine/engine_host.h"
#include "explanation/report_view.h"
#include "inspection/octet_view.h"
#include "raw_view/raw_export.h"
#include "raw_view/raw_filter_bar.h"
#include "raw_view/record_tree.h"
#include "widgets/figure_font.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int PullPeriodMs = 100;
constexpr int RatePeriodMs = 1000;
constexpr int CellPadding = 8;

QString number(quint64 value)
{
    return QLocale(QLocale::English).toString(value);
}

// The number of the first record from there on that the text occurs in; 0: none.
quint64 firstWith(const std::vector<RawRecord> &records, const QString &text, const BackgroundPass::Token &token)
{
    for (const RawRecord &record : records) {
        if (token.cancelled()) {
            break;
        }
        if (fullText(record).contains(text, Qt::CaseInsensitive)) {
            return record.number;
        }
    }
    return 0;
}

} // namespace

RawViewWindow::RawViewWindow(EngineHost *host, QWidget *parent) : GeometryDialog("RawViewWindow", parent), m_host(host)
{
    setWindowTitle(tr("Raw View"));
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    QWidget *commands = makeBar(); // these in the order of the tab key
    m_filterBar = new RawFilterBar(this);
    makeList();
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(m_list);
    splitter->addWidget(makeDetails());
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    m_state = new QLabel(this);
    m_state->setObjectName("state");
    m_state->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_state->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(commands);
    layout->addWidget(m_filterBar);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_state);
    resize(1060, 720);
    connect(m_filterBar, &RawFilterBar::filterChanged, this, &RawViewWindow::takeFilter);
    // What is looked at stays where it is when the oldest go.
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex &, int first, int last) {
        QScrollBar *bar = m_list->verticalScrollBar();
        bar->setValue(bar->value() - (last - first + 1));
    });
    connect(&m_pullTimer, &QTimer::timeout, this, &RawViewWindow::pull);
    m_rateClock.start();
    showChosen();
    showState();
}

RawViewWindow::~RawViewWindow()
{
    m_list->selectionModel()->disconnect(this); // the model goes first
    setPaused(true); // nobody takes any more
}

// The chosen record stays chosen if it is listed.
void RawViewWindow::takeFilter(const RawFilter &filter)
{
    const QModelIndex before = m_list->currentIndex();
    const quint64 chosen = before.isValid() ? m_model.record(before.row()).number : 0;
    m_model.setFilter(filter);
    const int row = m_model.rowOf(chosen);
    if (row >= 0) {
        m_list->setCurrentIndex(m_model.index(row, 0));
    } else {
        showChosen();
    }
    follow(m_follow->isChecked());
    showState();
}

QPushButton *RawViewWindow::addButton(const QString &name, const QString &text, const QString &toolTip)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

QWidget *RawViewWindow::makeBar()
{
    auto *bar = new QWidget(this);
    m_pause = addButton("pause", tr("&Pause"), tr("List nothing more; what arrives meanwhile is not kept"));
    m_pause->setCheckable(true);
    m_follow = addButton("follow", tr("&Follow"), tr("Keep the newest record in sight"));
    m_follow->setCheckable(true);
    m_follow->setChecked(true);
    m_searchText = new QLineEdit(bar);
    m_searchText->setObjectName("searchText");
    m_searchText->setPlaceholderText(tr("Find a value, an item, a reason"));
    m_searchText->setClearButtonEnabled(true);
    m_searchText->setAccessibleName(m_searchText->placeholderText());
    m_searchText->setToolTip(m_searchText->placeholderText());
    auto *back = addButton("findPrevious", tr("Find Pre&vious"), tr("The next older record with that text"));
    auto *forth = addButton("findNext", tr("Find &Next"), tr("The next newer record with that text"));
    auto *save = addButton("export", tr("&Export..."), tr("Save the listed records to a file"));
    auto *diagnose =
        addButton("diagnose", tr("&Diagnose..."), tr("Say in words what arrives and what is wrong with it"));
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    for (QWidget *widget :
        std::initializer_list<QWidget *>{m_pause, m_follow, m_searchText, back, forth, save, diagnose}) {
        layout->addWidget(widget, widget == m_searchText ? 1 : 0);
    }
    connect(m_pause, &QPushButton::toggled, this, &RawViewWindow::setPaused);
    connect(m_follow, &QPushButton::toggled, this, &RawViewWindow::follow);
    connect(back, &QPushButton::clicked, this, [this] { find(false); });
    connect(forth, &QPushButton::clicked, this, [this] { find(true); });
    connect(m_searchText, &QLineEdit::returnPressed, this, [this] { find(true); });
    connect(save, &QPushButton::clicked, this, &RawViewWindow::exportListed);
    connect(diagnose, &QPushButton::clicked, this, &RawViewWindow::diagnosisRequested);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_searchText,
        [this] { m_searchText->setFocus(); });
    return bar;
}

void RawViewWindow::makeList()
{
    m_list = new QTableView(this);
    m_list->setObjectName("records");
    m_list->setAccessibleName(tr("Records"));
    m_list->setModel(&m_model);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setTabKeyNavigation(false);
    m_list->setShowGrid(false);
    m_list->setWordWrap(false);
    m_list->setCornerButtonEnabled(false);
    m_list->verticalHeader()->hide();
    m_list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_list->verticalHeader()->setDefaultSectionSize(QFontMetrics(figureFont()).height() + 4);
    m_list->horizontalHeader()->setHighlightSections(false);
    m_list->horizontalHeader()->setStretchLastSection(true);
    const QFontMetrics figures(figureFont());
    QHeaderView *header = m_list->horizontalHeader();
    for (int column = 0; column < RawRecordModel::ColumnCount; ++column) {
        const int content = figures.horizontalAdvance(RawRecordModel::widestText(column)) + 2 * CellPadding;
        header->resizeSection(column, std::max(content, header->sectionSizeHint(column)));
    }
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (m_list->currentIndex().isValid()) {
            m_follow->setChecked(false); // it would run out of sight
        }
        showChosen();
    });
    // Later: the bar has moved by then.
    connect(
        m_list->verticalScrollBar(), &QScrollBar::actionTriggered, this,
        [this] {
            const QScrollBar *bar = m_list->verticalScrollBar();
            m_follow->setChecked(bar->value() == bar->maximum());
        },
        Qt::QueuedConnection);
}

QWidget *RawViewWindow::makeDetails()
{
    auto *details = new QWidget(this);
    m_title = new QLabel(details);
    m_title->setObjectName("title");
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // long ones must not widen the window
    m_tree = new RecordTree(details);
    m_octets = new OctetView(details);
    auto *area = new QScrollArea(details);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(m_octets);
    area->setFocusPolicy(Qt::NoFocus); // it follows what is chosen in the tree
    auto *halves = new QSplitter(Qt::Horizontal, details);
    halves->addWidget(m_tree);
    halves->addWidget(area);
    halves->setSizes({560, 440});
    auto *layout = new QVBoxLayout(details);
    layout->setContentsMargins({});
    layout->addWidget(m_title);
    layout->addWidget(halves, 1);
    connect(m_tree, &RecordTree::bitsChosen, this, [this](const BitRange &bits) {
        m_octets->setMarks(bits.count > 0 ? QList<BitRange>{bits} : QList<BitRange>());
    });
    connect(m_octets, &OctetView::bitHovered, m_tree, &RecordTree::selectBit);
    return details;
}

void RawViewWindow::setVisible(bool visible)
{
    GeometryDialog::setVisible(visible);
    listen();
}

void RawViewWindow::changeEvent(QEvent *event)
{
    GeometryDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_list) {
        m_list->viewport()->update();
    }
}

void RawViewWindow::setPaused(bool paused)
{
    m_pause->setChecked(paused);
    listen();
}

// The tap is open while somebody looks.
void RawViewWindow::listen()
{
    const bool wanted = isVisible() && !m_pause->isChecked();
    if (wanted && !m_tap) {
        m_tap = std::make_shared<StreamTap>(StreamTap::Content::Records);
        m_host->openTap(m_tap);
        m_pullTimer.start(PullPeriodMs);
    } else if (!wanted && m_tap) {
        pull();
        m_host->closeTap(m_tap);
        m_tap.reset();
        m_pullTimer.stop();
    }
    showState();
}

void RawViewWindow::pull()
{
    if (!m_tap) {
        return;
    }
    const StreamTap::Taken taken = m_tap->takeAll();
    m_missed += taken.missed;
    for (const auto &batch : taken.batches) {
        m_sinceRate += batch->records.size();
    }
    m_filterBar->noteHeard(taken.batches);
    m_model.append(taken.batches);
    follow(m_follow->isChecked());
    if (const qint64 elapsed = m_rateClock.elapsed(); elapsed >= RatePeriodMs) {
        m_rate = 1000.0 * static_cast<double>(m_sinceRate) / static_cast<double>(elapsed);
        m_sinceRate = 0;
        m_rateClock.restart();
        showState();
    }
}

void RawViewWindow::clear()
{
    m_search.cancel();
    m_filterBar->clear();
    m_model.clear();
    m_missed = 0;
    m_note.clear();
    showChosen();
    showState();
}

void RawViewWindow::follow(bool on)
{
    if (on) {
        m_list->scrollToBottom();
    }
}

void RawViewWindow::showChosen()
{
    const QModelIndex current = m_list->currentIndex();
    if (!current.isValid()) {
        m_title->setText(tr("Choose a record to see what it holds."));
        m_tree->showReport({});
        m_octets->setOctets({});
        m_octets->setMarks({});
        return;
    }
    const RawRecord &record = m_model.record(current.row());
    const ReportView view = viewReport(record.kept());
    QStringList parts = {view.name, sourceText(record), identityText(record), outcomeText(record)};
    parts.removeAll(QString());
    m_title->setText(parts.join(QStringLiteral("  ·  ")));
    m_octets->setOctets(view.octets);
    m_octets->setMarks({});
    m_tree->showReport(view);
}

QString RawViewWindow::stateText() const
{
    QStringList parts;
    if (m_pause->isChecked()) {
        parts += tr("Paused, what arrives is not kept");
    }
    const auto listed = static_cast<quint64>(m_model.rowCount());
    if (m_model.held() == 0) {
        parts += tr("Nothing has arrived yet");
    } else if (listed == m_model.held()) {
        parts += tr("%1 newest records").arg(number(listed));
    } else {
        parts += tr("%1 of the %2 newest records").arg(number(listed), number(m_model.held()));
    }
    if (m_tap) {
        parts += tr("%1 records/s").arg(number(static_cast<quint64>(m_rate + 0.5)));
    }
    if (m_missed > 0) {
        parts += tr("%1 came too fast and were left out").arg(number(m_missed));
    }
    if (!m_note.isEmpty()) {
        parts += m_note;
    }
    return parts.join(QStringLiteral("  ·  "));
}

void RawViewWindow::showState()
{
    m_state->setText(stateText());
}

// From the chosen record on, which is left out, and not around the end.
void RawViewWindow::find(bool forward)
{
    const QString text = m_searchText->text().trimmed();
    if (text.isEmpty()) {
        return;
    }
    std::vector<RawRecord> records = m_model.listed();
    const int row = m_list->currentIndex().isValid() ? m_list->currentIndex().row() : forward ? -1 : m_model.rowCount();
    if (forward) {
        records.erase(records.begin(), records.begin() + row + 1);
    } else {
        records.erase(records.begin() + row, records.end());
        std::reverse(records.begin(), records.end());
    }
    m_note = tr("Searching...");
    showState();
    m_search.start([records = std::move(records), text](
                       const BackgroundPass::Token &token) { return firstWith(records, text, token); },
        [this](quint64 found) { showFound(found); });
}

void RawViewWindow::showFound(quint64 found)
{
    const int row = found > 0 ? m_model.rowOf(found) : -1;
    m_note = row < 0 ? tr("Not found") : QString();
    if (row >= 0) {
        m_list->setCurrentIndex(m_model.index(row, 0));
        m_list->scrollTo(m_model.index(row, 0), QAbstractItemView::PositionAtCenter);
    }
    showState();
}

void RawViewWindow::exportListed()
{
    const std::vector<RawRecord> records = m_model.listed();
    const QString fileName = QFileDialog::getSaveFileName(this, tr("Export Records"), QStringLiteral("records.ndjson"),
        tr("JSON lines (*.ndjson);;Network capture (*.pcap);;Octets as text (*.txt)"));
    if (fileName.isEmpty()) {
        return;
    }
    m_note = tr("Exporting...");
    showState();
    m_export.start([records, fileName](const BackgroundPass::Token &) { return exportRecords(records, fileName); },
        [this, fileName, count = records.size()](const QString &fault) {
            m_note = fault.isEmpty() ? tr("%1 records saved to %2").arg(number(count), fileName)
                                     : tr("%1 cannot be written: %2").arg(fileName, fault);
            showState();
        });
}
