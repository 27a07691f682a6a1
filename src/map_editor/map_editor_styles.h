#pragma once

#include "map_editor/map_editor_commands.h"
#include "maps/map_style_sheet.h"

#include <QObject>

// The style sheet that is edited with a map, and its file. Changes go through the undo stack of the map's document.
// GUI thread.
class MapEditorStyles final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    const MapStyleSheet &sheet() const { return m_sheet; }
    const QString &file() const { return m_file; }
    bool isModified() const { return m_state.isModified(); }
    MapEditorState &state() { return m_state; }

    // Takes over a sheet that was read from the file. The undo stack must hold no change of the former one.
    void reset(const MapStyleSheet &sheet, const QString &file);
    // With a backup of the former contents. Empty names are refused with a reason.
    bool save(const QString &file, QString *error);
    // As it was last read or saved.
    const MapStyleSheet &savedSheet() const { return m_saved; }

    // For the undo commands: puts the class in the place of the one of its name, or removes that.
    void put(const MapStyleClass &style);
    void remove(const QString &name);

Q_SIGNALS:
    // The class of the name changed, came or went; an empty name: all of them.
    void changed(const QString &name);

private:
    MapStyleSheet m_sheet;
    MapStyleSheet m_saved;
    QString m_file;
    MapEditorState m_state;
};

namespace MapEditorCommands {

// Adds the class, or takes the place of the one of its name. The changes of one run become one command, and none when
// the class comes back to what it was. Runs have numbers above 0; 0 stands alone.
Command putStyle(MapEditorStyles &styles, const MapStyleClass &style, quint64 run);
Command removeStyle(MapEditorStyles &styles, const QString &name);

} // namespace MapEditorCommands
