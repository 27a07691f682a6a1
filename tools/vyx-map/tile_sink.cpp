#include "vyx-map/tile_sink.h"

#include "tiles/mb_tiles_writer.h"

#include <QDir>
#include <QSaveFile>

#include <utility>

namespace {

// Whole or not at all: without finish() nothing is left.
class MbTilesSink final : public TileSink {
public:
    ~MbTilesSink() override { m_writer.discard(); }

    bool open(const QString &path, const MbTilesMetadata &metadata)
    {
        return noted(m_writer.open(path, metadata, MbTilesWriter::Start::Anew));
    }
    bool put(const TileIndex &index, const QByteArray &png) override { return noted(m_writer.put(index, png)); }
    bool finish() override { return noted(m_writer.finish()); }

private:
    bool noted(bool isGood)
    {
        m_error = m_writer.error();
        return isGood;
    }

    MbTilesWriter m_writer;
};

class FolderSink final : public TileSink {
public:
    explicit FolderSink(QString path) : m_path(std::move(path)) { }

    bool put(const TileIndex &index, const QByteArray &png) override
    {
        const QString folder = QStringLiteral("%1/%2/%3").arg(m_path).arg(index.level).arg(index.x);
        QSaveFile file(QStringLiteral("%1/%2.png").arg(folder).arg(index.y));
        if (QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) && file.write(png) == png.size()
            && file.commit()) {
            return true;
        }
        m_error = QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
        return false;
    }
    bool finish() override { return true; }

private:
    const QString m_path;
};

} // namespace

std::unique_ptr<TileSink> TileSink::create(const QString &path, const MbTilesMetadata &metadata, QString &error)
{
    if (!path.endsWith(QLatin1String(".mbtiles"), Qt::CaseInsensitive)) {
        return std::make_unique<FolderSink>(path);
    }
    auto sink = std::make_unique<MbTilesSink>();
    if (!sink->open(path, metadata)) {
        error = sink->error();
        return nullptr;
    }
    return sink;
}
