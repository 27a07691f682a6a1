#include "display/label_field.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int CellPixels = 64;
constexpr int DensityPixels = 8; // side of the cells for guesses
constexpr double DensityUnits = 16.0; // whole numbers add up quicker
// A square pixel of a label under another one, of a symbol under a label.
constexpr double LabelAreaCost = 2.0;
constexpr double SymbolAreaCost = 2.2;
constexpr double CrossingCost = 150.0; // of two leaders
constexpr double ThroughCost = 40.0; // of a leader through a label
constexpr double YieldingShare = 0.01; // of what a label that yields costs one that does not
constexpr double UrgentShare = 2.0; // of what a label that does not yield costs one that does
constexpr double FreeLineCost = 100.0; // of a line that is to stay free under a label

int sharedArea(const QRect &a, const QRect &b)
{
    const int width = std::min(a.right(), b.right()) - std::max(a.left(), b.left()) + 1;
    const int height = std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top()) + 1;
    return width > 0 && height > 0 ? width * height : 0;
}

// Without the toolkit's care for rectangles turned inside out, which takes a call each; there are none here.
bool overlap(const QRect &a, const QRect &b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

double shareOf(bool asksYields, bool standsYields)
{
    if (asksYields == standsYields) {
        return 1.0;
    }
    return asksYields ? UrgentShare : YieldingShare;
}

// Which side of a line a point is on: the sign.
qint64 sideOf(const QLine &line, int x, int y)
{
    return static_cast<qint64>(line.dx()) * (y - line.y1()) - static_cast<qint64>(line.dy()) * (x - line.x1());
}

QRect boundsOf(const QLine &line)
{
    return QRect(QPoint(std::min(line.x1(), line.x2()), std::min(line.y1(), line.y2())),
        QPoint(std::max(line.x1(), line.x2()), std::max(line.y1(), line.y2())));
}

bool cross(const QLine &a, const QRect &boundsOfA, const QLine &b, const QRect &boundsOfB)
{
    const auto apart = [](const QLine &line, const QLine &other) {
        const qint64 first = sideOf(line, other.x1(), other.y1());
        const qint64 second = sideOf(line, other.x2(), other.y2());
        return first == 0 || second == 0 || (first < 0) == (second < 0);
    };
    return overlap(boundsOfA, boundsOfB) && !apart(a, b) && !apart(b, a);
}

bool cross(const QRect &rect, const QLine &line, const QRect &boundsOfLine)
{
    if (!overlap(rect, boundsOfLine)) {
        return false;
    }
    const qint64 corners[] = {sideOf(line, rect.left(), rect.top()), sideOf(line, rect.right(), rect.top()),
        sideOf(line, rect.left(), rect.bottom()), sideOf(line, rect.right(), rect.bottom())};
    const auto [least, most] = std::minmax_element(std::begin(corners), std::end(corners));
    return *least <= 0 && *most >= 0;
}

// Whether two intervals, the second moving, are apart all the time until the limit.
bool stayApart(int firstLow, int firstHigh, int secondLow, int secondHigh, double speed, double limit)
{
    return (secondHigh < firstLow && speed * limit < firstLow - secondHigh)
        || (secondLow > firstHigh && speed * limit > firstHigh - secondLow);
}

// When they come to share a point, at the earliest now.
double meetingTime(int firstLow, int firstHigh, int secondLow, int secondHigh, double speed)
{
    if (secondHigh < firstLow) {
        return (firstLow - secondHigh) / speed;
    }
    return secondLow > firstHigh ? (firstHigh - secondLow) / speed : 0.0;
}

// When they cease to, which is never before that.
double partingTime(int firstLow, int firstHigh, int secondLow, int secondHigh, double speed)
{
    if (speed == 0.0) {
        return std::numeric_limits<double>::infinity();
    }
    return (speed > 0.0 ? firstHigh - secondLow : firstLow - secondHigh) / speed;
}

// Seconds until the second rectangle, moving at that speed, touches the first, up to the limit. Most never do, and are
// done with before anything is divided.
double timeToTouch(const QRect &first, const QRect &second, const QPointF &speed, double limit)
{
    const int left = first.left();
    const int right = first.right();
    const int top = first.top();
    const int bottom = first.bottom();
    if (stayApart(left, right, second.left(), second.right(), speed.x(), limit)
        || stayApart(top, bottom, second.top(), second.bottom(), speed.y(), limit)) {
        return limit;
    }
    const double begin = std::max(meetingTime(left, right, second.left(), second.right(), speed.x()),
        meetingTime(top, bottom, second.top(), second.bottom(), speed.y()));
    const double end = std::min(partingTime(left, right, second.left(), second.right(), speed.x()),
        partingTime(top, bottom, second.top(), second.bottom(), speed.y()));
    return begin <= end ? std::min(begin, limit) : limit;
}

} // namespace

void LabelField::reset(const QRect &area, int owners, int symbolReach)
{
    m_area = area;
    m_symbolReach = symbolReach;
    m_speed = 0.0;
    m_columns = area.width() / CellPixels + 1;
    const std::size_t cells =
        static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(area.height() / CellPixels + 1);
    for (auto *table : {&m_symbolCells, &m_labelCells}) {
        table->resize(cells);
        std::for_each(table->begin(), table->end(), [](std::vector<int> &cell) { cell.clear(); });
    }
    m_densityColumns = area.width() / DensityPixels + 1;
    m_density.assign(
        static_cast<std::size_t>(m_densityColumns) * static_cast<std::size_t>(area.height() / DensityPixels + 1), 0);
    m_owners.assign(static_cast<std::size_t>(owners), {});
    m_visited.assign(static_cast<std::size_t>(owners), 0);
    m_question = 0;
    m_freeLines.clear();
}

void LabelField::addSymbol(int owner, const QPoint &place, const QPointF &motion)
{
    Owner &added = m_owners[static_cast<std::size_t>(owner)];
    added.place = place;
    added.motion = motion;
    m_speed = std::max({m_speed, std::abs(motion.x()), std::abs(motion.y())});
    const QRect cell = cellsOf(QRect(place, QSize(1, 1)));
    m_symbolCells[static_cast<std::size_t>(cell.top() * m_columns + cell.left())].push_back(owner);
    addDensity(symbolRect(added), static_cast<int>(SymbolAreaCost * DensityUnits));
}

void LabelField::setYields(int owner, bool yields)
{
    m_owners[static_cast<std::size_t>(owner)].yields = yields;
}

void LabelField::addFreeLine(int owner, const QPoint &tip)
{
    m_freeLines.emplace_back(m_owners[static_cast<std::size_t>(owner)].place, tip);
}

void LabelField::put(int owner, const QRect &rect)
{
    remove(owner);
    Owner &put = m_owners[static_cast<std::size_t>(owner)];
    put.rect = rect;
    put.leader = QLine(put.place, leaderEnd(put.place, rect));
    put.leaderBounds = boundsOf(put.leader);
    put.bounds = rect | put.leaderBounds;
    addDensity(rect, static_cast<int>(LabelAreaCost * DensityUnits));
    const QRect range = cellsOf(put.bounds);
    for (int y = range.top(); y <= range.bottom(); ++y) {
        for (int x = range.left(); x <= range.right(); ++x) {
            m_labelCells[static_cast<std::size_t>(y * m_columns + x)].push_back(owner);
        }
    }
}

void LabelField::remove(int owner)
{
    Owner &removed = m_owners[static_cast<std::size_t>(owner)];
    if (removed.rect.isNull()) {
        return;
    }
    const QRect range = cellsOf(removed.bounds);
    for (int y = range.top(); y <= range.bottom(); ++y) {
        for (int x = range.left(); x <= range.right(); ++x) {
            std::vector<int> &cell = m_labelCells[static_cast<std::size_t>(y * m_columns + x)];
            *std::find(cell.begin(), cell.end(), owner) = cell.back();
            cell.pop_back();
        }
    }
    addDensity(removed.rect, -static_cast<int>(LabelAreaCost * DensityUnits));
    removed.rect = {};
}

double LabelField::cost(int owner, const QRect &rect, double limit) const
{
    double cost = freeLineCost(rect);
    const int reach = m_symbolReach;
    const bool go =
        visit(m_symbolCells, m_columns, cellsOf(rect.adjusted(-reach, -reach, reach, reach)), [&](int other) {
            cost += SymbolAreaCost * sharedArea(rect, symbolRect(m_owners[static_cast<std::size_t>(other)]));
            return cost < limit;
        });
    if (!go) {
        return cost;
    }
    Owner asked = m_owners[static_cast<std::size_t>(owner)];
    asked.rect = rect;
    asked.leader = QLine(asked.place, leaderEnd(asked.place, rect));
    asked.leaderBounds = boundsOf(asked.leader);
    asked.bounds = rect | asked.leaderBounds;
    ++m_question;
    visit(m_labelCells, m_columns, cellsOf(asked.bounds), [&](int other) {
        const Owner &stands = m_owners[static_cast<std::size_t>(other)];
        unsigned int &visited = m_visited[static_cast<std::size_t>(other)];
        // Most are only near.
        if (other != owner && visited != m_question && overlap(asked.bounds, stands.bounds)) {
            visited = m_question;
            cost += shareOf(asked.yields, stands.yields) * inTheWay(asked, stands);
        }
        return cost < limit;
    });
    return cost;
}

double LabelField::inTheWay(const Owner &label, const Owner &other)
{
    return LabelAreaCost * sharedArea(label.rect, other.rect)
        + (cross(label.leader, label.leaderBounds, other.leader, other.leaderBounds) ? CrossingCost : 0.0)
        + (cross(label.rect, other.leader, other.leaderBounds) ? ThroughCost : 0.0)
        + (cross(other.rect, label.leader, label.leaderBounds) ? ThroughCost : 0.0);
}

int LabelField::crossing(int owner) const
{
    const Owner &asked = m_owners[static_cast<std::size_t>(owner)];
    int found = -1;
    visit(m_labelCells, m_columns, cellsOf(asked.leaderBounds), [&](int other) {
        const Owner &stands = m_owners[static_cast<std::size_t>(other)];
        const bool crosses =
            other != owner && cross(asked.leader, asked.leaderBounds, stands.leader, stands.leaderBounds);
        found = crosses ? other : -1;
        return found < 0;
    });
    return found;
}

int LabelField::crowding(const QPoint &place) const
{
    const QRect range = cellsOf(QRect(place - QPoint(CellPixels, CellPixels), QSize(2 * CellPixels, 2 * CellPixels)));
    std::size_t count = 0;
    for (int y = range.top(); y <= range.bottom(); ++y) {
        for (int x = range.left(); x <= range.right(); ++x) {
            count += m_symbolCells[static_cast<std::size_t>(y * m_columns + x)].size();
        }
    }
    return static_cast<int>(count);
}

double LabelField::freeFor(int owner, const QRect &rect, double limit, double least) const
{
    const QPointF motion = m_owners[static_cast<std::size_t>(owner)].motion;
    // Who comes from ahead closes in quicker than who comes from behind.
    const auto reach = [&](double ownSpeed) {
        return static_cast<int>(std::ceil((m_speed + ownSpeed) * limit)) + m_symbolReach;
    };
    const QRect range =
        cellsOf(rect.adjusted(-reach(-motion.x()), -reach(-motion.y()), reach(motion.x()), reach(motion.y())));
    visit(m_symbolCells, m_columns, range, [&](int other) {
        const Owner &stands = m_owners[static_cast<std::size_t>(other)];
        if (other != owner) {
            limit = timeToTouch(rect, symbolRect(stands), stands.motion - motion, limit);
        }
        return limit > least;
    });
    if (limit <= least) {
        return limit;
    }
    ++m_question;
    const bool yields = m_owners[static_cast<std::size_t>(owner)].yields;
    visit(m_labelCells, m_columns, range, [&](int other) {
        const Owner &stands = m_owners[static_cast<std::size_t>(other)];
        unsigned int &visited = m_visited[static_cast<std::size_t>(other)];
        if (other != owner && visited != m_question && (yields || !stands.yields)) {
            visited = m_question;
            limit = timeToTouch(rect, stands.rect, stands.motion - motion, limit);
        }
        return limit > least;
    });
    return limit;
}

QPoint LabelField::leaderEnd(const QPoint &place, const QRect &rect)
{
    return QPoint(std::clamp(place.x(), rect.left(), rect.right()), std::clamp(place.y(), rect.top(), rect.bottom()));
}

// Columns and rows; what lies outside the area counts to the cells at its rim.
QRect LabelField::cellsOf(const QRect &rect) const
{
    const int lastColumn = m_columns - 1;
    const int lastRow = m_area.height() / CellPixels;
    const auto column = [&](int x) { return std::clamp((x - m_area.left()) / CellPixels, 0, lastColumn); };
    const auto row = [&](int y) { return std::clamp((y - m_area.top()) / CellPixels, 0, lastRow); };
    return QRect(QPoint(column(rect.left()), row(rect.top())), QPoint(column(rect.right()), row(rect.bottom())));
}

// Until the visitor returns false; then it returns false too.
template <typename Visit>
bool LabelField::visit(const std::vector<std::vector<int>> &cells, int columns, const QRect &range, Visit &&visit)
{
    for (int y = range.top(); y <= range.bottom(); ++y) {
        for (int x = range.left(); x <= range.right(); ++x) {
            for (const int owner : cells[static_cast<std::size_t>(y * columns + x)]) {
                if (!visit(owner)) {
                    return false;
                }
            }
        }
    }
    return true;
}

QRect LabelField::symbolRect(const Owner &owner) const
{
    return QRect(owner.place - QPoint(m_symbolReach, m_symbolReach), QSize(2 * m_symbolReach, 2 * m_symbolReach));
}

// Spreads it over the cells that the rectangle reaches, by their share of it.
void LabelField::addDensity(const QRect &rect, int costOfPixel)
{
    const QRect inside = (rect & m_area).translated(-m_area.topLeft());
    if (inside.isEmpty()) {
        return;
    }
    for (int y = inside.top() / DensityPixels; y <= inside.bottom() / DensityPixels; ++y) {
        int *row = m_density.data() + y * m_densityColumns;
        const int height =
            std::min(inside.bottom() + 1, (y + 1) * DensityPixels) - std::max(inside.top(), y * DensityPixels);
        for (int x = inside.left() / DensityPixels; x <= inside.right() / DensityPixels; ++x) {
            const int width =
                std::min(inside.right() + 1, (x + 1) * DensityPixels) - std::max(inside.left(), x * DensityPixels);
            row[x] += costOfPixel * width * height;
        }
    }
}

// Over the cells whose middle lies within.
double LabelField::roughCost(const QRect &rect) const
{
    const int half = DensityPixels / 2;
    const int left = (std::max(rect.left() - m_area.left(), 0) + half) / DensityPixels;
    const int top = (std::max(rect.top() - m_area.top(), 0) + half) / DensityPixels;
    const int right = (std::min(rect.right() - m_area.left(), m_area.width() - 1) + 1 - half) / DensityPixels;
    const int bottom = (std::min(rect.bottom() - m_area.top(), m_area.height() - 1) + 1 - half) / DensityPixels;
    int sum = 0;
    for (int y = top; y <= bottom; ++y) {
        const int *row = m_density.data() + y * m_densityColumns;
        for (int x = left; x <= right; ++x) {
            sum += row[x];
        }
    }
    return sum / DensityUnits;
}

double LabelField::freeLineCost(const QRect &rect) const
{
    return FreeLineCost
        * static_cast<double>(std::count_if(m_freeLines.begin(), m_freeLines.end(),
            [&rect](const QLine &line) { return cross(rect, line, boundsOf(line)); }));
}
