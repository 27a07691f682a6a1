#pragma once

#include "airdb/icao_addr_dictionary.h"
#include "tracking/track_snapshot.h"
#include "ui/record_table_model.h"

#include <QFont>
#include <QHash>
#include <QPixmap>
#include <QStringList>

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

    bool operator==(const TrackListEntry &other) const = default;
};

// The tracks of the newest snapshot, one a row.
class TrackListModel final : public RecordTableModel<TrackListEntry, quint64> {
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

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // A text per column that its width should hold.
    static QStringList widestTexts();

    // Where the countries of registration are looked up, from the next tracks on.
    void setAddresses(const korvane::airdb::ICAOAddrDictionary &addresses) { m_addresses = addresses; }

    void setTracks(const QList<TrackSnapshot> &tracks);
    void clear();

    quint64 trackId(int row) const { return record(row).incarnationId; }

private:
    QString text(const TrackListEntry &entry, int column) const;
    QVariant sortValue(const TrackListEntry &entry, int column) const;
    QVariant foreground(const TrackListEntry &entry) const;
    QVariant flag(const TrackListEntry &entry) const;
    TrackListEntry entryFor(const TrackSnapshot &track) const;

    korvane::airdb::ICAOAddrDictionary m_addresses;
    mutable QHash<QString, QPixmap> m_flags; // by country, as they are asked for
    QFont m_figures;
};
