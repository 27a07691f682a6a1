#include "display/label_candidates.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// Pixels between symbol and label. At the middle of a crowd the nearest free place is far away.
constexpr std::array RingGaps = {4, 11, 19, 28, 39, 52, 67, 85, 106, 131, 161, 196, 237, 286, 343, 411};
constexpr float DistanceCost = 0.4f; // a pixel
constexpr float FarCost = 0.002f; // a square pixel: the eye loses long leaders
constexpr float SideCost = 2.5f; // for the side opposite to the preferred one
constexpr int StepsAcross = 8; // of the label along its own width
constexpr int StepsDown = 4;
constexpr float DiagonalGap = 0.7f; // at a corner the distance is shared by x and y

} // namespace

void LabelCandidates::setUp(const QPoint &preferred, int symbolReach)
{
    if (preferred != m_preferred || symbolReach != m_symbolReach) {
        m_preferred = preferred;
        m_symbolReach = symbolReach;
        m_bySize.clear();
    }
}

const std::vector<LabelCandidates::Candidate> &LabelCandidates::of(const QSize &size)
{
    const std::pair key(size.width(), size.height());
    const auto found = m_bySize.find(key);
    return found != m_bySize.end() ? found->second : m_bySize.emplace(key, make(size)).first->second;
}

float LabelCandidates::cost(const QPoint &offset, const QSize &size) const
{
    const QPointF middle(size.width() / 2.0, size.height() / 2.0);
    const QPointF wanted = m_preferred + middle;
    const QPointF centre = offset + middle;
    const double product = std::hypot(wanted.x(), wanted.y()) * std::hypot(centre.x(), centre.y());
    const double cosine = product > 0.0 ? QPointF::dotProduct(wanted, centre) / product : 1.0;
    const int x = std::max({offset.x(), -offset.x() - size.width(), 0});
    const int y = std::max({offset.y(), -offset.y() - size.height(), 0});
    const float distance = static_cast<float>(std::hypot(x, y));
    return DistanceCost * distance + FarCost * distance * distance + SideCost * static_cast<float>(1.0 - cosine) / 2.0f;
}

std::vector<LabelCandidates::Candidate> LabelCandidates::make(const QSize &size) const
{
    std::vector<Candidate> candidates{{m_preferred, 0.0f}};
    for (const int gap : RingGaps) {
        addRing(candidates, size, m_symbolReach + gap);
    }
    std::stable_sort(
        candidates.begin(), candidates.end(), [](const Candidate &a, const Candidate &b) { return a.cost < b.cost; });
    return candidates;
}

// Slides the label round the symbol.
void LabelCandidates::addRing(std::vector<Candidate> &candidates, const QSize &size, int distance) const
{
    const int w = size.width();
    const int h = size.height();
    const int corner = static_cast<int>(std::lround(static_cast<float>(distance) * DiagonalGap));
    const auto add = [&](int x, int y) { candidates.push_back({QPoint(x, y), cost(QPoint(x, y), size)}); };
    for (const int x : {corner, -w - corner}) {
        add(x, -h - corner);
        add(x, corner);
    }
    for (const int y : {-h - distance, distance}) {
        for (int part = 0; part <= StepsAcross; ++part) {
            add(-w * part / StepsAcross, y);
        }
    }
    for (const int x : {distance, -w - distance}) {
        for (int part = 0; part <= StepsDown; ++part) {
            add(x, -h * part / StepsDown);
        }
    }
}
