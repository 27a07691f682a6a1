#include "tile_painting/tile_tone.h"

namespace {

// 256ths, so that a pixel takes no division.
struct Weights {
    int keep; // of the pixel's own colour
    int grey; // of its brightness
    int red; // of the ground, for an opaque pixel
    int green;
    int blue;
};

Weights weightsOf(const TileTone &tone)
{
    const int dim = tone.dimming * 256 / 100;
    const int grey = (256 - dim) * tone.desaturation / 100;
    return {256 - dim - grey, grey, dim * tone.ground.red(), dim * tone.ground.green(), dim * tone.ground.blue()};
}

// Premultiplied; brightness by ITU-R BT.601.
QRgb toned(QRgb pixel, const Weights &weights)
{
    const int alpha = qAlpha(pixel);
    const int brightness = (77 * qRed(pixel) + 150 * qGreen(pixel) + 29 * qBlue(pixel)) >> 8;
    const int share = alpha + (alpha >> 7); // of 256
    const auto channel = [&](int own, int ground) {
        return (own * weights.keep + brightness * weights.grey + ((ground * share) >> 8)) >> 8;
    };
    return qRgba(channel(qRed(pixel), weights.red), channel(qGreen(pixel), weights.green),
        channel(qBlue(pixel), weights.blue), alpha);
}

} // namespace

QImage TileTone::applied(const QImage &image) const
{
    if (changesNothing()) {
        return image;
    }
    QImage result =
        image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    const Weights weights = weightsOf(*this);
    for (int y = 0; y < result.height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            line[x] = toned(line[x], weights);
        }
    }
    return result;
}
