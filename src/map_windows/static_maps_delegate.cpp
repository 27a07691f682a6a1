#include "map_windows/static_maps_delegate.h"

#include "map_windows/static_maps_model.h"
#include "widgets/combo_items.h"

#include <QApplication>
#include <QComboBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QStyleOptionProgressBar>

void StaticMapsDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QVariant progress = index.data(StaticMapsModel::ProgressRole);
    if (!progress.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionProgressBar bar;
    bar.rect = option.rect.adjusted(1, 1, -1, -1);
    bar.palette = option.palette;
    bar.fontMetrics = option.fontMetrics;
    bar.state = QStyle::State_Enabled | QStyle::State_Horizontal;
    bar.maximum = 100;
    bar.progress = progress.toInt();
    bar.text = tr("%1 %").arg(bar.progress);
    bar.textVisible = true;
    bar.textAlignment = Qt::AlignCenter;
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ProgressBar, &bar, painter, option.widget);
}

QWidget *StaticMapsDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    if (index.column() == StaticMapsModel::Format) {
        auto *box = new QComboBox(parent);
        box->addItem(tr("by the suffix"), static_cast<int>(MapFile::Unknown));
        for (const MapFile::Format format : {MapFile::Legacy, MapFile::Xml, MapFile::Map}) {
            box->addItem(MapFile::formatToString(format), static_cast<int>(format));
        }
        return box;
    }
    auto *edit = new QLineEdit(parent);
    edit->setFrame(false);
    edit->setAlignment(Qt::AlignRight);
    edit->setPlaceholderText(index.column() == StaticMapsModel::Priority ? QStringLiteral("0") : tr("none"));
    auto *range = new QIntValidator(edit);
    if (index.column() != StaticMapsModel::Priority) {
        range->setBottom(0);
    }
    edit->setValidator(range);
    return edit;
}

void StaticMapsDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *box = qobject_cast<QComboBox *>(editor)) {
        selectValue(box, index.data(Qt::EditRole).toInt());
    } else if (auto *edit = qobject_cast<QLineEdit *>(editor)) {
        edit->setText(index.data(Qt::EditRole).toString());
    }
}

void StaticMapsDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (const auto *box = qobject_cast<QComboBox *>(editor)) {
        model->setData(index, box->currentData());
    } else if (const auto *edit = qobject_cast<QLineEdit *>(editor)) {
        model->setData(index, edit->text());
    }
}
