#pragma once

#include <QColor>
#include <QImage>

// Takes a map back behind what is drawn over it.
struct TileTone {
    int dimming = 0; // percent towards the ground
    int desaturation = 0; // percent towards grey
    QColor ground;

    bool changesNothing() const { return dimming == 0 && desaturation == 0; }
    bool operator==(const TileTone &) const = default;

    // Transparent parts stay transparent. The result is premultiplied ARGB32, or RGB32 without an alpha channel. Any
    // thread.
    QImage applied(const QImage &image) const;
};
