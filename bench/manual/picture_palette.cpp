#include "manual/picture_palette.h"

#include <algorithm>
#include <array>

namespace {
constexpr int PaletteSize = 256;
}

PicturePalette::PicturePalette(const QImage &picture)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y) | 0xFF000000];
        }
    }
    std::vector<Box> boxes(1);
    for (const auto &[color, count] : counts) {
        boxes[0].push_back({color, count});
    }
    while (boxes.size() < PaletteSize && cutWidest(boxes)) { }
    for (const Box &box : boxes) {
        const QRgb mean = meanOf(box);
        for (const Color &color : box) {
            m_index[color.rgb] = static_cast<uchar>(m_colors.size());
        }
        m_colors.append(mean);
    }
}

QImage PicturePalette::apply(const QImage &picture) const
{
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    indexed.setColorTable(m_colors);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            indexed.scanLine(y)[x] = m_index.at(picture.pixel(x, y) | 0xFF000000);
        }
    }
    return indexed;
}

// Width and channel.
std::pair<int, int> PicturePalette::widest(const Box &box)
{
    std::pair<int, int> found{0, 0};
    for (int which = 0; which < 3; ++which) {
        const auto [low, high] = std::minmax_element(box.begin(), box.end(),
            [which](const Color &a, const Color &b) { return channel(a.rgb, which) < channel(b.rgb, which); });
        found = std::max(found, {channel(high->rgb, which) - channel(low->rgb, which), which});
    }
    return found;
}

// False when every box has one colour.
bool PicturePalette::cutWidest(std::vector<Box> &boxes)
{
    const auto box = std::max_element(
        boxes.begin(), boxes.end(), [](const auto &a, const auto &b) { return widest(a).first < widest(b).first; });
    const auto [width, which] = widest(*box);
    if (width == 0) {
        return false;
    }
    std::sort(box->begin(), box->end(),
        [which = which](const Color &a, const Color &b) { return channel(a.rgb, which) < channel(b.rgb, which); });
    const auto middle = box->begin() + static_cast<std::ptrdiff_t>(box->size() / 2);
    Box upper(middle, box->end());
    box->erase(middle, box->end());
    boxes.push_back(std::move(upper));
    return true;
}

QRgb PicturePalette::meanOf(const Box &box)
{
    std::array<qint64, 3> sums{};
    qint64 all = 0;
    for (const Color &color : box) {
        for (int which = 0; which < 3; ++which) {
            sums[static_cast<std::size_t>(which)] += static_cast<qint64>(channel(color.rgb, which)) * color.count;
        }
        all += color.count;
    }
    const auto mean = [&](std::size_t which) { return static_cast<int>(sums[which] / all); };
    return qRgb(mean(2), mean(1), mean(0));
}
