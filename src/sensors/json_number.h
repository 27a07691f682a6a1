#pragma once

#include <QJsonValue>

#include <limits>

// A whole number from 0 to 2^32 - 1; anything else gives the default.
inline unsigned int unsignedValue(const QJsonValue &value, unsigned int defaultValue)
{
    const qint64 number = value.toInteger(-1);
    return number >= 0 && number <= std::numeric_limits<unsigned int>::max() ? static_cast<unsigned int>(number)
                                                                             : defaultValue;
}
