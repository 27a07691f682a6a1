#include "maps/map_library.h"

#include "app/background_pass.h"
#include "maps/file_watch.h"
#include "maps/map_load.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <utility>

namespace {
// One map that takes long does not hold up all the others; more at once would slow the picture down.
constexpr std::size_t LoadsAtOnce = 2;
} // namespace

struct MapLibrary::Private {
    QString indexFile;
    QList<Map> maps;
    QList<MapIndexEntry> savedEntries; // as in the file
    QString styleSheetFile;
    MapStyleSheet styleSheet;

    quint64 lastId = 0;
    std::map<quint64, std::unique_ptr<BackgroundPass>> loads; // under way, by the map's id
    QList<quint64> queue; // waits for its turn
    FileWatch watch;

    bool isBeingLoaded(quint64 id) const { return loads.contains(id) || queue.contains(id); }

    void cancelLoad(quint64 id)
    {
        queue.removeAll(id);
        loads.erase(id);
    }

    QList<MapIndexEntry> entries() const
    {
        QList<MapIndexEntry> list;
        for (const Map &map : maps) {
            list.append(map.entry);
        }
        return list;
    }

    Map *find(quint64 id)
    {
        const auto found = std::find_if(maps.begin(), maps.end(), [id](const Map &map) { return map.id == id; });
        return found == maps.end() ? nullptr : &*found;
    }

    QString absolute(const QString &file) const
    {
        return QDir::cleanPath(QFileInfo(indexFile).absoluteDir().absoluteFilePath(file));
    }

    void setEntry(Map &map, const MapIndexEntry &entry) const
    {
        map.entry = entry;
        map.path = absolute(entry.file);
        map.format = entry.format != MapFile::Unknown ? entry.format : MapFile::formatFromFileName(map.path);
    }

    // The map of the file and format in this list, taken out of it; else a new one.
    Map takeOrMake(QList<Map> &known, const MapIndexEntry &entry)
    {
        Map map;
        setEntry(map, entry);
        const auto same = std::find_if(known.begin(), known.end(),
            [&map](const Map &other) { return other.path == map.path && other.format == map.format; });
        if (same == known.end()) {
            map.id = ++lastId;
            return map;
        }
        map = *same;
        known.erase(same);
        map.entry = entry;
        return map;
    }

    void watchFiles()
    {
        QStringList files;
        for (const QString &file : {indexFile, styleSheetFile}) {
            if (!file.isEmpty()) {
                files.append(file);
            }
        }
        for (const Map &map : std::as_const(maps)) {
            files.append(map.path);
        }
        watch.setFiles(files);
    }
};

bool MapLibrary::Map::inZoomRange(double metresPerPixel) const
{
    return (!entry.minZoom || metresPerPixel >= *entry.minZoom) && (!entry.maxZoom || metresPerPixel <= *entry.maxZoom);
}

MapLibrary::MapLibrary(QObject *parent) : QObject(parent), d(std::make_unique<Private>())
{
    connect(&d->watch, &FileWatch::changed, this, &MapLibrary::fileChanged);
}

MapLibrary::~MapLibrary() = default;

QString MapLibrary::indexFile() const
{
    return d->indexFile;
}

const QList<MapLibrary::Map> &MapLibrary::maps() const
{
    return d->maps;
}

const MapLibrary::Map *MapLibrary::map(quint64 id) const
{
    return d->find(id);
}

bool MapLibrary::modified() const
{
    return d->entries() != d->savedEntries;
}

bool MapLibrary::loading() const
{
    return !d->loads.empty() || !d->queue.isEmpty();
}

// Index.

void MapLibrary::openIndex(const QString &fileName)
{
    d->queue.clear();
    d->loads.clear();
    d->maps.clear();
    d->savedEntries.clear();
    d->indexFile = QFileInfo(fileName).absoluteFilePath();
    d->watchFiles();
    if (!readIndex()) {
        Q_EMIT mapsChanged();
    }
}

// Keeps the maps that the index still names, and all of them when it cannot be read.
bool MapLibrary::readIndex()
{
    d->watch.accept(d->indexFile);
    QString error;
    const QList<MapIndexEntry> entries = readMapIndex(d->indexFile, &error);
    if (!error.isEmpty()) {
        Q_EMIT message(true, error);
        return false;
    }
    QList<Map> known = std::exchange(d->maps, {});
    for (const MapIndexEntry &entry : entries) {
        d->maps.append(d->takeOrMake(known, entry));
    }
    for (const Map &gone : std::as_const(known)) {
        d->cancelLoad(gone.id);
    }
    d->savedEntries = entries;
    d->watchFiles();
    startLoads();
    Q_EMIT mapsChanged();
    for (const Map &map : QList<Map>(d->maps)) {
        if (map.state == State::Waiting && !d->isBeingLoaded(map.id)) {
            load(map.id);
        }
    }
    return true;
}

void MapLibrary::revertIndex()
{
    readIndex();
}

bool MapLibrary::saveIndexAs(const QString &fileName, QString *error)
{
    const QFileInfo target(fileName);
    const bool moved = target.absoluteDir() != QFileInfo(d->indexFile).absoluteDir();
    QList<MapIndexEntry> entries = d->entries();
    for (MapIndexEntry &entry : entries) {
        entry.file = moved ? pathInMapIndex(d->absolute(entry.file), fileName) : entry.file;
    }
    QDir().mkpath(target.absolutePath()); // where that fails, so does the writing
    if (!writeMapIndex(target.absoluteFilePath(), entries, error)) {
        return false;
    }
    d->indexFile = target.absoluteFilePath();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        d->setEntry(d->maps[i], entries[i]);
    }
    d->savedEntries = entries;
    d->watchFiles();
    d->watch.accept(d->indexFile);
    Q_EMIT mapsChanged();
    return true;
}

quint64 MapLibrary::add(const MapIndexEntry &entry)
{
    QList<Map> none;
    d->maps.append(d->takeOrMake(none, entry));
    const quint64 id = d->maps.last().id;
    d->watchFiles();
    Q_EMIT mapsChanged();
    load(id);
    return id;
}

void MapLibrary::remove(quint64 id)
{
    if (!d->find(id)) {
        return;
    }
    d->cancelLoad(id);
    d->maps.removeIf([id](const Map &map) { return map.id == id; });
    startLoads();
    d->watchFiles();
    Q_EMIT mapsChanged();
}

void MapLibrary::setEntry(quint64 id, const MapIndexEntry &entry)
{
    Map *map = d->find(id);
    if (!map || map->entry == entry) {
        return;
    }
    const std::pair<QString, MapFile::Format> before(map->path, map->format);
    d->setEntry(*map, entry);
    if (std::pair(map->path, map->format) == before) {
        Q_EMIT mapChanged(id);
        return;
    }
    map->data.reset(); // of another file
    ++map->revision;
    d->watchFiles();
    load(id);
}

void MapLibrary::moveTo(quint64 id, int position)
{
    const Map *map = d->find(id);
    if (!map) {
        return;
    }
    const qsizetype from = map - d->maps.constData();
    const qsizetype to = std::clamp<qsizetype>(position, 0, d->maps.size() - 1);
    if (from != to) {
        d->maps.move(from, to);
        Q_EMIT mapsChanged();
    }
}

// Maps.

void MapLibrary::reload(quint64 id)
{
    if (d->find(id)) {
        load(id);
    }
}

void MapLibrary::cancel(quint64 id)
{
    if (!d->isBeingLoaded(id)) {
        return;
    }
    d->cancelLoad(id);
    startLoads();
    Map *map = d->find(id);
    map->state = State::Failed;
    map->error = tr("Loading was cancelled.");
    Q_EMIT mapChanged(id);
}

void MapLibrary::load(quint64 id)
{
    d->cancelLoad(id);
    Map *map = d->find(id);
    map->state = State::Waiting;
    map->percent = 0;
    map->error.clear();
    map->size = QFileInfo(map->path).size();
    d->watch.accept(map->path);
    d->queue.append(id);
    startLoads();
    Q_EMIT mapChanged(id);
}

void MapLibrary::startLoads()
{
    while (!d->queue.isEmpty() && d->loads.size() < LoadsAtOnce) {
        startLoad(d->queue.takeFirst());
    }
}

void MapLibrary::startLoad(quint64 id)
{
    auto pass = std::make_unique<BackgroundPass>();
    connect(pass.get(), &BackgroundPass::progressed, this, [this, id](int percent) { showProgress(id, percent); });
    const auto work = [path = d->find(id)->path, format = d->find(id)->format](const BackgroundPass::Token &token) {
        const auto report = [token](qint64 done, qint64 total) { return token.report(done, total); };
        return report(0, 0) ? loadMap(path, format, report) : MapLoad();
    };
    pass->start(work, [this, id](const MapLoad &loaded) { finish(id, loaded.data, loaded.error); });
    d->loads[id] = std::move(pass);
}

void MapLibrary::showProgress(quint64 id, int percent)
{
    Map *map = d->find(id);
    map->state = State::Loading;
    map->percent = percent;
    Q_EMIT mapChanged(id);
}

void MapLibrary::finish(quint64 id, const QSharedPointer<const MapData> &data, const QString &error)
{
    d->loads.erase(id);
    startLoads();
    Map *map = d->find(id);
    map->state = data ? State::Loaded : State::Failed;
    map->error = error;
    if (data) {
        map->data = data;
        ++map->revision;
    } else {
        Q_EMIT message(true, tr("Failed to load map %1: %2").arg(QDir::toNativeSeparators(map->path), error));
    }
    Q_EMIT mapChanged(id);
}

// Style sheet.

QString MapLibrary::styleSheetFile() const
{
    return d->styleSheetFile;
}

const MapStyleSheet &MapLibrary::styleSheet() const
{
    return d->styleSheet;
}

void MapLibrary::setStyleSheet(const MapStyleSheet &sheet)
{
    d->styleSheet = sheet;
    Q_EMIT styleSheetChanged();
}

void MapLibrary::openStyleSheet(const QString &fileName)
{
    d->styleSheetFile = QFileInfo(fileName).absoluteFilePath();
    d->watchFiles();
    MapStyleSheet sheet;
    readStyleSheet(sheet);
    setStyleSheet(sheet);
}

bool MapLibrary::readStyleSheet(MapStyleSheet &sheet)
{
    d->watch.accept(d->styleSheetFile);
    const bool found = QFileInfo(d->styleSheetFile).isFile();
    Q_EMIT message(false,
        found ? tr("Loading stylesheet: %1").arg(QDir::toNativeSeparators(d->styleSheetFile))
              : tr("Loading stylesheet: NOT FOUND"));
    QString error;
    if (sheet.load(d->styleSheetFile, &error)) {
        return true;
    }
    Q_EMIT message(true, tr("Failed to load style sheet:") + u' ' + error);
    return false;
}

// What was loaded stays when its file has gone or does not make sense any more.
void MapLibrary::fileChanged(const QString &file)
{
    if (file == d->indexFile && !modified()) {
        readIndex();
    }
    if (MapStyleSheet sheet; file == d->styleSheetFile && readStyleSheet(sheet)) {
        setStyleSheet(sheet);
    }
    for (const Map &map : QList<Map>(d->maps)) {
        if (map.path == file) {
            load(map.id);
        }
    }
}
