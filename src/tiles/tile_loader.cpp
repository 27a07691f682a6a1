#include "tiles/tile_loader.h"

#include "app/background_pass.h"
#include "tiles/tile_image.h"

#include <algorithm>

namespace {

constexpr qsizetype MostAtATime = 8; // tiles, so that a view left behind does not keep a worker
constexpr qsizetype MostToSave = 512;

// What one worker takes of the tiles that wait for some.
template <typename List>
List share(List &waiting, std::size_t workers)
{
    const auto parts = static_cast<qsizetype>(workers);
    const qsizetype count = std::clamp<qsizetype>((waiting.size() + parts - 1) / parts, 0, MostAtATime);
    List taken = waiting.first(count);
    waiting.remove(0, count);
    return taken;
}

} // namespace

TileLoader::TileLoader(QObject *parent) : QObject(parent)
{
    for (auto *lanes : {&m_readers, &m_decoders}) {
        std::ranges::generate(*lanes, [] { return std::make_unique<BackgroundPass>(); });
    }
    m_saver = std::make_unique<BackgroundPass>();
}

TileLoader::~TileLoader() = default;

void TileLoader::setStore(Open open, Save save)
{
    m_open = std::move(open);
    m_save = std::move(save);
}

void TileLoader::read(const TileIndex &index)
{
    if (!m_open || holds(index)) {
        return;
    }
    m_reading.insert(index);
    m_toRead.append({index, {}, {}, {}});
}

void TileLoader::keepOnly(const QSet<TileIndex> &wanted)
{
    m_toRead.removeIf([&](const Item &item) { return !wanted.contains(item.index) && m_reading.remove(item.index); });
}

void TileLoader::startReading()
{
    for (const Lane &lane : m_readers) {
        if (lane->running() || m_toRead.isEmpty()) {
            continue;
        }
        const auto work = [open = m_open, items = share(m_toRead, m_readers.size())](
                              const BackgroundPass::Token &token) {
            Items done = items;
            const Read read = open();
            for (Item &item : done) {
                if (read && !token.cancelled()) {
                    item.image = read(item.index, &item.error);
                }
            }
            return done;
        };
        lane->start(work, [this](const Items &items) { deliverRead(items); });
    }
}

void TileLoader::deliverRead(const Items &items)
{
    for (const Item &item : items) {
        m_reading.remove(item.index);
    }
    for (const Item &item : items) {
        if (!item.error.isEmpty()) {
            Q_EMIT storeFailed(item.error);
        }
        if (item.image.isNull()) {
            Q_EMIT absent(item.index);
        } else {
            Q_EMIT loaded(item.index, item.image);
        }
    }
    startReading();
    Q_EMIT progressed();
}

void TileLoader::decode(const TileIndex &index, const QByteArray &octets)
{
    m_decoding.insert(index);
    m_toDecode.append({index, octets, {}, {}});
    startDecoding();
}

void TileLoader::startDecoding()
{
    for (const Lane &lane : m_decoders) {
        if (lane->running() || m_toDecode.isEmpty()) {
            continue;
        }
        const auto work = [items = share(m_toDecode, m_decoders.size())](const BackgroundPass::Token &token) {
            Items done = items;
            for (Item &item : done) {
                if (!token.cancelled()) {
                    item.image = decodeTileImage(item.octets, &item.error);
                }
            }
            return done;
        };
        lane->start(work, [this](const Items &items) { deliverDecoded(items); });
    }
}

void TileLoader::deliverDecoded(const Items &items)
{
    for (const Item &item : items) {
        m_decoding.remove(item.index);
    }
    for (const Item &item : items) {
        if (item.image.isNull()) {
            Q_EMIT refused(item.index, item.error);
        } else {
            Q_EMIT decoded(item.index, item.image, item.octets);
        }
    }
    startDecoding();
    Q_EMIT progressed();
}

void TileLoader::save(const TileIndex &index, const QByteArray &octets)
{
    if (!m_save || m_toSave.size() >= MostToSave) {
        return;
    }
    m_toSave.append({index, octets, {}, {}});
    startSaving();
}

void TileLoader::startSaving()
{
    if (m_saver->running() || m_toSave.isEmpty()) {
        return;
    }
    const auto work = [save = m_save, items = share(m_toSave, 1)](const BackgroundPass::Token &) {
        QString error;
        for (const Item &item : items) {
            save(item.index, item.octets, &error);
        }
        return error;
    };
    m_saver->start(work, [this](const QString &error) {
        if (!error.isEmpty()) {
            Q_EMIT storeFailed(error);
        }
        startSaving();
    });
}

void TileLoader::clear()
{
    for (auto *lanes : {&m_readers, &m_decoders}) {
        for (const Lane &lane : *lanes) {
            lane->cancel();
        }
    }
    m_toRead.clear();
    m_toDecode.clear();
    m_reading.clear();
    m_decoding.clear();
}
