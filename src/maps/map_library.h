#pragma once

#include "maps/map_data.h"
#include "maps/map_index.h"
#include "maps/map_style_sheet.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>

#include <memory>

// The maps that the map index names and the style sheet, loaded in the background, and loaded again when their files
// change on the disk. GUI thread.
class MapLibrary final : public QObject {
    Q_OBJECT

public:
    enum class State { Waiting, Loading, Loaded, Failed };

    struct Map {
        quint64 id = 0; // of this map in this library, never used again
        MapIndexEntry entry;
        QString path; // absolute
        MapFile::Format format = MapFile::Unknown; // the entry's, or found by the suffix
        State state = State::Waiting;
        int percent = 0; // read so far, while loading
        qint64 size = 0; // octets; 0 when there is no file
        QString error; // why it failed
        QSharedPointer<const MapData> data; // null before the first success; a failed reload keeps what was there
        quint64 revision = 0; // goes up with every change of data

        bool visible() const { return entry.visible.value_or(true); }
        int priority() const { return entry.priority.value_or(0); }
        bool inZoomRange(double metresPerPixel) const;
    };

    explicit MapLibrary(QObject *parent = nullptr);
    ~MapLibrary() override; // cancels what is loading

    // Forgets all maps and begins to load those of the index. The error is reported by message().
    void openIndex(const QString &fileName);
    QString indexFile() const;
    // Writes the index whole to the file, which is the index from then on; files that are not below its folder are
    // named by absolute paths. The reason of a failure is in the error, which may be null.
    bool saveIndexAs(const QString &fileName, QString *error);
    bool modified() const; // since the index was read or written
    // Back to what is in the file; maps that it names stay loaded.
    void revertIndex();

    // In the index's order.
    const QList<Map> &maps() const;
    const Map *map(quint64 id) const; // null: unknown
    quint64 add(const MapIndexEntry &entry); // begins to load it
    void remove(quint64 id);
    void setEntry(quint64 id, const MapIndexEntry &entry); // loads again when the file or the format differs
    void moveTo(quint64 id, int position);
    void reload(quint64 id);
    void cancel(quint64 id);
    bool loading() const;

    void openStyleSheet(const QString &fileName);
    QString styleSheetFile() const;
    const MapStyleSheet &styleSheet() const;
    // Shows another style at once, without a file, until the style sheet is opened again.
    void setStyleSheet(const MapStyleSheet &sheet);

Q_SIGNALS:
    // Maps were added, removed or moved.
    void mapsChanged();
    // Entry, state, progress or data of one changed.
    void mapChanged(quint64 id);
    void styleSheetChanged();
    // For the log: a map that failed (error), a style sheet that was loaded or not.
    void message(bool error, const QString &text);

private:
    bool readIndex();
    void load(quint64 id);
    void startLoads();
    void startLoad(quint64 id);
    void showProgress(quint64 id, int percent);
    void finish(quint64 id, const QSharedPointer<const MapData> &data, const QString &error);
    bool readStyleSheet(MapStyleSheet &sheet);
    void fileChanged(const QString &file);

    struct Private;
    std::unique_ptr<Private> d;
};
