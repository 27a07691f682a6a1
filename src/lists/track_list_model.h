#pragma once

#include "airdb/icao_addr_dictionary.h"
#include "engine/display_snapshot.h"
#include "geo/geo_coordinate.h"
#include "lists/record_table_model.h"

#include <QHash>
#include <QPixmap>
#include <QSharedPointer>

// What the tracks of a list have in common.
struct TrackListContext {
    QDateTime time; // of the picture
    GeoCoordinate sensor; // invalid: no distances and bearings
    korvane::airdb::ICAOAddrDictionary addresses;
};

// One track, as long as its picture is shown.
struct TrackListEntry {
    quint64 incarnationId = 0;
    const TrackSnapshot *track = nullptr;
    const TrackListContext *context = nullptr;

    bool operator==(const TrackListEntry &other) const = default;
};

// The tracks of the newest snapshot, one a row. What labels of the scope show too is written as they write it.
class TrackListModel final : public RecordTableModel<TrackListEntry, &TrackListEntry::incarnationId> {
    Q_OBJECT

public:
    enum Column {
        Callsign,
        Squawk,
        Level,
        GroundSpeed,
        Alerts,
        Country,
        Type,
        Heading,
        VerticalRate,
        SelectedAltitude,
        Distance,
        Bearing,
        Age,
        State,
        IcaoAddr,
        TrackNumber,
        SensorNumber,
        ColumnCount
    };

    explicit TrackListModel(QObject *parent = nullptr);

    // Where the countries of registration are looked up, from the next tracks on.
    void setAddresses(const korvane::airdb::ICAOAddrDictionary &addresses) { m_context.addresses = addresses; }
    // From where distances and bearings count, from the next tracks on.
    void setSensorPlace(const GeoCoordinate &place) { m_context.sensor = place; }

    // Null: no tracks.
    void setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot);

    quint64 trackId(int row) const { return record(row).incarnationId; }

protected:
    QVariant look(const TrackListEntry &entry, int column, int role) const override;

private:
    QVariant flag(const TrackListEntry &entry) const;

    TrackListContext m_context;
    QSharedPointer<const DisplaySnapshot> m_snapshot; // that the rows point into
    mutable QHash<QString, QPixmap> m_flags; // by country, as they are asked for
};
