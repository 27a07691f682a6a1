#pragma once

#include "app/log_level.h"
#include "maps/map_file.h"

#include <QFileInfo>
#include <QObject>
#include <QPointer>

#include <functional>

class Actions;
class Config;
class GeoCoordinate;
class GeoWidget;
class MapEditorWindow;
class MapLibrary;
class Projector;
class StaticMapsWindow;
class QWidget;
class SettingsLock;

// The static maps: the library of those that are open, the window that lists them and the editor. GUI thread.
class MapWindows final : public QObject {
    Q_OBJECT

public:
    // All must outlive this object; the plan view has its map by now. The window is the parent of the other two.
    // While settings are locked, their actions ask for the password.
    MapWindows(
        QWidget *window, const Actions *actions, GeoWidget *plan, Projector *projector, const SettingsLock *lock);
    ~MapWindows() override;

    MapLibrary *library() const { return m_library; }

    // Opens index and style sheet. What is open already stays as it is, unsaved changes of the index included.
    void load(const Config &config);
    // The same once maps have been loaded, and nothing before.
    void reload(const Config &config);

    // False when another index is to be shown and the operator keeps his unsaved changes of this one.
    bool settle(const Config &edited);
    // False when one stays open. Where that is the editor, and only until it has written its map, the function is
    // called after that.
    bool close(const std::function<void()> &editorClosed);

public Q_SLOTS:
    void showMaps();
    // Empty: no map yet.
    void showEditor(const QString &path, MapFile::Format format);

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);
    // A map is being read; the progress is a text.
    void loading(const QFileInfo &file, const QString &progress);
    // The map of the last loading() has come in.
    void loaded();
    // Absolute paths.
    void indexChosen(const QString &file);
    void styleSheetChosen(const QString &file);
    void centerRequested(const GeoCoordinate &center);

private:
    void announceLoading(quint64 id);
    void makeMapsWindow();
    void makeEditor();
    void addEditedMap(const QString &path);

    QWidget *m_window;
    GeoWidget *m_plan;
    Projector *m_projector;
    MapLibrary *m_library; // the window's
    quint64 m_announced = 0; // the map of the last loading()
    QPointer<StaticMapsWindow> m_maps; // these two are the window's
    QPointer<MapEditorWindow> m_editor;
};
