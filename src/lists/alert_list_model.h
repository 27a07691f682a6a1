#pragma once

#include "display/alert_board.h"
#include "lists/record_table_model.h"

#include <QDateTime>
#include <QSharedPointer>

#include <optional>

// What the list shows of one alert, or of a track that tells of an emergency or identifies itself.
struct AlertListEntry {
    AlertBoard::Key key = 0;
    QString kind;
    Alert::State state = Alert::Initial;
    QString stateText;
    QString track1;
    QString track2;
    QString objectName;
    QDateTime startTime;
    QDateTime endTime;
    QString level1; // of the tracks, as the track list writes it
    QString level2;
    unsigned int sensorNumber1 = 0; // the sensor's own numbers of the tracks, 0: not known
    unsigned int sensorNumber2 = 0;
    std::optional<int> lasts; // seconds, to its end or to the picture
    quint64 track1Id = 0; // incarnation ids, 0: no track of ours
    quint64 track2Id = 0;
    bool asking = false; // for the operator's acknowledgement

    bool operator==(const AlertListEntry &other) const = default;
};

// The alerts of the newest snapshot and the emergencies of its tracks, one a row.
class AlertListModel final : public RecordTableModel<AlertListEntry, &AlertListEntry::key> {
    Q_OBJECT

public:
    enum Column {
        Type,
        Track1,
        Track2,
        State,
        Start,
        Object,
        End,
        Duration,
        Level1,
        Level2,
        SensorNumber1,
        SensorNumber2,
        ColumnCount
    };

    explicit AlertListModel(QObject *parent = nullptr);

    // The board is that which has taken the snapshot. Null: no alerts, but what the board holds of tracks.
    void setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot, const AlertBoard &board = {});

    // The first of the alert's tracks that the terminal holds; 0 when it holds neither.
    quint64 trackId(int row) const;
    // Those that concern the track; none for 0.
    QList<int> rowsOf(quint64 track) const;
    AlertBoard::Key key(int row) const { return record(row).key; }

protected:
    QVariant look(const AlertListEntry &entry, int column, int role) const override;
};
