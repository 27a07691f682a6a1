#include "map_windows/static_maps_window.h"

#include "app/map_places.h"
#include "map_windows/map_conversion.h"
#include "map_windows/static_maps_delegate.h"
#include "map_windows/static_maps_model.h"
#include "maps/map_center.h"
#include "maps/map_library.h"
#include "widgets/text_colors.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QStringList openFilters()
{
    QStringList filters = MapImport::nameFilters();
    const QString ours = StaticMapsWindow::tr("Maps (*.map *.xml *.mapx)");
    return QStringList{ours} + filters + QStringList{StaticMapsWindow::tr("All files (*)")};
}

bool isLoading(const MapLibrary::Map &map)
{
    return map.state == MapLibrary::State::Loading || map.state == MapLibrary::State::Waiting;
}

QString inRed(const QString &text, const QPalette &palette)
{
    return QStringLiteral("<span style=\"color: %1\">%2</span>")
        .arg(alarmTextColor(palette).name(), text.toHtmlEscaped());
}

} // namespace

StaticMapsWindow::StaticMapsWindow(MapLibrary *library, QWidget *parent)
    : GeometryDialog(QStringLiteral("StaticMapsWindow"), parent), m_library(library),
      m_model(new StaticMapsModel(library, this)), m_conversion(new MapConversion(this)),
      m_unsavedQuestion([this] { return askAboutChanges(); })
{
    setWindowTitle(tr("Static Maps"));
    makeTable();
    makeLayout();
    connectLibrary();
    selectMap(m_model->id(0));
    fitColumns();
    updateState();
    resize(980, 460);
}

void StaticMapsWindow::makeTable()
{
    m_table = new QTableView;
    m_table->setTabKeyNavigation(false); // it leads on to the buttons
    m_table->setObjectName(QStringLiteral("mapTable"));
    m_table->setAccessibleName(tr("Maps"));
    m_table->setModel(m_model);
    m_table->setItemDelegate(new StaticMapsDelegate(m_table));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    // A double click goes to the map.
    m_table->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    m_table->setDragDropMode(QAbstractItemView::InternalMove);
    m_table->setDragDropOverwriteMode(false);
    m_table->setDropIndicatorShown(true);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->setTextElideMode(Qt::ElideMiddle); // paths differ at their ends
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setStretchLastSection(true);
    connect(
        m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex &current) {
            m_selected = m_model->id(current.row());
            updateState();
        });
    connect(m_table, &QTableView::doubleClicked, this,
        [this](const QModelIndex &index) { centerOn(m_model->id(index.row())); });
    auto *removeKey = new QShortcut(QKeySequence::Delete, m_table);
    removeKey->setContext(Qt::WidgetShortcut);
    connect(removeKey, &QShortcut::activated, this, &StaticMapsWindow::removeSelected);
}

// Wide enough too for maps that are added later.
void StaticMapsWindow::fitColumns()
{
    m_table->resizeColumnsToContents();
    const auto widen = [this](int column, const QString &text) {
        const int width = m_table->fontMetrics().horizontalAdvance(text);
        m_table->setColumnWidth(column, std::max(m_table->columnWidth(column), width));
    };
    widen(StaticMapsModel::Column::Title, QString(20, u'n'));
    widen(StaticMapsModel::Column::File, QString(30, u'n'));
    widen(StaticMapsModel::Column::Size, QStringLiteral("1023 bytes  "));
}

QPushButton *StaticMapsWindow::addButton(QBoxLayout *layout, const QString &text, const QString &name)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false); // the return key belongs to the cell that is being edited
    layout->addWidget(button);
    return button;
}

QBoxLayout *StaticMapsWindow::makeButtons()
{
    auto *column = new QVBoxLayout;
    const auto add = [this, column](const QString &text, const QString &name, auto clicked) {
        QPushButton *button = addButton(column, text, name);
        connect(button, &QPushButton::clicked, this, clicked);
        return button;
    };
    add(tr("&Add..."), QStringLiteral("addButton"), &StaticMapsWindow::chooseFiles);
    m_editButton = add(tr("&Edit..."), QStringLiteral("editButton"), &StaticMapsWindow::editSelected);
    m_removeButton = add(tr("&Remove"), QStringLiteral("removeButton"), &StaticMapsWindow::removeSelected);
    column->addSpacing(12);
    m_upButton = add(tr("&Up"), QStringLiteral("upButton"), [this] { moveSelected(-1); });
    m_downButton = add(tr("&Down"), QStringLiteral("downButton"), [this] { moveSelected(1); });
    column->addSpacing(12);
    m_reloadButton = add(tr("Re&load"), QStringLiteral("reloadButton"), &StaticMapsWindow::reloadOrCancel);
    column->addStretch(1);
    m_saveButton = add(tr("&Save"), QStringLiteral("saveButton"), &StaticMapsWindow::save);
    add(tr("&Close"), QStringLiteral("closeButton"), &StaticMapsWindow::reject);
    return column;
}

void StaticMapsWindow::makeLayout()
{
    const auto makeLabel = [this](const QString &name) {
        auto *label = new QLabel(this);
        label->setObjectName(name);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long path does not widen the window
        return label;
    };
    m_indexLabel = makeLabel(QStringLiteral("indexLabel"));
    m_styleLabel = makeLabel(QStringLiteral("styleLabel"));
    m_details = makeLabel(QStringLiteral("details"));
    m_details->setWordWrap(true);
    m_details->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_details->setMinimumHeight(3 * fontMetrics().lineSpacing());

    auto *style = new QHBoxLayout;
    style->addWidget(m_styleLabel, 1);
    QPushButton *choose = addButton(style, tr("S&tyle Sheet..."), QStringLiteral("styleButton"));
    connect(choose, &QPushButton::clicked, this, &StaticMapsWindow::chooseStyleSheet);
    m_table->setParent(this); // here in the order of the tab key
    m_table->setFocus();
    auto *left = new QVBoxLayout;
    left->addWidget(m_table, 1);
    left->addWidget(m_details);
    auto *panes = new QHBoxLayout;
    panes->addLayout(left, 1);
    panes->addLayout(makeButtons());
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_indexLabel);
    layout->addLayout(style);
    layout->addLayout(panes, 1);
}

void StaticMapsWindow::connectLibrary()
{
    // The model was connected first and so has its new rows already.
    connect(m_library, &MapLibrary::mapsChanged, this, [this] {
        // The selected map may be gone, for example when another index was opened.
        selectMap(m_model->row(m_selected) >= 0 ? m_selected : m_model->id(0));
    });
    connect(m_library, &MapLibrary::mapsChanged, this, &StaticMapsWindow::updateState);
    connect(m_library, &MapLibrary::mapChanged, this, &StaticMapsWindow::updateState);
    connect(m_library, &MapLibrary::styleSheetChanged, this, &StaticMapsWindow::updateState);
    connect(m_model, &StaticMapsModel::refused, this, &StaticMapsWindow::showDetails);
    connect(m_conversion, &MapConversion::finished, this, &StaticMapsWindow::conversionFinished);
}

void StaticMapsWindow::setUnsavedQuestion(std::function<QMessageBox::StandardButton()> question)
{
    m_unsavedQuestion = std::move(question);
}

quint64 StaticMapsWindow::selectedMap() const
{
    return m_model->id(m_table->currentIndex().row());
}

void StaticMapsWindow::selectMap(quint64 id)
{
    const int row = m_model->row(id);
    if (row >= 0 && row != m_table->currentIndex().row()) {
        const int column = std::max(0, m_table->currentIndex().column());
        m_table->setCurrentIndex(m_model->index(row, column));
    }
}

void StaticMapsWindow::updateState()
{
    updateButtons();
    updateFiles();
    showDetails();
}

void StaticMapsWindow::updateButtons()
{
    const quint64 id = selectedMap();
    const MapLibrary::Map *map = m_library->map(id);
    const int row = m_model->row(id);
    const bool loading = map && isLoading(*map);
    m_editButton->setEnabled(map && !loading);
    m_removeButton->setEnabled(map);
    m_upButton->setEnabled(map && row > 0);
    m_downButton->setEnabled(map && row + 1 < m_model->rowCount());
    m_reloadButton->setEnabled(map);
    m_reloadButton->setText(loading ? tr("Cancel &Loading") : tr("Re&load"));
    m_saveButton->setEnabled(m_library->modified());
}

void StaticMapsWindow::updateFiles()
{
    const QString index = QDir::toNativeSeparators(m_library->indexFile());
    m_indexLabel->setText(m_library->modified() ? tr("Index: %1 (changed)").arg(index) : tr("Index: %1").arg(index));
    m_indexLabel->setToolTip(index);
    const QString sheet = QDir::toNativeSeparators(m_library->styleSheetFile());
    m_styleLabel->setText(m_library->styleSheet().isValid() ? tr("Style sheet: %1").arg(sheet)
                                                            : tr("Style sheet: %1 (not usable)").arg(sheet));
    m_styleLabel->setToolTip(sheet);
}

void StaticMapsWindow::showDetails(const QString &refusal)
{
    const MapLibrary::Map *map = m_library->map(selectedMap());
    QStringList lines;
    if (!refusal.isEmpty()) {
        lines.append(inRed(refusal, palette()));
    }
    if (map) {
        lines.append(QDir::toNativeSeparators(map->path).toHtmlEscaped());
    }
    if (map && !map->error.isEmpty()) {
        lines.append(inRed(map->error, palette()));
    }
    if (map && map->data && !map->data->description.isEmpty()) {
        lines.append(map->data->description.toHtmlEscaped());
    }
    if (map && m_importNotes.contains(map->id)) {
        lines.append(m_importNotes.value(map->id).toHtmlEscaped());
    }
    if (const QStringList classes = map && map->data ? unstyledClasses(*map->data) : QStringList();
        !classes.isEmpty()) {
        lines.append(tr("The style sheet does not have: %1").arg(classes.join(QStringLiteral(", "))).toHtmlEscaped());
    }
    m_details->setText(lines.join(QStringLiteral("<br>")));
}

// They are drawn in black, and the operator should learn why.
QStringList StaticMapsWindow::unstyledClasses(const MapData &map) const
{
    QStringList classes;
    for (const MapElementGroup &group : map.groups) {
        if (!m_library->styleSheet().contains(group.className) && !classes.contains(group.className)) {
            classes.append(group.className);
        }
    }
    return classes;
}

void StaticMapsWindow::chooseFiles()
{
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Add Maps"), QFileInfo(m_library->indexFile()).absolutePath(), openFilters().join(";;"));
    addFiles(files);
}

void StaticMapsWindow::addFiles(const QStringList &files)
{
    for (const QString &file : files) {
        // A file in no known format is added too: its row then shows what is wrong with it.
        if (MapFile::formatFromFileName(file) == MapFile::Unknown && MapImport::handles(file)) {
            m_toImport.append(file);
        } else {
            addMap(file);
        }
    }
    if (!m_conversion->running() && !m_importWindow) {
        importNext();
    }
}

quint64 StaticMapsWindow::addMap(const QString &file)
{
    const QString path = QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    const QList<MapLibrary::Map> &maps = m_library->maps();
    const auto known =
        std::find_if(maps.begin(), maps.end(), [&path](const MapLibrary::Map &map) { return map.path == path; });
    if (known != maps.end()) {
        const quint64 id = known->id;
        m_library->reload(id);
        selectMap(id);
        return id;
    }
    MapIndexEntry entry;
    entry.file = pathInMapIndex(file, m_library->indexFile());
    entry.visible = true;
    const quint64 id = m_library->add(entry);
    selectMap(id);
    return id;
}

void StaticMapsWindow::removeSelected()
{
    const int row = m_table->currentIndex().row();
    if (row < 0) {
        return;
    }
    // The neighbour is selected, so that the next one can be removed at once.
    const quint64 id = m_model->id(row);
    const quint64 below = m_model->id(row + 1);
    m_selected = below != 0 ? below : m_model->id(row - 1);
    m_library->remove(id);
}

void StaticMapsWindow::moveSelected(int rows)
{
    const quint64 id = selectedMap();
    m_library->moveTo(id, m_model->row(id) + rows);
}

void StaticMapsWindow::editSelected()
{
    if (const MapLibrary::Map *map = m_library->map(selectedMap())) {
        Q_EMIT editRequested(map->path, map->entry.format);
    }
}

void StaticMapsWindow::reloadOrCancel()
{
    const MapLibrary::Map *map = m_library->map(selectedMap());
    if (!map) {
        return;
    }
    if (isLoading(*map)) {
        m_library->cancel(map->id);
    } else {
        m_library->reload(map->id);
    }
}

void StaticMapsWindow::centerOn(quint64 id)
{
    const MapLibrary::Map *map = m_library->map(id);
    const GeoCoordinate center = map && map->data ? mapCenter(*map->data) : GeoCoordinate();
    if (center.isValid()) {
        Q_EMIT centerRequested(center);
    }
}

void StaticMapsWindow::chooseStyleSheet()
{
    const QString chosen = QFileDialog::getOpenFileName(
        this, tr("Select Map Style Sheet"), m_library->styleSheetFile(), tr("Map Style Sheet (*.mss)"));
    if (!chosen.isEmpty()) {
        Q_EMIT styleSheetChosen(chosen);
    }
}

bool StaticMapsWindow::save()
{
    const QString before = m_library->indexFile();
    const QString target = MapPlaces::writable(before);
    QString error;
    if (!m_library->saveIndexAs(target, &error)) {
        reportFailure(tr("The map index could not be saved."), error);
        return false;
    }
    if (target != before) {
        Q_EMIT indexFileChanged(target);
    }
    updateState();
    return true;
}

bool StaticMapsWindow::settleChanges()
{
    if (!m_library->modified()) {
        return true;
    }
    switch (m_unsavedQuestion()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        m_library->revertIndex();
        return true;
    default:
        return false;
    }
}

QMessageBox::StandardButton StaticMapsWindow::askAboutChanges()
{
    QWidget *inFront = QApplication::activeModalWidget(); // the settings, for example, which would hide the question
    QMessageBox question(QMessageBox::Question, windowTitle(), tr("The list of maps has been changed."),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, inFront ? inFront : this);
    question.setInformativeText(tr("Save the changes to the map index?"));
    question.setDefaultButton(QMessageBox::Save);
    return static_cast<QMessageBox::StandardButton>(question.exec());
}

void StaticMapsWindow::reportFailure(const QString &text, const QString &reason)
{
    auto *box = new QMessageBox(QMessageBox::Warning, windowTitle(), text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(reason);
    box->open();
}

void StaticMapsWindow::reject()
{
    if (settleChanges()) {
        QDialog::reject();
    }
}
