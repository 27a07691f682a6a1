#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QPersistentModelIndex>
#include <QTableView>

#include <functional>

class ListModel;
class ListOrder;

// The table of a list pane: one selected row at most, sorted by a click on a header, and a text in the place of the
// rows while there are none. While it is in use - the pointer is over it, or the keyboard with a row selected in it,
// and either was moved within the last minute - no row moves. Rows are numbered as in the model that it was given, not
// as they stand on the screen.
class ListView final : public QTableView {
    Q_OBJECT

public:
    static constexpr int RestMs = 60000; // until the list is taken for not in use any longer

    // The model stays the caller's. Columns become wide enough for their titles and their widest texts.
    ListView(ListModel *model, QWidget *parent = nullptr);

    ListOrder *order() const { return m_order; }

    // The change is one of the model's rows; puts them in order after it unless the list is in use.
    void takeChange(const std::function<void()> &change);
    // Puts the rows in order and choice, in use or not.
    void arrange();

    // Columns, as they are shown from left to right.
    QList<int> shownColumns() const;
    // The first columns that fit into so many pixels, with what stands beside them; at least one.
    int widthOfWholeColumns(int most) const;
    // What a column needs for its title and its widest text.
    int fittingWidth(int column) const;
    // The last column that is whole in the view as it is now takes what is left of its width.
    void widenToWholeColumns();
    // As the model has them.
    void showDefaultColumns();

    void setEmptyText(const QString &text);

    // -1: none.
    int selectedRow() const;
    // Selects the row and scrolls to it; -1 clears the selection.
    void selectRow(int row);

    // The rows that are lit up because what they tell of is pointed at somewhere else.
    void setLitRows(const QList<int> &rows);
    bool isLit(const QModelIndex &index) const;

Q_SIGNALS:
    // By the operator, or by selectRow().
    void selectedRowChanged();
    // The pointer has come onto another row; -1: onto none.
    void hoveredRowChanged(int row);
    void rowDoubleClicked(int row);
    // Enter or the space bar, with a row selected.
    void rowConfirmed(int row);
    // -1: beside the rows.
    void menuRequested(int row, const QPoint &globalPosition);
    void copyRequested();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;

private:
    void setUpTable();
    void connectRows();
    void fitColumns();
    bool inUse() const;
    void noteHover(const QModelIndex &index);
    void leaveEmptyLine();

    ListModel *m_model;
    ListOrder *m_order; // a child
    QString m_emptyText;
    QList<QPersistentModelIndex> m_lit; // of the order
    int m_hoveredRow = -1;
    bool m_pointerInside = false;
    bool m_changing = false; // rows come, go and move: nobody selects
    QElapsedTimer m_sinceTouched; // by pointer or key
};
