#include "app/run_config.h"

#include "app/setting.h"

#include <QDir>

RunConfig::RunConfig(const QString &fileName, std::chrono::milliseconds writeDelay, QObject *parent)
    : QObject(parent), m_fileName(fileName)
{
    m_stored.load(fileName);
    m_live = m_stored;
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

void RunConfig::apply(const Config &edited)
{
    const SettingGroups kept = RunGroups & ~Config::changedGroups(m_live, edited);
    Config stored = edited;
    for (const Setting &setting : Setting::all()) {
        if (setting.groups() & kept) {
            setting.copy(m_stored, stored);
        }
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
    m_waiting = !m_stored.trySave(m_fileName);
    if (m_waiting) {
        Q_EMIT writeFailed(tr("Cannot write the settings file %1").arg(QDir::toNativeSeparators(m_fileName)));
    }
    return !m_waiting;
}
