#include "lists/list_export.h"

#include "lists/list_order.h"
#include "lists/list_view.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

namespace {

const ListModel &modelOf(const ListView &list)
{
    return *static_cast<const ListModel *>(list.order()->sourceModel());
}

// What stands apart within a text would part it.
QString tabbed(const QStringList &texts)
{
    QStringList cells = texts;
    for (QString &cell : cells) {
        cell = cell.simplified();
    }
    return cells.join(u'\t') + u'\n';
}

QString quoted(const QStringList &texts)
{
    QStringList cells;
    for (QString cell : texts) {
        const bool plain =
            !cell.contains(u'"') && !cell.contains(u',') && !cell.contains(u'\n') && !cell.contains(u'\r');
        cells.append(plain ? cell : u'"' + cell.replace(u'"', QLatin1String("\"\"")) + u'"');
    }
    return cells.join(u',') + QLatin1String("\r\n");
}

QStringList cellsOf(const ListView &list, int row)
{
    QStringList texts;
    for (const int column : list.shownColumns()) {
        texts.append(modelOf(list).cellText(row, column).trimmed());
    }
    return texts;
}

QString written(const ListView &list, QString (*line)(const QStringList &))
{
    QStringList titles;
    for (const int column : list.shownColumns()) {
        titles.append(modelOf(list).columns()[column].title);
    }
    QString text = line(titles);
    for (int row = 0; row < list.order()->rowCount(); ++row) {
        if (list.order()->modelRow(row) >= 0) {
            text += line(cellsOf(list, list.order()->modelRow(row)));
        }
    }
    return text;
}

} // namespace

QString ListExport::rowText(const ListView &list, int row)
{
    return tabbed(cellsOf(list, row));
}

QString ListExport::listText(const ListView &list)
{
    return written(list, tabbed);
}

QString ListExport::csv(const ListView &list)
{
    return written(list, quoted);
}

QString ListExport::saveCsv(const ListView &list, const QString &fileName)
{
    const QByteArray bytes = csv(list).toUtf8();
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) {
        return {};
    }
    return QCoreApplication::translate("ListExport", "Cannot write %1: %2")
        .arg(QDir::toNativeSeparators(fileName), file.errorString());
}
