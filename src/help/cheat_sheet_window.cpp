#include "help/cheat_sheet_window.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

struct Row {
    QString input;
    QString effect;
};

QString plainText(const QAction &action)
{
    QString text = action.text();
    text.remove(u'&');
    while (text.endsWith(u'.') || text.endsWith(u' ')) {
        text.chop(1);
    }
    return text;
}

QList<Row> shortcutRows(const QList<QAction *> &actions)
{
    QList<Row> rows;
    for (const QAction *action : actions) {
        QStringList keys;
        const QList<QKeySequence> shortcuts = action->shortcuts();
        for (const QKeySequence &shortcut : shortcuts) {
            if (!shortcut.isEmpty()) {
                keys.append(shortcut.toString(QKeySequence::NativeText));
            }
        }
        if (!keys.isEmpty()) {
            rows.append({keys.join(CheatSheetWindow::tr(" or ")), plainText(*action)});
        }
    }
    return rows;
}

QList<Row> mouseRows()
{
    return {{CheatSheetWindow::tr("Left click on a symbol or label"), CheatSheetWindow::tr("Select the track")},
        {CheatSheetWindow::tr("Left click once more"), CheatSheetWindow::tr("Select the next track at this place")},
        {CheatSheetWindow::tr("Right click on a symbol or label"),
            CheatSheetWindow::tr("What can be done with the track")},
        {CheatSheetWindow::tr("Right drag on the map"), CheatSheetWindow::tr("Move the view")},
        {CheatSheetWindow::tr("Right drag on a label"), CheatSheetWindow::tr("Move the label")},
        {CheatSheetWindow::tr("Right double-click"), CheatSheetWindow::tr("Bring this point to the centre")},
        {CheatSheetWindow::tr("Wheel"), CheatSheetWindow::tr("Zoom around the pointer")},
        {CheatSheetWindow::tr("Alt + wheel"), CheatSheetWindow::tr("Zoom in small steps")},
        {CheatSheetWindow::tr("Left click with the cross"),
            CheatSheetWindow::tr("Place the centre of the range rings")}};
}

QList<Row> viewKeyRows()
{
    return {{CheatSheetWindow::tr("F12"), CheatSheetWindow::tr("Rotate clockwise by 1°")},
        {CheatSheetWindow::tr("F11"), CheatSheetWindow::tr("Rotate counter-clockwise by 1°")},
        {CheatSheetWindow::tr("Alt + F12"), CheatSheetWindow::tr("Rotate clockwise by 0.1°")},
        {CheatSheetWindow::tr("Alt + F11"), CheatSheetWindow::tr("Rotate counter-clockwise by 0.1°")}};
}

QLabel *makeKeyCap(const QString &text)
{
    auto *cap = new QLabel(text);
    cap->setFrameShape(QFrame::StyledPanel);
    cap->setContentsMargins(6, 2, 6, 2);
    cap->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    QFont font = cap->font();
    font.setBold(true);
    cap->setFont(font);
    return cap;
}

void addSection(QGridLayout *grid, const QString &title, const QList<Row> &rows)
{
    if (rows.isEmpty()) {
        return;
    }
    int at = grid->rowCount();
    auto *heading = new QLabel(title);
    QFont font = heading->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    heading->setFont(font);
    heading->setContentsMargins(0, at > 1 ? 12 : 0, 0, 4);
    grid->addWidget(heading, at++, 0, 1, 2);
    for (const Row &row : rows) {
        grid->addWidget(makeKeyCap(row.input), at, 0);
        grid->addWidget(new QLabel(row.effect), at++, 1);
    }
}

QVBoxLayout *makeColumn(QGridLayout *grid)
{
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(1, 1);
    auto *column = new QVBoxLayout;
    column->addLayout(grid);
    column->addStretch(1);
    return column;
}

} // namespace

CheatSheetWindow::CheatSheetWindow(const QList<QAction *> &actions, QWidget *parent)
    : GeometryDialog(QStringLiteral("CheatSheetWindow"), parent)
{
    setWindowTitle(tr("Cheat Sheet"));
    auto *commands = new QGridLayout;
    addSection(commands, tr("Commands"), shortcutRows(actions));
    auto *gestures = new QGridLayout;
    addSection(gestures, tr("Mouse on the plan view"), mouseRows());
    addSection(gestures, tr("Keys on the plan view"), viewKeyRows());
    auto *sheet = new QWidget;
    auto *columns = new QHBoxLayout(sheet);
    columns->setSpacing(36);
    columns->addLayout(makeColumn(commands));
    columns->addLayout(makeColumn(gestures));
    columns->addStretch(1);

    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(sheet);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &CheatSheetWindow::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area, 1);
    layout->addWidget(buttons);
    resize(sheet->sizeHint() + QSize(48, buttons->sizeHint().height() + 48));
}
