#pragma once

#include "widgets/urgency.h"

#include <QString>

// What the scope and the lists say of the input.
struct HealthNotice {
    Urgency urgency = Urgency::Note;
    QString headline;
    QString text; // what it means, and what to do

    bool operator==(const HealthNotice &other) const = default;
};
