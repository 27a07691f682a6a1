#include "tile_painting/toned_tiles.h"

#include <algorithm>

namespace {

constexpr qsizetype LeastKept = 64 * 1024 * 1024; // octets
constexpr qsizetype TileOctets = 4 * 256 * 256;
constexpr std::size_t MostAtOnce = 64; // so that the first are seen while others are made

} // namespace

TonedTiles::TonedTiles(QObject *parent) : QObject(parent), m_images(LeastKept) { }

TonedTiles::~TonedTiles() = default;

void TonedTiles::setTone(const TileTone &tone)
{
    m_tone = tone;
}

void TonedTiles::forget()
{
    m_images.clear();
    m_asked.clear();
}

void TonedTiles::keepAtLeast(qsizetype tiles)
{
    m_images.setMaxCost(std::max(LeastKept, 2 * tiles * TileOctets));
}

QImage TonedTiles::image(const TileIndex &index, const QImage &original)
{
    if (original.isNull() || m_tone.changesNothing()) {
        return original;
    }
    const Toned *const toned = m_images.object(index);
    if (toned && toned->original == original.cacheKey() && toned->tone == m_tone) {
        return toned->image;
    }
    m_asked.insert(index, original);
    startWork();
    return toned ? toned->image : QImage();
}

// Of one event at a time: what is asked for until the event loop is reached goes together.
void TonedTiles::startWork()
{
    if (m_working) {
        return;
    }
    m_working = true;
    const auto start = [this] {
        Work work;
        for (auto asked = m_asked.begin(); asked != m_asked.end() && work.size() < MostAtOnce;) {
            work.emplace_back(asked.key(), asked.value());
            asked = m_asked.erase(asked);
        }
        const auto tint = [work, tone = m_tone](const BackgroundPass::Token &token) {
            Result result;
            for (const auto &[index, original] : work) {
                if (!token.cancelled()) {
                    result.emplace_back(index, Toned{tone.applied(original), original.cacheKey(), tone});
                }
            }
            return result;
        };
        m_pass.start(tint, [this](const Result &result) { take(result); });
    };
    QMetaObject::invokeMethod(this, start, Qt::QueuedConnection);
}

void TonedTiles::take(const Result &result)
{
    m_working = false;
    for (const auto &[index, toned] : result) {
        // Asked for once more while it was being made.
        if (toned.tone == m_tone && m_asked.value(index).cacheKey() == toned.original) {
            m_asked.remove(index);
        }
        m_images.insert(index, new Toned(toned), std::max<qsizetype>(toned.image.sizeInBytes(), 1));
    }
    if (!m_asked.isEmpty()) {
        startWork();
    }
    Q_EMIT changed();
}
