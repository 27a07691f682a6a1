#pragma once

#include <QList>
#include <QString>

class ListView;

// A list as text: what it shows, in the order in which it shows it.
namespace ListExport {

// A row of the model with tabs between the shown columns.
QString rowText(const ListView &list, int row);
// Titles, then all rows, with tabs.
QString listText(const ListView &list);
// Titles, then all rows: comma-separated values by RFC 4180, with CR LF.
QString csv(const ListView &list);

// As UTF-8, whole or not at all. What is wrong; empty: written.
QString saveCsv(const ListView &list, const QString &fileName);

} // namespace ListExport
