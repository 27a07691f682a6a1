#include "widgets/combo_items.h"

#include <QComboBox>
#include <QStandardItemModel>

void disableItem(QComboBox *box, int index, const QString &reason)
{
    box->setItemData(index, reason, Qt::ToolTipRole);
    if (auto *model = qobject_cast<QStandardItemModel *>(box->model())) {
        model->item(index)->setEnabled(false);
    }
}

void selectValue(QComboBox *box, int value)
{
    int index = box->findData(value);
    if (index < 0) {
        index = box->count();
        box->addItem(QString::number(value), value);
    }
    box->setCurrentIndex(index);
}
