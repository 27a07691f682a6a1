#pragma once

#include "tracking/track.h"
#include "view/svg_symbol.h"

#include <QColor>
#include <QHash>
#include <QPixmap>

#include <vector>

// The drawings that stand for tracks, each in any colour, with a casing round their lines that sets them off from
// whatever lies under them.
class TrackSymbols {
public:
    enum Symbol : int {
        Unknown,
        Psr,
        Ssr,
        PsrSsr,
        ModeS,
        PsrModeS,
        Adsb,
        Mlat,
        Smr,
        Aircraft,
        Vehicle,
        Coasting,
        Count
    };

    // Logical pixels by which a pixmap is larger on each side than the symbol.
    static constexpr int Margin = 3;

    // The size is in logical pixels, width and height, without the margin.
    TrackSymbols(int size, const QColor &casing);

    // A type that has no drawing of its own is unknown.
    static Symbol forTrackType(Track::Type type);

    // What it stands for, as short as controllers write it.
    static QString meaning(Symbol symbol);

    void setSize(int size);
    void setCasing(const QColor &color);

    // Valid until the next call.
    const QPixmap &pixmap(Symbol symbol, const QColor &color, double devicePixelRatio);
    // The aircraft with its nose turned to this many degrees clockwise from the top, in steps of one degree: at the
    // rim of a symbol that is less than half a pixel.
    const QPixmap &aircraft(double degrees, const QColor &color, double devicePixelRatio);

private:
    QPixmap &kept(int symbol, int turn, const QColor &color, double devicePixelRatio);
    QPixmap render(int symbol, int turn, const QColor &color) const;
    QPixmap turned(const QPixmap &upright, int turn) const;
    QPixmap cased(const QPixmap &symbol) const;

    std::vector<SvgSymbol> m_symbols;
    int m_size;
    QColor m_casing;
    double m_ratio = 1.0; // of the pixmaps that are kept
    QHash<quint64, QPixmap> m_pixmaps; // by colour, symbol and turn
};
