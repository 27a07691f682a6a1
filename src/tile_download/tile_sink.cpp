#include "tile_download/tile_sink.h"

#include "tiles/mb_tiles_writer.h"
#include "tiles/tile_deployment.h"
#include "tiles/tile_file_store.h"
#include "tiles/tile_service_setup.h"

#include <QFileInfo>

namespace {

// The files that the service's layer reads, too.
class DirectorySink final : public TileSink {
public:
    explicit DirectorySink(const TileServiceSetup &setup) : m_request(setup.request), m_store(setup.tileDirectory) { }

    bool open(QString * /*error*/) override { return true; }
    bool put(const TileIndex &index, const QByteArray &octets, QString *error) override
    {
        return m_store.write(m_request.filePath(index), octets, error);
    }
    bool holds(const TileIndex &index) const override { return m_store.contains(m_request.filePath(index)); }

private:
    const TileRequest m_request;
    const TileFileStore m_store;
};

class ArchiveSink final : public TileSink {
public:
    ArchiveSink(const TileServiceSetup &setup, const QString &path, bool anew)
        : m_path(path), m_start(anew ? MbTilesWriter::Start::Anew : MbTilesWriter::Start::Continue)
    {
        m_metadata.name = QFileInfo(path).completeBaseName();
        m_metadata.description = tileServiceName(setup.request.service);
        m_metadata.attribution = setup.copyright;
    }

    bool open(QString *error) override { return told(m_writer.open(m_path, m_metadata, m_start), error); }
    bool put(const TileIndex &index, const QByteArray &octets, QString *error) override
    {
        return told(m_writer.put(index, octets), error);
    }
    bool holds(const TileIndex &index) const override { return m_writer.contains(index); }
    bool flush(QString *error) override { return told(m_writer.flush(), error); }
    bool finish(QString *error) override { return told(m_writer.finish(), error); }
    void discard() override { m_writer.discard(); }

private:
    bool told(bool done, QString *error) const
    {
        if (!done) {
            *error = m_writer.error();
        }
        return done;
    }

    const QString m_path;
    const MbTilesWriter::Start m_start;
    MbTilesMetadata m_metadata;
    MbTilesWriter m_writer;
};

} // namespace

std::unique_ptr<TileSink> TileSink::create(const TileServiceSetup &setup, const QString &archive, bool anew)
{
    if (archive.isEmpty()) {
        return std::make_unique<DirectorySink>(setup);
    }
    return std::make_unique<ArchiveSink>(setup, archive, anew);
}
