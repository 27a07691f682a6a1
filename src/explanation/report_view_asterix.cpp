#include "asterix/profile.h"
#include "asterix/record_map.h"
#include "explanation/register_fields.h"
#include "explanation/report_view_forms.h"

#include <QCoreApplication>

using korvane::asterix::FieldPlace;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
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
            const auto *mb = reinterpret_cast<const unsigned char *>(view.octets.constData()) + firstBit / 8;
            view.fields += registerFields(mb[7], mb, firstBit);
        }
    }
}
