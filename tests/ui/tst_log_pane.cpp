#include "test_program.h"
#include "ui/log_pane.h"
#include "view/contrast.h"

#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

// Whether the newest line is in sight.
class TestLogPane : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void followsFromTheStart();
    void followsWhateverTakesTheEndOutOfSight();
    void staysWhereTheOperatorReads();
    void linesAreReadOnAnotherGroundToo();

private:
    void append(int lines);
    bool atEnd() const;

    std::unique_ptr<LogPane> m_pane;
};

void TestLogPane::init()
{
    m_pane = std::make_unique<LogPane>();
    m_pane->resize(400, 200);
}

void TestLogPane::append(int lines)
{
    for (int i = 0; i < lines; ++i) {
        m_pane->appendLine(LogLevel::Info, QString("line %1").arg(i));
    }
}

bool TestLogPane::atEnd() const
{
    QTextCursor end(m_pane->document());
    end.movePosition(QTextCursor::End);
    const QRect cursor = m_pane->cursorRect(end);
    return cursor.top() >= 0 && cursor.bottom() <= m_pane->viewport()->height();
}

// Most of what the start tells comes before the pane is shown, or while it lies behind another's tab.
void TestLogPane::followsFromTheStart()
{
    append(100);
    m_pane->show();
    QCoreApplication::processEvents();
    QVERIFY(atEnd());
    m_pane->hide();
    append(100);
    m_pane->resize(400, 100);
    m_pane->show();
    QCoreApplication::processEvents();
    QVERIFY(atEnd());
}

void TestLogPane::followsWhateverTakesTheEndOutOfSight()
{
    m_pane->show();
    append(100);
    m_pane->resize(400, 80);
    QCoreApplication::processEvents();
    QVERIFY(atEnd());
    m_pane->appendLine(LogLevel::Info, QString(300, 'x')); // gets a scroll bar
    QCoreApplication::processEvents();
    QVERIFY(atEnd());
    append(LogPane::MaximumLines + 10); // the oldest go
    QVERIFY(atEnd());
}

void TestLogPane::staysWhereTheOperatorReads()
{
    m_pane->show();
    append(100);
    QScrollBar *bar = m_pane->verticalScrollBar();
    bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    const int place = bar->value();
    append(10);
    m_pane->resize(400, 150);
    QCOMPARE(bar->value(), place);
    bar->triggerAction(QAbstractSlider::SliderToMaximum);
    append(10);
    QVERIFY(atEnd());
}

void TestLogPane::linesAreReadOnAnotherGroundToo()
{
    const QList<LogLevel> levels{LogLevel::Debug, LogLevel::Info, LogLevel::Warning, LogLevel::Critical};
    for (const LogLevel level : levels) {
        m_pane->appendLine(level, "line");
    }
    for (const auto &[ground, text] : {std::pair(QColor(Qt::black), QColor(Qt::white)), {Qt::white, Qt::black}}) {
        QPalette palette;
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, text);
        m_pane->setPalette(palette);
        QTextBlock block = m_pane->document()->begin();
        for (const LogLevel level : levels) {
            const QColor color = block.begin().fragment().charFormat().foreground().color();
            QVERIFY2(contrastRatio(color, ground) >= 4.5, qPrintable(QString::number(static_cast<int>(level))));
            block = block.next();
        }
    }
}

VYX_TEST(TestLogPane)
#include "tst_log_pane.moc"
