#include "explanation/register_fields.h"

#include "asterix/bds.h"

#include <QCoreApplication>
#include <QStringList>

#include <iterator>

namespace {

// Bits are counted from 0, of the register's 56.
class RegisterReader {
    Q_DECLARE_TR_FUNCTIONS(ReportView)

public:
    RegisterReader(int code, const unsigned char *mb, int firstBit) : m_code(code), m_mb(mb), m_firstBit(firstBit) { }

    QList<ReportField> run();

private:
    void readCapability();
    void readRegisters();
    void readIdentification();
    void readAdvisory();
    void readThreat();
    void readIntention();
    void readTurn();
    void readSpeed();
    QString advisoryText() const;
    static QString complementText(unsigned complement);

    void add(const char *key, const QString &what, const QString &value, int first, int bits, const char *unit = "");
    void add(const char *key, const QString &what, double value, int first, int bits, const char *unit = "")
    {
        add(key, what, QString::number(value, 'g', 6), first, bits, unit);
    }
    // With a status of its own in the bit before.
    void addIf(bool status, const char *key, const QString &what, double value, int first, int bits, const char *unit)
    {
        if (status) {
            add(key, what, value, first, bits, unit);
        }
    }

    const int m_code;
    const unsigned char *const m_mb;
    const int m_firstBit;
    QList<ReportField> m_fields;
};

QString codeText(int code)
{
    return QString("%1,%2").arg(code >> 4, 0, 16).arg(code & 15, 0, 16).toUpper();
}

void RegisterReader::add(
    const char *key, const QString &what, const QString &value, int first, int bits, const char *unit)
{
    m_fields.append({QString::fromLatin1(key), QString("BDS %1 %2").arg(codeText(m_code), what), {}, value,
        QString::fromUtf8(unit), {m_firstBit + first, bits}});
}

QList<ReportField> RegisterReader::run()
{
    switch (m_code) {
    case 0x10:
        readCapability();
        break;
    case 0x17:
        readRegisters();
        break;
    case 0x20:
        readIdentification();
        break;
    case 0x30:
        readAdvisory();
        break;
    case 0x40:
        readIntention();
        break;
    case 0x50:
        readTurn();
        break;
    case 0x60:
        readSpeed();
        break;
    default:
        break;
    }
    return m_fields;
}

void RegisterReader::readCapability()
{
    const auto bds = ast_bds_10_decode(m_mb);
    add("bds10/acas", tr("ACAS operational"), bds.acasOperational, 15, 1);
    add("bds10/subnetwork", tr("Mode S subnetwork version"), bds.subnetworkVersion, 16, 7);
    add("bds10/identification", tr("aircraft identification can be read"), bds.identification, 32, 1);
    add("bds10/surveillance", tr("surveillance identifiers are known"), bds.surveillanceIdentifier, 34, 1);
    add("bds10/hybrid", tr("ACAS with hybrid surveillance"), (bds.acasCapability & 8) != 0, 36, 1);
    add("bds10/advisories", tr("ACAS with resolution advisories"), (bds.acasCapability & 4) != 0, 37, 1);
}

void RegisterReader::readRegisters()
{
    const auto bds = ast_bds_17_decode(m_mb);
    QStringList codes;
    for (int i = 0; i < bds.count; ++i) {
        codes += codeText(bds.registers[i]);
    }
    add("bds17/registers", tr("registers that are filled"), codes.join(' '), 0, 29);
}

void RegisterReader::readIdentification()
{
    add("bds20/callsign", tr("aircraft identification"), QString::fromLatin1(ast_bds_20_decode(m_mb).callsign), 8, 48);
}

void RegisterReader::readAdvisory()
{
    const auto bds = ast_bds_30_decode(m_mb);
    add("bds30/advisory", tr("resolution advisory"), advisoryText(), 8, 14);
    add("bds30/complement", tr("what must not be done"), complementText(bds.complement), 22, 4);
    add("bds30/terminated", tr("advisory has ended"), bds.terminated, 26, 1);
    add("bds30/multiple", tr("several threats"), bds.multipleThreats, 27, 1);
    readThreat();
}

// One threat: a word for each bit; of several, the bits mean something else.
QString RegisterReader::advisoryText() const
{
    constexpr unsigned OneThreat = 1U << 13;
    const auto bds = ast_bds_30_decode(m_mb);
    if (!(bds.advisory & OneThreat)) {
        return bds.multipleThreats ? QString("%1").arg(bds.advisory, 14, 2, QChar('0')) : tr("none");
    }
    QStringList words{bds.advisory & 1U << 12 ? tr("corrective") : tr("preventive"),
        bds.advisory & 1U << 11 ? tr("downwards") : tr("upwards"),
        bds.advisory & 1U << 7 ? tr("climb or descend") : tr("limit of vertical speed")};
    if (bds.advisory & 1U << 10) {
        words += tr("increased rate");
    }
    if (bds.advisory & 1U << 9) {
        words += tr("sense reversed");
    }
    if (bds.advisory & 1U << 8) {
        words += tr("levels cross");
    }
    return words.join(", ");
}

QString RegisterReader::complementText(unsigned complement)
{
    const QString words[] = {
        tr("do not pass below"), tr("do not pass above"), tr("do not turn left"), tr("do not turn right")};
    QStringList told;
    for (std::size_t i = 0; i < std::size(words); ++i) {
        if (complement >> (3 - i) & 1U) {
            told += words[i];
        }
    }
    return told.isEmpty() ? tr("none") : told.join(", ");
}

void RegisterReader::readThreat()
{
    const auto bds = ast_bds_30_decode(m_mb);
    if (bds.threatType == 1) {
        add("bds30/address", tr("threat's address"), QString("%1").arg(bds.threatAddress, 6, 16, QChar('0')).toUpper(),
            30, 24);
    }
    addIf(bds.threatAltitudeStatus, "bds30/altitude", tr("threat's altitude"), bds.threatAltitude, 30, 13, "ft");
    addIf(bds.threatRangeStatus, "bds30/range", tr("threat's range"), bds.threatRange, 43, 7, "NM");
    addIf(bds.threatBearingStatus, "bds30/bearing", tr("threat's bearing"), bds.threatBearing, 50, 6, "°");
}

void RegisterReader::readIntention()
{
    const auto bds = ast_bds_40_decode(m_mb);
    addIf(bds.mcpAltitudeStatus, "bds40/mcp", tr("MCP/FCU selected altitude"), bds.mcpAltitude, 1, 12, "ft");
    addIf(bds.fmsAltitudeStatus, "bds40/fms", tr("FMS selected altitude"), bds.fmsAltitude, 14, 12, "ft");
    addIf(
        bds.baroPressureStatus, "bds40/pressure", tr("barometric pressure setting"), bds.baroPressure, 27, 12, "mbar");
}

void RegisterReader::readTurn()
{
    const auto bds = ast_bds_50_decode(m_mb);
    addIf(bds.rollStatus, "bds50/roll", tr("roll angle"), bds.roll, 1, 10, "°");
    addIf(bds.trueTrackStatus, "bds50/track", tr("true track angle"), bds.trueTrack, 12, 11, "°");
    addIf(bds.groundSpeedStatus, "bds50/speed", tr("ground speed"), bds.groundSpeed, 24, 10, "kt");
    addIf(bds.trackRateStatus, "bds50/rate", tr("track angle rate"), bds.trackRate, 35, 10, "°/s");
    addIf(bds.trueAirspeedStatus, "bds50/tas", tr("true airspeed"), bds.trueAirspeed, 46, 10, "kt");
}

void RegisterReader::readSpeed()
{
    const auto bds = ast_bds_60_decode(m_mb);
    addIf(bds.magneticHeadingStatus, "bds60/heading", tr("magnetic heading"), bds.magneticHeading, 1, 11, "°");
    addIf(bds.indicatedAirspeedStatus, "bds60/ias", tr("indicated airspeed"), bds.indicatedAirspeed, 13, 10, "kt");
    addIf(bds.machStatus, "bds60/mach", tr("Mach number"), bds.mach, 24, 10, "");
    addIf(bds.baroRateStatus, "bds60/baro", tr("barometric altitude rate"), bds.baroRate, 35, 10, "ft/min");
    addIf(
        bds.inertialRateStatus, "bds60/inertial", tr("inertial vertical velocity"), bds.inertialRate, 46, 10, "ft/min");
}

} // namespace

QList<ReportField> registerFields(int code, const unsigned char *mb, int firstBit)
{
    return RegisterReader(code, mb, firstBit).run();
}
