#pragma once

#include "tracking/track.h"
#include "view/svg_symbol.h"

#include <QColor>
#include <QHash>
#include <QPixmap>

#include <vector>

// The drawings that stand for tracks, all of one size and colour.
class TrackSymbols {
public:
    enum Symbol : int { Unknown, Psr, Ssr, PsrSsr, ModeS, PsrModeS, Adsb, Mlat, Smr, Aircraft, Vehicle, Count };

    // The size is in logical pixels, width and height.
    explicit TrackSymbols(int size = 24, const QColor &color = QColor());

    // A type that has no drawing of its own is unknown.
    static Symbol forTrackType(Track::Type type);

    void setSize(int size);
    void setColor(const QColor &color);

    const QPixmap &pixmap(Symbol symbol, double devicePixelRatio);
    // The aircraft with its nose turned to this many degrees clockwise from the top, in steps of one degree: at the
    // rim of a symbol that is less than half a pixel.
    const QPixmap &aircraft(double degrees, double devicePixelRatio);

private:
    int m_size;
    QColor m_color;
    std::vector<SvgSymbol> m_symbols;
    QHash<int, QPixmap> m_turnedAircraft; // by whole degrees
    double m_turnedRatio = 0.0;
};
