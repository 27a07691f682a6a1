#include "help/manual_view.h"

#include <QEvent>
#include <QFile>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>

#include <cmath>

namespace {

constexpr int RelayDelayMs = 150;
constexpr double Margin = 16.0; // pixels around the text
constexpr double CellPadding = 5.0;
constexpr double LineHeight = 120.0; // percent

QUrl urlOf(const QString &place)
{
    return QUrl(QStringLiteral("qrc:/manual/")).resolved(QUrl(place));
}

QColor between(const QColor &a, const QColor &b, double share)
{
    const auto mix = [share](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * share)); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

} // namespace

ManualView::ManualView(const Manual *manual, QWidget *parent) : QTextBrowser(parent), m_manual(manual)
{
    setOpenExternalLinks(true);
    setAccessibleName(tr("Page of the manual"));
    m_relay.setSingleShot(true);
    m_relay.setInterval(RelayDelayMs);
    connect(&m_relay, &QTimer::timeout, this, &ManualView::lay);
    connect(this, &QTextBrowser::sourceChanged, this, &ManualView::dress);
}

void ManualView::showPlace(const QString &place)
{
    setSource(
        urlOf(m_manual->has(place) ? place : QString::fromLatin1(Manual::IndexPage)), QTextDocument::MarkdownResource);
}

QString ManualView::placeOf(const QUrl &url)
{
    const QString fragment = url.fragment();
    return url.fileName() + (fragment.isEmpty() ? fragment : u'#' + fragment);
}

QVariant ManualView::loadResource(int type, const QUrl &name)
{
    const QUrl url = urlOf(name.toString());
    if (type == QTextDocument::ImageResource) {
        const QImage image(u':' + url.path());
        const int width = textWidth();
        return image.width() > width ? image.scaledToWidth(width, Qt::SmoothTransformation) : image;
    }
    const Manual::Page *page = m_manual->page(url.fileName());
    return page ? page->markdown.toUtf8() : QTextBrowser::loadResource(type, name);
}

int ManualView::textWidth() const
{
    return std::max(100, viewport()->width() - static_cast<int>(2 * Margin));
}

// The toolkit reads a page anew whenever it comes to it from another one, also on the way back.
void ManualView::dress(const QUrl &url)
{
    document()->setDocumentMargin(Margin);
    m_laidWidth = textWidth();
    QTextCursor allAtOnce(document()); // after each change by itself a table of many rows would be laid out again
    allAtOnce.beginEditBlock();
    markHeadings(m_manual->page(url.fileName()));
    drawTables();
    allAtOnce.endEditBlock();
    markWords();
    if (!url.fragment().isEmpty()) {
        scrollToAnchor(url.fragment());
    }
}

void ManualView::markHeadings(const Manual::Page *page)
{
    qsizetype heading = 0;
    QTextCursor cursor(document());
    QTextBlockFormat spaced;
    spaced.setLineHeight(LineHeight, QTextBlockFormat::ProportionalHeight);
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        cursor.setPosition(block.position());
        cursor.mergeBlockFormat(spaced);
        if (block.blockFormat().headingLevel() == 0) {
            continue;
        }
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        QTextCharFormat anchor;
        anchor.setAnchor(true);
        if (page && heading < page->sections.size()) {
            anchor.setAnchorNames({page->sections.at(heading).anchor});
        }
        cursor.mergeCharFormat(anchor);
        ++heading;
    }
}

void ManualView::drawTables()
{
    const QColor ground = palette().color(QPalette::Base);
    const QColor ink = palette().color(QPalette::Text);
    for (QTextFrame *frame : document()->rootFrame()->childFrames()) {
        auto *table = qobject_cast<QTextTable *>(frame);
        if (!table) {
            continue;
        }
        QTextTableFormat format = table->format();
        format.setBorder(1.0);
        format.setBorderCollapse(true);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(between(ground, ink, 0.3));
        format.setCellPadding(CellPadding);
        format.setCellSpacing(0.0);
        format.setBottomMargin(Margin / 2.0);
        table->setFormat(format);
        for (int column = 0; column < table->columns(); ++column) {
            QTextTableCell cell = table->cellAt(0, column);
            QTextTableCellFormat heading = cell.format().toTableCellFormat();
            heading.setBackground(between(ground, ink, 0.12));
            cell.setFormat(heading);
        }
    }
}

void ManualView::highlight(const QList<QRegularExpression> &words)
{
    m_words = words;
    markWords();
}

void ManualView::markWords()
{
    QList<QTextEdit::ExtraSelection> marks;
    for (const QRegularExpression &word : std::as_const(m_words)) {
        QTextCursor found(document());
        while (!(found = document()->find(word, found)).isNull()) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = found;
            mark.format.setBackground(palette().highlight());
            mark.format.setForeground(palette().highlightedText());
            marks.append(mark);
        }
    }
    setExtraSelections(marks);
}

void ManualView::lay()
{
    const int position = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(position);
}

void ManualView::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        m_relay.start();
    }
}

void ManualView::resizeEvent(QResizeEvent *event)
{
    QTextBrowser::resizeEvent(event);
    if (textWidth() != m_laidWidth) {
        m_relay.start();
    }
}
