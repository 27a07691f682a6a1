#include "display/label_placer.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

constexpr int OutsideMargin = 300; // pixels round the view in which it matters what labels cover
constexpr int EdgeGap = 2; // pixels between label and edge
constexpr int MemoryCalls = 300; // for which a track that is not shown is remembered
constexpr int RetryCalls = 20; // until a label looks again that found nothing better
constexpr double Horizon = 75.0; // seconds looked ahead
// Of a place that is about to be taken. Where there is room to move to later, near is better.
constexpr double HorizonCost = 150.0;
constexpr double HorizonCostInCrowd = 335.0;
constexpr double VectorCost = 3.0; // of covering its own vector
constexpr double CrowdCost = 0.3; // of each symbol around: the edge of a crowd has more room
constexpr double EdgeCost = 220.0; // of reaching beyond the edge
constexpr double EdgePixelCost = 0.5; // of a pixel beyond the edge
constexpr double BadCost = 60.0; // more than that and a label looks for another place
constexpr double ShortenedCost = 470.0; // of giving up lines
constexpr double ShortenedCostInThrong = 150.0;
// The shares of the view that whole labels would fill, from which and up to which costs become those in a crowd, and
// those in a throng.
constexpr double LooseShare = 0.17;
constexpr double CrowdShare = 0.5;
constexpr double FullShare = 0.6;
constexpr double ThrongShare = 1.0;
// Of not being shown, with few labels in view; from Few to Many of them it falls, where covering each other helps
// nobody.
constexpr double HiddenCostOfFew = 2200.0;
constexpr double HiddenCostOfMany = 1400.0;
constexpr int Few = 350;
constexpr int Many = 600;
constexpr double ChangeCost = 200.0; // what a move or another form has to be worth
constexpr double FarPlaceCost = 30.0; // of a place from which a label that has become urgent comes nearer
// What a move to a nearer place has to be worth.
constexpr double NearerCost = 20.0;
constexpr double NearerCostInCrowd = 120.0;
constexpr double ExchangeCost = 500.0; // what the moves of two labels have to be worth
constexpr int WorkLimit = 4500; // candidates a call, from which on what can wait does
constexpr std::size_t HastyStride = 20; // of the candidates looked at when there is no time for all
constexpr double NoLimit = 1e9;
constexpr double RoughShare = 0.75; // of a guess that the cost surely comes to

// What a rectangle keeps at rest when its size changes: the side towards the symbol.
int anchored(int offset, int before, int after)
{
    if (offset + before <= 0) {
        return offset + before - after;
    }
    return offset >= 0 ? offset : offset + (before - after) / 2;
}

QPoint anchored(const QPoint &offset, const QSize &before, const QSize &after)
{
    return QPoint(
        anchored(offset.x(), before.width(), after.width()), anchored(offset.y(), before.height(), after.height()));
}

QSize sizeOf(const LabelPlacer::Label &label, LabelPlacer::Form form)
{
    return form == LabelPlacer::Form::Whole ? label.whole : label.shortened;
}

} // namespace

const std::vector<LabelPlacer::Placed> &LabelPlacer::place(const Scene &scene, const std::vector<Label> &labels)
{
    m_scene = scene;
    m_candidates.setUp(scene.preferredOffset, scene.symbolReach);
    ++m_call;
    m_work = 0;
    collect(labels);
    recall();
    placeNew();
    if (!scene.panning) {
        improve();
    }
    report();
    return m_placed;
}

void LabelPlacer::forget()
{
    m_memories.clear();
}

void LabelPlacer::forget(quint64 id)
{
    m_memories.erase(id);
}

void LabelPlacer::lookAgain()
{
    for (auto &[id, memory] : m_memories) {
        memory.retry = 0;
        memory.isNew = memory.isNew || memory.form == Form::Hidden;
    }
}

void LabelPlacer::collect(const std::vector<Label> &labels)
{
    const QRect area = m_scene.view.adjusted(-OutsideMargin, -OutsideMargin, OutsideMargin, OutsideMargin);
    m_field.reset(area, static_cast<int>(labels.size()), m_scene.symbolReach);
    m_entries.clear();
    for (const Label &label : labels) {
        const int index = static_cast<int>(m_entries.size());
        Memory &memory = m_memories[label.id];
        memory.seen = m_call;
        m_entries.push_back({&label, &memory, m_scene.view.contains(label.place)});
        m_field.addSymbol(index, label.place, label.motion);
        m_field.setYields(index, !label.pinned && label.priority < Priority::Selected);
        if (label.keepsVectorFree && !label.vectorTip.isNull()) {
            m_field.addFreeLine(index, label.place + label.vectorTip);
        }
    }
    setCosts();
    std::erase_if(m_memories, [this](const auto &item) { return m_call - item.second.seen > MemoryCalls; });
}

void LabelPlacer::setCosts()
{
    int count = 0;
    double area = 0.0;
    for (const Entry &entry : m_entries) {
        const bool counts = entry.inView && !entry.label->pinned;
        count += counts ? 1 : 0;
        area += counts ? static_cast<double>(entry.label->whole.width()) * entry.label->whole.height() : 0.0;
    }
    const double many = std::clamp(static_cast<double>(count - Few) / (Many - Few), 0.0, 1.0);
    m_hiddenCost = std::lerp(HiddenCostOfFew, HiddenCostOfMany, many);
    const double share = area / std::max(1.0, static_cast<double>(m_scene.view.width()) * m_scene.view.height());
    const double crowd = std::clamp((share - LooseShare) / (CrowdShare - LooseShare), 0.0, 1.0);
    m_horizonCost = std::lerp(HorizonCost, HorizonCostInCrowd, crowd);
    m_nearerCost = std::lerp(NearerCost, NearerCostInCrowd, crowd);
    const double throng = std::clamp((share - FullShare) / (ThrongShare - FullShare), 0.0, 1.0);
    m_shortenedCost = std::lerp(ShortenedCost, ShortenedCostInThrong, throng);
}

double LabelPlacer::formCost(Form form) const
{
    return form == Form::Whole ? 0.0 : m_shortenedCost;
}

// Labels stand where they stood.
void LabelPlacer::recall()
{
    m_new.clear();
    for (int i = 0; i < static_cast<int>(m_entries.size()); ++i) {
        recall(i);
    }
}

void LabelPlacer::recall(int index)
{
    const Label &label = *entry(index).label;
    Memory &memory = *entry(index).memory;
    if (label.whole.isEmpty()) {
        memory = Memory();
        memory.seen = m_call;
        return;
    }
    if (label.pinned) {
        settle(index, {label.pinnedOffset, 0.0, 0.0, Form::Whole});
        return;
    }
    const bool comesNear = isUrgent(index) && label.priority > memory.priority && memory.placeCost > FarPlaceCost;
    memory.priority = label.priority;
    if (memory.isNew || comesNear || (staysWhole(index) && memory.form != Form::Whole)) {
        m_new.push_back(index);
        return;
    }
    if (memory.form != Form::Hidden) {
        const QSize size = sizeOf(label, memory.form);
        memory.offset = anchored(memory.offset, memory.size, size);
        memory.size = size;
        m_field.put(index, rectOf(index));
    }
}

// The most important first, and of equals the one with the most neighbours: it has the least choice.
void LabelPlacer::sortNew()
{
    for (const int index : m_new) {
        m_entries[static_cast<std::size_t>(index)].crowding = m_field.crowding(entry(index).label->place);
    }
    const auto rank = [this](int index) {
        const Entry &ranked = entry(index);
        return std::tuple(ranked.inView, ranked.label->priority, ranked.crowding);
    };
    std::stable_sort(m_new.begin(), m_new.end(), [&rank](int a, int b) { return rank(a) > rank(b); });
}

// New ones, and those that have become important and are not whole.
void LabelPlacer::placeNew()
{
    sortNew();
    for (const int index : m_new) {
        settle(index, bestForm(index, {{}, 0.0, staysWhole(index) ? NoLimit : m_hiddenCost, Form::Hidden}));
    }
}

// Labels that have come into others' way move or give up lines, and those that gave up some, or stand far away, get
// them back or come nearer where there is room. Those in view first, for there may be no time for all, and of these the
// least important: that may free the next.
void LabelPlacer::improve()
{
    findWanting();
    for (const int index : m_wanting) {
        if (m_work > WorkLimit) {
            break;
        }
        improve(index);
    }
}

void LabelPlacer::findWanting()
{
    m_wanting.clear();
    for (int i = 0; i < static_cast<int>(m_entries.size()); ++i) {
        if (isWanting(i)) {
            m_wanting.push_back(i);
        }
    }
    const auto rank = [this](int index) {
        const Entry &ranked = entry(index);
        return std::tuple(!ranked.inView, ranked.label->priority, ranked.memory->retry);
    };
    std::stable_sort(m_wanting.begin(), m_wanting.end(), [&rank](int a, int b) { return rank(a) < rank(b); });
}

bool LabelPlacer::isWanting(int index) const
{
    const Memory &memory = *entry(index).memory;
    if (entry(index).label->pinned) {
        return false;
    }
    return memory.retry > m_call ? standingCost(index, memory.tolerated) >= memory.tolerated : !isGood(index);
}

void LabelPlacer::improve(int index)
{
    if (!isWanting(index) || exchange(index)) {
        return;
    }
    Memory &memory = *entry(index).memory;
    memory.retry = m_call + RetryCalls;
    memory.tolerated = standingCost(index, NoLimit) + BadCost;
    Found best = standing(index);
    best.cost -= memory.placeCost > m_nearerCost ? m_nearerCost : ChangeCost;
    m_field.remove(index); // guesses at costs would count it
    settle(index, bestForm(index, best));
}

void LabelPlacer::report()
{
    m_placed.clear();
    m_shortenedCount = 0;
    m_hiddenCount = 0;
    quint64 hoveredTrack = 0;
    for (int i = 0; i < static_cast<int>(m_entries.size()); ++i) {
        const Memory &memory = *entry(i).memory;
        const bool counts = entry(i).inView && !entry(i).label->whole.isEmpty();
        m_shortenedCount += counts && memory.form == Form::Shortened ? 1 : 0;
        m_hiddenCount += counts && memory.form == Form::Hidden ? 1 : 0;
        if (entry(i).label->priority == Priority::Hovered && memory.form != Form::Whole) {
            hoveredTrack = entry(i).label->id;
            m_placed.push_back(hovered(i));
        } else {
            m_placed.push_back({memory.offset, memory.size, memory.form});
        }
    }
    m_hovered = hoveredTrack;
}

// Stays where it came up for as long as the pointer does.
LabelPlacer::Placed LabelPlacer::hovered(int index)
{
    const Label &label = *entry(index).label;
    if (m_hovered == label.id && m_hoveredPlace.size == label.whole) {
        return m_hoveredPlace;
    }
    Found best{m_scene.preferredOffset, 0.0, NoLimit, Form::Whole};
    for (const LabelCandidates::Candidate &candidate : m_candidates.of(label.whole)) {
        const QRect rect(label.place + candidate.offset, label.whole);
        const double cost = static_cast<double>(candidate.cost) + m_field.cost(index, rect, best.cost);
        if (edgeCost(index, rect) <= 0.0 && cost < best.cost) {
            best = {candidate.offset, 0.0, cost, Form::Whole};
        }
    }
    m_hoveredPlace = {best.offset, label.whole, Form::Whole};
    return m_hoveredPlace;
}

bool LabelPlacer::staysWhole(int index) const
{
    const Priority priority = entry(index).label->priority;
    return priority != Priority::Normal && priority != Priority::Hovered;
}

bool LabelPlacer::isUrgent(int index) const
{
    return entry(index).label->priority >= Priority::Selected;
}

bool LabelPlacer::isMovable(int index) const
{
    return !entry(index).label->pinned && entry(index).label->priority == Priority::Normal;
}

bool LabelPlacer::isGood(int index) const
{
    const Memory &memory = *entry(index).memory;
    const bool isWhole = memory.form == Form::Whole || entry(index).label->whole.isEmpty();
    return isWhole && memory.placeCost <= m_nearerCost && standingCost(index, BadCost) < BadCost;
}

// As the label stands, with all that is in its way.
LabelPlacer::Found LabelPlacer::standing(int index) const
{
    const Memory &memory = *entry(index).memory;
    const double cost = memory.form == Form::Hidden
        ? m_hiddenCost
        : standingCost(index, NoLimit) + memory.placeCost + formCost(memory.form);
    return {memory.offset, memory.placeCost, cost, memory.form};
}

// Of the label where it stands; 0 for one that nothing moves.
double LabelPlacer::standingCost(int index, double limit) const
{
    const Entry &stands = entry(index);
    if (stands.label->pinned || stands.memory->form == Form::Hidden) {
        return 0.0;
    }
    const QRect rect = rectOf(index);
    return edgeCost(index, rect) + m_field.cost(index, rect, limit);
}

// A symbol beyond the edge has its label there too.
double LabelPlacer::edgeCost(int index, const QRect &rect) const
{
    const QRect inside = m_scene.view.adjusted(EdgeGap, EdgeGap, -EdgeGap, -EdgeGap);
    if (!entry(index).inView || inside.contains(rect)) {
        return 0.0;
    }
    const QRect seen = rect & inside;
    return EdgeCost + EdgePixelCost * (rect.width() * rect.height() - seen.width() * seen.height());
}

double LabelPlacer::vectorCost(const Label &label, const QRect &rect) const
{
    return !label.vectorTip.isNull() && rect.contains(label.place + label.vectorTip / 2) ? VectorCost : 0.0;
}

// Two labels whose leaders cross stand in each other's stead better.
bool LabelPlacer::exchange(int index)
{
    const int other = entry(index).memory->form == Form::Hidden ? -1 : m_field.crossing(index);
    if (other < 0 || !isMovable(other)) {
        return false;
    }
    const QRect rect = rectOf(index);
    const QRect otherRect = rectOf(other);
    const double before = standing(index).cost + standing(other).cost;
    m_field.put(index, QRect(otherRect.topLeft(), rect.size()));
    m_field.put(other, QRect(rect.topLeft(), otherRect.size()));
    if (exchangedCost(index, otherRect.topLeft()) + exchangedCost(other, rect.topLeft()) > before - ExchangeCost) {
        m_field.put(index, rect);
        m_field.put(other, otherRect);
        return false;
    }
    for (const auto &[moved, corner] : {std::pair(index, otherRect.topLeft()), std::pair(other, rect.topLeft())}) {
        Memory &memory = *entry(moved).memory;
        memory.offset = corner - entry(moved).label->place;
        memory.placeCost = static_cast<double>(m_candidates.cost(memory.offset, memory.size));
    }
    return true;
}

double LabelPlacer::exchangedCost(int index, const QPoint &corner)
{
    const Memory &memory = *entry(index).memory;
    const QRect rect(corner, memory.size);
    return static_cast<double>(m_candidates.cost(corner - entry(index).label->place, memory.size))
        + formCost(memory.form) + edgeCost(index, rect) + m_field.cost(index, rect, NoLimit);
}

// What costs less than the best so far, or that: a nearby place that is out of others' way, and likely to stay so.
LabelPlacer::Found LabelPlacer::bestForm(int index, Found best)
{
    best = bestPlace(index, Form::Whole, inPlace(index, Form::Whole, best));
    if (!staysWhole(index)) {
        best = bestPlace(index, Form::Shortened, inPlace(index, Form::Shortened, best));
    }
    return best;
}

// The same place for another form.
LabelPlacer::Found LabelPlacer::inPlace(int index, Form form, Found best) const
{
    const Label &label = *entry(index).label;
    const Memory &memory = *entry(index).memory;
    if (memory.isNew || memory.form == Form::Hidden || memory.form == form) {
        return best;
    }
    const QSize size = sizeOf(label, form);
    const QPoint offset = anchored(memory.offset, memory.size, size);
    const QRect rect(label.place + offset, size);
    const double own = memory.placeCost + formCost(form) + edgeCost(index, rect);
    const double cost = own + m_field.cost(index, rect, best.cost - own);
    return cost < best.cost ? Found{offset, memory.placeCost, cost, form} : best;
}

LabelPlacer::Found LabelPlacer::bestPlace(int index, Form form, Found best)
{
    const Label &label = *entry(index).label;
    const QSize size = sizeOf(label, form);
    const auto &candidates = m_candidates.of(size);
    const std::size_t stride = m_work > WorkLimit ? HastyStride : 1;
    for (std::size_t i = 0; i < candidates.size(); i += stride) {
        const LabelCandidates::Candidate &candidate = candidates[i];
        const double own = static_cast<double>(candidate.cost) + formCost(form);
        if (own >= best.cost) {
            break;
        }
        ++m_work;
        const QRect rect(label.place + candidate.offset, size);
        const double inView = own + edgeCost(index, rect);
        if (inView >= best.cost) {
            continue;
        }
        if (isUrgent(index) || inView + RoughShare * m_field.roughCost(rect) < best.cost) {
            const double cost = placeCost(index, rect, inView, best.cost);
            best = cost < best.cost ? Found{candidate.offset, static_cast<double>(candidate.cost), cost, form} : best;
        }
    }
    return best;
}

// All that a place costs, beyond what is known already, or any figure from the limit on.
double LabelPlacer::placeCost(int index, const QRect &rect, double cost, double limit) const
{
    cost += vectorCost(*entry(index).label, rect) + CrowdCost * m_field.crowding(rect.center());
    if (cost < limit) {
        cost += m_field.cost(index, rect, limit - cost);
    }
    if (cost >= limit) {
        return cost;
    }
    const double least = Horizon * (1.0 - (limit - cost) / m_horizonCost); // below that it costs too much
    return cost + m_horizonCost * (1.0 - m_field.freeFor(index, rect, Horizon, std::max(0.0, least)) / Horizon);
}

void LabelPlacer::settle(int index, const Found &found)
{
    Memory &memory = *entry(index).memory;
    memory.isNew = false;
    memory.form = found.form;
    memory.offset = found.offset;
    memory.placeCost = found.placeCost;
    if (found.form == Form::Hidden) {
        memory.size = {};
        m_field.remove(index);
        return;
    }
    memory.size = sizeOf(*entry(index).label, found.form);
    m_field.put(index, rectOf(index));
}

QRect LabelPlacer::rectOf(int index) const
{
    return QRect(entry(index).label->place + entry(index).memory->offset, entry(index).memory->size);
}
