#include "widgets/combo_items.h"

#include <QComboBox>

void selectValue(QComboBox *box, int value)
{
    int index = box->findData(value);
    if (index < 0) {
        index = box->count();
        box->addItem(QString::number(value), value);
    }
    box->setCurrentIndex(index);
}
