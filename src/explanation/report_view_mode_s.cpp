#include "explanation/register_fields.h"
#include "explanation/report_view_forms.h"
#include "modes/mode_s_decoder.h"

#include <QCoreApplication>

#include <algorithm>

using namespace korvane::modes;

namespace {

// Field by field of one frame. Bits are counted from 1, as the documents do.
class FrameViewer {
    Q_DECLARE_TR_FUNCTIONS(ReportView)
public:
    FrameViewer(const ModeSMessage &message, ReportView &view) : m_message(message), m_view(view) { }

    void run()
    {
        const int format = m_message.downlinkFormat();
        add("df", "DF", tr("downlink format"), number(format), {}, 1, format == 24 ? 2 : 5);
        const bool ownAddress = format == 11 || format == 17 || format == 18;
        if (ownAddress) {
            addAddress(9);
        }
        addReply(format);
        if (format == 17 || format == 18) {
            addSquitter();
        } else if (format == 20 || format == 21) {
            add("mb", "MB", tr("message field"), messageHex(), {}, 33, 56);
            addRegister();
        }
        if (!ownAddress) {
            addAddress(m_message.frame().length * 8 - 23);
        }
        std::stable_sort(m_view.fields.begin(), m_view.fields.end(),
            [](const ReportField &a, const ReportField &b) { return a.bits.first < b.bits.first; });
    }

private:
    static QString number(int value) { return QString::number(value); }
    static QString number(double value) { return QString::number(value, 'f', 1); }
    static QString octal(unsigned squawk) { return QString("%1").arg(squawk, 4, 8, QChar('0')); }
    QString messageHex() const { return QString("%1").arg(m_message.messageField(), 14, 16, QChar('0')); }

    void add(const char *key, const char *name, const QString &title, const QString &value, const char *unit,
        int firstBit, int bits)
    {
        m_view.fields.append({QString::fromLatin1(key), QString::fromLatin1(name), title, value,
            QString::fromUtf8(unit), {firstBit - 1, bits}});
    }

    template <typename Value>
    void addKnown(const char *key, const char *name, const QString &title, const std::optional<Value> &value,
        const char *unit, int firstBit, int bits)
    {
        if (value) {
            add(key, name, title, number(*value), unit, firstBit, bits);
        }
    }

    void addAddress(int firstBit)
    {
        const bool own = firstBit == 9;
        add("address", own ? "AA" : "AP", own ? tr("aircraft address") : tr("aircraft address, laid over the parity"),
            QString("%1").arg(m_message.icaoAddr(), 6, 16, QChar('0')).toUpper(), {}, firstBit, 24);
    }

    void addReply(int format)
    {
        if (format == 4 || format == 5 || format == 20 || format == 21) {
            add("flightStatus", "FS", tr("flight status"), number(m_message.status()), {}, 6, 3);
        } else if (format == 11 || format == 17) {
            add("capability", "CA", tr("capability"), number(m_message.status()), {}, 6, 3);
        }
        addKnown("altitude", "AC", tr("altitude"), m_message.altitude(), "ft", 20, 13);
        if (m_message.squawk()) {
            add("squawk", "ID", tr("Mode A code"), octal(*m_message.squawk()), {}, 20, 13);
        }
    }

    // Replies do not name the register: it is told where its contents can be of just one.
    void addRegister()
    {
        constexpr int FirstOctet = 4;
        const int code = m_message.registers().only();
        if (code == 0x20) {
            add("callsign", "BDS 2,0", tr("aircraft identification"),
                QString::fromLatin1(decodeBds20(m_message.messageField())->callsign), {}, 41, 48);
        } else {
            m_view.fields += registerFields(code, m_message.frame().octets + FirstOctet, 8 * FirstOctet);
        }
    }

    void addSquitter()
    {
        add("typeCode", "TC", tr("type code"), number(m_message.typeCode()), {}, 33, 5);
        const SquitterContent &content = m_message.content();
        if (const auto *identification = std::get_if<Identification>(&content)) {
            add("callsign", "IDENT", tr("aircraft identification"), QString::fromLatin1(identification->callsign), {},
                41, 48);
        } else if (const auto *airborne = std::get_if<AirbornePosition>(&content)) {
            addAirborne(*airborne);
        } else if (const auto *surface = std::get_if<SurfacePosition>(&content)) {
            addKnown("speed", "MOV", tr("movement"), surface->groundSpeed, "kt", 38, 7);
            addKnown("track", "TRK", tr("ground track"), surface->track, "°", 46, 7);
            addCpr(surface->position);
        } else if (const auto *velocity = std::get_if<AirborneVelocity>(&content)) {
            addVelocity(*velocity);
        } else if (const auto *status = std::get_if<EmergencyStatus>(&content)) {
            add("emergency", "EMG", tr("emergency state"), number(status->emergency), {}, 41, 3);
            add("squawk", "ID", tr("Mode A code"), octal(status->squawk), {}, 44, 13);
        } else {
            add("me", "ME", tr("message field"), messageHex(), {}, 33, 56);
        }
    }

    void addAirborne(const AirbornePosition &airborne)
    {
        if (airborne.isGnssHeight) {
            addKnown("gnssHeight", "ALT", tr("height above the ellipsoid"), airborne.altitude, "ft", 41, 12);
        } else {
            addKnown("altitude", "ALT", tr("barometric altitude"), airborne.altitude, "ft", 41, 12);
        }
        if (airborne.position) {
            addCpr(*airborne.position);
        }
    }

    void addCpr(const CprPosition &position)
    {
        const QString kind = position.isSurface ? tr("surface") : tr("airborne");
        add("cprFormat", "F", tr("CPR format"), position.isOdd ? tr("odd") : tr("even"), {}, 54, 1);
        add("cprLatitude", "LAT-CPR", tr("encoded latitude, %1").arg(kind), number(static_cast<int>(position.latitude)),
            {}, 55, 17);
        add("cprLongitude", "LON-CPR", tr("encoded longitude, %1").arg(kind),
            number(static_cast<int>(position.longitude)), {}, 72, 17);
    }

    void addVelocity(const AirborneVelocity &velocity)
    {
        add("velocityType", "ST", tr("velocity subtype"), number(velocity.subtype), {}, 38, 3);
        const bool overGround = velocity.track || velocity.groundSpeed;
        addKnown(
            "speed", "VEL", tr("ground speed, of its east and north components"), velocity.groundSpeed, "kt", 46, 22);
        addKnown("track", "VEL", tr("track, of the velocity's east and north components"), velocity.track, "°", 46, 22);
        if (!overGround) {
            addKnown("track", "HDG", tr("heading"), velocity.heading, "°", 47, 10);
            addKnown("airspeed", "AS", tr("airspeed"), velocity.airspeed, "kt", 58, 10);
        }
        addKnown("verticalRate", "VR", tr("vertical rate"), velocity.verticalRate, "ft/min", 69, 10);
    }

    const ModeSMessage &m_message;
    ReportView &m_view;
};

} // namespace

void viewModeS(const KeptReport &report, ReportView &view)
{
    ModeSFrame frame;
    if (report.octets.size() <= static_cast<qsizetype>(sizeof frame.octets)) {
        frame.length = static_cast<std::uint8_t>(report.octets.size());
        std::copy(report.octets.begin(), report.octets.end(), frame.octets);
    }
    frame.timeStamp = static_cast<unsigned long long>(report.timeMs);
    ModeSDecoder decoder;
    decoder.setAddressCheck(false); // what is kept has passed it
    ModeSMessage message;
    decoder.decode(ModeSMessage::AnyDownlink, frame, message);
    if (!message.valid()) {
        view.name = QCoreApplication::translate("ReportView", "Mode S frame that cannot be decoded");
        return;
    }
    view.category = ReportView::ModeS;
    view.name = QString("DF %1").arg(message.downlinkFormat());
    if (message.typeCode() >= 0) {
        view.name += QCoreApplication::translate("ReportView", ", type code %1").arg(message.typeCode());
    }
    FrameViewer(message, view).run();
}
