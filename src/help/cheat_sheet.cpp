#include "help/cheat_sheet.h"

#include "plan_view/gestures.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPalette>
#include <QRegularExpression>

#include <algorithm>

namespace {

QString plainText(QString text)
{
    static const QRegularExpression Trailing(QStringLiteral("[. ]+$"));
    static const QRegularExpression Mnemonic(QStringLiteral("\\s*\\(&\\w\\)|&"));
    return text.remove(Mnemonic).remove(Trailing);
}

QString keysOf(const QAction &action)
{
    QStringList keys;
    for (const QKeySequence &shortcut : action.shortcuts()) {
        if (!shortcut.isEmpty()) {
            keys.append(shortcut.toString(QKeySequence::NativeText));
        }
    }
    return keys.join(CheatSheet::tr(" or "));
}

CheatSheet::Group menuGroup(const QAction &entry)
{
    CheatSheet::Group group{CheatSheet::tr("Menu %1").arg(plainText(entry.text())), {}};
    for (const QAction *action : entry.menu()->actions()) {
        if (!action->isSeparator()) {
            group.rows.append({keysOf(*action), plainText(action->text())});
        }
    }
    return group;
}

CheatSheet::Group mouseGroup()
{
    CheatSheet::Group group{CheatSheet::tr("Mouse on the plan view"), {}};
    for (const Gestures::MouseRow &row : Gestures::mouse()) {
        group.rows.append(
            {QCoreApplication::translate("Gestures", row.input), QCoreApplication::translate("Gestures", row.effect)});
    }
    return group;
}

CheatSheet::Group keyGroup()
{
    CheatSheet::Group group{CheatSheet::tr("Keys on the plan view"), {}};
    for (const Gestures::KeyRow &row : Gestures::keys()) {
        group.rows.append({QKeySequence(row.key).toString(QKeySequence::NativeText),
            QCoreApplication::translate("Gestures", row.effect)});
    }
    return group;
}

CheatSheet::Group listGroup()
{
    return {CheatSheet::tr("Lists"),
        {{CheatSheet::tr("Double-click"), CheatSheet::tr("Bring the track into view")},
            {CheatSheet::tr("Enter or space on a track"), CheatSheet::tr("Bring the track into view")},
            {CheatSheet::tr("Enter or space on an alert"), CheatSheet::tr("Acknowledge the alert")},
            {CheatSheet::tr("Right click"), CheatSheet::tr("What can be done with the track")}}};
}

CheatSheet::Group helpGroup()
{
    return {CheatSheet::tr("Help"),
        {{QKeySequence(Qt::Key_F1).toString(QKeySequence::NativeText),
            CheatSheet::tr("In every other window: the page of the manual about it")}}};
}

bool matches(const CheatSheet::Row &row, const QString &title, const QStringList &words)
{
    const QString text = row.input + u' ' + row.effect + u' ' + title;
    return std::all_of(
        words.begin(), words.end(), [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}

// As wide as there is room: by itself a table would be as narrow as its words allow.
QString groupHtml(const CheatSheet::Group &group, const QPalette &colors)
{
    QString html = QStringLiteral("<h3>%1</h3><table width=\"100%\" cellpadding=\"3\" cellspacing=\"2\">")
                       .arg(group.title.toHtmlEscaped());
    for (const CheatSheet::Row &row : group.rows) {
        html += QStringLiteral("<tr><td width=\"45%\" bgcolor=\"%1\"><b>%2</b></td><td>%3</td></tr>")
                    .arg(colors.color(QPalette::AlternateBase).name(), row.input.toHtmlEscaped(),
                        row.effect.toHtmlEscaped());
    }
    return html + QStringLiteral("</table>");
}

} // namespace

CheatSheet::CheatSheet(const QMenuBar &menus)
{
    for (const QAction *entry : menus.actions()) {
        if (entry->menu()) {
            m_groups.append(menuGroup(*entry));
        }
    }
    m_groups += {mouseGroup(), keyGroup(), listGroup(), helpGroup()};
}

QList<CheatSheet::Group> CheatSheet::groups(const QString &words) const
{
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    QList<Group> found;
    for (const Group &group : m_groups) {
        Group part{group.title, {}};
        for (const Row &row : group.rows) {
            if (wanted.isEmpty() ? !row.input.isEmpty() : matches(row, group.title, wanted)) {
                part.rows.append(row);
            }
        }
        if (!part.rows.isEmpty()) {
            found.append(part);
        }
    }
    return found;
}

QString CheatSheet::html(const QList<Group> &groups, const QPalette &colors, bool twoColumns)
{
    qsizetype all = 0;
    for (const Group &group : groups) {
        all += group.rows.size() + 2; // the heading
    }
    QString columns[2];
    qsizetype before = 0;
    for (const Group &group : groups) {
        columns[twoColumns && before >= all / 2 ? 1 : 0] += groupHtml(group, colors);
        before += group.rows.size() + 2;
    }
    if (columns[1].isEmpty()) {
        return columns[0];
    }
    return QStringLiteral(
        "<table width=\"100%\" cellspacing=\"12\"><tr><td width=\"50%\">%1</td><td>%2</td></tr></table>")
        .arg(columns[0], columns[1]);
}

QString CheatSheet::text(const QList<Group> &groups)
{
    QString text;
    for (const Group &group : groups) {
        text += group.title + u'\n';
        for (const Row &row : group.rows) {
            text += QStringLiteral("  %1\t%2\n").arg(row.input, row.effect);
        }
        text += u'\n';
    }
    return text;
}
