#pragma once

#include "map_editor/map_editor_document.h"

#include <QWidget>

class MapEditorPointModel;
class QAbstractButton;
class QTableView;

// The table of the points of a line or area, with what can be done to them.
class MapEditorPointPane final : public QWidget {
    Q_OBJECT

public:
    // The document must outlive the pane.
    explicit MapEditorPointPane(MapEditorDocument *document, QWidget *parent = nullptr);

    void setElement(const MapElementRef &ref);
    // -1: none.
    qsizetype currentPoint() const;
    void setCurrentPoint(qsizetype index);
    // Where new points go: behind the current one, else at the end.
    qsizetype insertionPoint() const;

    // Puts a point halfway to the neighbour, and opens it for typing.
    void insertPoint(bool behind);
    void removeSelected();
    // One coordinate a line; all or, when one cannot be read, none.
    void pasteText(const QString &text);

Q_SIGNALS:
    void currentPointChanged(qsizetype index);
    // Something that the operator asked for could not be done.
    void refused(const QString &reason);

private:
    QAbstractButton *addButton(const QString &text, const QString &toolTip, const char *name);
    void buildLayout();
    void copySelected() const;
    void updateButtons();
    GeoCoordinate between(qsizetype before) const;
    MapElementRef element() const;

    MapEditorDocument *m_document;
    MapEditorPointModel *m_model;
    QTableView *m_table;
    QList<QAbstractButton *> m_buttons;
};
