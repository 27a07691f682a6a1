#pragma once

#include "maps/map_library.h"

#include <QAbstractTableModel>

// The maps of the index as a table: one row a map, in the index's order. What is edited takes effect in the library at
// once. Rows can be dragged to another place.
class StaticMapsModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Title, File, Priority, MinZoom, MaxZoom, Format, Size, State, ColumnCount };
    // The percent read, of the state of a map that is being loaded; else invalid.
    static constexpr int ProgressRole = Qt::UserRole;

    // The library must outlive the model.
    explicit StaticMapsModel(MapLibrary *library, QObject *parent = nullptr);

    // 0: no such row.
    quint64 id(int row) const;
    // -1: unknown.
    int row(quint64 id) const;

    int rowCount(const QModelIndex &parent = {}) const final;
    int columnCount(const QModelIndex &parent = {}) const final;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const final;
    QVariant data(const QModelIndex &index, int role) const final;
    // An empty text unsets a number.
    bool setData(const QModelIndex &index, const QVariant &value, int role) final;
    Qt::ItemFlags flags(const QModelIndex &index) const final;

    Qt::DropActions supportedDropActions() const final { return Qt::MoveAction; }
    QStringList mimeTypes() const final;
    QMimeData *mimeData(const QModelIndexList &indexes) const final;
    bool dropMimeData(
        const QMimeData *data, Qt::DropAction action, int row, int column, const QModelIndex &parent) final;

Q_SIGNALS:
    // An entry was not taken over, and why.
    void refused(const QString &reason);

private:
    const MapLibrary::Map &map(const QModelIndex &index) const { return m_library->maps()[index.row()]; }
    static QString text(const MapLibrary::Map &map, int column);
    static QVariant editValue(const MapLibrary::Map &map, int column);
    bool takeOver(MapIndexEntry &entry, int column, const QVariant &value);
    bool setNumber(std::optional<int> &number, const QString &text, int minimum);
    void showChanged(quint64 id);

    MapLibrary *m_library;
};
