#pragma once

#include "app/background_pass.h"
#include "tile_painting/tile_tone.h"
#include "tiles/tile_index.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QObject>

#include <utility>
#include <vector>

// Keeps tile images in the tone of the map. They are made on a worker, each once. GUI thread.
class TonedTiles final : public QObject {
    Q_OBJECT

public:
    explicit TonedTiles(QObject *parent = nullptr);
    ~TonedTiles() override;

    // Images of the former tone are shown until the new ones are there.
    void setTone(const TileTone &tone);
    const TileTone &tone() const { return m_tone; }
    void forget();
    // So many are kept at least, of the size of tiles.
    void keepAtLeast(qsizetype tiles);

    // The tile in the tone; null when it is not ready: it is being made then, and changed() follows.
    QImage image(const TileIndex &index, const QImage &original);

Q_SIGNALS:
    void changed();

private:
    struct Toned {
        QImage image;
        qint64 original = 0; // the key of the image that it was made of
        TileTone tone;
    };
    using Work = std::vector<std::pair<TileIndex, QImage>>;
    using Result = std::vector<std::pair<TileIndex, Toned>>;

    void startWork();
    void take(const Result &result);

    TileTone m_tone;
    QCache<TileIndex, Toned> m_images; // costs are octets
    QHash<TileIndex, QImage> m_asked;
    bool m_working = false;
    BackgroundPass m_pass;
};
