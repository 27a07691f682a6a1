#pragma once

#include "map_editor/map_editor_document.h"

#include <QAbstractTableModel>

// The points of one line or area, as degrees, minutes and seconds and as decimal degrees; both can be edited.
class MapEditorPointModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { CoordinateColumn, DecimalColumn, ColumnCount };

    // The document must outlive the model.
    explicit MapEditorPointModel(MapEditorDocument *document, QObject *parent = nullptr);

    // The model is empty for elements without a list of points. It stays with the element when its index changes
    // because others are inserted or removed.
    void setElement(const MapElementRef &ref);
    const MapElementRef &element() const { return m_ref; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // Refuses what is no coordinate.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void aboutToChange(const MapEditorChange &change);
    void changed(const MapEditorChange &change);

    MapEditorDocument *m_document;
    MapElementRef m_ref;
};
