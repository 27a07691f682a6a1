#pragma once

#include "tiles/tile_index.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSet>

#include <array>
#include <functional>
#include <memory>

class BackgroundPass;

// Reads, decodes and saves tiles on worker threads, a few at a time; a directory that hangs does not keep answers of
// the service from being decoded. Lives in the GUI thread.
class TileLoader final : public QObject {
    Q_OBJECT

public:
    // Gives a tile; null: there is none. error: what the operator should know, if anything.
    using Read = std::function<QImage(const TileIndex &, QString *error)>;
    // Runs on a worker once for a few tiles; what it returns is called and destroyed there. May return nothing.
    using Open = std::function<Read()>;
    using Save = std::function<void(const TileIndex &, const QByteArray &, QString *error)>; // on a worker

    explicit TileLoader(QObject *parent = nullptr);
    ~TileLoader() override; // what is under way is forgotten; nobody waits for it

    void setStore(Open open, Save save);

    // From the store, in the order of the calls. Ignored while it is on its way already. Nothing is read before
    // startReading().
    void read(const TileIndex &index);
    void startReading();
    // What else waits to be read is dropped.
    void keepOnly(const QSet<TileIndex> &wanted);
    // An answer of the service.
    void decode(const TileIndex &index, const QByteArray &octets);
    // Dropped when the store takes none for so long that too many wait.
    void save(const TileIndex &index, const QByteArray &octets);
    bool holds(const TileIndex &index) const { return m_reading.contains(index) || m_decoding.contains(index); }
    bool busy() const { return !m_reading.isEmpty() || !m_decoding.isEmpty(); }
    // What waits and what is under way is forgotten, but for what is to be saved.
    void clear();

Q_SIGNALS:
    void loaded(const TileIndex &index, const QImage &image);
    void absent(const TileIndex &index); // not in the store
    // An answer of the service that is good for a picture, and one that is not.
    void decoded(const TileIndex &index, const QImage &image, const QByteArray &octets);
    void refused(const TileIndex &index, const QString &reason);
    void storeFailed(const QString &reason);
    void progressed(); // after some of the above

private:
    struct Item {
        TileIndex index;
        QByteArray octets;
        QImage image;
        QString error;
    };
    using Items = QList<Item>;
    using Lane = std::unique_ptr<BackgroundPass>;

    void startDecoding();
    void startSaving();
    void deliverRead(const Items &items);
    void deliverDecoded(const Items &items);

    Open m_open;
    Save m_save;
    std::array<Lane, 2> m_readers;
    std::array<Lane, 2> m_decoders;
    Lane m_saver;
    Items m_toRead;
    Items m_toDecode;
    Items m_toSave;
    QSet<TileIndex> m_reading; // queued or under way
    QSet<TileIndex> m_decoding;
};
