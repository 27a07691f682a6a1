#pragma once

#include "health/source_health.h"

#include <QAbstractTableModel>
#include <QList>

// The sources of the input, a row each.
class SourceTableModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Source, Rate, Curve, Delay, Shown, State, Reason, ColumnCount };
    // Of the curve's column: the counts of the last ten minutes, a QList<quint32>.
    static constexpr int HistoryRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    // In their order.
    void setSources(const QList<SourceHealth> &sources);
    const SourceHealth &source(int row) const { return m_sources[row]; }
    // -1: it is not there.
    int rowOf(const SourceHealth &source) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString text(const SourceHealth &source, int column) const;

    QList<SourceHealth> m_sources;
};
