#include "tiles/mb_tiles_writer.h"

#include "tiles/sqlite_connection.h"

#include <QFile>
#include <QLockFile>
#include <QSqlError>
#include <QStringList>
#include <QVariant>

#include <cmath>
#include <filesystem>
#include <system_error>
#include <utility>

namespace {

constexpr qint64 LongestTransaction = 2000; // milliseconds
constexpr int ApplicationId = 0x4d504258; // by which other programs know the file as MBTiles
constexpr double Pi = 3.141592653589793;

void removeUnfinished(const QString &path)
{
    QFile::remove(path);
    QFile::remove(path + QStringLiteral("-journal"));
}

double latitudeOfRow(int rowFromSouth, int level)
{
    const double y = Pi * (2.0 * rowFromSouth / std::ldexp(1.0, level) - 1.0);
    return std::atan(std::sinh(y)) * 180.0 / Pi;
}

// Of the deepest level, which shows best how far the map reaches.
QRectF boundsOfTiles(const SqliteConnection &connection, int level)
{
    QSqlQuery query = connection.query();
    query.prepare(QStringLiteral("SELECT min(tile_column), max(tile_column), min(tile_row), max(tile_row) FROM tiles "
                                 "WHERE zoom_level = ?"));
    query.addBindValue(level);
    if (!query.exec() || !query.next()) {
        return {};
    }
    const double degreesPerColumn = 360.0 / std::ldexp(1.0, level);
    const double west = query.value(0).toInt() * degreesPerColumn - 180.0;
    const double east = (query.value(1).toInt() + 1) * degreesPerColumn - 180.0;
    const double south = latitudeOfRow(query.value(2).toInt(), level);
    const double north = latitudeOfRow(query.value(3).toInt() + 1, level);
    return QRectF(QPointF(west, south), QPointF(east, north));
}

// Of the first tile.
QString formatOfTiles(const SqliteConnection &connection)
{
    QSqlQuery query = connection.query();
    const bool isThere = query.exec(QStringLiteral("SELECT tile_data FROM tiles LIMIT 1")) && query.next();
    return isThere ? mbTilesFormatOf(query.value(0).toByteArray()) : QString();
}

QString numbers(std::initializer_list<double> values)
{
    QStringList texts;
    for (const double value : values) {
        texts.append(QString::number(value, 'f', 6));
    }
    return texts.join(QLatin1Char(','));
}

} // namespace

MbTilesWriter::MbTilesWriter() = default;

MbTilesWriter::~MbTilesWriter()
{
    flush();
}

QString MbTilesWriter::unfinishedPath(const QString &path)
{
    return path + QStringLiteral(".part");
}

bool MbTilesWriter::fail(const QString &reason)
{
    m_error = QStringLiteral("%1: %2").arg(m_path, reason);
    return false;
}

bool MbTilesWriter::open(const QString &path, const MbTilesMetadata &metadata, Start start)
{
    flush();
    m_connection.reset();
    m_path = path;
    m_metadata = metadata;
    m_error.clear();
    m_lock = std::make_unique<QLockFile>(unfinishedPath(path) + QStringLiteral(".lock"));
    m_lock->setStaleLockTime(0);
    if (!m_lock->tryLock()) {
        return fail(m_lock->error() == QLockFile::LockFailedError ? tr("Another program is writing the file.")
                                                                  : tr("The folder cannot be written to."));
    }
    if (start == Start::Anew) {
        removeUnfinished(unfinishedPath(path));
    } else if (openUnfinished()) {
        return true;
    } else {
        m_connection.reset();
        removeUnfinished(unfinishedPath(path));
    }
    return openUnfinished() || fail(m_connection->error());
}

bool MbTilesWriter::openUnfinished()
{
    m_connection = std::make_unique<SqliteConnection>(unfinishedPath(m_path), SqliteConnection::Access::ReadWrite);
    if (!m_connection->isOpen()) {
        return false;
    }
    for (const QString &statement : {QStringLiteral("PRAGMA application_id = %1").arg(ApplicationId),
             QStringLiteral("CREATE TABLE IF NOT EXISTS metadata (name TEXT, value TEXT)"),
             QStringLiteral(
                 "CREATE TABLE IF NOT EXISTS tiles (zoom_level INTEGER, tile_column INTEGER, tile_row INTEGER, "
                 "tile_data BLOB)"),
             QStringLiteral(
                 "CREATE UNIQUE INDEX IF NOT EXISTS tile_index ON tiles (zoom_level, tile_column, tile_row)")}) {
        if (!m_connection->run(statement)) {
            return false;
        }
    }
    return true;
}

bool MbTilesWriter::contains(const TileIndex &index) const
{
    if (!m_connection) {
        return false;
    }
    QSqlQuery query = m_connection->query();
    query.prepare(QStringLiteral("SELECT 1 FROM tiles WHERE zoom_level = ? AND tile_column = ? AND tile_row = ?"));
    query.addBindValue(static_cast<int>(index.level));
    query.addBindValue(index.x);
    query.addBindValue(mbTilesRow(index));
    return query.exec() && query.next();
}

qint64 MbTilesWriter::count() const
{
    if (!m_connection) {
        return 0;
    }
    QSqlQuery query = m_connection->query();
    return query.exec(QStringLiteral("SELECT count(*) FROM tiles")) && query.next() ? query.value(0).toLongLong() : 0;
}

bool MbTilesWriter::begin()
{
    if (!m_inTransaction) {
        m_inTransaction = m_connection->begin();
        m_sinceBegin.start();
    }
    return m_inTransaction || fail(tr("The file cannot be written."));
}

bool MbTilesWriter::put(const TileIndex &index, const QByteArray &tile)
{
    const QString format = mbTilesFormatOf(tile);
    if (format.isEmpty() || format == QLatin1String("pbf")) {
        return fail(tr("A tile is not a picture."));
    }
    if (!m_connection || !begin()) {
        return false;
    }
    QSqlQuery query = m_connection->query();
    query.prepare(QStringLiteral("INSERT OR REPLACE INTO tiles VALUES (?, ?, ?, ?)"));
    query.addBindValue(static_cast<int>(index.level));
    query.addBindValue(index.x);
    query.addBindValue(mbTilesRow(index));
    query.addBindValue(tile);
    if (!query.exec()) {
        return fail(query.lastError().databaseText());
    }
    return m_sinceBegin.elapsed() < LongestTransaction || flush();
}

bool MbTilesWriter::flush()
{
    if (!m_inTransaction) {
        return true;
    }
    m_inTransaction = false;
    return m_connection->commit() || fail(m_connection->error());
}

bool MbTilesWriter::writeMetadata()
{
    QSqlQuery query = m_connection->query();
    if (!query.exec(QStringLiteral("SELECT min(zoom_level), max(zoom_level) FROM tiles")) || !query.next()) {
        return fail(query.lastError().databaseText());
    }
    const int minLevel = query.value(0).toInt();
    const int maxLevel = query.value(1).toInt();
    const QRectF bounds = m_metadata.bounds.isNull() ? boundsOfTiles(*m_connection, maxLevel) : m_metadata.bounds;
    const QPointF center = bounds.center();
    const QString format = m_metadata.format.isEmpty() ? formatOfTiles(*m_connection) : m_metadata.format;
    query.exec(QStringLiteral("DELETE FROM metadata"));
    query.prepare(QStringLiteral("INSERT INTO metadata VALUES (?, ?)"));
    for (const auto &[key, value] : {std::pair{"name", m_metadata.name}, {"format", format},
             {"bounds", numbers({bounds.left(), bounds.top(), bounds.right(), bounds.bottom()})},
             {"center", numbers({center.x(), center.y()}) + QStringLiteral(",%1").arg(minLevel)},
             {"minzoom", QString::number(minLevel)}, {"maxzoom", QString::number(maxLevel)},
             {"type", m_metadata.isOverlay ? QStringLiteral("overlay") : QStringLiteral("baselayer")},
             {"description", m_metadata.description}, {"attribution", m_metadata.attribution}}) {
        if (value.isEmpty()) {
            continue;
        }
        query.addBindValue(QLatin1String(key));
        query.addBindValue(value);
        if (!query.exec()) {
            return fail(query.lastError().databaseText());
        }
    }
    return true;
}

bool MbTilesWriter::finish()
{
    if (!m_connection || count() == 0) {
        return fail(tr("There are no tiles to write."));
    }
    if (!begin() || !writeMetadata() || !flush()) {
        return false;
    }
    m_connection.reset();
    m_lock.reset();
    std::error_code problem;
    std::filesystem::rename(
        unfinishedPath(m_path).toStdU16String(), m_path.toStdU16String(), problem); // replaces, unlike QFile's
    return !problem || fail(QString::fromLocal8Bit(problem.message().c_str()));
}

void MbTilesWriter::discard()
{
    if (!m_connection) {
        return;
    }
    m_connection.reset();
    m_inTransaction = false;
    removeUnfinished(unfinishedPath(m_path));
    m_lock.reset();
}
