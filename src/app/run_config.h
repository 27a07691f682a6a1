#pragma once

#include "app/config.h"
#include "app/settings_lock.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

// Takes over from after what differs from before.
void copyChanges(const Config &before, const Config &after, Config &to);

// The settings of this run, and the settings file behind them. What the command line sets holds for this run alone: the
// file keeps the user's own values of input, processor and sensor, each as a group, until he changes one of the group,
// and his own look, each setting of it until he changes that one, or all of them until he chooses a theme. While
// settings are locked nothing of what is changed here reaches the file.
class RunConfig final : public QObject {
    Q_OBJECT

public:
    // Loads the file; a missing one leaves the defaults. Changes are written that long after the first of them.
    explicit RunConfig(const QString &fileName, std::chrono::milliseconds writeDelay = std::chrono::seconds(1),
        QObject *parent = nullptr);
    // Writes what waits.
    ~RunConfig() override;

    // What is in force.
    const Config &live() const { return m_live; }

    // For this run only, to settings of inputs, processor, sensor and look.
    void overrideWith(const std::function<void(Config &)> &change);

    // There was no file, and nothing has been changed since.
    bool isNew() const { return m_new; }
    // Whether the file says which theme was chosen last.
    bool themeNamed() const { return m_themeNamed; }
    // As if the file had this look. It is written with the first change.
    void beginWithLook(const Config &look);

    // Takes over the values of these groups for as long as a recording is played. The groups that changed.
    SettingGroups setAside(const Config &proposed, SettingGroups groups);
    // All settings are a trial's, such as a demonstration's, until they are brought back or a recording is played.
    // Until then nothing of its input, processor and sensor is stored, and of the rest only what the user changes. The
    // groups that changed.
    SettingGroups beginTrial(const std::function<void(Config &)> &change);
    bool onTrial() const { return m_trial; }
    // Back to what was in force before the first recording, but for groups that the user has edited since, or before
    // the trial. The groups that changed.
    SettingGroups bringBack();
    // What is in force while no recording is played and nothing is on trial.
    const Config &own() const { return m_aside ? *m_aside : m_live; }

    // Whoever has more than a switch to offer asks here first.
    SettingsLock &lock() { return m_lock; }
    const SettingsLock &lock() const { return m_lock; }

    // Takes over settings that the user edited, beginning from live(). A group that he edited is stored as he saw it:
    // the run's own values go with his, so that the file never mixes two inputs or two sensors. False, with nothing
    // changed, where the lock forbids it; what SettingsLock::operated() leaves to the operator then holds for this run.
    bool apply(const Config &edited);
    // The same for a change of the user's to single keys, wherever he made it.
    bool edit(const std::function<void(Config &)> &change);
    // The same for a theme that he chose: all of its look is stored.
    bool applyLook(const Config &edited);

    // Writes what waits, at once; nothing while another process keeps the settings. False when the file cannot be
    // written: it is tried again with the next change.
    bool flush();

Q_SIGNALS:
    void writeFailed(const QString &text);
    void trialEnded();

private:
    bool take(const Config &edited, bool wholeLook);
    SettingGroups groupsToKeep(const Config &edited) const;
    void makeLive(const Config &edited);

    QString m_fileName;
    Config m_stored; // as in the file, or to be
    Config m_live;
    std::optional<Config> m_aside; // m_live before the first recording, or the trial
    bool m_trial = false;
    bool m_new = false;
    SettingsLock m_lock;
    bool m_themeNamed = false;
    bool m_waiting = false;
    bool m_unsavedTold = false; // that another process keeps the settings
    QTimer m_writeTimer;
};
