#include "raw_view/record_tree.h"

#include "widgets/figure_font.h"

#include <QHeaderView>

#include <algorithm>

namespace {

enum Column { Name, Value, Meaning };
constexpr int PathRole = Qt::UserRole;
constexpr int FirstBitRole = Qt::UserRole + 1;
constexpr int BitCountRole = Qt::UserRole + 2;

// "250[2]/MBDATA" stands in "250", "[2]", "MBDATA".
QStringList pathOf(const QString &key)
{
    QString spaced = key;
    spaced.replace(u'[', QStringLiteral("/["));
    return spaced.split(u'/');
}

BitRange bitsOf(const QTreeWidgetItem *item)
{
    return {item->data(Name, FirstBitRole).toInt(), item->data(Name, BitCountRole).toInt()};
}

void setBits(QTreeWidgetItem *item, const BitRange &bits)
{
    item->setData(Name, FirstBitRole, bits.first);
    item->setData(Name, BitCountRole, bits.count);
}

BitRange united(const BitRange &a, const BitRange &b)
{
    const int first = std::min(a.first, b.first);
    return {first, std::max(a.first + a.count, b.first + b.count) - first};
}

} // namespace

RecordTree::RecordTree(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName("recordTree");
    setAccessibleName(tr("Items of the record"));
    setHeaderLabels({tr("Item"), tr("Value"), tr("Meaning")});
    setUniformRowHeights(true);
    setMouseTracking(true);
    const QFontMetrics figures(figureFont());
    header()->resizeSection(Name, figures.horizontalAdvance("I048/250 [12] MBDATA"));
    header()->resizeSection(Value, figures.horizontalAdvance("40.786743164062500 NM"));
    connect(this, &QTreeWidget::itemEntered, this, &RecordTree::chooseBits);
    connect(this, &QTreeWidget::currentItemChanged, this, &RecordTree::chooseBits);
    const auto path = [](const QTreeWidgetItem *item) { return item->data(Name, PathRole).toString(); };
    connect(this, &QTreeWidget::itemCollapsed, this, [this, path](const QTreeWidgetItem *item) {
        if (!m_filling) {
            m_closed.insert(path(item));
        }
    });
    connect(this, &QTreeWidget::itemExpanded, this, [this, path](const QTreeWidgetItem *item) {
        if (!m_filling) {
            m_closed.remove(path(item));
        }
    });
}

// The line of a structure, made where there is none yet; null for the root.
QTreeWidgetItem *RecordTree::branchFor(const QStringList &path, const ReportField &field)
{
    if (path.isEmpty()) {
        return invisibleRootItem();
    }
    const QString key = path.join(u'/');
    if (QTreeWidgetItem *known = m_branches.value(key)) {
        setBits(known, united(bitsOf(known), field.bits));
        branchFor(path.mid(0, path.size() - 1), field);
        return known;
    }
    auto *branch = new QTreeWidgetItem(branchFor(path.mid(0, path.size() - 1), field));
    branch->setText(Name, path.size() == 1 && m_view.category > 0 ? m_view.itemName(path.first()) : path.last());
    branch->setText(Meaning, path.size() == 1 ? field.title : QString());
    branch->setData(Name, PathRole, key);
    branch->setFont(Value, figureFont());
    setBits(branch, field.bits);
    m_branches.insert(key, branch);
    return branch;
}

void RecordTree::showReport(const ReportView &view)
{
    m_filling = true;
    const QString current = currentItem() ? currentItem()->data(Name, PathRole).toString() : QString();
    clear();
    m_branches.clear();
    m_view = view;
    for (const ReportField &field : view.fields) {
        const bool isAsterixValue = view.category > 0 && !field.key.startsWith(QStringLiteral("bds"));
        QTreeWidgetItem *line = branchFor(isAsterixValue ? pathOf(field.key) : QStringList{field.key}, field);
        line->setText(Name, isAsterixValue ? line->text(Name) : field.name);
        line->setText(Value, field.text());
    }
    for (QTreeWidgetItem *branch : std::as_const(m_branches)) {
        branch->setExpanded(!m_closed.contains(branch->data(Name, PathRole).toString()));
    }
    if (view.category <= 0) { // names in words, and no meanings beside them
        header()->resizeSection(Name, std::max(header()->sectionSize(Name), sizeHintForColumn(Name)));
    }
    setCurrentItem(m_branches.value(current));
    m_filling = false;
}

void RecordTree::selectBit(int bit)
{
    QTreeWidgetItem *narrowest = nullptr;
    for (QTreeWidgetItem *branch : std::as_const(m_branches)) {
        if (bitsOf(branch).contains(bit) && (!narrowest || bitsOf(branch).count < bitsOf(narrowest).count)) {
            narrowest = branch;
        }
    }
    if (narrowest) {
        setCurrentItem(narrowest);
    }
}

void RecordTree::leaveEvent(QEvent *event)
{
    QTreeWidget::leaveEvent(event);
    chooseBits(currentItem());
}

void RecordTree::chooseBits(const QTreeWidgetItem *item)
{
    Q_EMIT bitsChosen(item ? bitsOf(item) : BitRange());
}
