#include "asterix/profile.h"
#include "asterix/record_map.h"
#include "explanation/report_view_forms.h"

#include <QCoreApplication>

#include <span>
#include <vector>

using korvane::asterix::FieldPlace;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// A value of a Mode S register: its own bits and the status bit before them, 0 where there is none.
struct RegisterPart {
    const char *key;
    const char *name;
    const char *unit;
    int first; // from 0, of the register's 56
    int bits;
    int status; // -1: none
};

constexpr RegisterPart Bds20Parts[] = {
    {"bds20/callsign", QT_TRANSLATE_NOOP("ReportView", "aircraft identification"), "", 8, 48, -1}};
constexpr RegisterPart Bds40Parts[] = {
    {"bds40/mcp", QT_TRANSLATE_NOOP("ReportView", "MCP/FCU selected altitude"), "ft", 1, 12, 0},
    {"bds40/fms", QT_TRANSLATE_NOOP("ReportView", "FMS selected altitude"), "ft", 14, 12, 13},
    {"bds40/pressure", QT_TRANSLATE_NOOP("ReportView", "barometric pressure setting"), "mbar", 27, 12, 26}};
constexpr RegisterPart Bds50Parts[] = {{"bds50/roll", QT_TRANSLATE_NOOP("ReportView", "roll angle"), "°", 1, 10, 0},
    {"bds50/track", QT_TRANSLATE_NOOP("ReportView", "true track angle"), "°", 12, 11, 11},
    {"bds50/speed", QT_TRANSLATE_NOOP("ReportView", "ground speed"), "kt", 24, 10, 23},
    {"bds50/rate", QT_TRANSLATE_NOOP("ReportView", "track angle rate"), "°/s", 35, 10, 34},
    {"bds50/tas", QT_TRANSLATE_NOOP("ReportView", "true airspeed"), "kt", 46, 10, 45}};
constexpr RegisterPart Bds60Parts[] = {
    {"bds60/heading", QT_TRANSLATE_NOOP("ReportView", "magnetic heading"), "°", 1, 11, 0},
    {"bds60/ias", QT_TRANSLATE_NOOP("ReportView", "indicated airspeed"), "kt", 13, 10, 12},
    {"bds60/mach", QT_TRANSLATE_NOOP("ReportView", "Mach number"), "", 24, 10, 23},
    {"bds60/baro", QT_TRANSLATE_NOOP("ReportView", "barometric altitude rate"), "ft/min", 35, 10, 34},
    {"bds60/inertial", QT_TRANSLATE_NOOP("ReportView", "inertial vertical velocity"), "ft/min", 46, 10, 45}};

struct RegisterKind {
    int code;
    std::span<const RegisterPart> parts;
};
constexpr RegisterKind RegisterKinds[] = {
    {0x20, Bds20Parts}, {0x40, Bds40Parts}, {0x50, Bds50Parts}, {0x60, Bds60Parts}};

// The values of the parts in their order.
std::vector<QString> registerValues(int code, const unsigned char *mb)
{
    const auto number = [](double value) { return QString::number(value, 'g', 6); };
    switch (code) {
    case 0x20:
        return {QString::fromLatin1(ast_bds_20_decode(mb).callsign)};
    case 0x40: {
        const auto bds = ast_bds_40_decode(mb);
        return {number(bds.mcpAltitude), number(bds.fmsAltitude), number(bds.baroPressure)};
    }
    case 0x50: {
        const auto bds = ast_bds_50_decode(mb);
        return {number(bds.roll), number(bds.trueTrack), number(bds.groundSpeed), number(bds.trackRate),
            number(bds.trueAirspeed)};
    }
    default: {
        const auto bds = ast_bds_60_decode(mb);
        return {number(bds.magneticHeading), number(bds.indicatedAirspeed), number(bds.mach), number(bds.baroRate),
            number(bds.inertialRate)};
    }
    }
}

bool bitAt(const unsigned char *octets, int bit)
{
    return octets[bit / 8] >> (7 - bit % 8) & 1;
}

// What the register at that bit of the record holds, where its contents are known.
void addRegister(ReportView &view, int firstBit)
{
    const auto *mb = reinterpret_cast<const unsigned char *>(view.octets.constData()) + firstBit / 8;
    const int code = mb[7];
    for (const RegisterKind &kind : RegisterKinds) {
        if (kind.code != code) {
            continue;
        }
        const auto values = registerValues(code, mb);
        for (std::size_t i = 0; i < values.size(); ++i) {
            const RegisterPart &part = kind.parts[i];
            if (part.status >= 0 && !bitAt(mb, part.status)) {
                continue;
            }
            const QString what = QCoreApplication::translate("ReportView", part.name);
            view.fields.append({QString::fromLatin1(part.key),
                QString("BDS %1,%2 %3").arg(code >> 4, 0, 16).arg(code & 15, 0, 16).arg(what), {}, values[i],
                QString::fromUtf8(part.unit), {firstBit + part.first, part.bits}});
        }
    }
}

QString shortened(const QString &number, int digits)
{
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    return isNumber ? QString::number(value, 'g', digits) : number;
}

// Aircraft addresses, the only numbers of 24 bits beside a count of video cells, as everybody writes them.
QString valueOf(const FieldPlace &place)
{
    constexpr int Digits = 10; // a double has more, but no sensor
    const QString exact = QString::fromStdString(place.value);
    const QString value = exact.size() > Digits && exact.contains('.') ? shortened(exact, Digits) : exact;
    bool isNumber = false;
    const uint number = value.toUInt(&isNumber);
    const bool isAddress = place.bits == 24 && place.unit.empty() && isNumber && place.path != "049/NBCELLS";
    return isAddress ? QString("%1").arg(number, 6, 16, QChar('0')).toUpper() : value;
}

bool isRegister(const FieldPlace &place)
{
    return place.bits == 56 && place.path.starts_with("250[") && place.path.ends_with("DATA");
}

} // namespace

bool decodeKept(const KeptReport &report, _ast_datarecord_t &record)
{
    return korvane::asterix::decodeRecord(&record, reinterpret_cast<const unsigned char *>(report.octets.constData()),
        static_cast<std::size_t>(report.octets.size()), report.uap);
}

void viewAsterix(const KeptReport &report, ReportView &view)
{
    _ast_datarecord_t record;
    if (!decodeKept(report, record)) {
        view.name = QCoreApplication::translate("ReportView", "ASTERIX record that cannot be decoded");
        return;
    }
    view.category = korvane::asterix::categoryOf(record);
    view.name = QCoreApplication::translate("ReportView", "CAT%1, edition %2")
                    .arg(view.category, 3, 10, QChar('0'))
                    .arg(text(korvane::asterix::editionOf(record)));
    for (const FieldPlace &place : korvane::asterix::fieldPlaces(record)) {
        const QString path = QString::fromStdString(place.path);
        const int firstBit = static_cast<int>(place.firstBit);
        view.fields.append({path, view.itemName(path), text(place.title), valueOf(place), text(place.unit),
            {firstBit, static_cast<int>(place.bits)}});
        if (isRegister(place)) {
            addRegister(view, firstBit);
        }
    }
}
