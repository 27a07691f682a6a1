#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>

#include <optional>

// One column of a list.
struct ListColumn {
    QString key; // by which the filter and the stored choice of columns know it; lower case
    QString title;
    QString explanation; // the header's tool tip; may be empty
    QString widestText; // that the column's width should hold
    Qt::Alignment alignment = Qt::AlignLeft;
    bool shownAtFirst = true;
};

// What a list asks of its rows beside what every view asks of a model. Rows are told of as they come, go and change;
// those that come stand at the end.
class ListModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    virtual const QList<ListColumn> &columns() const = 0;
    // As it is shown; empty where there is nothing to show.
    virtual QString cellText(int row, int column) const = 0;
    // Whether the column holds numbers, by which it is then sorted, and what number the row has there.
    virtual bool isNumeric(int column) const = 0;
    virtual std::optional<double> cellNumber(int row, int column) const = 0;
};
