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

class StyleCommand final : public MapEditorCommand {
public:
    StyleCommand(MapEditorStyles &styles, const QString &name, const std::optional<MapStyleClass> &after)
        : MapEditorCommand(styles.state(), QCoreApplication::translate("MapEditorCommands", "Change Style")),
          m_styles(styles), m_name(name), m_other(after)
    {
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
    std::optional<MapStyleClass> m_other; // the one that is not in the sheet
};

} // namespace

MapEditorCommands::Command MapEditorCommands::putStyle(MapEditorStyles &styles, const MapStyleClass &style)
{
    return std::make_unique<StyleCommand>(styles, style.name, style);
}

MapEditorCommands::Command MapEditorCommands::removeStyle(MapEditorStyles &styles, const QString &name)
{
    return std::make_unique<StyleCommand>(styles, name, std::nullopt);
}
