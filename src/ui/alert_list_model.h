#pragma once

#include "tracking/alert_snapshot.h"
#include "ui/record_table_model.h"

#include <QDateTime>
#include <QFont>
#include <QStringList>

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
class AlertListModel final : public RecordTableModel<AlertListEntry, unsigned int> {
    Q_OBJECT

public:
    enum Column { Type, Track1, Track2, Object, State, Start, End, ColumnCount };

    explicit AlertListModel(QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // A text per column that its width should hold.
    static QStringList widestTexts();

    void setAlerts(const QList<AlertSnapshot> &alerts);
    void clear();

    // The first of the alert's tracks that the terminal holds; 0 when it holds neither.
    quint64 trackId(int row) const;

private:
    QString text(const AlertListEntry &entry, int column) const;
    QVariant sortValue(const AlertListEntry &entry, int column) const;

    QFont m_figures;
};
