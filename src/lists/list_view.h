#pragma once

#include <QList>
#include <QPersistentModelIndex>
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

    // The rows that are lit up because what they tell of is pointed at somewhere else.
    void setLitRows(const QList<int> &rows);
    bool isLit(const QModelIndex &sortedIndex) const;

Q_SIGNALS:
    void selectedRowChanged();
    // The pointer has come onto another row; -1: onto none.
    void hoveredRowChanged(int row);
    void rowDoubleClicked(int row);
    // Enter or the space bar, with a row selected.
    void rowConfirmed(int row);
    void rowMenuRequested(int row, const QPoint &globalPosition);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;

private:
    void fitColumns(const QList<ListColumn> &columns);
    void noteHover(int row);

    ListSortModel *m_sorted; // a child
    QString m_emptyText;
    QList<QPersistentModelIndex> m_lit; // of the sorted model
    int m_hoveredRow = -1;
};
