#pragma once

#include "airdb/icao_addr_dictionary.h"
#include "lists/record_table_model.h"
#include "tracking/track_snapshot.h"

#include <QHash>
#include <QPixmap>

// What the list shows of one track. Numbers are held as they are shown, so that a row counts as changed only when its
// text changes.
struct TrackListEntry {
    quint64 incarnationId = 0;
    QString callsign;
    QString squawk;
    QString icaoAddr;
    QString country; // of registration, by the address: ISO 3166-1 code of two letters
    QString countryName;
    std::optional<int> level; // hundreds of feet
    Track::VerticalTrend verticalTrend = Track::TrendUnknown;
    std::optional<int> groundSpeed; // knots
    std::optional<int> heading; // degrees, 1 to 360
    std::optional<int> verticalRate; // feet per minute
    Track::Type type = Track::Unknown;
    Track::State state = Track::Tentative;
    unsigned int trackNumber = 0;
    QString alerts;
    QString marks; // of an emergency and of the special pulse
    bool inDistress = false;

    bool operator==(const TrackListEntry &other) const = default;
};

// The tracks of the newest snapshot, one a row.
class TrackListModel final : public RecordTableModel<TrackListEntry, &TrackListEntry::incarnationId> {
    Q_OBJECT

public:
    enum Column {
        Callsign,
        Country,
        Squawk,
        Level,
        GroundSpeed,
        Heading,
        VerticalRate,
        Type,
        State,
        IcaoAddr,
        TrackNumber,
        Alerts,
        ColumnCount
    };

    explicit TrackListModel(QObject *parent = nullptr);

    // Where the countries of registration are looked up, from the next tracks on.
    void setAddresses(const korvane::airdb::ICAOAddrDictionary &addresses) { m_addresses = addresses; }

    void setTracks(const QList<TrackSnapshot> &tracks);

    quint64 trackId(int row) const { return record(row).incarnationId; }

protected:
    QString text(const TrackListEntry &entry, int column) const override;
    QVariant sortValue(const TrackListEntry &entry, int column) const override;
    QVariant look(const TrackListEntry &entry, int column, int role) const override;

private:
    static QList<ListColumn> makeColumns();
    QVariant foreground(const TrackListEntry &entry) const;
    QVariant flag(const TrackListEntry &entry) const;
    TrackListEntry entryFor(const TrackSnapshot &track) const;

    korvane::airdb::ICAOAddrDictionary m_addresses;
    mutable QHash<QString, QPixmap> m_flags; // by country, as they are asked for
};
