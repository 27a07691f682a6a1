#pragma once

#include "app/log_level.h"
#include "app/setting_group.h"
#include "app/theme_library.h"

#include <QByteArray>
#include <QObject>

class Actions;
class Config;
class GeoTrackDisplay;
class QAction;
class QMenu;
class RunConfig;

#include <optional>

// The theme in force and the menu to choose another one. A theme is more than settings: it also formats tracks and
// colours the windows. Choosing one can be undone. GUI thread only.
class ThemeMenu final : public QObject {
    Q_OBJECT

public:
    // The window asks for names and is the parent.
    ThemeMenu(QWidget *window, Actions *actions, RunConfig *config, GeoTrackDisplay *tracks);

    // For this run only: what is stored stays as it is, apart from what the operator changes. Before restoreFormat().
    void useForThisRun(const Theme &theme);
    // While the settings file names no theme. Before restoreFormat().
    void beginWith(const Theme &theme);

    // The operator's choice for his first run, or else as choose() takes it; nothing where it is in force already.
    void beginOrChoose(const QString &name);
    // The operator's choice. One of that name must be there; upper and lower case do not matter.
    void choose(const QString &name);
    void undo();
    // Writes the look as it is now to a theme of the user's, which is then the chosen one. False, after a message,
    // when that cannot be done.
    bool saveAs(const QString &name);
    // The settings window has taken another theme over into settings that were these before.
    void noteChoice(const Config &before);

    // What is wrong with files of themes.
    void reportProblems();

    // The format of tracks as the window's state keeps it.
    void restoreFormat(const QByteArray &stored);
    QByteArray formatToStore() const;

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);
    // Settings of these groups.
    void changed(SettingGroups groups);

private:
    void fillMenu();
    void addThemes();
    void askForName();
    Theme lookNow(const Config &config) const;
    void apply(const Theme &theme);
    void dress(const Theme &theme);
    const Theme &inForce() const;

    QWidget *m_window;
    RunConfig *m_config;
    GeoTrackDisplay *m_tracks;
    QMenu *m_menu = nullptr;
    ThemeLibrary m_library;
    std::optional<Theme> m_before; // the look before the last choice
    bool m_formatOfTheme = false; // goes before the one that is stored
    bool m_formatOfRun = false; // not to be stored
    QByteArray m_formatTaken; // what the run began with
    QByteArray m_formatStored; // as the window's state had it
};
