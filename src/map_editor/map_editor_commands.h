#pragma once

#include "map_editor/map_editor_store.h"

#include <QUndoCommand>

#include <memory>

// One undoable change of the map each. The store must outlive them. Pushing one on the stack carries it out.
namespace MapEditorCommands {

using Command = std::unique_ptr<QUndoCommand>;

Command setMeta(MapEditorStore &store, const MapData &meta);
Command insertGroup(MapEditorStore &store, int at, const MapElementGroup &group);
Command removeGroup(MapEditorStore &store, int at);
Command setGroup(MapEditorStore &store, int at, const QString &name, const QString &className);
Command insertElements(MapEditorStore &store, const MapElementRef &at, const QList<MapElement> &elements);
Command removeElements(MapEditorStore &store, const MapElementRef &first, int count);
Command setProperties(MapEditorStore &store, const MapElementRef &ref, const MapElementProperties &properties);
Command splicePoints(MapEditorStore &store, const MapElementRef &ref, qsizetype at, qsizetype removeCount,
    const QList<GeoCoordinate> &inserted);
// The moves of one drag become one command, and none when the point comes back to where it was. Drags have numbers
// above 0; 0 stands alone.
Command movePoint(
    MapEditorStore &store, const MapElementRef &ref, qsizetype index, const GeoCoordinate &coordinate, quint64 drag);

} // namespace MapEditorCommands

// Base of the commands that change something with a saved state.
class MapEditorCommand : public QUndoCommand {
public:
    // The state must outlive the command.
    MapEditorCommand(MapEditorState &state, const QString &text);

    void redo() final;
    void undo() final;

protected:
    virtual void apply() = 0;
    virtual void revert() = 0;
    // Takes the later command into this one. When both together change nothing (backToBeginning), the stack drops it.
    void absorb(const MapEditorCommand &later, bool backToBeginning);

private:
    MapEditorState &m_state;
    quint64 m_before;
    quint64 m_after;
};
