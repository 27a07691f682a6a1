#include "app/settings_owner.h"

#include <QDir>

namespace {

bool ownedElsewhere = false;

QString lockFile(const QString &directory)
{
    QDir().mkpath(directory);
    return directory + QStringLiteral("/vyxdisplay.lock");
}

} // namespace

SettingsOwner::SettingsOwner(const QString &directory) : m_lock(lockFile(directory))
{
    m_lock.setStaleLockTime(0); // as long as its process lives
    ownedElsewhere = !m_lock.tryLock(0) && m_lock.error() == QLockFile::LockFailedError;
}

SettingsOwner::~SettingsOwner()
{
    ownedElsewhere = false;
}

bool SettingsOwner::mayWrite()
{
    return !ownedElsewhere;
}
