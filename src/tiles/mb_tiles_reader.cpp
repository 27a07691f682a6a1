#include "tiles/mb_tiles_reader.h"

#include "tiles/sqlite_connection.h"

#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QMutex>
#include <QSqlError>
#include <QStringList>
#include <QThread>
#include <QVariant>

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace {

constexpr int DeepestLevel = 30; // at which columns and rows still fit

QRectF boundsOf(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != 4) {
        return {};
    }
    double values[4] = {};
    for (int i = 0; i < 4; ++i) {
        bool isNumber = false;
        values[i] = parts[i].toDouble(&isNumber);
        if (!isNumber) {
            return {};
        }
    }
    return QRectF(QPointF(values[0], values[1]), QPointF(values[2], values[3]));
}

bool canShow(const QString &format)
{
    const QByteArray name = format == QLatin1String("jpg") ? QByteArray("jpeg") : format.toLatin1();
    return QImageReader::supportedImageFormats().contains(name);
}

} // namespace

// One connection a thread, since none may be used by two.
class MbTilesReader::Connections {
public:
    explicit Connections(QString path) : m_path(std::move(path)) { }

    SqliteConnection &ofThisThread()
    {
        const QMutexLocker lock(&m_mutex);
        std::unique_ptr<SqliteConnection> &connection = m_connections[QThread::currentThread()];
        if (!connection) {
            connection = std::make_unique<SqliteConnection>(m_path, SqliteConnection::Access::ReadOnly);
        }
        return *connection;
    }

private:
    const QString m_path;
    QMutex m_mutex;
    std::unordered_map<QThread *, std::unique_ptr<SqliteConnection>> m_connections;
};

MbTilesReader::MbTilesReader() = default;

MbTilesReader::~MbTilesReader() = default;

bool MbTilesReader::isOpen() const
{
    return m_connections != nullptr;
}

bool MbTilesReader::refuse(const QString &reason)
{
    m_connections.reset();
    m_error = QStringLiteral("%1: %2").arg(m_path, reason);
    return false;
}

bool MbTilesReader::open(const QString &path)
{
    m_path = path;
    m_metadata = {};
    m_error.clear();
    if (!QFileInfo(path).isFile()) {
        return refuse(tr("The file does not exist."));
    }
    m_connections = std::make_unique<Connections>(path);
    const SqliteConnection &connection = m_connections->ofThisThread();
    if (!connection.isOpen()) {
        return refuse(connection.error());
    }
    return readMetadata() && checkFormat();
}

bool MbTilesReader::readMetadata()
{
    QSqlQuery query = m_connections->ofThisThread().query();
    query.setForwardOnly(true);
    QHash<QString, QString> values;
    // The table may be missing in files of careless programs; the tiles may not.
    query.exec(QStringLiteral("SELECT name, value FROM metadata"));
    while (query.next()) {
        values.insert(query.value(0).toString().toLower(), query.value(1).toString().trimmed());
    }
    m_metadata.name = values.value(QStringLiteral("name"));
    m_metadata.description = values.value(QStringLiteral("description"));
    m_metadata.attribution = values.value(QStringLiteral("attribution"));
    m_metadata.format = values.value(QStringLiteral("format")).toLower();
    m_metadata.isOverlay = values.value(QStringLiteral("type")) == QLatin1String("overlay");
    m_metadata.bounds = boundsOf(values.value(QStringLiteral("bounds")));
    // The levels that there are, whatever is said: one that has no tiles would show nothing.
    if (!query.exec(QStringLiteral("SELECT min(zoom_level), max(zoom_level) FROM tiles")) || !query.next()) {
        return refuse(tr("This is not an MBTiles file (%1).").arg(query.lastError().databaseText()));
    }
    if (query.isNull(0)) {
        return refuse(tr("The file has no tiles."));
    }
    m_metadata.minLevel = std::clamp(query.value(0).toInt(), 0, DeepestLevel);
    m_metadata.maxLevel = std::clamp(query.value(1).toInt(), 0, DeepestLevel);
    return true;
}

// What the tiles are counts, not what is said of them.
bool MbTilesReader::checkFormat()
{
    QSqlQuery query = m_connections->ofThisThread().query();
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT tile_data FROM tiles LIMIT 1"));
    const QString found = query.next() ? mbTilesFormatOf(query.value(0).toByteArray()) : QString();
    if (found == QLatin1String("pbf") || (found.isEmpty() && m_metadata.format == QLatin1String("pbf"))) {
        return refuse(tr("The file holds vector tiles, which cannot be shown. It must hold pictures (PNG or JPEG)."));
    }
    if (found.isEmpty()) {
        return refuse(tr("The tiles of the file are not pictures (PNG or JPEG)."));
    }
    m_metadata.format = found;
    return canShow(found)
        || refuse(tr("The tiles are %1 pictures, which need a plugin of Qt that is not installed.").arg(found));
}

QByteArray MbTilesReader::tile(const TileIndex &index) const
{
    if (!m_connections || index.level > DeepestLevel) {
        return {};
    }
    QSqlQuery query = m_connections->ofThisThread().query();
    query.setForwardOnly(true);
    query.prepare(
        QStringLiteral("SELECT tile_data FROM tiles WHERE zoom_level = ? AND tile_column = ? AND tile_row = ?"));
    query.addBindValue(static_cast<int>(index.level));
    query.addBindValue(index.x);
    query.addBindValue(mbTilesRow(index));
    return query.exec() && query.next() ? query.value(0).toByteArray() : QByteArray();
}
