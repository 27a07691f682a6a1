#include "settings/config_window.h"

#include "input_probe/found_settings.h"
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
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

ConfigWindow::ConfigWindow(const Config &config, SensorManager *sensors, QWidget *parent)
    : GeometryDialog(QStringLiteral("ConfigWindow"), parent), m_config(config), m_base(config),
      m_pageList(new QListWidget(this)), m_stack(new QStackedWidget(this)), m_saveProblem(new QLabel(this))
{
    setWindowTitle(tr("Settings"));
    setModal(true);
    m_pageList->setSpacing(2);
    auto *display = new DisplayConfigPage(this);
    connect(display, &DisplayConfigPage::themeChosen, this, &ConfigWindow::takeTheme);
    addPage(display);
    m_input = new InputConfigPage(sensors, this);
    m_input->offerUse();
    connect(m_input, &InputConfigPage::useWanted, this, &ConfigWindow::takeFound);
    addPage(m_input);
    addPage(new ProcessorConfigPage(this));
    addPage(new SensorConfigPage(sensors, this));
    addPage(new MapConfigPage(this));
    addPage(new TileConfigPage(this));
    addPage(new WeatherConfigPage(this));
    addPage(new VideoConfigPage(this));
    addPage(new TrackConfigPage(this));
    m_untouched = entered();
    m_pageList->setFixedWidth(m_pageList->sizeHintForColumn(0) + 40);
    connect(m_pageList, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
    m_pageList->setCurrentRow(0);

    auto *buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &ConfigWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ConfigWindow::reject);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &ConfigWindow::apply);

    m_saveProblem->setObjectName(QStringLiteral("saveProblem"));
    m_saveProblem->setWordWrap(true);
    m_saveProblem->hide();
    auto *panes = new QHBoxLayout;
    panes->addWidget(m_pageList);
    panes->addWidget(m_stack, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(panes, 1);
    layout->addWidget(m_saveProblem);
    layout->addWidget(buttons);
    resize(720, 560);
}

void ConfigWindow::addPage(ConfigPage *page)
{
    page->load(m_config);
    m_pages.append(page);
    m_pageList->addItem(page->title());
    m_stack->addWidget(makeScrollable(page));
}

QWidget *ConfigWindow::makeScrollable(ConfigPage *page)
{
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(page);
    area->setMinimumWidth(page->minimumSizeHint().width() + 24);
    return area;
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
        if (m_pages.at(i)->form()->isEnabled() && !m_pages.at(i)->validate()) {
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
    m_untouched = now;
    m_saveProblem->hide();
    Q_EMIT configApplied(m_config);
    return true;
}

void ConfigWindow::takeTheme(const Theme &theme)
{
    theme.applyTo(m_base);
    for (ConfigPage *page : std::as_const(m_pages)) {
        page->loadLook(m_base);
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
