#pragma once

#include "map_editor/map_editor_document.h"

#include <QAbstractItemModel>

// The groups of a map and under each its elements, read from the document as they are asked for. Names can be edited.
class MapEditorTreeModel final : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, KindColumn, DetailColumn, ColumnCount };

    // The document must outlive the model.
    explicit MapEditorTreeModel(MapEditorDocument *document, QObject *parent = nullptr);

    // The group has an index of -1; both are -1 for an invalid index.
    MapElementRef refOf(const QModelIndex &index) const;
    QModelIndex indexOf(const MapElementRef &ref) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    static QString kindText(MapElementKind kind);

private:
    void aboutToChange(const MapEditorChange &change);
    void changed(const MapEditorChange &change);
    void renewGroupIds();
    void tellRow(const MapElementRef &ref);
    QVariant groupData(const MapElementGroup &group, int column, int role) const;
    QVariant elementData(const MapElementRef &ref, int column, int role) const;
    QString detailText(const MapElementRef &ref) const;

    MapEditorDocument *m_document;
    // A group keeps its number while it moves, so that the indexes of its elements, which carry it, stay good.
    QList<quintptr> m_groupIds;
    quintptr m_newestGroupId = 0;
};
