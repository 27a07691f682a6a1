#include "map_editor/map_editor_commands.h"

#include <QCoreApplication>

#include <utility>

MapEditorCommand::MapEditorCommand(MapEditorState &state, const QString &text)
    : QUndoCommand(text), m_state(state), m_before(state.current), m_after(++state.newest)
{
}

void MapEditorCommand::redo()
{
    apply();
    m_state.current = m_after;
}

void MapEditorCommand::undo()
{
    revert();
    m_state.current = m_before;
}

void MapEditorCommand::absorb(const MapEditorCommand &later, bool backToBeginning)
{
    m_after = later.m_after;
    if (!backToBeginning) {
        return;
    }
    m_state.current = m_before;
    setObsolete(true);
}

namespace {

constexpr int MovePointId = 1;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(MapEditorCommands)
};

class StoreCommand : public MapEditorCommand {
public:
    StoreCommand(MapEditorStore &store, const QString &text) : MapEditorCommand(store.state(), text), m_store(store) { }

protected:
    MapEditorStore &m_store;
};

class MetaCommand final : public StoreCommand {
public:
    MetaCommand(MapEditorStore &store, const MapData &meta)
        : StoreCommand(store, Text::tr("Change Map Data")), m_other(meta)
    {
        m_other.groups.clear();
    }

protected:
    void apply() override
    {
        MapData before = m_store.map();
        before.groups.clear();
        m_store.setMeta(m_other);
        m_other = before;
    }
    void revert() override { apply(); }

private:
    MapData m_other; // what the next undo or redo sets
};

class InsertGroupCommand final : public StoreCommand {
public:
    InsertGroupCommand(MapEditorStore &store, int at, const MapElementGroup &group)
        : StoreCommand(store, Text::tr("Add Group")), m_at(at), m_group(group)
    {
    }

protected:
    void apply() override { m_store.insertGroup(m_at, std::exchange(m_group, {})); }
    void revert() override { m_group = m_store.takeGroup(m_at); }

private:
    int m_at;
    MapElementGroup m_group; // kept here while undone
};

class RemoveGroupCommand final : public StoreCommand {
public:
    RemoveGroupCommand(MapEditorStore &store, int at) : StoreCommand(store, Text::tr("Delete Group")), m_at(at) { }

protected:
    void apply() override { m_group = m_store.takeGroup(m_at); }
    void revert() override { m_store.insertGroup(m_at, std::exchange(m_group, {})); }

private:
    int m_at;
    MapElementGroup m_group;
};

class GroupCommand final : public StoreCommand {
public:
    GroupCommand(MapEditorStore &store, int at, const QString &name, const QString &className)
        : StoreCommand(store, Text::tr("Change Group")), m_at(at), m_name(name), m_className(className)
    {
    }

protected:
    void apply() override
    {
        const QString name = m_store.map().groups[m_at].name;
        const QString className = m_store.map().groups[m_at].className;
        m_store.setGroup(m_at, std::exchange(m_name, name), std::exchange(m_className, className));
    }
    void revert() override { apply(); }

private:
    int m_at;
    QString m_name; // name and class that the next undo or redo sets
    QString m_className;
};

class InsertElementsCommand final : public StoreCommand {
public:
    InsertElementsCommand(MapEditorStore &store, const MapElementRef &at, const QList<MapElement> &elements)
        : StoreCommand(store, Text::tr("Add Element")), m_at(at), m_count(static_cast<int>(elements.size())),
          m_elements(elements)
    {
    }

protected:
    void apply() override { m_store.insertElements(m_at, std::exchange(m_elements, {})); }
    void revert() override { m_elements = m_store.takeElements(m_at, m_count); }

private:
    MapElementRef m_at;
    int m_count;
    QList<MapElement> m_elements; // kept here while undone
};

class RemoveElementsCommand final : public StoreCommand {
public:
    RemoveElementsCommand(MapEditorStore &store, const MapElementRef &first, int count)
        : StoreCommand(store, Text::tr("Delete Element")), m_first(first), m_count(count)
    {
    }

protected:
    void apply() override { m_elements = m_store.takeElements(m_first, m_count); }
    void revert() override { m_store.insertElements(m_first, std::exchange(m_elements, {})); }

private:
    MapElementRef m_first;
    int m_count;
    QList<MapElement> m_elements;
};

class PropertiesCommand final : public StoreCommand {
public:
    PropertiesCommand(MapEditorStore &store, const MapElementRef &ref, const MapElementProperties &properties)
        : StoreCommand(store, Text::tr("Change Element")), m_ref(ref), m_other(properties)
    {
    }

protected:
    void apply() override
    {
        MapElementProperties before = m_store.properties(m_ref);
        m_store.setProperties(m_ref, m_other);
        m_other = std::move(before);
    }
    void revert() override { apply(); }

private:
    MapElementRef m_ref;
    MapElementProperties m_other; // what the next undo or redo sets
};

class SplicePointsCommand final : public StoreCommand {
public:
    SplicePointsCommand(MapEditorStore &store, const MapElementRef &ref, qsizetype at, qsizetype removeCount,
        const QList<GeoCoordinate> &inserted)
        : StoreCommand(store, Text::tr("Change Points")), m_ref(ref), m_at(at), m_count(removeCount), m_other(inserted)
    {
    }

protected:
    void apply() override
    {
        const qsizetype inserted = m_other.size();
        m_other = m_store.splicePoints(m_ref, m_at, m_count, m_other);
        m_count = inserted;
    }
    void revert() override { apply(); }

private:
    MapElementRef m_ref;
    qsizetype m_at;
    qsizetype m_count; // of points that the next undo or redo replaces
    QList<GeoCoordinate> m_other; // what it replaces them by
};

class MovePointCommand final : public StoreCommand {
public:
    MovePointCommand(
        MapEditorStore &store, const MapElementRef &ref, qsizetype index, const GeoCoordinate &coordinate, quint64 drag)
        : StoreCommand(store, Text::tr("Move Point")), m_ref(ref), m_index(index), m_drag(drag),
          m_before(store.point(ref, index)), m_after(coordinate)
    {
    }

    int id() const override { return m_drag == 0 ? -1 : MovePointId; }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *later = dynamic_cast<const MovePointCommand *>(other);
        if (!later || later->m_drag != m_drag || later->m_ref != m_ref || later->m_index != m_index) {
            return false;
        }
        m_after = later->m_after;
        absorb(*later, m_after == m_before);
        return true;
    }

protected:
    void apply() override { m_store.splicePoints(m_ref, m_index, 1, {m_after}); }
    void revert() override { m_store.splicePoints(m_ref, m_index, 1, {m_before}); }

private:
    MapElementRef m_ref;
    qsizetype m_index;
    quint64 m_drag;
    GeoCoordinate m_before;
    GeoCoordinate m_after;
};

} // namespace

namespace MapEditorCommands {

Command setMeta(MapEditorStore &store, const MapData &meta)
{
    return std::make_unique<MetaCommand>(store, meta);
}

Command insertGroup(MapEditorStore &store, int at, const MapElementGroup &group)
{
    return std::make_unique<InsertGroupCommand>(store, at, group);
}

Command removeGroup(MapEditorStore &store, int at)
{
    return std::make_unique<RemoveGroupCommand>(store, at);
}

Command setGroup(MapEditorStore &store, int at, const QString &name, const QString &className)
{
    return std::make_unique<GroupCommand>(store, at, name, className);
}

Command insertElements(MapEditorStore &store, const MapElementRef &at, const QList<MapElement> &elements)
{
    return std::make_unique<InsertElementsCommand>(store, at, elements);
}

Command removeElements(MapEditorStore &store, const MapElementRef &first, int count)
{
    return std::make_unique<RemoveElementsCommand>(store, first, count);
}

Command setProperties(MapEditorStore &store, const MapElementRef &ref, const MapElementProperties &properties)
{
    return std::make_unique<PropertiesCommand>(store, ref, properties);
}

Command splicePoints(MapEditorStore &store, const MapElementRef &ref, qsizetype at, qsizetype removeCount,
    const QList<GeoCoordinate> &inserted)
{
    return std::make_unique<SplicePointsCommand>(store, ref, at, removeCount, inserted);
}

Command movePoint(
    MapEditorStore &store, const MapElementRef &ref, qsizetype index, const GeoCoordinate &coordinate, quint64 drag)
{
    return std::make_unique<MovePointCommand>(store, ref, index, coordinate, drag);
}

} // namespace MapEditorCommands
