#pragma once

#include <QHash>
#include <QWidget>

class CoordinateEdit;
class QGridLayout;
class QLabel;

// Rows of label, field and, under the field, a note in words when what was entered is refused. Mnemonics of the labels
// lead to their fields.
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

    // Shows the problem under the field, or removes the note when the problem is empty; true when it is empty.
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
    };
    void place(QWidget *field, QLabel *label);

    QGridLayout *m_grid = nullptr;
    QHash<const QWidget *, Row> m_rows;
    QList<QWidget *> m_order;
    int m_nextRow = 0;
};
