#pragma once

#include <QString>

class QComboBox;

// Shows an item of a combo box as one that cannot be chosen, with the reason as its tool tip.
void disableItem(QComboBox *box, int index, const QString &reason);
// Selects the item that holds the value; a value that no item holds gets an item of its own, so that it is not lost.
void selectValue(QComboBox *box, int value);
