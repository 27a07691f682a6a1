#include "map_editor/map_editor_style_pane.h"

#include "map_editor/map_style_preview.h"
#include "widgets/color_button.h"
#include "widgets/combo_items.h"
#include "widgets/field_form.h"

#include <QComboBox>
#include <QFontComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

MapEditorStylePane::MapEditorStylePane(MapEditorDocument *document, QWidget *parent)
    : QWidget(parent), m_document(document), m_list(new QListWidget(this)), m_preview(new MapStylePreview(this)),
      m_form(new FieldForm(this)), m_color(new ColorButton(tr("Colour"))),
      m_penColor(new ColorButton(tr("Line Colour"))), m_line(new QComboBox), m_width(new QSpinBox),
      m_brushColor(new ColorButton(tr("Fill Colour"))), m_pattern(new QComboBox), m_family(new QFontComboBox),
      m_size(new QSpinBox)
{
    buildForm();
    auto *side = new QVBoxLayout;
    side->addWidget(m_list, 1);
    side->addWidget(buttonRow());
    auto *detail = new QVBoxLayout;
    detail->addWidget(m_preview);
    detail->addWidget(m_form);
    detail->addStretch(1);
    auto *layout = new QHBoxLayout(this);
    layout->addLayout(side, 1);
    layout->addLayout(detail, 2);
    connectFields();
    fillList();
}

void MapEditorStylePane::buildForm()
{
    m_list->setObjectName(QStringLiteral("styleClasses"));
    m_list->setAccessibleName(tr("Style classes"));
    m_line->addItem(tr("solid"), static_cast<int>(Qt::SolidLine));
    m_line->addItem(tr("dashed"), static_cast<int>(Qt::DashLine));
    m_line->addItem(tr("dotted"), static_cast<int>(Qt::DotLine));
    m_line->addItem(tr("dash, dot"), static_cast<int>(Qt::DashDotLine));
    m_line->addItem(tr("dash, dot, dot"), static_cast<int>(Qt::DashDotDotLine));
    m_pattern->addItem(tr("solid"), static_cast<int>(Qt::SolidPattern));
    m_pattern->addItem(tr("cross"), static_cast<int>(Qt::CrossPattern));
    m_line->setObjectName(QStringLiteral("lineStyle"));
    m_width->setObjectName(QStringLiteral("lineWidth"));
    m_width->setRange(0, 1000);
    m_width->setSuffix(tr(" px"));
    m_size->setRange(1, 1000);
    m_size->setSuffix(tr(" pt"));
    m_form->addField(tr("&Symbols and labels:"), m_color);
    m_form->addField(tr("&Line colour:"), m_penColor);
    m_form->addField(tr("Line st&yle:"), m_line);
    m_form->addField(tr("Line &width:"), m_width);
    m_form->addField(tr("&Fill colour:"), m_brushColor);
    m_form->addField(tr("Fill &pattern:"), m_pattern);
    m_form->addField(tr("F&ont:"), m_family);
    m_form->addField(tr("Font si&ze:"), m_size);
}

QWidget *MapEditorStylePane::buttonRow()
{
    auto *row = new QWidget(this);
    auto *add = new QPushButton(tr("New..."), row);
    m_remove = new QPushButton(tr("Delete"), row);
    connect(add, &QPushButton::clicked, this, &MapEditorStylePane::askForClass);
    connect(m_remove, &QPushButton::clicked, this, &MapEditorStylePane::removeCurrentClass);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(add);
    layout->addWidget(m_remove);
    return row;
}

void MapEditorStylePane::connectFields()
{
    for (ColorButton *button : {m_color, m_penColor, m_brushColor}) {
        button->setAlphaShown(true);
        connect(button, &ColorButton::colorChosen, this, &MapEditorStylePane::commit);
    }
    connect(m_line, &QComboBox::currentIndexChanged, this, &MapEditorStylePane::commit);
    connect(m_pattern, &QComboBox::currentIndexChanged, this, &MapEditorStylePane::commit);
    for (QSpinBox *box : {m_width, m_size}) {
        connect(box, &QSpinBox::valueChanged, this, [this, box] { commitStep(box); });
        connect(box, &QSpinBox::editingFinished, this, [this] { m_steps = nullptr; });
    }
    connect(m_family, &QFontComboBox::currentFontChanged, this, &MapEditorStylePane::commit);
    connect(m_list, &QListWidget::currentRowChanged, this, &MapEditorStylePane::fill);
    connect(&m_document->styles(), &MapEditorStyles::changed, this, &MapEditorStylePane::follow);
}

void MapEditorStylePane::setGround(const QColor &color)
{
    m_preview->setGround(color);
}

QString MapEditorStylePane::currentClass() const
{
    return m_list->currentItem() ? m_list->currentItem()->text() : QString();
}

void MapEditorStylePane::selectClass(const QString &name)
{
    const QList<QListWidgetItem *> found = m_list->findItems(name, Qt::MatchExactly);
    if (!found.isEmpty()) {
        m_list->setCurrentItem(found.first());
    }
}

bool MapEditorStylePane::addClass(const QString &name)
{
    const MapStyleSheet &sheet = m_document->styles().sheet();
    if (name.isEmpty() || sheet.contains(name)) {
        return false;
    }
    MapStyleClass style = sheet.style(currentClass());
    style.name = name;
    m_document->putStyle(style);
    selectClass(name);
    return true;
}

void MapEditorStylePane::askForClass()
{
    const QString name = QInputDialog::getText(this, tr("New Style Class"), tr("Name of the class:")).trimmed();
    if (!addClass(name)) {
        selectClass(name);
    }
}

void MapEditorStylePane::removeCurrentClass()
{
    m_document->removeStyle(currentClass());
}

void MapEditorStylePane::fillList()
{
    const QString current = currentClass();
    {
        const QScopedValueRollback filling(m_filling, true);
        m_list->clear();
        m_list->addItems(m_document->styles().sheet().names());
        selectClass(current);
        if (m_list->currentRow() < 0) {
            m_list->setCurrentRow(0);
        }
    }
    fill();
}

// Filling the list scrolls it back to the top, so that is done only when a class was added or removed.
void MapEditorStylePane::follow(const QString &name)
{
    const bool listed = !m_list->findItems(name, Qt::MatchExactly).isEmpty();
    if (name.isEmpty() || listed != m_document->styles().sheet().contains(name)) {
        fillList();
        return;
    }
    selectClass(name);
    fill();
}

void MapEditorStylePane::fill()
{
    if (m_filling) {
        return;
    }
    const QScopedValueRollback filling(m_filling, true);
    const bool chosen = m_list->currentItem();
    m_form->setEnabled(chosen);
    m_remove->setEnabled(chosen);
    const MapStyleClass style = m_document->styles().sheet().style(currentClass());
    m_color->setColor(style.color);
    m_penColor->setColor(style.pen.color());
    selectValue(m_line, static_cast<int>(style.pen.style()));
    m_width->setValue(style.pen.width());
    m_brushColor->setColor(style.brush.color());
    selectValue(m_pattern, static_cast<int>(style.brush.style()));
    m_family->setCurrentFont(style.font);
    m_size->setValue(style.font.pointSize());
    m_preview->setStyle(style);
}

MapStyleClass MapEditorStylePane::entered() const
{
    // Start from the present style: some of its properties have no field.
    MapStyleClass style = m_document->styles().sheet().style(currentClass());
    style.color = m_color->color();
    style.pen.setColor(m_penColor->color());
    style.pen.setStyle(static_cast<Qt::PenStyle>(m_line->currentData().toInt()));
    style.pen.setWidth(m_width->value());
    style.brush.setColor(m_brushColor->color());
    style.brush.setStyle(static_cast<Qt::BrushStyle>(m_pattern->currentData().toInt()));
    if (m_family->currentFont().family() != style.font.family()) {
        style.font.setFamily(m_family->currentFont().family());
    }
    if (m_size->value() != std::max(1, style.font.pointSize())) {
        style.font.setPointSize(m_size->value());
    }
    return style;
}

void MapEditorStylePane::commit()
{
    if (!m_filling) {
        m_steps = nullptr;
        commitRun(0);
    }
}

// Steps of one box that follow each other are undone together.
void MapEditorStylePane::commitStep(const QSpinBox *box)
{
    if (m_filling) {
        return;
    }
    if (m_steps != box) {
        m_steps = box;
        ++m_run;
    }
    commitRun(m_run);
}

void MapEditorStylePane::commitRun(quint64 run)
{
    if (m_list->currentItem()) {
        m_document->putStyle(entered(), run);
    }
}
