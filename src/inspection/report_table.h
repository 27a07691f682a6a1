#pragma once

#include <QTableWidget>

// A table that says what its rows mean rather than being edited: rows are replaced as a whole, what is pointed at is
// told, and the arrow keys move in it although the window has shortcuts on them.
class ReportTable final : public QTableWidget {
    Q_OBJECT

public:
    // widest: a text for each column that it should hold; the last column takes what is left.
    ReportTable(const QStringList &titles, const QStringList &widest, QWidget *parent = nullptr);

    // Pixels in which every column has what it should hold, and a scroll bar beside them.
    int fullWidth() const;

    // Selection and scroll position stay with the row's number.
    void setRows(const QList<QStringList> &rows);
    // Lit up because something of the row is pointed at elsewhere.
    void setLitRows(const QList<int> &rows);

Q_SIGNALS:
    // By the pointer, or with the keys. -1: none any more.
    void rowPointed(int row);

protected:
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setText(int row, int column, const QString &text);
    void notePointed(int row);

    QList<int> m_widths; // of the columns, for what they should hold
    QList<int> m_lit;
    int m_pointedRow = -1;
};
