#pragma once

#include "lists/record_table_model.h"
#include "tracking/alert_snapshot.h"

#include <QDateTime>

// What the list shows of one alert.
struct AlertListEntry {
    unsigned int id = 0;
    Alert::Type type = Alert::None;
    Alert::State state = Alert::Initial;
    QString stateText;
    QString track1;
    QString track2;
    QString objectName;
    QDateTime startTime;
    QDateTime endTime;
    quint64 track1Id = 0; // incarnation ids, 0: no track of ours
    quint64 track2Id = 0;

    bool operator==(const AlertListEntry &other) const = default;
};

// The alerts of the newest snapshot, one a row.
class AlertListModel final : public RecordTableModel<AlertListEntry, &AlertListEntry::id> {
    Q_OBJECT

public:
    enum Column { Type, Track1, Track2, Object, State, Start, End, ColumnCount };

    explicit AlertListModel(QObject *parent = nullptr);

    void setAlerts(const QList<AlertSnapshot> &alerts);

    // The first of the alert's tracks that the terminal holds; 0 when it holds neither.
    quint64 trackId(int row) const;

protected:
    QString text(const AlertListEntry &entry, int column) const override;
    QVariant sortValue(const AlertListEntry &entry, int column) const override;
    QVariant look(const AlertListEntry &entry, int column, int role) const override;

private:
    static QList<ListColumn> makeColumns();
};
