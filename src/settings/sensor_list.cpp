#include "settings/sensor_list.h"

#include "sensors/sensor_type_text.h"

#include <QDropEvent>
#include <QHeaderView>

namespace {

constexpr int SourceColumn = 2; // SAC/SIC

QTreeWidgetItem *makeItem(const SensorInfo &sensor)
{
    auto *item = new QTreeWidgetItem(
        {sensor.name(), sensorTypeText(sensor.type()), QStringLiteral("%1/%2").arg(sensor.sac()).arg(sensor.sic()),
            sensor.location().toATCString(GeoCoordinate::HighPrecision),
            QStringLiteral("%1 %2").arg(sensor.manufacturer(), sensor.model()).trimmed(), sensor.description()});
    item->setTextAlignment(SourceColumn, Qt::AlignRight | Qt::AlignVCenter);
    item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled); // between others, not into them
    return item;
}

} // namespace

SensorList::SensorList(QWidget *parent) : QTreeWidget(parent)
{
    setHeaderLabels(
        {tr("Name"), tr("Type"), tr("SAC/SIC"), tr("Location"), tr("Manufacturer, model"), tr("Description")});
    headerItem()->setTextAlignment(SourceColumn, Qt::AlignRight | Qt::AlignVCenter);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setDragDropMode(InternalMove);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    connect(header(), &QHeaderView::sortIndicatorChanged, this, [this] { setSensors(m_sensors); });
}

bool SensorList::inOwnOrder() const
{
    return header()->sortIndicatorSection() < 0;
}

void SensorList::setSensors(const QList<QSharedPointer<SensorInfo>> &sensors)
{
    const QStringList selected = selectedNames();
    m_sensors = sensors;
    clear();
    for (const auto &sensor : sensors) {
        addTopLevelItem(makeItem(*sensor));
    }
    sortAsAsked();
    markUsed();
    for (int column = 0; column < columnCount(); ++column) {
        resizeColumnToContents(column);
    }
    select(selected);
}

void SensorList::sortAsAsked()
{
    if (!inOwnOrder()) {
        sortItems(header()->sortIndicatorSection(), header()->sortIndicatorOrder());
    }
    setDragEnabled(inOwnOrder());
}

void SensorList::setUsed(const QString &name)
{
    m_used = name;
    markUsed();
}

void SensorList::markUsed()
{
    for (int row = 0; row < topLevelItemCount(); ++row) {
        QTreeWidgetItem *item = topLevelItem(row);
        const bool used = item->text(0) == m_used;
        QFont font = item->font(0);
        font.setBold(used);
        item->setFont(0, font);
        item->setToolTip(0, used ? tr("The sensor of the input") : QString());
        item->setData(0, Qt::AccessibleTextRole, used ? tr("%1, the sensor of the input").arg(m_used) : QVariant());
    }
}

QStringList SensorList::names() const
{
    QStringList names;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        names.append(topLevelItem(row)->text(0));
    }
    return names;
}

QStringList SensorList::selectedNames() const
{
    QStringList names;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        if (topLevelItem(row)->isSelected()) {
            names.append(topLevelItem(row)->text(0));
        }
    }
    return names;
}

void SensorList::select(const QStringList &names)
{
    clearSelection();
    for (int row = topLevelItemCount() - 1; row >= 0; --row) {
        QTreeWidgetItem *item = topLevelItem(row);
        if (names.contains(item->text(0))) {
            setCurrentItem(item, 0, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }
}

void SensorList::dropEvent(QDropEvent *event)
{
    if (event->source() != this || !inOwnOrder()) {
        event->ignore();
        return;
    }
    const QStringList before = names();
    QTreeWidget::dropEvent(event);
    if (names() != before) {
        Q_EMIT orderChanged(names());
    }
}
