#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <optional>

class ListModel;

// What of a list is wanted, as the operator writes it: words apart from each other by blanks, all of which must be
// there, in any shown column; "fl>300", "speed<=120", "type:adsb", "squawk=7000" look into one column, by its key or
// its title, shown or not. Upper and lower case do not matter; a text with blanks stands in quotes.
class ListFilter {
    Q_DECLARE_TR_FUNCTIONS(ListFilter)

public:
    // The columns are the model's. A filter that is wrong lets everything through.
    static ListFilter parse(const QString &text, const ListModel &model);

    // What is wrong, for the operator; empty: nothing.
    const QString &error() const { return m_error; }
    bool isEmpty() const { return m_terms.isEmpty(); }
    // The shown columns are those that words are looked for in.
    bool accepts(const ListModel &model, int row, const QList<int> &shownColumns) const;

private:
    enum class Sign { Contains, Equals, Less, LessOrEqual, Greater, GreaterOrEqual };

    struct Term {
        int column = -1; // -1: any that is shown
        Sign sign = Sign::Contains;
        QString text;
        std::optional<double> number; // that the text is
    };

    void add(const QString &word, const ListModel &model);
    static bool holds(const Term &term, const ListModel &model, int row);

    QList<Term> m_terms;
    QString m_error;
};
