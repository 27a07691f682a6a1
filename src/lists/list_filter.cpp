#include "lists/list_filter.h"

#include "lists/list_model.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

// Blanks within quotes do not part words; the quotes themselves go.
QStringList wordsOf(const QString &text)
{
    QStringList words;
    QString word;
    bool quoted = false;
    for (const QChar letter : text) {
        if (letter == u'"') {
            quoted = !quoted;
        } else if (letter.isSpace() && !quoted) {
            words.append(std::exchange(word, {}));
        } else {
            word += letter;
        }
    }
    words.append(word);
    words.removeAll(QString());
    return words;
}

int columnNamed(const QString &name, const QList<ListColumn> &columns)
{
    const auto found = std::find_if(columns.begin(), columns.end(), [&name](const ListColumn &column) {
        return column.key == name.toLower() || column.title.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

QString keysOf(const QList<ListColumn> &columns)
{
    QStringList keys;
    for (const ListColumn &column : columns) {
        keys.append(column.key);
    }
    return keys.join(QStringLiteral(", "));
}

// Nobody wants to have to know that it is ADS-B and not ADSB.
bool contains(QString cell, const QString &text)
{
    if (!text.contains(u'-')) {
        cell.remove(u'-');
    }
    return cell.contains(text, Qt::CaseInsensitive);
}

} // namespace

ListFilter ListFilter::parse(const QString &text, const ListModel &model)
{
    ListFilter filter;
    for (const QString &word : wordsOf(text)) {
        filter.add(word, model);
    }
    if (!filter.m_error.isEmpty()) {
        filter.m_terms.clear();
    }
    return filter;
}

// A time of day is a word like any other: names of columns begin with a letter.
void ListFilter::add(const QString &word, const ListModel &model)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\p{L}[^:=<>]*)(:|=|<=|>=|<|>)(.*)$"));
    const QRegularExpressionMatch match = pattern.match(word);
    if (!match.hasMatch()) {
        m_terms.append(Term{-1, Sign::Contains, word, {}});
        return;
    }
    constexpr std::pair<const char *, Sign> Signs[] = {{":", Sign::Contains}, {"=", Sign::Equals}, {"<", Sign::Less},
        {"<=", Sign::LessOrEqual}, {">", Sign::Greater}, {">=", Sign::GreaterOrEqual}};
    Term term;
    for (const auto &[text, sign] : Signs) {
        term.sign = match.captured(2) == QLatin1String(text) ? sign : term.sign;
    }
    term.column = columnNamed(match.captured(1), model.columns());
    term.text = match.captured(3);
    bool isNumber = false;
    const double number = term.text.toDouble(&isNumber);
    if (isNumber) {
        term.number = number;
    }
    if (term.column < 0) {
        m_error = tr("There is no column \"%1\". Columns are: %2.").arg(match.captured(1), keysOf(model.columns()));
    } else if (term.sign >= Sign::Less && !model.isNumeric(term.column)) {
        m_error = tr("\"%1\" holds no numbers to compare.").arg(match.captured(1));
    } else if (term.sign >= Sign::Less && !isNumber) {
        const QString example = match.captured(1) + match.captured(2) + QLatin1String("300");
        m_error = tr("\"%1\" wants a number, as in %2.").arg(match.captured(1), example);
    }
    m_terms.append(term);
}

bool ListFilter::accepts(const ListModel &model, int row, const QList<int> &shownColumns) const
{
    return std::all_of(m_terms.begin(), m_terms.end(), [&](const Term &term) {
        if (term.column >= 0) {
            return holds(term, model, row);
        }
        return std::any_of(shownColumns.begin(), shownColumns.end(),
            [&](int column) { return contains(model.cellText(row, column), term.text); });
    });
}

bool ListFilter::holds(const Term &term, const ListModel &model, int row)
{
    constexpr double NotKnown = std::numeric_limits<double>::quiet_NaN(); // compares to nothing
    const double wanted = term.number.value_or(NotKnown);
    const double number = model.cellNumber(row, term.column).value_or(NotKnown);
    switch (term.sign) {
    case Sign::Contains:
        return contains(model.cellText(row, term.column), term.text);
    case Sign::Equals:
        return number == wanted || model.cellText(row, term.column).compare(term.text, Qt::CaseInsensitive) == 0;
    case Sign::Less:
        return number < wanted;
    case Sign::LessOrEqual:
        return number <= wanted;
    case Sign::Greater:
        return number > wanted;
    case Sign::GreaterOrEqual:
        return number >= wanted;
    }
    return false;
}
