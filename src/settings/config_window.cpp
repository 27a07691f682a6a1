#include "settings/config_window.h"

#include "input_probe/found_settings.h"
#include "settings/config_defaults.h"
#include "settings/config_search.h"
#include "settings/display_config_page.h"
#include "settings/input_config_page.h"
#include "settings/map_config_page.h"
#include "settings/processor_config_page.h"
#include "settings/sensor_config_page.h"
#include "settings/tile_config_page.h"
#include "settings/track_config_page.h"
#include "settings/video_config_page.h"
#include "settings/weather_config_page.h"
#include "widgets/field_form.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int UsualColumns = 110; // of the window, in characters
constexpr int UsualLines = 36;

// A page that scrolls. It is never narrower than its rows, as far as the screen goes.
class PageArea final : public QScrollArea {
public:
    PageArea(ConfigPage *page, QWidget *parent) : QScrollArea(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus); // it follows the fields
        setWidgetResizable(true);
        setWidget(page);
    }

    QSize minimumSizeHint() const override
    {
        const int wanted = widget()->minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        const int most = screen()->availableSize().width() * 7 / 10;
        return {std::min(wanted, most), QScrollArea::minimumSizeHint().height()};
    }

protected:
    // A row that appears may be wider than those that were there.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        }
        return QScrollArea::eventFilter(watched, event);
    }
};

} // namespace

ConfigWindow::ConfigWindow(const Config &config, SensorManager *sensors, QWidget *parent)
    : GeometryDialog(QStringLiteral("ConfigWindow"), parent), m_config(config), m_base(config),
      m_search(new ConfigSearch(this)), m_pageList(new QListWidget(this)), m_stack(new QStackedWidget(this)),
      m_changes(new QLabel(this)), m_saveProblem(new QLabel(this)), m_edited(new QTimer(this))
{
    setWindowTitle(tr("Settings"));
    setModal(true);
    addPages(sensors);
    m_untouched = m_applied = entered();
    m_search->setPages(m_pages);
    m_defaults = new ConfigDefaults([this] { return entered(); }, this);
    layOut();
    connect(m_pageList, &QListWidget::currentRowChanged, this, &ConfigWindow::showPage);
    connect(m_search, &ConfigSearch::searched, this, &ConfigWindow::showHits);
    connect(m_search, &ConfigSearch::reached, this, &ConfigWindow::goTo);
    m_edited->setSingleShot(true);
    m_edited->setInterval(0);
    connect(m_edited, &QTimer::timeout, this, &ConfigWindow::markChanges);
    m_pageList->setCurrentRow(0);
    m_pageList->setFocus();
    markChanges();
    fitPageList();
    resize(std::max(fontMetrics().averageCharWidth() * UsualColumns, widthOfAllPages()),
        fontMetrics().height() * UsualLines);
}

void ConfigWindow::addPages(SensorManager *sensors)
{
    auto *display = new DisplayConfigPage(this);
    connect(display, &DisplayConfigPage::themeChosen, this, &ConfigWindow::takeTheme);
    connect(display, &DisplayConfigPage::restartWanted, this, &ConfigWindow::applyForRestart);
    addPage(display);
    m_input = new InputConfigPage(sensors, this);
    m_input->offerUse();
    connect(m_input, &InputConfigPage::useWanted, this, &ConfigWindow::takeFound);
    addPage(m_input);
    addPage(new ProcessorConfigPage(this));
    addPage(new SensorConfigPage(sensors, this));
    addPage(new MapConfigPage(this));
    m_tiles = new TileConfigPage(this);
    addPage(m_tiles);
    addPage(new WeatherConfigPage(this));
    addPage(new VideoConfigPage(this));
    addPage(new TrackConfigPage(this));
}

void ConfigWindow::addPage(ConfigPage *page)
{
    page->load(m_config);
    page->finish();
    connect(page, &ConfigPage::edited, m_edited, qOverload<>(&QTimer::start));
    connect(page, &ConfigPage::menuRequested, this, [this, page](QWidget *field, const QPoint &globalPosition) {
        m_defaults->showMenu(page, field, globalPosition);
    });
    m_pages.append(page);
    m_pageList->addItem(page->title());
    m_stack->addWidget(new PageArea(page, m_stack));
}

void ConfigWindow::layOut()
{
    m_pageList->setObjectName(QStringLiteral("pageList"));
    m_pageList->setAccessibleName(tr("Pages"));
    m_pageList->setSpacing(2);
    m_pageList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_changes->setObjectName(QStringLiteral("changes"));
    m_saveProblem->setObjectName(QStringLiteral("saveProblem"));
    m_saveProblem->setWordWrap(true);
    m_saveProblem->hide();
    auto *side = new QVBoxLayout;
    side->addWidget(m_search);
    side->addWidget(m_pageList, 1);
    auto *panes = new QHBoxLayout;
    panes->addLayout(side);
    panes->addWidget(m_stack, 1);
    auto *foot = new QHBoxLayout;
    foot->addWidget(m_defaults->button());
    foot->addWidget(m_changes, 1);
    foot->addWidget(makeButtons());
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(panes, 1);
    layout->addWidget(m_saveProblem);
    layout->addLayout(foot);
}

// At which no page has to be scrolled sideways, as far as the screen is that wide.
int ConfigWindow::widthOfAllPages() const
{
    int widest = 0;
    for (const ConfigPage *page : m_pages) {
        widest = std::max(widest, page->minimumSizeHint().width());
    }
    const int around = m_pageList->width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent)
        + 6 * style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    return std::min(widest + around, screen()->availableGeometry().width());
}

QDialogButtonBox *ConfigWindow::makeButtons()
{
    auto *buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &ConfigWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ConfigWindow::reject);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &ConfigWindow::apply);
    return buttons;
}

void ConfigWindow::changeEvent(QEvent *event)
{
    GeometryDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fitPageList();
    }
}

// The list is as wide as its titles, with room for a mark and the number of hits.
void ConfigWindow::fitPageList()
{
    int widest = 0;
    for (const ConfigPage *page : std::as_const(m_pages)) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(page->title() + QStringLiteral(" • (99) M")));
    }
    widest = std::max(widest, m_search->minimumSizeHint().width());
    m_pageList->setFixedWidth(widest + m_pageList->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    m_search->setFixedWidth(m_pageList->width());
}

void ConfigWindow::showPage(int row)
{
    if (row >= 0) {
        m_stack->setCurrentIndex(row);
        m_defaults->setPage(m_pages.at(row));
    }
}

void ConfigWindow::goTo(ConfigPage *page, QWidget *field)
{
    const auto row = static_cast<int>(m_pages.indexOf(page));
    m_pageList->setCurrentRow(row);
    auto *area = static_cast<QScrollArea *>(m_stack->widget(row));
    // What has just been brought into sight has no place yet.
    m_stack->layout()->invalidate();
    m_stack->layout()->activate();
    area->widget()->layout()->activate();
    area->ensureWidgetVisible(field);
}

void ConfigWindow::showHits()
{
    int first = -1;
    for (int row = 0; row < m_pages.size(); ++row) {
        const bool shown = !m_search->active() || m_search->hits(m_pages.at(row)) > 0;
        m_pageList->item(row)->setHidden(!shown);
        first = shown && first < 0 ? row : first;
    }
    if (first >= 0 && m_pageList->currentItem()->isHidden()) {
        m_pageList->setCurrentRow(first);
    }
    labelPages();
}

void ConfigWindow::markChanges()
{
    const Config now = entered();
    m_changed.clear();
    for (const Setting &setting : Setting::all()) {
        if (!setting.same(now, m_applied)) {
            m_changed.insert(setting.key());
        }
    }
    for (ConfigPage *page : std::as_const(m_pages)) {
        page->markChanged(m_changed);
    }
    const auto count = static_cast<int>(m_changed.size());
    m_changes->setText(count > 0 ? tr("%n setting(s) changed", nullptr, count) : QString());
    m_search->setDiffering(m_defaults->differing(now));
    labelPages();
}

void ConfigWindow::labelPages()
{
    for (int row = 0; row < m_pages.size(); ++row) {
        const ConfigPage *page = m_pages.at(row);
        const QList<const Setting *> &settings = page->settings();
        const bool changed = std::any_of(settings.begin(), settings.end(),
            [this](const Setting *setting) { return m_changed.contains(setting->key()); });
        const int hits = m_search->hits(page);
        QString text = page->title();
        text += changed ? QStringLiteral(" •") : QString();
        text += hits > 0 ? QStringLiteral(" (%1)").arg(hits) : QString();
        m_pageList->item(row)->setText(text);
        m_pageList->item(row)->setData(
            Qt::AccessibleTextRole, changed ? tr("%1, changed").arg(page->title()) : page->title());
    }
}

void ConfigWindow::setConsent(std::function<bool(const Config &edited)> consent)
{
    m_consent = std::move(consent);
}

bool ConfigWindow::apply()
{
    qsizetype refused = -1;
    for (qsizetype i = m_pages.size() - 1; i >= 0; --i) {
        // What is locked cannot be put right either.
        if (!m_pages.at(i)->hasLockedRows() && !m_pages.at(i)->validate()) {
            refused = i;
        }
    }
    if (refused >= 0) {
        showRefused(refused);
        return false;
    }
    const Config now = entered();
    Config edited = m_base;
    for (const Setting &setting : Setting::all()) {
        if (!setting.same(now, m_untouched)) {
            setting.copy(now, edited);
        }
    }
    if (m_consent && !m_consent(edited)) {
        return false;
    }
    m_config = m_base = edited;
    m_untouched = m_applied = now;
    m_saveProblem->hide();
    markChanges();
    Q_EMIT configApplied(m_config);
    return true;
}

// Not where the settings could not be saved: the next start would not know them.
void ConfigWindow::applyForRestart()
{
    accept();
    if (result() == Accepted) {
        Q_EMIT restartWanted();
    }
}

void ConfigWindow::takeTheme(const Theme &theme)
{
    theme.applyTo(m_base);
    for (ConfigPage *page : std::as_const(m_pages)) {
        page->showSettings(m_base, [](const Setting &setting) { return setting.themed(); });
    }
    // What the fields show of it counts as untouched: the theme's own values go beyond what some can show.
    const Config shown = entered();
    for (const Setting &setting : Setting::all()) {
        if (setting.themed()) {
            setting.copy(shown, m_untouched);
        }
    }
}

void ConfigWindow::setEngine(EngineHost *engine)
{
    m_input->setEngine(engine);
}

// The operator sees it on its pages before he applies it.
void ConfigWindow::takeFound(const InputProposal &found)
{
    Config config = entered();
    applyFound(found, &config);
    for (ConfigPage *page : std::as_const(m_pages)) {
        if (qobject_cast<ProcessorConfigPage *>(page)) {
            page->load(config);
        } else if (qobject_cast<SensorConfigPage *>(page)) {
            page->load(config);
            m_pageList->setCurrentRow(static_cast<int>(m_pages.indexOf(page)));
        }
    }
}

Config ConfigWindow::entered() const
{
    Config config = m_base;
    for (const ConfigPage *page : m_pages) {
        page->store(&config);
    }
    return config;
}

void ConfigWindow::barTileServices()
{
    m_tiles->barServices();
}

void ConfigWindow::setInputRunning(bool running)
{
    for (ConfigPage *page : std::as_const(m_pages)) {
        page->setInputRunning(running);
    }
}

void ConfigWindow::showSaveProblem(const QString &problem)
{
    m_saveProblem->setText(tr("%1. The settings hold until the program ends.").arg(problem));
    m_saveProblem->show();
}

void ConfigWindow::showRefused(qsizetype page)
{
    m_search->end();
    // The page on screen is enough when it has a note itself: the operator is looking at it.
    const int current = m_pageList->currentRow();
    const qsizetype shown = m_pages.at(current)->form()->firstWithNote() ? current : page;
    m_pageList->setCurrentRow(static_cast<int>(shown));
    if (QWidget *field = m_pages.at(shown)->form()->firstWithNote()) {
        field->setFocus(Qt::OtherFocusReason);
    }
}

void ConfigWindow::accept()
{
    if (apply() && m_saveProblem->isHidden()) {
        QDialog::accept();
    }
}
