#include "maps/map_file.h"

#include "maps/legacy_map_file.h"
#include "maps/vyx_bin_map_file.h"
#include "maps/vyx_xml_map_file.h"

#include <array>
#include <utility>

namespace {

struct FormatName {
    MapFile::Format format;
    QLatin1String name;
    QLatin1String suffix;
};

constexpr std::array<FormatName, 3> FormatNames{{
    {MapFile::Legacy, QLatin1String("legacy"), QLatin1String("mapx")},
    {MapFile::Xml, QLatin1String("xml"), QLatin1String("xml")},
    {MapFile::Map, QLatin1String("map"), QLatin1String("map")},
}};

qint64 pointsOf(const MapElementGroup &group)
{
    qint64 count = group.labels.size() + group.symbols.size() + group.images.size();
    for (const MapPolylineElement &line : group.polylines) {
        count += line.points.size();
    }
    for (const MapPolygonElement &area : group.polygons) {
        count += area.points.size();
    }
    return count;
}

qint64 pointsOf(const MapData &map)
{
    qint64 count = 0;
    for (const MapElementGroup &group : map.groups) {
        count += pointsOf(group);
    }
    return count;
}

} // namespace

std::unique_ptr<MapFile> MapFile::create(Format format)
{
    switch (format) {
    case Legacy:
        return std::make_unique<LegacyMapFile>();
    case Xml:
        return std::make_unique<VyxXmlMapFile>();
    case Map:
        return std::make_unique<VyxBinMapFile>();
    case Unknown:
        break;
    }
    return nullptr;
}

QString MapFile::formatToString(Format format)
{
    for (const FormatName &entry : FormatNames) {
        if (entry.format == format) {
            return entry.name;
        }
    }
    return QStringLiteral("unknown");
}

MapFile::Format MapFile::formatFromString(const QString &text)
{
    for (const FormatName &entry : FormatNames) {
        if (entry.name == text) {
            return entry.format;
        }
    }
    return Unknown;
}

MapFile::Format MapFile::formatFromFileName(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    for (const FormatName &entry : FormatNames) {
        if (entry.suffix == suffix) {
            return entry.format;
        }
    }
    return Unknown;
}

MapFile::MapFile(Format format, QObject *parent) : QObject(parent), m_format(format) { }

MapFile::~MapFile() = default;

bool MapFile::open(const QFileInfo &info, const MapFile::Format &format, QIODeviceBase::OpenMode mode)
{
    close();
    m_lastError.clear();
    if (format == Unknown || format != m_format) {
        return fail(tr("Map file format mismatch."));
    }
    m_info = QFileInfo(info.absoluteFilePath()); // what the caller's has kept may be old
    m_mode = mode;
    m_file.setFileName(m_info.absoluteFilePath());
    if (mode == QIODeviceBase::WriteOnly) {
        return openToWrite();
    }
    if (mode == QIODeviceBase::ReadOnly) {
        return openToRead();
    }
    return fail(tr("Invalid map file open mode."));
}

bool MapFile::openToWrite()
{
    if (m_info.exists() && !m_info.isWritable()) {
        return fail(tr("Map file \"%1\" is not writable.").arg(m_info.absoluteFilePath()));
    }
    if (!m_info.exists() || m_info.isFile()) {
        m_replacement = std::make_unique<QSaveFile>(m_info.absoluteFilePath());
    }
    return openDevice(output());
}

bool MapFile::openToRead()
{
    if (!m_info.exists() || !m_info.isFile() || !m_info.isReadable()) {
        return fail(tr("Map file \"%1\" does not exist or is not readable.").arg(m_info.absoluteFilePath()));
    }
    return openDevice(m_file);
}

bool MapFile::openDevice(QFileDevice &device)
{
    const QString path = m_info.absoluteFilePath();
    if (!device.open(m_mode)) {
        const QString reason = device.errorString();
        m_replacement.reset();
        return fail(tr("Cannot open map file \"%1\": %2.").arg(path, reason));
    }
    if (openFile()) {
        return true;
    }
    const QString error = m_lastError.isEmpty() ? tr("Cannot open map file \"%1\".").arg(path) : m_lastError;
    close();
    return fail(error);
}

bool MapFile::isOpen() const
{
    return m_replacement ? m_replacement->isOpen() : m_file.isOpen();
}

void MapFile::close()
{
    if (!isOpen()) {
        return;
    }
    closeFile();
    // Without the commit the destructor removes what was written.
    if (m_replacement && m_written && !m_replacement->commit()) {
        fail(tr("Cannot write map file \"%1\": %2.").arg(m_info.absoluteFilePath(), m_replacement->errorString()));
    }
    m_replacement.reset();
    m_file.close();
    m_written = false;
}

MapData MapFile::read()
{
    m_lastError.clear();
    if (!isOpen() || m_mode != QIODeviceBase::ReadOnly) {
        fail(tr("Map file is not open for reading."));
        return {};
    }
    if (m_file.size() > MaxFileSize) {
        fail(tr("Map file \"%1\" is too large.").arg(m_info.absoluteFilePath()));
        return {};
    }
    MapData map = readFile();
    return m_lastError.isEmpty() ? map : MapData{};
}

bool MapFile::write(const MapData &map)
{
    m_lastError.clear();
    m_written = false;
    if (!isOpen() || m_mode != QIODeviceBase::WriteOnly) {
        return fail(tr("Map file is not open for writing."));
    }
    m_pointsWritten = 0;
    m_pointsToWrite = pointsOf(map);
    // Asked a last time when everything is written: what is cancelled then must not take the old file's place.
    m_written = writeFile(map) && output().flush() && output().error() == QFileDevice::NoError && mayGoOn();
    if (m_written || !m_lastError.isEmpty()) {
        return m_written;
    }
    return fail(tr("Cannot write map file \"%1\": %2.").arg(m_info.absoluteFilePath(), output().errorString()));
}

bool MapFile::reportProgress(qint64 octetsRead)
{
    return !m_progress || m_progress(octetsRead, m_file.size()) || fail(tr("Reading was cancelled."));
}

bool MapFile::reportWritten(qint64 points)
{
    constexpr qint64 Step = 4096;
    const qint64 before = std::exchange(m_pointsWritten, m_pointsWritten + points);
    return before / Step == m_pointsWritten / Step || mayGoOn();
}

bool MapFile::mayGoOn()
{
    return !m_progress || m_progress(m_pointsWritten, m_pointsToWrite) || fail(tr("Writing was cancelled."));
}

QFileDevice &MapFile::output()
{
    return m_replacement ? static_cast<QFileDevice &>(*m_replacement) : m_file;
}

bool MapFile::fail(const QString &error)
{
    m_lastError = error;
    return false;
}
