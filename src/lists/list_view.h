#pragma once

#include <QTableView>

class ListSortModel;
struct ListColumn;

// The table of a list pane: one selected row at most, sorted by a click on a header, and a text in the place of the
// rows while there are none. Rows are numbered as in the model that it was given, not as they stand on the screen.
class ListView final : public QTableView {
    Q_OBJECT

public:
    // The model stays the caller's. Columns become wide enough for their titles and their widest texts.
    ListView(QAbstractItemModel *model, const QList<ListColumn> &columns, QWidget *parent = nullptr);

    void setEmptyText(const QString &text);

    // -1: none.
    int selectedRow() const;
    // Selects the row and scrolls to it; -1 clears the selection.
    void selectRow(int row);

Q_SIGNALS:
    void selectedRowChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;

private:
    void fitColumns(const QList<ListColumn> &columns);

    ListSortModel *m_sorted; // a child
    QString m_emptyText;
};
