#include "explanation/report_view_forms.h"
#include "sirm/alenia_sir_m_radar_records.h"

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

ReportField field(const char *key, const char *name, const QString &value, const char *unit, int first, int count)
{
    return ReportField{QString::fromLatin1(key), QCoreApplication::translate("ReportView", name), {}, value,
        QString::fromUtf8(unit), {first, count}};
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

} // namespace

void viewAleniaSirM(const KeptReport &report, ReportView &view)
{
    view.name = QCoreApplication::translate("ReportView", "Alenia SIR-M record");
    const auto *octets = reinterpret_cast<const unsigned char *>(report.octets.constData());
    if (report.octets.size() == static_cast<qsizetype>(AleniaSirMRadarTrackRecord::Size)) {
        view.category = ReportView::AleniaSirM;
        view.name = QCoreApplication::translate("ReportView", "Alenia SIR-M track record");
        view.fields = trackFields(AleniaSirMRadarTrackRecord::fromOctets(octets));
    } else if (report.octets.size() == static_cast<qsizetype>(AleniaSirMRadarPlotRecord::Size)) {
        view.category = ReportView::AleniaSirM;
        view.name = QCoreApplication::translate("ReportView", "Alenia SIR-M plot record");
        view.fields = plotFields(AleniaSirMRadarPlotRecord::fromOctets(octets));
    }
}
