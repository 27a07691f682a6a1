#include "ui/log_pane.h"

#include "widgets/figure_font.h"
#include "widgets/text_colors.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>

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
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &LogPane::followIfAtEnd);
    // A lower pane, or a bar for a long line, takes the end out of sight: nobody has scrolled.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &LogPane::showEnd);
}

void LogPane::appendLine(LogLevel level, const QString &line)
{
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    if (!document()->isEmpty()) {
        cursor.insertBlock();
    }
    cursor.insertText(line, format(level));
    showEnd();
}

void LogPane::followIfAtEnd()
{
    m_following = verticalScrollBar()->value() == verticalScrollBar()->maximum();
}

void LogPane::showEnd()
{
    if (m_following) {
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    }
}

bool LogPane::event(QEvent *event)
{
    // Page and arrow keys scroll the log; the window has shortcuts on the arrows.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() >= Qt::Key_Left && key->key() <= Qt::Key_Down && !(key->modifiers() & Qt::ControlModifier)) {
            event->accept();
            return true;
        }
    }
    return QPlainTextEdit::event(event);
}

void LogPane::contextMenuEvent(QContextMenuEvent *event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    menu->addSeparator();
    menu->addAction(tr("Clear"), this, &QPlainTextEdit::clear);
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
