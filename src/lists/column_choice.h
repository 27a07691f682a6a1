#pragma once

#include <QByteArray>

class ListView;
class QMenu;

// The columns of a list as the operator has chosen, ordered and widened them.
namespace ColumnChoice {

// Known by their keys, so that columns may come, go and move between versions.
QByteArray toBytes(const ListView &list);
// Bytes that say nothing change nothing; what they do not mention stays as it is.
void fromBytes(const QByteArray &bytes, ListView &list);

// An entry a column, checked while it is shown, and the way back to the columns that there are at first. The last shown
// column cannot be hidden.
void fillMenu(QMenu *menu, ListView *list);

} // namespace ColumnChoice
