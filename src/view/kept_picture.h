#pragma once

#include <QImage>
#include <QList>
#include <QRect>
#include <QTransform>

class GeoView;

// A picture of a view that is kept while the view stays, and moved along with it by whole device pixels.
class KeptPicture {
public:
    // To be drawn anew.
    void invalidate() { m_valid = false; }
    bool isValid() const { return m_valid; }

    // Takes a picture of that view, with its device pixel ratio (ARGB32_Premultiplied).
    void set(const QImage &picture, const GeoView &of);
    // How much of a view it can show, from 0 to 1.
    double share(const GeoView &view) const;
    // Moves it to a view of which it can show something. Returns the parts of the screen that have to be painted: they
    // are transparent now. Logical pixels.
    QList<QRect> turnTo(const GeoView &view);
    // Takes parts, in logical pixels, of a picture of a view that may lie beside the present one. False: they are of
    // no use for it, nothing is taken.
    bool put(const QImage &picture, const QList<QRect> &parts, const GeoView &of);

    const QImage &image() const { return m_image; }
    QImage &image() { return m_image; }

private:
    bool findShift(const GeoView &view, QPoint &shift) const;

    bool m_valid = false;
    QTransform m_transform; // of the view that it shows
    QImage m_image;
    QImage m_spare;
};
