#pragma once

#include <QtGlobal>

#include <functional>

// Milliseconds since the call, for layers whose looks depend on time; tests give them a clock of their own.
std::function<qint64()> steadyClock();
