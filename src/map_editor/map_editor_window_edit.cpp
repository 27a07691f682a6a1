// What the operator does to the groups and elements of the map.

#include "map_editor/map_editor_element_pane.h"
#include "map_editor/map_editor_plan_tool.h"
#include "map_editor/map_editor_point_pane.h"
#include "map_editor/map_editor_tree_pane.h"
#include "map_editor/map_editor_window.h"

#include <QAction>
#include <QMenu>
#include <QTabWidget>

namespace {

MapElement newElement(MapElementKind kind)
{
    switch (kind) {
    case MapElementKind::Polyline:
        return MapPolylineElement();
    case MapElementKind::Polygon:
        return MapPolygonElement();
    case MapElementKind::Label:
        return MapLabelElement{{}, QStringLiteral("LABEL"), {}};
    case MapElementKind::Symbol:
        return MapSymbolElement{{}, QStringLiteral("waypoint"), {}};
    case MapElementKind::Image:
        break;
    }
    return MapImageElement();
}

} // namespace

void MapEditorWindow::addGroup()
{
    commitFields();
    const QStringList classes = m_document.styles().sheet().names();
    const int group = m_document.addGroup(tr("New group"), classes.value(0, QStringLiteral("nil")));
    m_tree->select(MapElementRef{group, MapElementKind::Polyline, -1});
    m_tree->renameCurrent();
}

int MapEditorWindow::currentGroup()
{
    const int current = m_tree->current().group;
    if (current >= 0) {
        return current;
    }
    if (m_document.store().groupCount() == 0) {
        addGroup();
    }
    return m_document.store().groupCount() - 1;
}

void MapEditorWindow::addElement(MapElementKind kind)
{
    commitFields();
    const int group = currentGroup();
    m_tree->select(m_document.addElement(group, newElement(kind)));
    m_tabs->setCurrentWidget(m_element);
    if (m_planTool) {
        draw(true);
    }
}

void MapEditorWindow::duplicateSelected()
{
    commitFields();
    const MapEditorSelection selection = m_tree->selection();
    if (!selection.isEmpty()) {
        m_tree->select(m_document.duplicate(selection));
    }
}

void MapEditorWindow::removeSelected()
{
    commitFields();
    m_document.remove(m_tree->selection());
}

void MapEditorWindow::moveGroup(int places)
{
    commitFields();
    const int from = m_tree->current().group;
    const int to = from + places;
    if (from < 0 || to < 0 || to >= m_document.store().groupCount()) {
        return;
    }
    m_document.moveGroup(from, to);
    m_tree->select(MapElementRef{to, MapElementKind::Polyline, -1});
}

void MapEditorWindow::fillMoveMenu()
{
    m_moveMenu->clear();
    const QList<MapElementGroup> &groups = m_document.store().map().groups;
    for (int i = 0; i < groups.size(); ++i) {
        const QString name = groups[i].name.isEmpty() ? groups[i].className : groups[i].name;
        QAction *action = m_moveMenu->addAction(QString(name).replace(u'&', QStringLiteral("&&")));
        connect(
            action, &QAction::triggered, this, [this, i] { m_document.moveToGroup(m_tree->selection().elements, i); });
    }
}

void MapEditorWindow::draw(bool on)
{
    if (!m_planTool) {
        return;
    }
    if (on) {
        m_planTool->startDrawing(m_element->pointPane()->insertionPoint());
    } else {
        m_planTool->finishDrawing();
    }
    m_drawAction->setChecked(m_planTool->isDrawing());
}

void MapEditorWindow::center()
{
    if (m_planTool) {
        m_planTool->center(m_element->pointPane()->currentPoint());
    }
}
