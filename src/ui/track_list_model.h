#pragma once

#include "tracking/track_snapshot.h"
#include "ui/record_table_model.h"

#include <QFont>
#include <QStringList>

// What the list shows of one track. Numbers are held as they are shown, so that a row counts as changed only when its
// text changes.
struct TrackListEntry {
    quint64 incarnationId = 0;
    QString callsign;
    QString squawk;
    QString icaoAddr;
    std::optional<int> level; // hundreds of feet
    int verticalTrend = 0;
    std::optional<int> groundSpeed; // knots
    std::optional<int> heading; // degrees, 1 to 360
    std::optional<int> verticalRate; // feet per minute
    int type = 0;
    int state = 0;
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

    void setTracks(const QList<TrackSnapshot> &tracks);
    void clear();

    quint64 trackId(int row) const { return record(row).incarnationId; }

private:
    QString text(const TrackListEntry &entry, int column) const;
    QVariant sortValue(const TrackListEntry &entry, int column) const;
    QVariant foreground(const TrackListEntry &entry) const;

    QFont m_figures;
};
