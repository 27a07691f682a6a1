#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

class QMenuBar;
class QPalette;

// Keys and mouse gestures at a glance: the commands of the menus as they are at this moment, and what plan view and
// lists answer to.
class CheatSheet {
    Q_DECLARE_TR_FUNCTIONS(CheatSheet)

public:
    struct Row {
        QString input; // empty: a command without a key
        QString effect;
    };
    struct Group {
        QString title;
        QList<Row> rows;
    };

    explicit CheatSheet(const QMenuBar &menus);

    // Those whose input, effect or title has the words; without words those that have an input.
    QList<Group> groups(const QString &words = {}) const;
    // For a document, in two columns side by side or in one.
    static QString html(const QList<Group> &groups, const QPalette &colors, bool twoColumns);
    // A line each.
    static QString text(const QList<Group> &groups);

private:
    QList<Group> m_groups;
};
