#include "ui/log_pane.h"

#include "app/log_file.h"
#include "widgets/arrow_keys.h"
#include "widgets/figure_font.h"
#include "widgets/text_colors.h"

#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>

#include <memory>

LogPane::LogPane(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(MaximumLines);
    setLineWrapMode(NoWrap);
    setFrameShape(NoFrame);
    setFont(figureFont());
    document()->setDocumentMargin(6);
    new ArrowKeys(this);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &LogPane::keepAtEnd);
}

void LogPane::appendLine(LogLevel level, const QString &line)
{
    const bool following = atEnd();
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    if (!document()->isEmpty()) {
        cursor.insertBlock();
    }
    cursor.insertText(line, format(level));
    cursor.block().setUserState(static_cast<int>(level));
    if (following) {
        showEnd();
    }
}

bool LogPane::atEnd() const
{
    return verticalScrollBar()->value() >= m_end;
}

void LogPane::showEnd()
{
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

// A lower pane, or a bar for a long line, takes the end out of sight: nobody has scrolled. The bar has its old value
// yet.
void LogPane::keepAtEnd(int, int maximum)
{
    const bool following = atEnd();
    m_end = maximum;
    if (following) {
        showEnd();
    }
}

// Colours that stand out from one ground may be lost on another.
void LogPane::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        recolor();
    }
}

void LogPane::recolor()
{
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        cursor.setPosition(block.position());
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format(static_cast<LogLevel>(block.userState())));
    }
    cursor.endEditBlock();
}

void LogPane::contextMenuEvent(QContextMenuEvent *event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    menu->addSeparator();
    menu->addAction(tr("Clear"), this, &QPlainTextEdit::clear);
    QAction *folder = menu->addAction(tr("Open Log Folder"), this,
        [] { QDesktopServices::openUrl(QUrl::fromLocalFile(LogFile::defaultDirectory())); });
    folder->setEnabled(QFileInfo(LogFile::defaultDirectory()).isDir());
    menu->exec(event->globalPos());
}

QTextCharFormat LogPane::format(LogLevel level) const
{
    QTextCharFormat format;
    switch (level) {
    case LogLevel::Warning:
        format.setForeground(warningTextColor(palette()));
        break;
    case LogLevel::Critical:
    case LogLevel::Panic:
        format.setForeground(alarmTextColor(palette()));
        break;
    case LogLevel::Debug:
        format.setForeground(quietTextColor(palette()));
        break;
    default:
        format.setForeground(palette().brush(QPalette::Text));
        break;
    }
    return format;
}
