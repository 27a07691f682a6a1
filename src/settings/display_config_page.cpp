#include "settings/display_config_page.h"

#include "app/languages.h"
#include "app/theme_library.h"
#include "settings/password_field.h"
#include "widgets/coordinate_edit.h"
#include "widgets/field_form.h"

#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleFactory>
#include <QTimeZone>

namespace {

// Stands for the system's own zone in the settings.
const QString localZone = QStringLiteral("LCL");

QComboBox *makeTimeZoneBox()
{
    auto *box = new QComboBox;
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->completer()->setFilterMode(Qt::MatchContains);
    box->completer()->setCompletionMode(QCompleter::PopupCompletion);
    box->addItem(localZone);
    const QList<QByteArray> zones = QTimeZone::availableTimeZoneIds();
    for (const QByteArray &zone : zones) {
        box->addItem(QString::fromLatin1(zone));
    }
    box->setToolTip(DisplayConfigPage::tr("Time zone of the clock; %1 is the one of this computer.").arg(localZone));
    return box;
}

} // namespace

DisplayConfigPage::DisplayConfigPage(QWidget *parent)
    : ConfigPage(tr("Display"), parent), m_center(new CoordinateEdit(GeoCoordinate::NormalPrecision)),
      m_timeZone(makeTimeZoneBox())
{
    addThemeRow();
    addPlanViewRows();
    addWindowRows();
    addLogFileRows();
    addLockRow();
    form()->addStretch();
}

void DisplayConfigPage::addThemeRow()
{
    const ThemeLibrary library;
    auto *theme = new QComboBox;
    for (const QString &name : library.names()) {
        theme->addItem(Theme::shownName(name), name);
    }
    theme->setToolTip(
        tr("Fills in the colours, fonts and map style of all pages. Each of them can be changed afterwards."));
    form()->addField(tr("T&heme:"), theme);
    bind<QString>(
        theme, &Config::displayTheme,
        [theme](const QString &name) {
            if (theme->findData(name) < 0) { // its file has gone
                theme->addItem(name, name);
            }
            theme->setCurrentIndex(theme->findData(name));
        },
        [theme] { return std::optional(theme->currentData().toString()); });
    connect(theme, &QComboBox::activated, this, [this, theme, themes = library] {
        if (const Theme *chosen = themes.find(theme->currentData().toString())) {
            Q_EMIT themeChosen(*chosen);
        }
    });
}

void DisplayConfigPage::addPlanViewRows()
{
    form()->addHeading(tr("Plan view"));
    m_center->setToolTip(tr("Where the view begins while no sensor is configured, and the centre of the range rings."));
    form()->addField(tr("&Centre:"), m_center);
    bind<GeoCoordinate>(
        m_center, &Config::displayCenterCoordinate,
        [this](const GeoCoordinate &center) { m_center->setCoordinate(center); },
        [this] { return std::optional(m_center->coordinate()); });
    addColor(tr("&Background:"), tr("Background Colour"), &Config::mapBackgroundColor,
        tr("Colour of the scope where nothing else is drawn."));
}

void DisplayConfigPage::addWindowRows()
{
    form()->addHeading(tr("Window"));
    addLanguageRow();
    form()->addField(tr("&Time zone:"), m_timeZone);
    bind<QString>(
        m_timeZone, &Config::displayLocalTimeZoneName,
        [this](const QString &zone) { m_timeZone->setCurrentText(zone); },
        [this] { return std::optional(m_timeZone->currentText().trimmed()); });
    auto *style = new QComboBox;
    style->addItems(QStyleFactory::keys());
    style->setToolTip(tr("How buttons, lists and menus of the windows are drawn."));
    form()->addField(tr("St&yle:"), style);
    bind<QString>(
        style, &Config::displayStyle,
        [style](const QString &name) {
            // Of another system: stays chosen until somebody chooses otherwise.
            if (style->findText(name, Qt::MatchFixedString) < 0) {
                style->addItem(name);
            }
            style->setCurrentIndex(style->findText(name, Qt::MatchFixedString));
        },
        [style] { return std::optional(style->currentText()); });
    addNumber(tr("Te&xt size:"), &Config::displayFontScale,
        tr("How large the text of windows, lists and menus is, beside what the system has."))
        ->setSingleStep(10);
    addSwitch(tr("Text beside the &icons of the tool bars"), &Config::displayToolbarText,
        tr("Off: the tool bars have icons alone and need less room."));
}

void DisplayConfigPage::addLogFileRows()
{
    form()->addHeading(tr("Log file"));
    addNumber(tr("Be&gin a new file at:"), &Config::logFileSize,
        tr("How large a file of messages grows; 0 stands for no file."))
        ->setSpecialValueText(tr("no file"));
    addNumber(tr("&Files kept:"), &Config::logFileCount,
        tr("How many files of messages there are at most; the oldest is removed."));
}

void DisplayConfigPage::addLockRow()
{
    form()->addHeading(tr("Lock"));
    auto *password = new PasswordField;
    password->setToolTip(tr("With a password settings are locked: who does not have it changes none of them."));
    form()->addField(tr("&Password for settings:"), password);
    bind<QString>(
        password, &Config::settingsLock, [password](const QString &stored) { password->setStored(stored); },
        [password] { return std::optional(password->stored()); });
}

void DisplayConfigPage::addLanguageRow()
{
    auto *language = new QComboBox;
    language->addItem(tr("The system's"), QString());
    for (const Languages::Language &offered : Languages::available()) {
        language->addItem(offered.name, offered.code);
    }
    language->setToolTip(
        tr("The language of windows, menus and messages. It changes when the program is started again."));
    form()->addField(tr("Lan&guage:"), language);
    bind<QString>(
        language, &Config::displayLanguage,
        [this, language](const QString &code) {
            if (language->findData(code) < 0) { // its file has gone
                language->addItem(code, code);
            }
            m_spokenLanguage = Languages::installed().value_or(code);
            language->setCurrentIndex(language->findData(code));
        },
        [language] { return std::optional(language->currentData().toString()); });
    auto *note = new QLabel(tr("The new language is spoken from the next start on."));
    note->setObjectName("languageNote");
    auto *restart = new QPushButton(tr("&Restart Now"));
    restart->setObjectName("restartNow");
    restart->setAutoDefault(false);
    restart->setToolTip(
        tr("Applies the settings, closes the program and starts it again as it was started. A live input "
           "that is running is opened again."));
    connect(restart, &QPushButton::clicked, this, &DisplayConfigPage::restartWanted);
    for (QWidget *row : QList<QWidget *>{note, restart}) {
        row->hide();
        form()->addField(row);
        connect(language, &QComboBox::currentIndexChanged, row,
            [this, language, row] { row->setVisible(language->currentData().toString() != m_spokenLanguage); });
    }
}

QString DisplayConfigPage::timeZoneProblem() const
{
    const QString zone = m_timeZone->currentText().trimmed();
    if (zone.isEmpty()) {
        return tr("Choose a time zone.");
    }
    // Not every name of a zone is listed as available: "Etc/UTC" is an alias.
    if (zone == localZone || QTimeZone(zone.toLatin1()).isValid()) {
        return {};
    }
    return tr("There is no time zone \"%1\".").arg(zone);
}

bool DisplayConfigPage::validate()
{
    const bool centreGood = form()->checkCoordinate(m_center);
    return form()->check(m_timeZone, timeZoneProblem()) && centreGood;
}
