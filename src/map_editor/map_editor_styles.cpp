#include "map_editor/map_editor_styles.h"

#include <QCoreApplication>

#include <optional>

void MapEditorStyles::reset(const MapStyleSheet &sheet, const QString &file)
{
    m_sheet = sheet;
    m_saved = sheet;
    m_file = file;
    m_state.current = ++m_state.newest;
    m_state.setSaved();
    Q_EMIT changed(QString());
}

bool MapEditorStyles::save(const QString &file, QString *error)
{
    if (file.isEmpty()) {
        if (error) {
            *error = tr("The style sheet has no file name.");
        }
        return false;
    }
    if (!m_sheet.save(file, error)) {
        return false;
    }
    m_file = file;
    m_saved = m_sheet;
    m_state.setSaved();
    return true;
}

void MapEditorStyles::put(const MapStyleClass &style)
{
    m_sheet.setStyle(style);
    Q_EMIT changed(style.name);
}

void MapEditorStyles::remove(const QString &name)
{
    m_sheet.removeStyle(name);
    Q_EMIT changed(name);
}

namespace {

constexpr int ChangeStyleId = 2;

class StyleCommand final : public MapEditorCommand {
public:
    StyleCommand(
        MapEditorStyles &styles, const QString &name, const std::optional<MapStyleClass> &after, quint64 run = 0)
        : MapEditorCommand(styles.state(), QCoreApplication::translate("MapEditorCommands", "Change Style")),
          m_styles(styles), m_name(name), m_other(after), m_run(run)
    {
    }

    int id() const override { return m_run == 0 ? -1 : ChangeStyleId; }

    // QUndoStack has carried out the other command already, so the sheet holds its result.
    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *later = dynamic_cast<const StyleCommand *>(other);
        if (!later || later->m_run != m_run || later->m_name != m_name) {
            return false;
        }
        const MapStyleSheet &sheet = m_styles.sheet();
        absorb(*later, m_other && sheet.contains(m_name) && sheet.style(m_name) == *m_other);
        return true;
    }

protected:
    void apply() override
    {
        const MapStyleSheet &sheet = m_styles.sheet();
        const auto before = sheet.contains(m_name) ? std::optional(sheet.style(m_name)) : std::nullopt;
        if (m_other) {
            m_styles.put(*m_other);
        } else {
            m_styles.remove(m_name);
        }
        m_other = before;
    }
    void revert() override { apply(); }

private:
    MapEditorStyles &m_styles;
    QString m_name;
    std::optional<MapStyleClass> m_other; // what the next undo or redo sets; nothing: it removes the class
    quint64 m_run;
};

} // namespace

MapEditorCommands::Command MapEditorCommands::putStyle(MapEditorStyles &styles, const MapStyleClass &style, quint64 run)
{
    return std::make_unique<StyleCommand>(styles, style.name, style, run);
}

MapEditorCommands::Command MapEditorCommands::removeStyle(MapEditorStyles &styles, const QString &name)
{
    return std::make_unique<StyleCommand>(styles, name, std::nullopt);
}
