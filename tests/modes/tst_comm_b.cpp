#include "modes/comm_b.h"
#include "test_program.h"

#include <QTest>

using namespace korvane::modes;

namespace {

std::uint64_t field(const char *hex)
{
    return QByteArray::fromHex(hex).toHex().toULongLong(nullptr, 16);
}

} // namespace

class TestCommB : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void infersRegisters_data()
    {
        QTest::addColumn<QByteArray>("mb");
        QTest::addColumn<int>("altitude"); // -9999: not known
        QTest::addColumn<QString>("registers");
        const auto row = [](const char *name, const char *mb, const char *registers, int altitude = -9999) {
            QTest::newRow(name) << QByteArray(mb) << altitude << QString(registers);
        };
        row("nothing", "00000000000000", "");
        row("1,0", "10030A80E50000", "10");
        row("1,0 with a reserved bit", "10430A80E50000", "");
        row("1,0 overlay of an old version", "10020400000000", "");
        row("1,7", "FA810100000000", "17 45");
        row("2,0", "204994B14C1820", "20");
        row("2,0 with a character that is none", "204994B14C182F", "");
        row("3,0", "30800665 2C6000", "30");
        row("3,0 of a reserved threat type", "3080066D2C6000", "");
        row("4,0", "99680030A80000", "40");
        row("4,0 with a reserved bit", "99680030A90000", "");
        row("4,0 altitude without its status", "19680030A80000", "");
        row("5,0 and 6,0", "8AF9B718E3C474", "50 60");
        row("5,0 alone by the speeds at the altitude", "835B1F1F206485", "50", 4650);
        row("5,0 or 6,0 when the altitude is not known", "835B1F1F206485", "50 60");
        row("6,0", "D919F719E3BC75", "60", 4650);
        row("6,0 at an altitude where its speeds do not fit", "D919F719E3BC75", "", 30000);
        row("5,0 roll of nearly 50 degrees", "A39B1F1F206485", "50", 4650);
        row("5,0 roll beyond 50 degrees", "A3BB1F1F206485", "", 4650);
        row("6,0 rate of nearly 6000 ft/min", "D919F719E5DC75", "60", 4650);
        row("6,0 rate beyond 6000 ft/min", "D919F719E5E475", "", 4650);
    }

    void infersRegisters()
    {
        QFETCH(QByteArray, mb);
        QFETCH(int, altitude);
        const std::optional<int> known = altitude == -9999 ? std::nullopt : std::optional<int>(altitude);
        const RegisterCandidates candidates = inferRegisters(field(mb.constData()), known);
        QStringList names;
        for (std::size_t i = 0; i < candidates.count; ++i) {
            names.append(QString::number(candidates.registers[i], 16));
        }
        QTEST(names.join(' '), "registers");
        QCOMPARE(candidates.only() != 0, names.size() == 1);
    }
};

VYX_TEST(TestCommB)
#include "tst_comm_b.moc"
