#pragma once

#include "modes/mode_s_frame.h"

#include <QByteArray>

#include <algorithm>

inline korvane::modes::ModeSFrame frameFromHex(const QByteArray &hex)
{
    const QByteArray octets = QByteArray::fromHex(hex);
    korvane::modes::ModeSFrame frame;
    frame.length = static_cast<std::uint8_t>(octets.size());
    std::copy(octets.begin(), octets.end(), frame.octets);
    return frame;
}

inline QByteArray hexOf(const korvane::modes::ModeSFrame &frame)
{
    return QByteArray(reinterpret_cast<const char *>(frame.octets), frame.length).toHex();
}
