#pragma once

#include <QLockFile>
#include <QString>

// Of the processes that run with the same settings, the first one keeps them: changes in the others hold while these
// run. Taken at start-up, before the settings are read, and kept to the end.
class SettingsOwner final {
public:
    // The directory of the settings, which is made. Where no lock can be made at all, settings are kept as well as can
    // be.
    explicit SettingsOwner(const QString &directory);
    ~SettingsOwner();

    // False when another process keeps the settings. True without any owner.
    static bool mayWrite();

private:
    QLockFile m_lock;
};
