#pragma once

#include "display/alert_board.h"
#include "lists/record_table_model.h"
#include "tracking/alert_snapshot.h"

#include <QDateTime>

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
    quint64 track1Id = 0; // incarnation ids, 0: no track of ours
    quint64 track2Id = 0;
    bool asking = false; // for the operator's acknowledgement

    bool operator==(const AlertListEntry &other) const = default;
};

// The alerts of the newest snapshot and the emergencies of its tracks, one a row.
class AlertListModel final : public RecordTableModel<AlertListEntry, &AlertListEntry::key> {
    Q_OBJECT

public:
    enum Column { Type, Track1, Track2, Object, State, Start, End, ColumnCount };

    explicit AlertListModel(QObject *parent = nullptr);

    // The board that has taken the alerts' snapshot.
    void setAlerts(const QList<AlertSnapshot> &alerts, const AlertBoard &board = {});

    // The first of the alert's tracks that the terminal holds; 0 when it holds neither.
    quint64 trackId(int row) const;
    // Those that concern the track; none for 0.
    QList<int> rowsOf(quint64 track) const;
    AlertBoard::Key key(int row) const { return record(row).key; }

protected:
    QString text(const AlertListEntry &entry, int column) const override;
    QVariant sortValue(const AlertListEntry &entry, int column) const override;
    QVariant look(const AlertListEntry &entry, int column, int role) const override;

private:
    static QList<ListColumn> makeColumns();
};
