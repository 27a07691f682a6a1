#pragma once

#include "widgets/urgency.h"

#include <QWidget>

#include <functional>

class ListModel;
class ListView;
class QAction;
class QLabel;
class QLineEdit;
class QToolButton;

// A list with what is wrong with it, its filter and what can be done with it as a whole. GUI thread.
class ListPane final : public QWidget {
    Q_OBJECT

public:
    // The name is the list view's object name. The model stays the caller's.
    ListPane(ListModel *model, const QString &name, QWidget *parent = nullptr);

    ListView *list() const { return m_list; }

    // As ListView::takeChange(), and the counts with it.
    void takeChange(const std::function<void()> &change);

    // What stands in the place of the rows while there are none.
    void setEmptyText(const QString &text);
    // A line over the list; empty: nothing is wrong.
    void setWarning(Urgency urgency, const QString &text);

    // For the menu of a row of the model, -1: beside the rows. They go with the row's menu.
    QList<QAction *> actionsFor(int row, QObject *menu);

    // Asks where to and writes the list as it is shown.
    void exportCsv();

Q_SIGNALS:
    // Something that the operator asked for could not be done.
    void failed(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeFilterRow();
    void makeMenu();
    void applyFilter();
    void showCount();
    void copyRow(int row);
    void copyList();

    ListModel *m_model;
    ListView *m_list; // this and the rest are children
    QLabel *m_warning;
    QWidget *m_filterRow;
    QLineEdit *m_filter;
    QLabel *m_count;
    QToolButton *m_menuButton;
    QLabel *m_error;
    QString m_emptyText;
};
