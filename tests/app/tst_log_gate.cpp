#include "app/log_gate.h"
#include "test_program.h"

#include <QTest>

class TestLogGate final : public QObject {
    Q_OBJECT

private:
    QStringList m_lines;
    LogGate m_gate{[this](LogLevel level, const QString &text) {
        m_lines += QString::number(static_cast<int>(level)) + ' ' + text;
    }};

private Q_SLOTS:
    void init() { m_lines.clear(); }
    void cleanup() { LogGate::setShownLevel(LogLevel::None); }

    void repeatedLinesAreSummedUp()
    {
        for (int i = 0; i < 9815; ++i) {
            m_gate.log(LogLevel::Debug, QStringLiteral("Message of %1 bytes.").arg(i));
        }
        m_gate.log(LogLevel::Debug, "Something else.");
        for (const char *text : {"From 25/1.", "From 25/2.", "From 25/3.", "From 25/4."}) {
            m_gate.log(LogLevel::Warning, text); // four kinds: who it was matters
        }
        QCOMPARE(m_lines.size(), 8);
        m_lines.clear();
        m_gate.sumUp();
        QCOMPARE(m_lines, QStringList("1 Message of 0 bytes. … 9,812 more like this"));
        m_gate.sumUp();
        m_gate.log(LogLevel::Debug, "Message of 7 bytes.");
        QCOMPARE(m_lines.mid(1), QStringList("1 Message of 7 bytes."));
    }

    // A flood in which no line is like another is one, too.
    void floodsOfAllKindsAreHeldBack()
    {
        for (int i = 0; i < 20000; ++i) {
            m_gate.log(LogLevel::Debug,
                QString::number(i, 8).replace('0', 'a').replace('1', 'b').replace('2', 'c')
                    + QString(i % 500, QLatin1Char('x')));
        }
        m_gate.sumUp();
        QVERIFY2(m_lines.size() < 1000, qPrintable(QString::number(m_lines.size())));
    }

    void linesBelowTheShownLevelAreDropped()
    {
        LogGate::setShownLevel(LogLevel::Info);
        QVERIFY(!LogGate::isShown(LogLevel::Debug) && LogGate::isShown(LogLevel::Info));
        m_gate.log(LogLevel::Debug, "Unseen.");
        m_gate.log(LogLevel::Info, "Seen.");
        m_gate.sumUp();
        QCOMPARE(m_lines, QStringList("2 Seen."));
    }
};

VYX_TEST(TestLogGate)
#include "tst_log_gate.moc"
