#pragma once

#include <QDateTime>

#include <functional>

// Where a manager takes the current UTC time from; replaceable, so that ageing can be driven by hand.
using Clock = std::function<QDateTime()>;
