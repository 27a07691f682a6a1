#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

// How much faster or slower than it was recorded a recording is played.
class ReplaySpeed {
public:
    enum Speed : int { Half = 0, Normal = 1, Double = 2, Quadruple = 3, Octuple = 4, Max = 5 };

    // "0.5x" to "8x" and "Max"; empty for a value that is none of the six.
    static QString name(Speed speed);

    // All six, slowest first, as menus show them.
    static QList<Speed> values();

    // Milliseconds to wait between two packets stamped recordedMs apart; whole milliseconds, rounded toward zero, and 0
    // where the time stamps run backwards.
    static qint64 delay(qint64 recordedMs, Speed speed);

    // Milliseconds of the recording that are played in realMs; 0 at Max, which plays packets and no time between them.
    static qint64 recorded(qint64 realMs, Speed speed);
};

Q_DECLARE_METATYPE(ReplaySpeed::Speed)
