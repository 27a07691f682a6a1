#include "ui/theme_menu.h"

#include "app/run_config.h"
#include "display/geo_track_display.h"
#include "display/track_display_format.h"
#include "ui/actions.h"
#include "widgets/widget_style.h"
#include "widgets/window_opening.h"

#include <QAction>
#include <QActionGroup>
#include <QInputDialog>
#include <QMenu>

namespace {

// The operator's own format with the looks of the theme; what the theme leaves open looks as it does by itself.
TrackDisplayFormat formatted(TrackDisplayFormat format, const Theme &theme)
{
    TrackDisplayFormat standard;
    standard.readFrom(GeoTrackDisplay());
    format.takeLook(standard.look());
    format.takeLook(theme.trackFormat());
    return format;
}

TrackDisplayFormat formatOf(const GeoTrackDisplay &tracks)
{
    TrackDisplayFormat format;
    format.readFrom(tracks);
    return format;
}

QString menuText(const QString &name)
{
    return QString(name).replace(u'&', QLatin1String("&&"));
}

} // namespace

ThemeMenu::ThemeMenu(QWidget *window, Actions *actions, RunConfig *config, GeoTrackDisplay *tracks)
    : QObject(window), m_window(window), m_config(config), m_tracks(tracks), m_menu(new QMenu(window))
{
    actions->setMenu(ActionId::Theme, m_menu);
    connect(m_menu, &QMenu::aboutToShow, this, &ThemeMenu::fillMenu);
    applyWindowColors(inForce());
}

void ThemeMenu::fillMenu()
{
    const QStringList told = m_library.problems();
    m_library = ThemeLibrary(); // files may have come and gone
    if (m_library.problems() != told) {
        reportProblems();
    }
    m_menu->clear();
    addThemes();
    m_menu->addSeparator();
    QAction *undoing = m_menu->addAction(tr("&Undo Theme"), this, &ThemeMenu::undo);
    undoing->setEnabled(m_before.has_value());
    m_menu->addAction(
        tr("&Save as Theme..."), this, [this] { m_config->lock().whenUnlocked([this] { askForName(); }); });
}

void ThemeMenu::addThemes()
{
    auto *group = new QActionGroup(m_menu);
    for (const QString &name : m_library.names()) {
        QAction *action = m_menu->addAction(menuText(Theme::shownName(name)), this, [this, name] { choose(name); });
        action->setCheckable(true);
        action->setChecked(name == inForce().name());
        group->addAction(action);
    }
}

// A theme whose file has gone leaves its settings behind; the windows then have the desktop's colours.
const Theme &ThemeMenu::inForce() const
{
    static const Theme classic;
    const Theme *theme = m_library.find(m_config->live().displayTheme);
    return theme ? *theme : classic;
}

void ThemeMenu::useForThisRun(const Theme &theme)
{
    const Config before = m_config->live();
    m_config->overrideWith([&theme](Config &config) { theme.applyTo(config); });
    m_formatOfRun = m_formatOfTheme = true;
    dress(theme);
    Q_EMIT changed(Config::changedGroups(before, m_config->live()));
}

void ThemeMenu::beginWith(const Theme &theme)
{
    if (m_config->themeNamed()) {
        return;
    }
    const Config before = m_config->live();
    Config look = before;
    theme.applyTo(look);
    m_config->beginWithLook(look);
    m_formatOfTheme = true;
    dress(theme);
    Q_EMIT changed(Config::changedGroups(before, m_config->live()));
}

// Nothing is written for his first look around: he has set up nothing yet.
void ThemeMenu::beginOrChoose(const QString &name)
{
    const Theme *theme = m_library.find(name);
    if (!theme || theme->name() == m_config->live().displayTheme) {
        return;
    }
    if (m_config->isNew()) {
        beginWith(*theme);
    } else {
        choose(name);
    }
}

void ThemeMenu::choose(const QString &name)
{
    const Theme *found = m_library.find(name);
    if (!found) {
        Q_EMIT logMessage(LogLevel::Warning, tr("There is no theme \"%1\".").arg(name));
        return;
    }
    m_config->lock().whenUnlocked([this, chosen = *found] {
        m_before = lookNow(m_config->live());
        apply(chosen);
    });
}

void ThemeMenu::undo()
{
    m_config->lock().whenUnlocked([this] {
        if (m_before) {
            apply(*std::exchange(m_before, std::nullopt));
        }
    });
}

Theme ThemeMenu::lookNow(const Config &config) const
{
    const Theme *windows = m_library.find(config.displayTheme);
    return {config.displayTheme, config, formatOf(*m_tracks).look(), windows ? *windows : Theme()};
}

void ThemeMenu::apply(const Theme &theme)
{
    const Config before = m_config->live();
    Config edited = before;
    theme.applyTo(edited);
    m_config->applyLook(edited);
    m_formatOfRun = false;
    dress(theme);
    Q_EMIT changed(Config::changedGroups(before, m_config->live()));
}

void ThemeMenu::dress(const Theme &theme)
{
    formatted(formatOf(*m_tracks), theme).applyTo(*m_tracks);
    applyWindowColors(theme);
}

void ThemeMenu::noteChoice(const Config &before)
{
    m_before = lookNow(before);
    m_formatOfRun = false;
    dress(inForce());
}

void ThemeMenu::reportProblems()
{
    for (const QString &problem : m_library.problems()) {
        Q_EMIT logMessage(LogLevel::Warning, problem);
    }
}

void ThemeMenu::askForName()
{
    auto *question = new QInputDialog(m_window);
    question->setWindowTitle(tr("Save as Theme"));
    question->setLabelText(tr("Colours, fonts and map style as they are now, under the name:"));
    connect(question, &QInputDialog::textValueSelected, this, &ThemeMenu::saveAs);
    openOver(question);
}

bool ThemeMenu::saveAs(const QString &name)
{
    const Config &config = m_config->live();
    const Theme *windows = m_library.find(config.displayTheme);
    const Theme theme(name.trimmed(), config, formatOf(*m_tracks).look(), windows ? *windows : Theme());
    QString error = tr("A theme needs a name.");
    if (theme.name().isEmpty() || !m_library.save(theme, &error)) {
        Q_EMIT logMessage(LogLevel::Warning, error);
        return false;
    }
    m_library = ThemeLibrary();
    apply(theme);
    Q_EMIT logMessage(LogLevel::Info, tr("Theme \"%1\" saved.").arg(Theme::shownName(theme.name())));
    return true;
}

void ThemeMenu::restoreFormat(const QByteArray &stored)
{
    m_formatStored = stored;
    TrackDisplayFormat format = formatOf(*m_tracks);
    const bool known = format.fromBytes(stored);
    if (m_formatOfTheme || !known) {
        format = formatted(format, inForce());
    }
    format.applyTo(*m_tracks);
    m_formatTaken = formatOf(*m_tracks).toBytes();
}

QByteArray ThemeMenu::formatToStore() const
{
    const QByteArray now = formatOf(*m_tracks).toBytes();
    return m_formatOfRun && now == m_formatTaken ? m_formatStored : now;
}
