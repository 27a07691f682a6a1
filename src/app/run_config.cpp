#include "app/run_config.h"

#include "app/setting.h"
#include "app/settings_owner.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <utility>

namespace {

Config loaded(const QString &fileName)
{
    Config config;
    config.load(fileName);
    return config;
}

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

// What the user has changed. The groups that an input is opened with go together, so that two of them are never mixed.
void takeOver(const Config &before, const Config &edited, Config &target, SettingGroups wholeGroups)
{
    for (const Setting &setting : Setting::all()) {
        const bool ofTheRun = setting.groups().testAnyFlags(RunGroups);
        if (ofTheRun ? setting.groups().testAnyFlags(wholeGroups) : !setting.same(before, edited)) {
            setting.copy(edited, target);
        }
    }
}

} // namespace

void copyChanges(const Config &before, const Config &after, Config &to)
{
    for (const Setting &setting : Setting::all()) {
        if (!setting.same(before, after)) {
            setting.copy(after, to);
        }
    }
}

RunConfig::RunConfig(const QString &fileName, std::chrono::milliseconds writeDelay, QObject *parent)
    : QObject(parent), m_fileName(fileName), m_stored(loaded(fileName)), m_live(m_stored), m_lock(m_stored.settingsLock)
{
    m_new = !QFileInfo::exists(fileName);
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
    if (m_trial) {
        bringBack();
    }
    if (!m_aside) {
        m_aside = m_live;
    }
    copyGroups(proposed, m_live, groups);
    return Config::changedGroups(before, m_live);
}

SettingGroups RunConfig::beginTrial(const std::function<void(Config &)> &change)
{
    const Config before = m_live;
    bringBack();
    m_aside = m_live;
    m_trial = true;
    change(m_live);
    return Config::changedGroups(before, m_live);
}

SettingGroups RunConfig::bringBack()
{
    if (!m_aside) {
        return {};
    }
    const Config before = std::exchange(m_live, *m_aside);
    m_aside.reset();
    if (std::exchange(m_trial, false)) {
        Q_EMIT trialEnded();
    }
    return Config::changedGroups(before, m_live);
}

bool RunConfig::apply(const Config &edited)
{
    return take(edited, edited.displayTheme != m_live.displayTheme);
}

bool RunConfig::applyLook(const Config &edited)
{
    return take(edited, true);
}

bool RunConfig::take(const Config &edited, bool wholeLook)
{
    if (m_lock.locked()) {
        const bool operated = SettingsLock::operated(m_live, edited);
        if (operated) {
            makeLive(edited);
        }
        return operated;
    }
    Config stored = m_stored;
    takeOver(m_live, edited, stored, groupsToKeep(edited));
    if (wholeLook) {
        copyLook(edited, stored);
    }
    makeLive(edited);
    m_lock.setStored(edited.settingsLock);
    if (!Config::changedGroups(m_stored, stored)) {
        return true;
    }
    m_stored = stored;
    m_new = false;
    m_waiting = true;
    if (!m_writeTimer.isActive()) {
        m_writeTimer.start();
    }
    return true;
}

// Of a trial's input, processor and sensor nothing is kept.
SettingGroups RunConfig::groupsToKeep(const Config &edited) const
{
    return m_trial ? SettingGroups() : Config::changedGroups(m_live, edited);
}

void RunConfig::makeLive(const Config &edited)
{
    if (m_aside) {
        takeOver(m_live, edited, *m_aside, groupsToKeep(edited));
    }
    m_live = edited;
}

bool RunConfig::edit(const std::function<void(Config &)> &change)
{
    Config edited = m_live;
    change(edited);
    return apply(edited);
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
