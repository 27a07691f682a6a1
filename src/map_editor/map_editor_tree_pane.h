#pragma once

#include "map_editor/map_editor_document.h"

#include <QWidget>

class MapEditorTreeModel;
class QAction;
class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QTreeView;

// The groups and elements of the map, and a text that narrows them down.
class MapEditorTreePane final : public QWidget {
    Q_OBJECT

public:
    // The document must outlive the pane.
    explicit MapEditorTreePane(MapEditorDocument *document, QWidget *parent = nullptr);

    QTreeView *view() const { return m_view; }

    // An index of -1 means a group; a group of -1 nothing.
    MapElementRef current() const;
    // Also clears the filter when that hides it.
    void select(const MapElementRef &ref);
    void select(const MapEditorSelection &selection);
    MapEditorSelection selection() const;
    void setFilter(const QString &text);
    void renameCurrent();

Q_SIGNALS:
    void currentChanged(const MapElementRef &ref);
    void selectionChanged();

private:
    QModelIndex viewIndex(const MapElementRef &ref) const;
    // Expands all groups of a map with few elements.
    void expandSmall();
    void makeHint();
    void updateHint();

    MapEditorTreeModel *m_model;
    QSortFilterProxyModel *m_filtered;
    QLineEdit *m_filter;
    QTreeView *m_view;
    QLabel *m_hint = nullptr; // shown while the view is empty
};
