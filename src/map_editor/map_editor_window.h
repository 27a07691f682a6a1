#pragma once

#include "map_editor/map_editor_document.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <memory>

class GeoWidget;
class MapEditorElementPane;
class MapEditorMetaPane;
class MapEditorPlanTool;
class MapEditorProgress;
class MapEditorStylePane;
class MapEditorTreePane;
class MapLibrary;
class Projector;
class QAction;
class QMenu;
class QTabWidget;
class QToolBar;

// Corrects and draws static maps: the groups and elements in a tree, the chosen one's fields and points beside it, its
// points on the plan view as well, and the style sheet. Closing with unsaved changes asks. GUI thread.
class MapEditorWindow final : public QMainWindow {
    Q_OBJECT

public:
    explicit MapEditorWindow(QWidget *parent = nullptr);
    ~MapEditorWindow() override;

    // Edits on this plan view too, while the window is open. The projector must outlive the window; the widget may go
    // first.
    void setGeoWidget(GeoWidget *widget, Projector *projector);
    // Takes its style sheet. A map that the library shows is not shown a second time unless it was changed.
    void setMapLibrary(const MapLibrary *library);

    MapEditorDocument &document() { return m_document; }

    // These tell the operator of a failure, with the file and the reason. Unsaved changes are asked about before
    // another map takes their place. Maps are read and written beside everything else; what is asked for while one is
    // being written is done afterwards, unless that fails. An unknown format is found by the suffix.
    void openFile(const QString &path, MapFile::Format format = MapFile::Unknown);
    void saveFile(const QString &path);
    bool openStyleSheet(const QString &path);
    bool saveStyleSheet(const QString &path);
    // False when the window stays open: because the operator wants it to, or because a map has to be written first. It
    // closes after that, and the function is called then.
    bool closeThen(std::function<void()> closed);

    // An index of -1 means a group.
    void select(const MapElementRef &ref);

public Q_SLOTS:
    void newMap();
    void openChosenFile();
    // All that has changed: the map and the style sheet.
    void save();
    void saveAs();
    void openChosenStyleSheet();
    bool saveStyleSheetAs();

    void addGroup();
    // Into the current group, or the last, or a new one. With a plan view its points can be drawn at once.
    void addElement(MapElementKind kind);
    void duplicateSelected();
    void removeSelected();
    void moveGroup(int places);
    // Sets points of the current element by clicks on the plan view.
    void draw(bool on);
    void center();

Q_SIGNALS:
    void saved(const QString &path);
    void styleSheetSaved(const QString &path);
    // How the maps are to look now: while styles are edited, and again when that was discarded.
    void stylePreview(const MapStyleSheet &sheet);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void buildLayout();
    void makeFileMenu();
    void makeEditMenu();
    void makeAddMenu();
    void makePlanMenu();
    QAction *addAction(QMenu *menu, const QString &text, const QKeySequence &shortcut);
    void connectPanes();

    int currentGroup();
    void fillMoveMenu();
    void showCurrent(const MapElementRef &ref);
    void updateState();
    void updatePlanActions();
    void updateTitle();
    void updateShownElsewhere();
    void takeLibraryStyles();
    void commitFields();

    // Asks what to do with unsaved changes. False when they are not settled: the operator cancels, saving fails, or the
    // map is being written, in which case the function is called after a success.
    bool settleChanges(bool ofMap, bool ofStyles, const std::function<void()> &settled);
    // Calls it after the writing that is under way; false: there is none.
    bool afterWriting(const std::function<void()> &next);
    void takeLoaded(const MapLoad &loaded, const QString &path, MapFile::Format format, quint64 before);
    void saveThen(const std::function<void()> &saved);
    void saveAsThen(const std::function<void()> &saved);
    void saveFileThen(const QString &path, const std::function<void()> &saved);
    void fileWritten(const QString &path, bool good, const QString &error);
    bool saveChangedStyles();
    void beginFileWork(const QString &text);
    void endFileWork();
    void discardChanges();
    void reportFailure(const QString &text, const QString &fileName, const QString &reason);
    void tell(const QString &text);
    void tellHowToDraw(bool drawing);

    MapEditorDocument m_document;
    const MapLibrary *m_library = nullptr;
    MapStyleSheet m_librarySheet; // as it was when it was taken
    QPointer<GeoWidget> m_geoWidget;
    std::unique_ptr<MapEditorPlanTool> m_planTool; // null without a plan view

    MapEditorElementPane *m_element; // hears of changes before the tree, which may make it show another one then
    MapEditorTreePane *m_tree;
    QTabWidget *m_tabs;
    MapEditorMetaPane *m_meta;
    MapEditorStylePane *m_style;
    QToolBar *m_toolBar;

    MapEditorProgress *m_progress = nullptr;
    std::function<void()> m_afterWriting; // none: nothing
    std::function<void()> m_afterClosing; // when it is put off

    QMenu *m_moveMenu = nullptr;
    QList<QAction *> m_fileActions; // of no use while a file is being read or written
    QList<QAction *> m_selectionActions; // of use while something is selected
    QAction *m_drawAction = nullptr;
    QAction *m_centerAction = nullptr;
};
