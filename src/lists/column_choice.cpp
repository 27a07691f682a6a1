#include "lists/column_choice.h"

#include "lists/list_order.h"
#include "lists/list_view.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>

namespace {

constexpr int LargestWidth = 2000; // pixels
constexpr int SmallestWidth = 10;

const QList<ListColumn> &columnsOf(const ListView &list)
{
    return static_cast<const ListModel *>(list.order()->sourceModel())->columns();
}

int columnWithKey(const QString &key, const QList<ListColumn> &columns)
{
    for (int column = 0; column < columns.size(); ++column) {
        if (columns[column].key == key) {
            return column;
        }
    }
    return -1;
}

// Hidden columns have no width of their own. That of one that nobody has changed follows title and font, which may be
// others at the next start.
QJsonObject columnToJson(const ListView &list, int column, const QString &key)
{
    QJsonObject json{{"key", key}, {"shown", !list.isColumnHidden(column)}};
    if (!list.isColumnHidden(column) && list.columnWidth(column) != list.fittingWidth(column)) {
        json["width"] = list.columnWidth(column);
    }
    return json;
}

void takeColumn(const QJsonObject &json, QHeaderView *header, int column, int place)
{
    header->moveSection(header->visualIndex(column), place);
    header->setSectionHidden(column, !json["shown"].toBool(true));
    const int width = json["width"].toInt();
    if (width >= SmallestWidth && width <= LargestWidth) {
        header->resizeSection(column, width);
    }
}

} // namespace

QByteArray ColumnChoice::toBytes(const ListView &list)
{
    const QHeaderView *header = list.horizontalHeader();
    const QList<ListColumn> &columns = columnsOf(list);
    QJsonArray shown;
    for (int place = 0; place < header->count(); ++place) {
        const int column = header->logicalIndex(place);
        shown.append(columnToJson(list, column, columns[column].key));
    }
    const QJsonObject choice{{"columns", shown}, {"sortedBy", columns.value(header->sortIndicatorSection()).key},
        {"descending", header->sortIndicatorOrder() == Qt::DescendingOrder}};
    return QJsonDocument(choice).toJson(QJsonDocument::Compact);
}

void ColumnChoice::fromBytes(const QByteArray &bytes, ListView &list)
{
    const QJsonObject choice = QJsonDocument::fromJson(bytes).object();
    const QList<ListColumn> &columns = columnsOf(list);
    int place = 0;
    for (const QJsonValue &json : choice["columns"].toArray()) {
        const int column = columnWithKey(json["key"].toString(), columns);
        if (column >= 0) {
            takeColumn(json.toObject(), list.horizontalHeader(), column, place++);
        }
    }
    if (list.shownColumns().isEmpty()) {
        list.showDefaultColumns();
    }
    if (const int column = columnWithKey(choice["sortedBy"].toString(), columns); column >= 0) {
        list.sortByColumn(column, choice["descending"].toBool() ? Qt::DescendingOrder : Qt::AscendingOrder);
    }
}

void ColumnChoice::fillMenu(QMenu *menu, ListView *list)
{
    menu->setToolTipsVisible(true);
    const QList<ListColumn> &columns = columnsOf(*list);
    const QList<int> shown = list->shownColumns();
    for (int column = 0; column < columns.size(); ++column) {
        QAction *action = menu->addAction(columns[column].title);
        action->setToolTip(columns[column].explanation);
        action->setCheckable(true);
        action->setChecked(shown.contains(column));
        action->setEnabled(shown != QList<int>{column});
        QObject::connect(
            action, &QAction::triggered, list, [list, column](bool on) { list->setColumnHidden(column, !on); });
    }
    menu->addSeparator();
    menu->addAction(
        QCoreApplication::translate("ColumnChoice", "Default Columns"), list, &ListView::showDefaultColumns);
}
