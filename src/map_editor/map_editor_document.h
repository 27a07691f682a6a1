#pragma once

#include "map_editor/map_editor_store.h"
#include "map_editor/map_editor_styles.h"
#include "maps/map_file.h"

#include <QObject>
#include <QUndoStack>

#include <utility>

// What is chosen in the tree.
struct MapEditorSelection {
    QList<int> groups;
    QList<MapElementRef> elements;

    bool isEmpty() const { return groups.isEmpty() && elements.isEmpty(); }
};

// A map with its file, its style sheet and their undo stack. What changes nothing leaves no trace on the stack. Places
// that are passed in must exist. GUI thread.
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

    // All of these forget the undo stack; a failure leaves everything as it was. An unknown format is found by the
    // suffix.
    void newMap();
    bool open(const QString &path, QString *error, MapFile::Format format = MapFile::Unknown,
        const MapFile::Progress &progress = {});
    void setStyleSheet(const MapStyleSheet &sheet, const QString &file);

    // The file's former contents stay beside it under its name with ".bak" appended. A failure changes neither the file
    // nor what is edited.
    bool save(QString *error);
    bool saveAs(const QString &path, MapFile::Format format, QString *error);

    void setMeta(const MapData &meta);
    // Returns its place.
    int addGroup(const QString &name, const QString &className);
    void setGroupName(int group, const QString &name);
    void setGroupClass(int group, const QString &className);
    void moveGroup(int from, int to);

    MapElementRef addElement(int group, const MapElement &element);
    // Behind the others of their groups and kinds.
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

    void putStyle(const MapStyleClass &style);
    void removeStyle(const QString &name);

Q_SIGNALS:
    void pathChanged(const QString &path);

private:
    void push(MapEditorCommands::Command command);
    // Runs of neighbours, the last first, so that taking one leaves the places of the others alone.
    static QList<std::pair<MapElementRef, int>> runs(QList<MapElementRef> elements);
    void nameImageFiles(const QString &path);
    void setFile(const QString &path, MapFile::Format format);

    MapEditorStore m_store;
    MapEditorStyles m_styles;
    QUndoStack m_undo;
    QString m_path;
    MapFile::Format m_format = MapFile::Unknown;
};
