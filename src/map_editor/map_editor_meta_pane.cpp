#include "map_editor/map_editor_meta_pane.h"

#include "widgets/field_form.h"

#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr std::array LineFields = {&MapData::name, &MapData::title, &MapData::author, &MapData::version};
constexpr std::array TextFields = {&MapData::description, &MapData::comment};

} // namespace

MapEditorMetaPane::MapEditorMetaPane(MapEditorDocument *document, QWidget *parent)
    : QWidget(parent), m_document(document)
{
    auto *form = new FieldForm(this);
    const std::array lineLabels = {tr("&Name:"), tr("&Title:"), tr("A&uthor:"), tr("&Version:")};
    for (std::size_t i = 0; i < LineFields.size(); ++i) {
        m_lines[i] = new QLineEdit;
        form->addField(lineLabels[i], m_lines[i]);
        connect(m_lines[i], &QLineEdit::editingFinished, this, &MapEditorMetaPane::commit);
    }
    m_lines[0]->setObjectName(QStringLiteral("mapName"));
    const std::array textLabels = {tr("&Description:"), tr("Co&mment:")};
    for (std::size_t i = 0; i < TextFields.size(); ++i) {
        m_texts[i] = new QPlainTextEdit;
        m_texts[i]->setTabChangesFocus(true);
        m_texts[i]->setMaximumHeight(m_texts[i]->fontMetrics().height() * 6);
        m_texts[i]->installEventFilter(this);
        form->addField(textLabels[i], m_texts[i]);
    }
    form->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(form);
    connect(&document->store(), &MapEditorStore::changed, this, [this](const MapEditorChange &change) {
        if (change.what == MapEditorChange::Everything || change.what == MapEditorChange::Meta) {
            fill();
        }
    });
}

bool MapEditorMetaPane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        commit();
    }
    return QWidget::eventFilter(watched, event);
}

void MapEditorMetaPane::fill()
{
    const QScopedValueRollback filling(m_filling, true);
    const MapData &map = m_document->store().map();
    for (std::size_t i = 0; i < LineFields.size(); ++i) {
        m_lines[i]->setText(map.*LineFields[i]);
    }
    for (std::size_t i = 0; i < TextFields.size(); ++i) {
        if (m_texts[i]->toPlainText() != map.*TextFields[i]) {
            m_texts[i]->setPlainText(map.*TextFields[i]);
        }
    }
}

void MapEditorMetaPane::commit()
{
    if (m_filling) {
        return;
    }
    MapData meta;
    for (std::size_t i = 0; i < LineFields.size(); ++i) {
        meta.*LineFields[i] = m_lines[i]->text();
    }
    for (std::size_t i = 0; i < TextFields.size(); ++i) {
        meta.*TextFields[i] = m_texts[i]->toPlainText();
    }
    m_document->setMeta(meta);
}
