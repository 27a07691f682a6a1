#include "map_editor/map_editor_document.h"

#include "map_editor/map_editor_commands.h"

#include <QDir>

#include <algorithm>

namespace {

// Replaces the backup by a copy of the file, in one step, so that a full disk does not cost the older backup.
bool backUp(const QString &path)
{
    if (!QFile::exists(path)) {
        return true;
    }
    const QString backup = path + QStringLiteral(".bak");
    const QString fresh = backup + QStringLiteral(".new");
    QFile::remove(fresh);
    if (!QFile::copy(path, fresh)) {
        return false;
    }
    QFile::remove(backup);
    return QFile::rename(fresh, backup);
}

// What went wrong; empty: nothing. Any thread.
QString writeMap(const MapData &map, const QString &path, MapFile::Format format, const MapFile::Progress &progress)
{
    const auto file = MapFile::create(format);
    if (!file || !(file->capability() & MapFile::Write)) {
        return MapEditorDocument::tr("Maps cannot be written in this format.");
    }
    if (!backUp(path)) {
        return MapEditorDocument::tr("Cannot write backup file \"%1\".").arg(path + QStringLiteral(".bak"));
    }
    file->setProgress(progress);
    if (file->open(QFileInfo(path), format, QIODeviceBase::WriteOnly) && file->write(map)) {
        file->close();
    }
    return file->lastError();
}

} // namespace

MapEditorDocument::MapEditorDocument(QObject *parent) : QObject(parent)
{
    connect(&m_pass, &BackgroundPass::progressed, this, &MapEditorDocument::progressed);
}

// The undo commands refer to store and styles, which are destroyed first.
MapEditorDocument::~MapEditorDocument()
{
    m_undo.disconnect();
    m_undo.clear();
}

bool MapEditorDocument::canSave() const
{
    const auto file = MapFile::create(m_format);
    return !m_path.isEmpty() && file && (file->capability() & MapFile::Write);
}

void MapEditorDocument::setFile(const QString &path, MapFile::Format format)
{
    m_format = format;
    if (path == m_path) {
        return;
    }
    m_path = path;
    Q_EMIT pathChanged(path);
}

void MapEditorDocument::newMap()
{
    m_pass.cancel();
    m_undo.clear();
    m_store.reset({});
    m_store.state().current = ++m_store.state().newest;
    m_store.state().setSaved();
    setFile(QString(), MapFile::Unknown);
}

void MapEditorDocument::take(const MapData &map, const QString &path, MapFile::Format format)
{
    newMap();
    m_store.reset(map);
    setFile(path, format);
}

void MapEditorDocument::setStyleSheet(const MapStyleSheet &sheet, const QString &file)
{
    m_undo.clear();
    m_styles.reset(sheet, file);
}

void MapEditorDocument::load(const QString &path, MapFile::Format format, std::function<void(const MapLoad &)> loaded)
{
    m_fileWork = FileWork::Reading;
    const auto work = [path, format](const BackgroundPass::Token &token) {
        return loadMap(path, format, [token](qint64 done, qint64 total) { return token.report(done, total); });
    };
    m_pass.start(work, std::move(loaded));
}

void MapEditorDocument::saveAs(
    const QString &path, MapFile::Format format, std::function<void(bool saved, const QString &error)> done)
{
    if (format == MapFile::Xml) {
        nameImageFiles(path);
    }
    m_fileWork = FileWork::Writing;
    m_stopWriting = std::make_shared<std::atomic<bool>>(false);
    const auto work = [map = m_store.map(), path, format, stop = m_stopWriting](const BackgroundPass::Token &token) {
        const auto progress = [&token, &stop](qint64 written, qint64 total) {
            token.report(written, total);
            return !*stop;
        };
        return writeMap(map, path, format, progress);
    };
    const quint64 state = m_store.state().current;
    m_pass.start(work, [this, path, format, state, stop = m_stopWriting, done = std::move(done)](const QString &error) {
        if (error.isEmpty()) {
            m_store.state().saved = state;
            setFile(path, format);
        }
        done(error.isEmpty(), *stop ? QString() : error);
    });
}

void MapEditorDocument::cancelFileWork()
{
    if (fileWork() == FileWork::Reading) {
        m_pass.cancel();
    } else if (fileWork() == FileWork::Writing) {
        *m_stopWriting = true;
    }
}

// Writing XML invents a file name for each image without one, a different name at every save; so they are named here.
void MapEditorDocument::nameImageFiles(const QString &path)
{
    QList<MapElementRef> nameless;
    for (int group = 0; group < m_store.groupCount(); ++group) {
        const QList<MapImageElement> &images = m_store.map().groups[group].images;
        for (int i = 0; i < images.size(); ++i) {
            if (images[i].file.isEmpty() && !images[i].pixmap.isNull()) {
                nameless.append({group, MapElementKind::Image, i});
            }
        }
    }
    if (nameless.isEmpty()) {
        return;
    }
    const QFileInfo target(path);
    int number = 0;
    m_undo.beginMacro(tr("Name Image Files"));
    for (const MapElementRef &ref : std::as_const(nameless)) {
        QString name;
        do {
            name = QStringLiteral("%1-%2.png").arg(target.completeBaseName()).arg(++number);
        } while (target.dir().exists(name));
        setImage(ref, name, m_store.properties(ref).pixmap);
    }
    m_undo.endMacro();
}

void MapEditorDocument::push(MapEditorCommands::Command command)
{
    m_undo.push(command.release());
}

void MapEditorDocument::setMeta(const MapData &meta)
{
    const auto fields = [](const MapData &map) {
        return std::tie(map.name, map.title, map.description, map.author, map.version, map.comment);
    };
    if (fields(meta) != fields(m_store.map())) {
        push(MapEditorCommands::setMeta(m_store, meta));
    }
}

int MapEditorDocument::addGroup(const QString &name, const QString &className)
{
    MapElementGroup group;
    group.name = name;
    group.className = className;
    push(MapEditorCommands::insertGroup(m_store, m_store.groupCount(), group));
    return m_store.groupCount() - 1;
}

void MapEditorDocument::setGroupName(int group, const QString &name)
{
    const MapElementGroup &held = m_store.map().groups[group];
    if (held.name != name) {
        push(MapEditorCommands::setGroup(m_store, group, name, held.className));
    }
}

void MapEditorDocument::setGroupClass(int group, const QString &className)
{
    const MapElementGroup &held = m_store.map().groups[group];
    if (held.className != className) {
        push(MapEditorCommands::setGroup(m_store, group, held.name, className));
    }
}

void MapEditorDocument::moveGroup(int from, int to)
{
    if (from == to) {
        return;
    }
    m_undo.beginMacro(tr("Move Group"));
    const MapElementGroup group = m_store.map().groups[from];
    push(MapEditorCommands::removeGroup(m_store, from));
    push(MapEditorCommands::insertGroup(m_store, to, group));
    m_undo.endMacro();
}

MapElementRef MapEditorDocument::addElement(int group, const MapElement &element)
{
    const auto kind = static_cast<MapElementKind>(element.index());
    const MapElementRef ref{group, kind, m_store.elementCount(group, kind)};
    push(MapEditorCommands::insertElements(m_store, ref, {element}));
    return ref;
}

MapEditorSelection MapEditorDocument::duplicate(const MapEditorSelection &selection)
{
    MapEditorSelection copies;
    m_undo.beginMacro(tr("Duplicate"));
    for (const MapElementRef &ref : selection.elements) {
        copies.elements.append(addElement(ref.group, m_store.element(ref)));
    }
    for (const int group : selection.groups) {
        copies.groups.append(m_store.groupCount());
        push(MapEditorCommands::insertGroup(m_store, m_store.groupCount(), m_store.map().groups[group]));
    }
    m_undo.endMacro();
    return copies;
}

QList<std::pair<MapElementRef, int>> MapEditorDocument::runs(QList<MapElementRef> elements)
{
    std::sort(elements.begin(), elements.end());
    elements.erase(std::unique(elements.begin(), elements.end()), elements.end());
    QList<std::pair<MapElementRef, int>> found;
    for (const MapElementRef &ref : std::as_const(elements)) {
        if (!found.isEmpty()) {
            auto &[first, count] = found.last();
            if (ref == MapElementRef{first.group, first.kind, first.index + count}) {
                ++count;
                continue;
            }
        }
        found.append({ref, 1});
    }
    std::reverse(found.begin(), found.end());
    return found;
}

void MapEditorDocument::remove(const MapEditorSelection &selection)
{
    if (selection.isEmpty()) {
        return;
    }
    m_undo.beginMacro(tr("Delete"));
    for (const auto &[first, count] : runs(selection.elements)) {
        if (!selection.groups.contains(first.group)) {
            push(MapEditorCommands::removeElements(m_store, first, count));
        }
    }
    QList<int> groups = selection.groups;
    std::sort(groups.begin(), groups.end(), std::greater<>());
    for (const int group : std::as_const(groups)) {
        push(MapEditorCommands::removeGroup(m_store, group));
    }
    m_undo.endMacro();
}

void MapEditorDocument::moveToGroup(const QList<MapElementRef> &elements, int group)
{
    QList<MapElementRef> moving = elements;
    moving.removeIf([group](const MapElementRef &ref) { return ref.group == group; });
    if (moving.isEmpty()) {
        return;
    }
    m_undo.beginMacro(tr("Move to Group"));
    QList<std::pair<MapElementRef, int>> leaving = runs(moving);
    QList<QList<MapElement>> taken;
    for (const auto &[first, count] : std::as_const(leaving)) {
        QList<MapElement> run;
        for (int i = 0; i < count; ++i) {
            run.append(m_store.element({first.group, first.kind, first.index + i}));
        }
        taken.append(run);
        push(MapEditorCommands::removeElements(m_store, first, count));
    }
    // The runs come last first: going backwards keeps the elements in order.
    for (qsizetype i = taken.size() - 1; i >= 0; --i) {
        const MapElementKind kind = leaving[i].first.kind;
        push(MapEditorCommands::insertElements(m_store, {group, kind, m_store.elementCount(group, kind)}, taken[i]));
    }
    m_undo.endMacro();
}

void MapEditorDocument::setName(const MapElementRef &ref, const QString &name)
{
    MapElementProperties properties = m_store.properties(ref);
    if (properties.name == name) {
        return;
    }
    properties.name = name;
    push(MapEditorCommands::setProperties(m_store, ref, properties));
}

void MapEditorDocument::setText(const MapElementRef &ref, const QString &text)
{
    MapElementProperties properties = m_store.properties(ref);
    if (properties.text == text) {
        return;
    }
    properties.text = text;
    push(MapEditorCommands::setProperties(m_store, ref, properties));
}

void MapEditorDocument::setImage(const MapElementRef &ref, const QString &file, const QPixmap &pixmap)
{
    MapElementProperties properties = m_store.properties(ref);
    if (properties.text == file && properties.pixmap.cacheKey() == pixmap.cacheKey()) {
        return;
    }
    properties.text = file;
    properties.pixmap = pixmap;
    push(MapEditorCommands::setProperties(m_store, ref, properties));
}

void MapEditorDocument::insertPoints(const MapElementRef &ref, qsizetype at, const QList<GeoCoordinate> &points)
{
    if (!points.isEmpty() && hasPointList(ref.kind)) {
        push(MapEditorCommands::splicePoints(m_store, ref, at, 0, points));
    }
}

void MapEditorDocument::removePoints(const MapElementRef &ref, const QList<qsizetype> &indexes)
{
    if (indexes.isEmpty() || !hasPointList(ref.kind)) {
        return;
    }
    QList<qsizetype> sorted = indexes;
    std::sort(sorted.begin(), sorted.end(), std::greater<>());
    m_undo.beginMacro(tr("Delete Points"));
    for (qsizetype i = 0; i < sorted.size();) {
        const qsizetype last = sorted[i];
        qsizetype count = 1;
        while (++i < sorted.size() && sorted[i] == last - count) {
            ++count;
        }
        push(MapEditorCommands::splicePoints(m_store, ref, last - count + 1, count, {}));
    }
    m_undo.endMacro();
}

void MapEditorDocument::reversePoints(const MapElementRef &ref)
{
    QList<GeoCoordinate> points = m_store.points(ref);
    if (points.size() < 2 || !hasPointList(ref.kind)) {
        return;
    }
    std::reverse(points.begin(), points.end());
    push(MapEditorCommands::splicePoints(m_store, ref, 0, points.size(), points));
}

void MapEditorDocument::movePoint(
    const MapElementRef &ref, qsizetype index, const GeoCoordinate &coordinate, quint64 drag)
{
    const GeoCoordinate former = m_store.point(ref, index);
    GeoCoordinate moved = coordinate;
    // Positions from the pointer or the keyboard have no altitude.
    if (moved.type() == QGeoCoordinate::Coordinate2D && former.type() == QGeoCoordinate::Coordinate3D) {
        moved.setAltitude(former.altitude());
    }
    if (former != moved) {
        push(MapEditorCommands::movePoint(m_store, ref, index, moved, drag));
    }
}

void MapEditorDocument::putStyle(const MapStyleClass &style, quint64 run)
{
    const MapStyleSheet &sheet = m_styles.sheet();
    if (!sheet.contains(style.name) || sheet.style(style.name) != style) {
        push(MapEditorCommands::putStyle(m_styles, style, run));
    }
}

void MapEditorDocument::removeStyle(const QString &name)
{
    if (m_styles.sheet().contains(name)) {
        push(MapEditorCommands::removeStyle(m_styles, name));
    }
}
