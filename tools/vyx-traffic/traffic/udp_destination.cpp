#include "traffic/udp_destination.h"

#include <QRegularExpression>

std::optional<UdpDestination> UdpDestination::parse(const QString &text, QString &error)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^udp:(?:\[([0-9A-Fa-f:.]+)\]|([^\[\]:@]+)):(\d{1,5})(?:@([^@]+))?$)"));
    const QRegularExpressionMatch match = form.match(text);
    const int port = match.captured(3).toInt();
    if (!match.hasMatch() || port < 1 || port > 65535) {
        error = tr("\"%1\" is not of the form udp:HOST:PORT or udp:GROUP:PORT@INTERFACE").arg(text);
        return std::nullopt;
    }
    UdpDestination destination;
    destination.host = match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
    destination.port = static_cast<std::uint16_t>(port);
    destination.interfaceName = match.captured(4);
    return destination;
}
