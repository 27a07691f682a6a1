#include "report_fields.h"

#include "layout.h"

namespace korvane::asterix {
namespace {

// Units of the category documents in those of the results.
constexpr double Knots = 3600; // of NM/s
constexpr double MetricKnots = 3600 / 1852.0; // of m/s
constexpr double Feet = 100; // of flight levels

struct Source {
    int category;
    ReportField field;
    const char *path;
    double factor = 1;
};

// Of several sources of a field the first ones that a UAP has count. Latitude and longitude keep the same order.
constexpr Source Sources[] = {
    {1, ReportField::TimeOfDay, "141"},
    {2, ReportField::TimeOfDay, "030"},
    {4, ReportField::TimeOfDay, "020"},
    {8, ReportField::TimeOfDay, "090"},
    {10, ReportField::TimeOfDay, "140"},
    {19, ReportField::TimeOfDay, "140"},
    {20, ReportField::TimeOfDay, "140"},
    {21, ReportField::TimeOfDay, "030"}, // editions 0.23 and 0.26
    {21, ReportField::TimeOfDay, "073"}, // from 2.1 on
    {21, ReportField::TimeOfDay, "077"},
    {23, ReportField::TimeOfDay, "070"},
    {34, ReportField::TimeOfDay, "030"},
    {48, ReportField::TimeOfDay, "140"},
    {62, ReportField::TimeOfDay, "070"},
    {63, ReportField::TimeOfDay, "030"},
    {65, ReportField::TimeOfDay, "030"},
    {240, ReportField::TimeOfDay, "140"},
    {1, ReportField::GroundSpeed, "200/GSP", Knots},
    {1, ReportField::TrackAngle, "200/HDG"},
    {1, ReportField::Level, "090/HGT", Feet},
    {1, ReportField::TransponderCode, "070/MODE3A"},
    {1, ReportField::TrackNumber, "161"},
    {10, ReportField::Address, "220"},
    {10, ReportField::Identification, "245/CHR"},
    {10, ReportField::Latitude, "041/LAT"},
    {10, ReportField::Longitude, "041/LON"},
    {10, ReportField::GroundSpeed, "200/GSP", Knots},
    {10, ReportField::TrackAngle, "200/TRA"},
    {10, ReportField::VelocityX, "202/VX", MetricKnots},
    {10, ReportField::VelocityY, "202/VY", MetricKnots},
    {10, ReportField::Level, "090/FL", Feet},
    {10, ReportField::TransponderCode, "060/MODE3A"},
    {10, ReportField::TrackNumber, "161/TRK"},
    {20, ReportField::Address, "220"},
    {20, ReportField::Identification, "245/CHR"},
    {20, ReportField::Latitude, "041/LAT"},
    {20, ReportField::Longitude, "041/LON"},
    {20, ReportField::VelocityX, "202/VX", MetricKnots},
    {20, ReportField::VelocityY, "202/VY", MetricKnots},
    {20, ReportField::Level, "090/FL", Feet},
    {20, ReportField::TransponderCode, "070/MODE3A"},
    {20, ReportField::TrackNumber, "161/TRN"},
    {20, ReportField::GeometricAltitude, "105"},
    {21, ReportField::Address, "080"},
    {21, ReportField::Identification, "170"},
    {21, ReportField::Latitude, "131/LAT"},
    {21, ReportField::Longitude, "131/LON"},
    {21, ReportField::Latitude, "130/LAT"},
    {21, ReportField::Longitude, "130/LON"},
    {21, ReportField::GroundBit, "040/GBS"},
    {21, ReportField::PriorityStatus, "200"}, // editions 0.23 and 0.26
    {21, ReportField::PriorityStatus, "200/PS"}, // from 2.1 on
    {21, ReportField::SurveillanceStatus, "200/SS"},
    {21, ReportField::MilitaryEmergency, "200/ME"},
    {21, ReportField::Spi, "040/SPI"}, // editions 0.23 and 0.26
    {21, ReportField::TestBit, "040/TST"},
    {21, ReportField::Mode3A, "070/MODE3A"},
    {21, ReportField::TransponderCode, "070/MODE3A"},
    {21, ReportField::TrackNumber, "161/TRNUM"},
    {21, ReportField::Mode3ANotValidated, "070/V"},
    {21, ReportField::Mode3AGarbled, "070/G"},
    {21, ReportField::Mode3ASmoothed, "070/L"},
    {21, ReportField::GroundSpeed, "160/GS", Knots},
    {21, ReportField::TrackAngle, "160/TA"},
    {21, ReportField::MagneticHeading, "152"},
    {21, ReportField::Level, "145", Feet},
    {21, ReportField::SelectedAltitude, "146/ALT"},
    {21, ReportField::SelectedAltitude, "148/ALT"},
    {21, ReportField::VerticalRate, "155"}, // editions 0.23 and 0.26
    {21, ReportField::VerticalRate, "157"},
    {21, ReportField::VerticalRate, "155/BVR"}, // from 2.1 on
    {21, ReportField::VerticalRate, "157/GVR"},
    {21, ReportField::PositionTime, "071"}, // from 2.1 on
    {21, ReportField::PositionTime, "073"},
    {21, ReportField::GeometricAltitude, "140"},
    {48, ReportField::Address, "220"},
    {48, ReportField::Identification, "240"},
    {48, ReportField::GroundSpeed, "200/GSP", Knots},
    {48, ReportField::TrackAngle, "200/HDG"},
    {48, ReportField::Level, "090/FL", Feet},
    {48, ReportField::TransponderCode, "070/MODE3A"},
    {48, ReportField::TrackNumber, "161/TRN"},
    {62, ReportField::Address, "380/ADR"},
    {62, ReportField::Identification, "245/CHR"},
    {62, ReportField::Identification, "380/ID"},
    {62, ReportField::Latitude, "105/LAT"},
    {62, ReportField::Longitude, "105/LON"},
    {62, ReportField::VelocityX, "185/VX", MetricKnots},
    {62, ReportField::VelocityY, "185/VY", MetricKnots},
    {62, ReportField::MagneticHeading, "380/MHG"},
    {62, ReportField::Level, "136", Feet},
    {62, ReportField::TransponderCode, "060/MODE3A"},
    {62, ReportField::TrackNumber, "040"},
    {62, ReportField::VerticalRate, "220"},
    {62, ReportField::GeometricAltitude, "130"},
};

// The outermost item that holds a node.
const Node *itemOf(const Node *node)
{
    while (node->parent) {
        node = node->parent;
    }
    return node;
}

ReportPlace makePlace(const Uap &uap, const Node &node, double factor)
{
    ReportPlace place;
    const int slot = uap.slotOf(itemOf(&node));
    if (slot < 0 || !isElement(node.kind)) {
        return place;
    }
    place.node = &node;
    place.slot = static_cast<std::uint8_t>(slot);
    place.isNested = node.anchor->parent || (node.anchor->kind == Kind::Extended && node.bitOffset >= 8);
    place.isSigned = node.isSigned;
    place.bits = static_cast<std::uint8_t>(node.bits);
    place.bitOffset = node.bitOffset;
    place.lsb = node.numerator * factor / node.denominator;
    return place;
}

} // namespace

ReportFields findReportFields(const Uap &uap)
{
    ReportFields fields;
    for (const Source &source : Sources) {
        if (source.category != uap.layout->edition().category) {
            continue;
        }
        const Node *node = uap.layout->find(source.path);
        auto &places = fields[static_cast<std::size_t>(source.field)];
        ReportPlace &place = places[places[0].node ? 1 : 0];
        if (node && !place.node) {
            place = makePlace(uap, *node, source.factor);
        }
    }
    return fields;
}

} // namespace korvane::asterix
