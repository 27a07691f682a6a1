#pragma once

class QComboBox;

// Appends the types of the symbols of static maps, each with its picture. Types that are none of them may be entered as
// well.
void addMapSymbolItems(QComboBox *box);
