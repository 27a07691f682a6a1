#pragma once

#include "app/background_pass.h"
#include "map_editor/map_editor_store.h"
#include "map_editor/map_editor_styles.h"
#include "maps/map_file.h"
#include "maps/map_load.h"

#include <QObject>
#include <QUndoStack>

#include <atomic>
#include <functional>
#include <memory>
#include <utility>

// What is chosen in the tree.
struct MapEditorSelection {
    QList<int> groups;
    QList<MapElementRef> elements;

    bool isEmpty() const { return groups.isEmpty() && elements.isEmpty(); }
};

// A map with its file, its style sheet and their undo stack. A call that changes nothing adds no undo step. Groups
// and elements that are passed in must exist. Files are read and written beside everything else; nobody waits for it,
// and the map may be edited meanwhile. GUI thread.
class MapEditorDocument final : public QObject {
    Q_OBJECT

public:
    explicit MapEditorDocument(QObject *parent = nullptr);
    ~MapEditorDocument() override;

    MapEditorStore &store() { return m_store; }
    const MapEditorStore &store() const { return m_store; }
    MapEditorStyles &styles() { return m_styles; }
    const MapEditorStyles &styles() const { return m_styles; }
    QUndoStack &undoStack() { return m_undo; }

    // Empty while the map has no file yet.
    const QString &path() const { return m_path; }
    MapFile::Format format() const { return m_format; }
    // False for a new map and for one read from a format that cannot be written.
    bool canSave() const;
    bool isModified() const { return m_store.state().isModified(); }

    // All of these forget the undo stack. The first two give up a reading under way, and must wait while a file is
    // being written.
    void newMap();
    void take(const MapData &map, const QString &path, MapFile::Format format);
    void setStyleSheet(const MapStyleSheet &sheet, const QString &file);

    enum class FileWork { None, Reading, Writing };
    FileWork fileWork() const { return m_pass.running() ? m_fileWork : FileWork::None; }
    // Reads a map for take(). Gives up the reading under way, whose result is never handed over.
    void load(const QString &path, MapFile::Format format, std::function<void(const MapLoad &)> loaded);
    // Writes the map as it is now. The file's former contents stay beside it under its name with ".bak" appended. A
    // failure changes neither the file nor what is edited; one without a reason was cancelled. What is being written
    // when the document goes is written to its end. Not while another file is being written.
    void saveAs(
        const QString &path, MapFile::Format format, std::function<void(bool saved, const QString &error)> done);
    // A reading ends at once; a writing tells how it ended.
    void cancelFileWork();

    void setMeta(const MapData &meta);
    // Returns the group's index.
    int addGroup(const QString &name, const QString &className);
    void setGroupName(int group, const QString &name);
    void setGroupClass(int group, const QString &className);
    void moveGroup(int from, int to);

    MapElementRef addElement(int group, const MapElement &element);
    // The copies go to the ends of the lists that hold the originals. Returns the copies.
    MapEditorSelection duplicate(const MapEditorSelection &selection);
    void remove(const MapEditorSelection &selection);
    void moveToGroup(const QList<MapElementRef> &elements, int group);
    void setName(const MapElementRef &ref, const QString &name);
    // The caption of a label, the type of a symbol.
    void setText(const MapElementRef &ref, const QString &text);
    void setImage(const MapElementRef &ref, const QString &file, const QPixmap &pixmap);

    // Points are inserted into lines and areas only.
    void insertPoints(const MapElementRef &ref, qsizetype at, const QList<GeoCoordinate> &points);
    void removePoints(const MapElementRef &ref, const QList<qsizetype> &indexes);
    void reversePoints(const MapElementRef &ref);
    // Calls with one drag number above 0 are undone together. A point keeps its altitude unless another is given.
    void movePoint(const MapElementRef &ref, qsizetype index, const GeoCoordinate &coordinate, quint64 drag = 0);

    // Calls with one run number above 0 are undone together.
    void putStyle(const MapStyleClass &style, quint64 run = 0);
    void removeStyle(const QString &name);

Q_SIGNALS:
    void pathChanged(const QString &path);
    // Of the reading or writing, 0 to 100.
    void progressed(int percent);

private:
    void push(MapEditorCommands::Command command);
    // Joins neighbouring elements into runs of first element and count. The last run comes first: removing it does not
    // move the others.
    static QList<std::pair<MapElementRef, int>> runs(QList<MapElementRef> elements);
    void nameImageFiles(const QString &path);
    void setFile(const QString &path, MapFile::Format format);

    MapEditorStore m_store;
    MapEditorStyles m_styles;
    QUndoStack m_undo;
    QString m_path;
    MapFile::Format m_format = MapFile::Unknown;
    BackgroundPass m_pass;
    FileWork m_fileWork = FileWork::None; // the last
    std::shared_ptr<std::atomic<bool>> m_stopWriting;
};
