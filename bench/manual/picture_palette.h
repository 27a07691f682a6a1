#pragma once

#include <QColor>
#include <QImage>
#include <QList>

#include <map>
#include <utility>
#include <vector>

// The colours that a picture has most need of: boxes of colours are cut in two at their middle until there are as many
// as a palette holds.
class PicturePalette {
public:
    explicit PicturePalette(const QImage &picture);

    // The picture itself, or another one with no colours but those of it.
    QImage apply(const QImage &picture) const;

private:
    struct Color {
        QRgb rgb;
        int count;
    };
    using Box = std::vector<Color>;

    static int channel(QRgb color, int which) { return static_cast<int>(color >> (8 * which)) & 0xFF; }
    static std::pair<int, int> widest(const Box &box);
    static bool cutWidest(std::vector<Box> &boxes);
    static QRgb meanOf(const Box &box);

    QList<QRgb> m_colors;
    std::map<QRgb, uchar> m_index;
};
