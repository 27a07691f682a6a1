#include "explanation/report_view_forms.h"
#include "sirm/alenia_sir_m_radar_message.h"

#include <QCoreApplication>

namespace {

QString number(double value)
{
    return QString::number(value, 'g', 7);
}

QString flag(bool set)
{
    return set ? "1" : "0";
}

QString octal(unsigned code)
{
    return QString("%1").arg(code, 4, 8, QChar('0'));
}

// Bits from the first of the record on, which follows what is common to all records of the message.
ReportField field(const char *key, const char *name, const QString &value, const char *unit, int first, int count)
{
    constexpr int FixedBits = 8 * static_cast<int>(AleniaSirMRadarMessage::FixedSize);
    return ReportField{QString::fromLatin1(key), QCoreApplication::translate("ReportView", name), {}, value,
        QString::fromUtf8(unit), {FixedBits + first, count}};
}

ReportField fixedField(const char *key, const char *name, const QString &value, const char *unit, int first, int count)
{
    ReportField fixed = field(key, name, value, unit, first, count);
    fixed.bits = {first, count};
    return fixed;
}

QList<ReportField> headerFields(const AleniaSirMRadarMessage &message)
{
    const bool timed = message.timeOfDayValid();
    const QString time = timed ? QString::number(message.timeOfDay() / 1000.0, 'f', 3)
                               : QCoreApplication::translate("ReportView", "not known");
    return {
        fixedField("messageType", QT_TRANSLATE_NOOP("ReportView", "message type"),
            number(static_cast<int>(message.type())), "", 0, 8),
        fixedField("radar", QT_TRANSLATE_NOOP("ReportView", "radar"), number(message.radarId()), "", 8, 8),
        fixedField(
            "length", QT_TRANSLATE_NOOP("ReportView", "length of the message"), number(message.length()), "", 16, 16),
        fixedField(timed ? "timeOfDay" : "noTimeOfDay", QT_TRANSLATE_NOOP("ReportView", "time of day"), time,
            timed ? "s" : "", 32, 32),
    };
}

QList<ReportField> northMarkerFields(const AleniaSirMRadarNorthMarkerMessage &message)
{
    return headerFields(message)
        + QList<ReportField>{
            fixedField("northOff", QT_TRANSLATE_NOOP("ReportView", "north not synchronised"),
                flag(message.northNotSynchronized()), "", 64, 1),
            fixedField("clockOff", QT_TRANSLATE_NOOP("ReportView", "clock not synchronised"),
                flag(message.clockNotSynchronized()), "", 65, 1),
            fixedField("rotationPeriod", QT_TRANSLATE_NOOP("ReportView", "rotation period"),
                number(message.rotationPeriod()), "ms", 80, 16),
        };
}

QList<ReportField> dataFields(const AleniaSirMRadarDataMessage &message)
{
    return headerFields(message)
        + QList<ReportField>{
            fixedField(
                "sectorValid", QT_TRANSLATE_NOOP("ReportView", "sector valid"), flag(message.sectorValid()), "", 64, 1),
            fixedField("sector", QT_TRANSLATE_NOOP("ReportView", "sector"), number(message.sector()), "", 76, 4),
            fixedField("plots", QT_TRANSLATE_NOOP("ReportView", "plot records in the message"),
                number(message.plotCount()), "", 80, 8),
            fixedField("tracks", QT_TRANSLATE_NOOP("ReportView", "track records in the message"),
                number(message.trackCount()), "", 88, 8),
        };
}

QList<ReportField> plotFields(const AleniaSirMRadarPlotRecord &record)
{
    return {
        field(
            "heightValid", QT_TRANSLATE_NOOP("ReportView", "Mode C valid"), flag(record.modeCHeightValid()), "", 8, 1),
        field("squawkValid", QT_TRANSLATE_NOOP("ReportView", "Mode A valid"), flag(record.modeACodeValid()), "", 9, 1),
        field("type", QT_TRANSLATE_NOOP("ReportView", "plot type"), number(record.plotType()), "", 13, 2),
        field("range", QT_TRANSLATE_NOOP("ReportView", "slant range"), number(record.range()), "km", 16, 16),
        field("azimuth", QT_TRANSLATE_NOOP("ReportView", "azimuth"), number(record.azimuth()), "°", 32, 16),
        field("squawk", QT_TRANSLATE_NOOP("ReportView", "Mode A code"), octal(record.modeACode()), "", 52, 12),
        field("height", QT_TRANSLATE_NOOP("ReportView", "Mode C height"), number(record.modeCHeightImperial()), "ft",
            64, 16),
    };
}

// Words are big-endian, of 16 bits but for the coordinates.
QList<ReportField> trackFields(const AleniaSirMRadarTrackRecord &record)
{
    return {
        field("number", QT_TRANSLATE_NOOP("ReportView", "track number"), number(record.trackNumber()), "", 0, 16),
        field("velocityValid", QT_TRANSLATE_NOOP("ReportView", "velocity valid"), flag(record.velocityValid()), "", 21,
            1),
        field("velocityPresent", QT_TRANSLATE_NOOP("ReportView", "velocity present"), flag(record.velocityPresent()),
            "", 22, 1),
        field("rateValid", QT_TRANSLATE_NOOP("ReportView", "rate of climb valid"),
            flag(record.rateOfClimbDescentValid()), "", 23, 1),
        field(
            "heightValid", QT_TRANSLATE_NOOP("ReportView", "Mode C valid"), flag(record.modeCHeightValid()), "", 24, 1),
        field("squawkValid", QT_TRANSLATE_NOOP("ReportView", "Mode A valid"), flag(record.modeACodeValid()), "", 25, 1),
        field("trend", QT_TRANSLATE_NOOP("ReportView", "vertical trend"), number(record.verticalTrend()), "", 26, 2),
        field("type", QT_TRANSLATE_NOOP("ReportView", "track type"), number(record.trackType()), "", 28, 3),
        field("coasting", QT_TRANSLATE_NOOP("ReportView", "coasting"), flag(record.coasting()), "", 31, 1),
        field("x", QT_TRANSLATE_NOOP("ReportView", "x, east"), number(record.x()), "km", 32, 32),
        field("y", QT_TRANSLATE_NOOP("ReportView", "y, north"), number(record.y()), "km", 64, 32),
        field("vx", QT_TRANSLATE_NOOP("ReportView", "velocity east"), number(record.vx()), "m/s", 96, 16),
        field("vy", QT_TRANSLATE_NOOP("ReportView", "velocity north"), number(record.vy()), "m/s", 112, 16),
        field("squawk", QT_TRANSLATE_NOOP("ReportView", "Mode A code"), octal(record.modeACode()), "", 132, 12),
        field("height", QT_TRANSLATE_NOOP("ReportView", "Mode C height"), number(record.modeCHeightImperial()), "ft",
            144, 16),
        field("rate", QT_TRANSLATE_NOOP("ReportView", "rate of climb or descent"), number(record.rateOfClimbDescent()),
            "m/s", 160, 16),
        field("end", QT_TRANSLATE_NOOP("ReportView", "track end"), flag(record.trackEnd()), "", 176, 1),
    };
}

void viewRecord(const unsigned char *octets, qsizetype size, ReportView &view)
{
    if (size == static_cast<qsizetype>(AleniaSirMRadarTrackRecord::Size)) {
        view.name = QCoreApplication::translate("ReportView", "Alenia SIR-M track record");
        view.fields += trackFields(AleniaSirMRadarTrackRecord::fromOctets(octets));
    } else if (size == static_cast<qsizetype>(AleniaSirMRadarPlotRecord::Size)) {
        view.name = QCoreApplication::translate("ReportView", "Alenia SIR-M plot record");
        view.fields += plotFields(AleniaSirMRadarPlotRecord::fromOctets(octets));
    } else if (size == 0) {
        view.name = QCoreApplication::translate("ReportView", "Alenia SIR-M sector without records");
    } else {
        view.fields.clear();
    }
}

} // namespace

void viewAleniaSirM(const KeptReport &report, ReportView &view)
{
    constexpr auto FixedSize = static_cast<qsizetype>(AleniaSirMRadarMessage::FixedSize);
    view.name = QCoreApplication::translate("ReportView", "Alenia SIR-M message that cannot be decoded");
    const auto *octets = reinterpret_cast<const unsigned char *>(report.octets.constData());
    const auto type =
        report.octets.isEmpty() ? AleniaSirMRadarMessage::Type() : AleniaSirMRadarMessage::Type(octets[0]);
    const qsizetype recordSize = report.octets.size() - FixedSize;
    if (type == AleniaSirMRadarMessage::Type::NorthMarker && recordSize == 0) {
        AleniaSirMRadarNorthMarkerMessage message;
        message.setFixedOctets(octets);
        view.name = QCoreApplication::translate("ReportView", "Alenia SIR-M north marker");
        view.fields = northMarkerFields(message);
    } else if (type == AleniaSirMRadarMessage::Type::Data && recordSize >= 0) {
        AleniaSirMRadarDataMessage message;
        message.setFixedOctets(octets);
        view.fields = dataFields(message);
        viewRecord(octets + FixedSize, recordSize, view);
    }
    view.category = view.fields.isEmpty() ? 0 : ReportView::AleniaSirM;
}
