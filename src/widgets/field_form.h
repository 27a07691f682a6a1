#pragma once

#include <QHash>
#include <QList>
#include <QRect>
#include <QString>
#include <QWidget>

class CoordinateEdit;
class QGridLayout;
class QLabel;

// Rows of label, field and, under the field, a note in words when what was entered is refused. Mnemonics of the labels
// lead to their fields, whose accessible names they are.
class FieldForm final : public QWidget {
    Q_OBJECT

public:
    explicit FieldForm(QWidget *parent = nullptr);

    void addHeading(const QString &text);
    void addField(const QString &label, QWidget *field);
    // A field that names itself, for example a check box.
    void addField(QWidget *field);
    void addSpacing();
    void addStretch();
    void setRowVisible(QWidget *field, bool visible);
    // A row can be worked with while it is enabled and not locked. What other fields say enables it, and whoever shows
    // the form locks it: neither undoes the other.
    void setRowEnabled(QWidget *field, bool enabled);
    void setRowLocked(QWidget *field, bool locked);
    bool isRowLocked(const QWidget *field) const { return m_rows.value(field).locked; }

    // From top to bottom.
    const QList<QWidget *> &fields() const { return m_order; }
    // What the row is called, without mnemonic and colon: the label's text or that of a field that names itself.
    QString title(const QWidget *field) const;
    // The heading over the row; empty above the first.
    QString heading(const QWidget *field) const { return m_rows.value(field).heading; }
    // Of label and field, in coordinates of the form; empty while the row is hidden.
    QRect rowRect(const QWidget *field) const;
    // The field of the row that the point is in, or null.
    QWidget *fieldAt(const QPoint &point) const;
    // On the label too, so that the whole row answers.
    void setToolTip(QWidget *field, const QString &text);

    // Shows the problem under the field, or removes the note when the problem is empty; true when it is empty. A dialog
    // that is on the screen grows to hold it.
    bool check(QWidget *field, const QString &problem);
    // The same with what is wrong with the coordinate. The note follows what is typed from then on, and goes when that
    // is a coordinate.
    bool checkCoordinate(CoordinateEdit *field);
    void clearNotes();
    QString note(const QWidget *field) const;
    // The field with the topmost note, or null.
    QWidget *firstWithNote() const;

private:
    struct Row {
        QLabel *label = nullptr;
        QLabel *note = nullptr;
        QString heading;
        bool enabled = true;
        bool locked = false;
    };
    void updateEnabled(QWidget *field);
    void makeRoom();
    void place(QWidget *field, QLabel *label);

    QGridLayout *m_grid = nullptr;
    QHash<const QWidget *, Row> m_rows;
    QList<QWidget *> m_order;
    QString m_heading; // of the rows that are being added
    int m_nextRow = 0;
};
