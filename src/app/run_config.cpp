#include "app/run_config.h"

#include "app/setting.h"
#include "app/settings_owner.h"

#include <QDir>
#include <QSettings>

#include <utility>

namespace {

void copyGroups(const Config &from, Config &to, SettingGroups groups)
{
    for (const Setting &setting : Setting::all()) {
        if (setting.groups() & groups) {
            setting.copy(from, to);
        }
    }
}

void copyLook(const Config &from, Config &to)
{
    for (const Setting &setting : Setting::all()) {
        if (setting.themed()) {
            setting.copy(from, to);
        }
    }
}

// What the file says of the look goes into the look to be stored, but where the operator has just changed it.
void keepLook(const Config &before, const Config &edited, const Config &file, Config &stored)
{
    for (const Setting &setting : Setting::all()) {
        if (setting.themed() && setting.same(before, edited)) {
            setting.copy(file, stored);
        }
    }
}

} // namespace

RunConfig::RunConfig(const QString &fileName, std::chrono::milliseconds writeDelay, QObject *parent)
    : QObject(parent), m_fileName(fileName)
{
    m_stored.load(fileName);
    m_live = m_stored;
    m_themeNamed = QSettings(fileName, QSettings::IniFormat).contains(Setting::of(&Config::displayTheme).key());
    m_writeTimer.setSingleShot(true);
    m_writeTimer.setInterval(writeDelay);
    connect(&m_writeTimer, &QTimer::timeout, this, &RunConfig::flush);
}

RunConfig::~RunConfig()
{
    flush();
}

void RunConfig::overrideWith(const std::function<void(Config &)> &change)
{
    change(m_live);
}

void RunConfig::beginWithLook(const Config &look)
{
    copyLook(look, m_stored);
    copyLook(look, m_live);
}

SettingGroups RunConfig::setAside(const Config &proposed, SettingGroups groups)
{
    const Config before = m_live;
    if (!m_aside) {
        m_aside = m_live;
    }
    copyGroups(proposed, m_live, groups);
    return Config::changedGroups(before, m_live);
}

SettingGroups RunConfig::bringBack()
{
    if (!m_aside) {
        return {};
    }
    const Config before = std::exchange(m_live, *m_aside);
    m_aside.reset();
    return Config::changedGroups(before, m_live);
}

void RunConfig::apply(const Config &edited)
{
    take(edited, edited.displayTheme != m_live.displayTheme);
}

void RunConfig::applyLook(const Config &edited)
{
    take(edited, true);
}

void RunConfig::take(const Config &edited, bool wholeLook)
{
    const SettingGroups kept = RunGroups & ~Config::changedGroups(m_live, edited);
    Config stored = edited;
    copyGroups(m_stored, stored, kept);
    if (!wholeLook) {
        keepLook(m_live, edited, m_stored, stored);
    }
    if (m_aside) {
        copyGroups(edited, *m_aside, Config::changedGroups(m_live, edited));
    }
    m_live = edited;
    if (!Config::changedGroups(m_stored, stored)) {
        return;
    }
    m_stored = stored;
    m_waiting = true;
    if (!m_writeTimer.isActive()) {
        m_writeTimer.start();
    }
}

void RunConfig::edit(const std::function<void(Config &)> &change)
{
    Config edited = m_live;
    change(edited);
    apply(edited);
}

bool RunConfig::flush()
{
    m_writeTimer.stop();
    if (!m_waiting) {
        return true;
    }
    if (!SettingsOwner::mayWrite()) {
        m_waiting = false;
        if (!std::exchange(m_unsavedTold, true)) {
            Q_EMIT writeFailed(
                tr("Changed settings are not saved: another window with the same settings was open first."));
        }
        return true;
    }
    m_waiting = !m_stored.trySave(m_fileName);
    if (m_waiting) {
        Q_EMIT writeFailed(tr("Cannot write the settings file %1").arg(QDir::toNativeSeparators(m_fileName)));
    }
    return !m_waiting;
}
