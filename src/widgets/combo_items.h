#pragma once

class QComboBox;

// Selects the item that holds the value; a value that no item holds gets an item of its own, so that it is not lost.
void selectValue(QComboBox *box, int value);
