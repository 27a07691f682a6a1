#include "map_editor/map_editor_element_pane.h"

#include "map_editor/map_editor_point_pane.h"
#include "widgets/coordinate_edit.h"
#include "widgets/field_form.h"
#include "widgets/map_symbol_items.h"
#include "widgets/quiet_hint.h"

#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QLineEdit>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QVBoxLayout>

MapEditorElementPane::MapEditorElementPane(MapEditorDocument *document, QWidget *parent)
    : QWidget(parent), m_document(document), m_form(new FieldForm(this)), m_name(new QLineEdit), m_class(new QComboBox),
      m_caption(new QPlainTextEdit), m_type(new QComboBox), m_image(new QToolButton), m_coordinate(new CoordinateEdit),
      m_northwest(new CoordinateEdit), m_southeast(new CoordinateEdit),
      m_points(new MapEditorPointPane(document, this)),
      m_hint(makeQuietHint(tr("Select an element on the left, or add one."), this))
{
    buildForm();
    auto *layout = new QVBoxLayout(this);
    m_form->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    layout->addWidget(m_hint, 1);
    layout->addWidget(m_form);
    layout->addWidget(m_points, 1);
    layout->addStretch(0);
    connectFields();
    showRows();
}

void MapEditorElementPane::buildForm()
{
    m_name->setObjectName(QStringLiteral("elementName"));
    m_class->setObjectName(QStringLiteral("groupClass"));
    m_class->setEditable(true);
    m_class->setInsertPolicy(QComboBox::NoInsert);
    m_caption->setObjectName(QStringLiteral("labelCaption"));
    m_caption->setMaximumHeight(m_caption->fontMetrics().height() * 4);
    m_caption->setTabChangesFocus(true);
    m_type->setObjectName(QStringLiteral("symbolType"));
    addMapSymbolItems(m_type);
    m_image->setObjectName(QStringLiteral("imageFile"));
    m_coordinate->setObjectName(QStringLiteral("coordinate"));
    m_northwest->setObjectName(QStringLiteral("northwest"));
    m_southeast->setObjectName(QStringLiteral("southeast"));
    m_form->addField(tr("&Name:"), m_name);
    m_form->addField(tr("&Class:"), m_class);
    m_form->addField(tr("Ca&ption:"), m_caption);
    m_form->addField(tr("&Type:"), m_type);
    m_form->addField(tr("C&oordinate:"), m_coordinate);
    m_form->addField(tr("&Image:"), m_image);
    m_form->addField(tr("Nort&h-west:"), m_northwest);
    m_form->addField(tr("So&uth-east:"), m_southeast);
}

void MapEditorElementPane::connectFields()
{
    for (QLineEdit *edit : {m_name, static_cast<QLineEdit *>(m_coordinate), static_cast<QLineEdit *>(m_northwest),
             static_cast<QLineEdit *>(m_southeast), m_class->lineEdit(), m_type->lineEdit()}) {
        connect(edit, &QLineEdit::editingFinished, this, &MapEditorElementPane::commit);
    }
    connect(m_class, &QComboBox::activated, this, &MapEditorElementPane::commit);
    connect(m_type, &QComboBox::activated, this, &MapEditorElementPane::commit);
    connect(m_image, &QToolButton::clicked, this, &MapEditorElementPane::chooseImage);
    m_caption->installEventFilter(this);
    connect(m_points, &MapEditorPointPane::refused, this, &MapEditorElementPane::refused);
    connect(&m_document->store(), &MapEditorStore::aboutToChange, this, [this] { m_changing = true; });
    connect(&m_document->store(), &MapEditorStore::changed, this, &MapEditorElementPane::follow);
    connect(&m_document->styles(), &MapEditorStyles::changed, this, &MapEditorElementPane::fillClasses);
}

bool MapEditorElementPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_caption && event->type() == QEvent::FocusOut) {
        commit();
    }
    return QWidget::eventFilter(watched, event);
}

void MapEditorElementPane::setElement(const MapElementRef &ref)
{
    if (ref == m_ref) {
        return;
    }
    commit();
    m_ref = ref;
    m_points->setElement(ref);
    showRows();
    fill();
}

void MapEditorElementPane::showRows()
{
    const bool element = m_ref.isValid();
    const auto is = [&](MapElementKind kind) { return element && m_ref.kind == kind; };
    m_hint->setVisible(m_ref.group < 0);
    m_form->setVisible(m_ref.group >= 0);
    m_form->setRowVisible(m_name, m_ref.group >= 0);
    m_form->setRowVisible(m_class, isGroup());
    m_form->setRowVisible(m_caption, is(MapElementKind::Label));
    m_form->setRowVisible(m_type, is(MapElementKind::Symbol));
    m_form->setRowVisible(m_coordinate, is(MapElementKind::Label) || is(MapElementKind::Symbol));
    m_form->setRowVisible(m_image, is(MapElementKind::Image));
    m_form->setRowVisible(m_northwest, is(MapElementKind::Image));
    m_form->setRowVisible(m_southeast, is(MapElementKind::Image));
    m_points->setVisible(element && hasPointList(m_ref.kind));
}

void MapEditorElementPane::fill()
{
    const QScopedValueRollback filling(m_filling, true);
    if (m_ref.group < 0) {
        return;
    }
    if (isGroup()) {
        m_name->setText(m_document->store().map().groups[m_ref.group].name);
        fillClasses();
        return;
    }
    const MapElementProperties properties = m_document->store().properties(m_ref);
    m_name->setText(properties.name);
    if (m_ref.kind == MapElementKind::Label && m_caption->toPlainText() != properties.text) {
        m_caption->setPlainText(properties.text);
    }
    if (m_ref.kind == MapElementKind::Symbol) {
        m_type->setCurrentIndex(m_type->findText(properties.text));
        m_type->setCurrentText(properties.text);
    }
    if (m_ref.kind == MapElementKind::Image) {
        m_image->setText(properties.text.isEmpty() ? tr("Choose...") : properties.text);
        m_image->setToolTip(properties.pixmap.isNull() ? tr("There is no picture yet.") : properties.text);
    }
    fillCoordinates();
}

void MapEditorElementPane::fillClasses()
{
    const QScopedValueRollback filling(m_filling, true);
    if (!isGroup()) {
        return;
    }
    const QString current = m_document->store().map().groups[m_ref.group].className;
    m_class->clear();
    m_class->addItems(m_document->styles().sheet().names());
    m_class->setCurrentIndex(m_class->findText(current));
    m_class->setCurrentText(current);
}

void MapEditorElementPane::fillCoordinates()
{
    const MapEditorStore &store = m_document->store();
    if (hasPointList(m_ref.kind)) {
        return;
    }
    m_coordinate->setCoordinate(store.point(m_ref, 0));
    if (m_ref.kind != MapElementKind::Image) {
        return;
    }
    m_northwest->setCoordinate(store.point(m_ref, 0));
    m_southeast->setCoordinate(store.point(m_ref, 1));
}

void MapEditorElementPane::follow(const MapEditorChange &change)
{
    m_changing = false;
    const MapElementRef before = m_ref;
    m_ref = afterChange(m_ref, change);
    if (m_ref.group < 0 && before.group >= 0) {
        showRows();
    }
    const bool shown = change.ref.group == m_ref.group && m_ref.group >= 0
        && (isGroup() || (change.ref.kind == m_ref.kind && change.ref.index == m_ref.index));
    if (!shown) {
        return;
    }
    if (change.what == MapEditorChange::Properties || change.what == MapEditorChange::Group) {
        fill();
    } else if (change.what == MapEditorChange::Points && m_ref.isValid()) {
        fillCoordinates();
    }
}

void MapEditorElementPane::commit()
{
    if (m_filling || m_changing || m_ref.group < 0) {
        return;
    }
    const QScopedValueRollback filling(m_filling, true);
    if (isGroup()) {
        commitGroup();
    } else {
        commitElement();
    }
}

void MapEditorElementPane::commitGroup()
{
    // Changing one of them fills both fields again from the map, so both are read first.
    const QString name = m_name->text();
    const QString className = m_class->currentText();
    m_document->setGroupName(m_ref.group, name);
    m_document->setGroupClass(m_ref.group, className);
}

void MapEditorElementPane::commitElement()
{
    const QString name = m_name->text();
    const QString text = m_ref.kind == MapElementKind::Label ? m_caption->toPlainText() : m_type->currentText();
    QList<GeoCoordinate> coordinates;
    if (m_ref.kind == MapElementKind::Image) {
        coordinates = {m_northwest->coordinate(), m_southeast->coordinate()};
    } else if (!hasPointList(m_ref.kind)) {
        coordinates = {m_coordinate->coordinate()};
    }
    m_document->setName(m_ref, name);
    if (m_ref.kind == MapElementKind::Label || m_ref.kind == MapElementKind::Symbol) {
        m_document->setText(m_ref, text);
    }
    for (qsizetype i = 0; i < coordinates.size(); ++i) {
        if (coordinates[i].isValid()) {
            m_document->movePoint(m_ref, i, coordinates[i]);
        }
    }
}

void MapEditorElementPane::chooseImage()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Choose Image"),
        QFileInfo(m_document->path()).absolutePath(), tr("Images (*.png *.jpg *.jpeg *.bmp *.gif);;All files (*)"));
    if (!file.isEmpty()) {
        setImageFile(file);
    }
}

void MapEditorElementPane::setImageFile(const QString &file)
{
    if (!m_ref.isValid() || m_ref.kind != MapElementKind::Image) {
        return;
    }
    QImageReader reader(file);
    const QImage image = reader.read();
    if (image.isNull()) {
        Q_EMIT refused(tr("The image \"%1\" could not be read: %2").arg(file, reader.errorString()));
        return;
    }
    // Only paths below the map's folder still work when the map is copied elsewhere with its images.
    const QString relative = QFileInfo(m_document->path()).dir().relativeFilePath(file);
    const bool below =
        !m_document->path().isEmpty() && !relative.startsWith(QStringLiteral("..")) && QDir::isRelativePath(relative);
    m_document->setImage(m_ref, below ? relative : QFileInfo(file).fileName(), QPixmap::fromImage(image));
}
