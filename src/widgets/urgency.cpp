#include "widgets/urgency.h"

QString urgencyStyle(Urgency urgency)
{
    switch (urgency) {
    case Urgency::Alarm:
        return QStringLiteral("color: white; background-color: #c0101c");
    case Urgency::Caution:
        return QStringLiteral("color: black; background-color: #f0ac20");
    case Urgency::Note:
        break;
    }
    return QStringLiteral("color: white; background-color: rgba(32, 36, 40, 220)");
}
