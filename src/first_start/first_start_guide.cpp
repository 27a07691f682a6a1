#include "first_start/first_start_guide.h"

#include "app/theme_library.h"
#include "first_start/welcome_page.h"
#include "input_probe/found_settings.h"
#include "input_probe/probe_text.h"
#include "recognition/input_proposal.h"
#include "settings/input_config_page.h"
#include "settings/sensor_config_page.h"
#include "widgets/coordinate_edit.h"
#include "widgets/field_form.h"
#include "widgets/text_colors.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize UsualSize(40, 39); // lines of text: a sensor, and what was found, without scrolling
constexpr double StepHeadingScale = 1.3; // of the interface's font

QLabel *makeNote(QWidget *parent)
{
    auto *note = new QLabel(parent);
    note->setWordWrap(true);
    return note;
}

// Large text may need more room than there is.
QScrollArea *makeScrollable(QWidget *page, QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it follows the fields
    area->setWidgetResizable(true);
    area->setWidget(page);
    return area;
}

} // namespace

FirstStartGuide::FirstStartGuide(Settings settings, SensorManager *sensors, EngineHost *engine, QWidget *parent)
    : GeometryDialog(QStringLiteral("FirstStartGuide"), parent), m_settings(std::move(settings)),
      m_steps(new QStackedWidget(this)), m_welcome(new WelcomePage(this)),
      m_input(new InputConfigPage(sensors, this, InputConfigPage::Offer::LiveInputs)),
      m_sensor(new SensorConfigPage(sensors, this)), m_found(makeNote(this)), m_problem(makeNote(this))
{
    setWindowTitle(tr("Getting Started"));
    setModal(true);
    m_input->setEngine(engine);
    m_found->setObjectName(QStringLiteral("found"));
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->hide();
    auto *note = makeNote(this);
    note->setText(tr("What arrives there is told below, before anything is set."));
    m_steps->addWidget(makeScrollable(m_welcome, this));
    m_steps->addWidget(makeStep(tr("Where do the data come from?"), note, m_input));
    m_steps->addWidget(makeStep(tr("Which sensor is it?"), m_found, m_sensor));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_steps, 1);
    layout->addWidget(m_problem);
    makeButtons();
    connectWelcome();
    goTo(Welcome);
    const QSize wanted = UsualSize * fontMetrics().height();
    resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

// Beside the box, which shows all its buttons whenever it gets another one.
void FirstStartGuide::makeButtons()
{
    m_back = new QPushButton(tr("Bac&k"), this);
    m_back->setObjectName(QStringLiteral("back"));
    m_next = new QPushButton(tr("&Next"), this);
    m_next->setObjectName(QStringLiteral("next"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, Qt::Horizontal, this);
    connect(m_back, &QPushButton::clicked, this, &FirstStartGuide::goBack);
    connect(m_next, &QPushButton::clicked, this, &FirstStartGuide::advance);
    connect(buttons, &QDialogButtonBox::rejected, this, &FirstStartGuide::reject);
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(m_back);
    row->addWidget(m_next);
    row->addWidget(buttons);
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

void FirstStartGuide::connectWelcome()
{
    const auto leaveTo = [this](void (FirstStartGuide::*wanted)()) {
        return [this, wanted] {
            const QString theme = m_welcome->theme();
            accept();
            Q_EMIT themeChosen(theme);
            Q_EMIT(this->*wanted)();
        };
    };
    connect(m_welcome, &WelcomePage::demoChosen, this, leaveTo(&FirstStartGuide::demoWanted));
    connect(m_welcome, &WelcomePage::recordingChosen, this, leaveTo(&FirstStartGuide::recordingWanted));
    connect(m_welcome, &WelcomePage::liveChosen, this, [this] {
        Q_EMIT liveWanted();
        m_entered = m_settings();
        m_input->load(m_entered);
        goTo(Input);
    });
}

QWidget *FirstStartGuide::makeStep(const QString &heading, QWidget *note, QWidget *page)
{
    auto *step = new QWidget(this);
    auto *title = new QLabel(heading, step);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * StepHeadingScale);
    title->setFont(large);
    auto *layout = new QVBoxLayout(step);
    layout->addWidget(title);
    layout->addWidget(note);
    layout->addWidget(makeScrollable(page, step), 1);
    return step;
}

void FirstStartGuide::preselectTheme(const QString &name)
{
    m_welcome->preselectTheme(name);
}

void FirstStartGuide::setInputRunning(bool running)
{
    m_input->setInputRunning(running);
}

void FirstStartGuide::showProblem(const QString &problem)
{
    m_problem->setText(problem);
    m_problem->show();
}

void FirstStartGuide::goTo(Step step)
{
    m_steps->setCurrentIndex(step);
    m_problem->hide();
    m_back->setVisible(step != Welcome);
    m_next->setVisible(step != Welcome);
    // Every letter of it leads to a field of that step; Enter does it.
    m_next->setText(step == Sensor ? tr("Start") : tr("&Next"));
    m_next->setDefault(step != Welcome);
}

void FirstStartGuide::goBack()
{
    if (m_steps->currentIndex() == Sensor) {
        m_sensor->store(&m_entered); // finished or not: it is there when the step comes again
    }
    goTo(m_steps->currentIndex() == Sensor ? Input : Welcome);
}

void FirstStartGuide::advance()
{
    if (m_steps->currentIndex() == Sensor) {
        finish();
    } else if (m_input->validate()) {
        enterSensor();
    }
}

// What the data tell goes before what was set until now, apart from what they do not tell.
void FirstStartGuide::enterSensor()
{
    const auto found = m_input->proposal();
    m_input->store(&m_entered);
    if (found) {
        applyFound(*found, &m_entered);
        m_found->setText(ProbeText::proposal(*found));
    } else {
        m_found->setText(tr("Nothing was recognised, so the sensor must be described by hand."));
    }
    m_sensor->load(m_entered);
    goTo(Sensor);
    if (auto *site = m_sensor->findChild<CoordinateEdit *>(); site && found && !m_entered.sensorLocation.isValid()) {
        site->setFocus();
    }
}

void FirstStartGuide::finish()
{
    if (!m_sensor->validate()) {
        m_sensor->form()->firstWithNote()->setFocus();
        return;
    }
    m_sensor->store(&m_entered);
    if (m_entered.sensorType == UnknownSensor) {
        showProblem(tr("Without a sensor nothing can be shown: choose its type."));
        return;
    }
    const ThemeLibrary themes;
    if (const Theme *theme = themes.find(m_welcome->theme()); theme && theme->name() != m_entered.displayTheme) {
        theme->applyTo(m_entered);
    }
    Q_EMIT settingsEntered(m_entered);
    accept();
}
