#include "map_import/airspace_feature.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace {

struct Kind {
    int number; // in OpenAIP's list; -1 for none
    const char *abbreviation;
    const char *className;
};

constexpr std::array Kinds = {
    Kind{0, "", "airspace"},
    Kind{1, "R", "restricted"},
    Kind{2, "D", "danger"},
    Kind{3, "P", "prohibited"},
    Kind{4, "CTR", "ctr"},
    Kind{5, "TMZ", "airspace"},
    Kind{6, "RMZ", "airspace"},
    Kind{7, "TMA", "tma"},
    Kind{8, "TRA", "restricted"},
    Kind{9, "TSA", "restricted"},
    Kind{10, "FIR", "fir"},
    Kind{11, "UIR", "fir"},
    Kind{12, "ADIZ", "airspace"},
    Kind{13, "ATZ", "ctr"},
    Kind{14, "MATZ", "ctr"},
    Kind{15, "AWY", "route"},
    Kind{16, "MTR", "route"},
    Kind{17, "ALERT", "danger"},
    Kind{18, "WARNING", "danger"},
    Kind{19, "PROTECTED", "restricted"},
    Kind{20, "HTZ", "airspace"},
    Kind{21, "GLIDING", "airspace"},
    Kind{22, "TRP", "airspace"},
    Kind{23, "TIZ", "airspace"},
    Kind{24, "TIA", "airspace"},
    Kind{25, "MTA", "restricted"},
    Kind{26, "CTA", "tma"},
    Kind{27, "ACC", "airspace"},
    Kind{28, "SPORT", "airspace"},
    Kind{29, "LOW", "restricted"},
    Kind{30, "MRT", "route"},
    Kind{31, "TFR", "restricted"},
    Kind{32, "VFR", "airspace"},
    Kind{33, "FIS", "airspace"},
    Kind{-1, "RESTRICTED", "restricted"},
    Kind{-1, "DANGER", "danger"},
    Kind{-1, "PROHIBITED", "prohibited"},
    Kind{-1, "CLASS", "airspace"},
    Kind{-1, "AIRSPACE", "airspace"},
};

const Kind *findKind(const QString &type)
{
    bool isNumber = false;
    const int number = type.toInt(&isNumber);
    for (const Kind &kind : Kinds) {
        const bool isSame = isNumber
            ? number >= 0 && kind.number == number
            : *kind.abbreviation && type.compare(QLatin1String(kind.abbreviation), Qt::CaseInsensitive) == 0;
        if (isSame) {
            return &kind;
        }
    }
    // Numbers that are added to the list later mean airspaces as well.
    return isNumber && number >= 0 ? &Kinds.front() : nullptr;
}

QString feetText(int value, int datum)
{
    constexpr int Ground = 0;
    if (datum == Ground) {
        return value == 0 ? QStringLiteral("GND") : QStringLiteral("%1FT AGL").arg(value);
    }
    return QStringLiteral("%1FT").arg(value);
}

// The kind's abbreviation before the name, unless the name says it already.
QString titleOf(const Kind &kind, const QString &name)
{
    const QString abbreviation = QLatin1String(kind.abbreviation);
    if (abbreviation.size() < 2 || name.split(QLatin1Char(' ')).contains(abbreviation, Qt::CaseInsensitive)) {
        return name;
    }
    return QStringLiteral("%1 %2").arg(abbreviation, name).trimmed();
}

} // namespace

QString airspaceLimitText(const QString &limit)
{
    const QJsonObject object = QJsonDocument::fromJson(limit.toUtf8()).object();
    if (object.isEmpty()) {
        return limit.simplified();
    }
    enum Unit { Metres = 0, Feet = 1, FlightLevel = 6 };
    const int value = object.value(QLatin1String("value")).toInt();
    const int datum = object.value(QLatin1String("referenceDatum")).toInt();
    switch (object.value(QLatin1String("unit")).toInt(Feet)) {
    case FlightLevel:
        return value >= 660 ? QStringLiteral("UNL") : QStringLiteral("FL%1").arg(value, 3, 10, QLatin1Char('0'));
    case Metres:
        return value == 0 ? feetText(0, datum) : QStringLiteral("%1M").arg(value);
    default:
        return feetText(value, datum);
    }
}

std::optional<AirspaceFeature> AirspaceFeature::of(const ImportFeature &feature, const QString &name)
{
    const QString type = feature.property({QStringLiteral("type"), QStringLiteral("localType")});
    const QString lower =
        feature.property({QStringLiteral("lowerLimit"), QStringLiteral("lower_limit"), QStringLiteral("lower")});
    const QString upper =
        feature.property({QStringLiteral("upperLimit"), QStringLiteral("upper_limit"), QStringLiteral("upper")});
    const QString icaoClass = feature.property({QStringLiteral("icaoClass")});
    const Kind *kind = findKind(type);
    if (!kind || feature.areas.isEmpty() || (lower.isEmpty() && upper.isEmpty() && icaoClass.isEmpty())) {
        return std::nullopt;
    }

    AirspaceFeature airspace{QLatin1String(kind->className), titleOf(*kind, name)};
    const QString limits = QStringList{airspaceLimitText(lower), airspaceLimitText(upper)}.join(QLatin1Char('-'));
    if (limits.size() > 1) {
        airspace.caption += (airspace.caption.isEmpty() ? QString() : QStringLiteral("\n")) + limits;
    }
    return airspace;
}
