#include "settings/sensor_manager_window.h"

#include "sensors/sensor_manager.h"
#include "sensors/sensor_type_text.h"
#include "settings/sensor_edit_window.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QString openFailureReason(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    return SensorManagerWindow::tr("It is no JSON list of sensors.");
}

QString saveFailureReason(const QString &fileName)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    file.cancelWriting();
    return SensorManagerWindow::tr("The device reported an error while writing.");
}

QTreeWidgetItem *makeItem(const SensorInfo &sensor)
{
    auto *item = new QTreeWidgetItem(
        {sensor.name(), sensorTypeText(sensor.type()), QStringLiteral("%1/%2").arg(sensor.sac()).arg(sensor.sic()),
            sensor.location().toATCString(GeoCoordinate::HighPrecision),
            QStringLiteral("%1 %2").arg(sensor.manufacturer(), sensor.model()).trimmed(), sensor.description()});
    item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

SensorManagerWindow::SensorManagerWindow(SensorManager *sensors, const QString &databaseFile, QWidget *parent)
    : GeometryDialog(QStringLiteral("SensorManagerWindow"), parent), m_sensors(sensors), m_databaseFile(databaseFile),
      m_fileLabel(new QLabel(this)), m_list(new QTreeWidget(this))
{
    setWindowTitle(tr("Sensor Manager"));
    m_list->setObjectName(QStringLiteral("sensorList"));
    m_list->setHeaderLabels(
        {tr("Name"), tr("Type"), tr("SAC/SIC"), tr("Location"), tr("Manufacturer, model"), tr("Description")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setSortingEnabled(true);
    m_list->sortByColumn(0, Qt::AscendingOrder);
    buildLayout();
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &SensorManagerWindow::updateState);
    connect(m_list, &QTreeWidget::itemActivated, this, &SensorManagerWindow::editSelected);
    auto *removeKey = new QShortcut(QKeySequence::Delete, m_list);
    removeKey->setContext(Qt::WidgetShortcut);
    connect(removeKey, &QShortcut::activated, this, &SensorManagerWindow::removeSelected);
    rememberSaved();
    fillList();
    selectSensor(m_list->topLevelItemCount() > 0 ? m_list->topLevelItem(0)->text(0) : QString());
    resize(900, 420);
}

QPushButton *SensorManagerWindow::addButton(QLayout *layout, const QString &text)
{
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false); // the return key edits the selected sensor
    layout->addWidget(button);
    return button;
}

void SensorManagerWindow::buildLayout()
{
    auto *column = new QVBoxLayout;
    connect(addButton(column, tr("&Add...")), &QPushButton::clicked, this, &SensorManagerWindow::addSensor);
    m_editButton = addButton(column, tr("&Edit..."));
    m_duplicateButton = addButton(column, tr("&Duplicate..."));
    m_removeButton = addButton(column, tr("&Remove"));
    column->addSpacing(12);
    m_useButton = addButton(column, tr("&Use for input"));
    m_useButton->setObjectName(QStringLiteral("useButton"));
    column->addStretch(1);
    connect(addButton(column, tr("&Open...")), &QPushButton::clicked, this, &SensorManagerWindow::openChosenFile);
    m_saveButton = addButton(column, tr("&Save"));
    connect(addButton(column, tr("Save &as...")), &QPushButton::clicked, this, &SensorManagerWindow::saveAs);
    column->addSpacing(12);
    connect(addButton(column, tr("&Close")), &QPushButton::clicked, this, &SensorManagerWindow::reject);
    connect(m_editButton, &QPushButton::clicked, this, &SensorManagerWindow::editSelected);
    connect(m_duplicateButton, &QPushButton::clicked, this, &SensorManagerWindow::duplicateSelected);
    connect(m_removeButton, &QPushButton::clicked, this, &SensorManagerWindow::removeSelected);
    connect(m_useButton, &QPushButton::clicked, this, &SensorManagerWindow::useSelected);
    connect(m_saveButton, &QPushButton::clicked, this, &SensorManagerWindow::save);

    auto *panes = new QHBoxLayout;
    panes->addWidget(m_list, 1);
    panes->addLayout(column);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_fileLabel);
    layout->addLayout(panes, 1);
}

void SensorManagerWindow::fillList()
{
    const QString selected = selectedName();
    m_list->clear();
    const QStringList names = m_sensors->sensorNames();
    for (const QString &name : names) {
        m_list->addTopLevelItem(makeItem(*m_sensors->findSensor(name)));
    }
    for (int column = 0; column < m_list->columnCount(); ++column) {
        m_list->resizeColumnToContents(column);
    }
    selectSensor(selected);
    updateState();
}

void SensorManagerWindow::updateState()
{
    const QSharedPointer<SensorInfo> selected = m_sensors->findSensor(selectedName());
    m_editButton->setEnabled(!selected.isNull());
    m_duplicateButton->setEnabled(!selected.isNull());
    m_removeButton->setEnabled(!selected.isNull());
    m_useButton->setEnabled(!selected.isNull() && !m_inputRunning);
    m_useButton->setToolTip(m_inputRunning ? tr("The input is running: stop it to choose another sensor.") : QString());
    m_saveButton->setEnabled(m_changed || m_databaseFile.isEmpty());
    const QString file = m_databaseFile.isEmpty() ? tr("not saved yet") : QDir::toNativeSeparators(m_databaseFile);
    m_fileLabel->setText(m_changed ? tr("File: %1 (changed)").arg(file) : tr("File: %1").arg(file));
}

void SensorManagerWindow::setInputRunning(bool running)
{
    m_inputRunning = running;
    updateState();
}

QString SensorManagerWindow::selectedName() const
{
    const QList<QTreeWidgetItem *> selected = m_list->selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->text(0);
}

void SensorManagerWindow::selectSensor(const QString &name)
{
    const QList<QTreeWidgetItem *> found = m_list->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive, 0);
    if (!found.isEmpty()) {
        m_list->setCurrentItem(found.first());
    }
}

void SensorManagerWindow::putSensor(const QSharedPointer<SensorInfo> &sensor, const QString &replacedName)
{
    if (!replacedName.isEmpty()) {
        m_sensors->removeSensor(replacedName);
    }
    m_sensors->addSensor(sensor);
    markChanged();
    selectSensor(sensor->name());
}

void SensorManagerWindow::markChanged()
{
    m_changed = true;
    fillList();
    Q_EMIT sensorsChanged();
}

void SensorManagerWindow::rememberSaved()
{
    m_changed = false;
    m_saved.clear();
    const QStringList names = m_sensors->sensorNames();
    for (const QString &name : names) {
        m_saved.append(m_sensors->findSensor(name));
    }
}

void SensorManagerWindow::discardChanges()
{
    m_sensors->reset();
    for (const QSharedPointer<SensorInfo> &sensor : std::as_const(m_saved)) {
        m_sensors->addSensor(sensor);
    }
    m_changed = false;
    fillList();
    Q_EMIT sensorsChanged();
}

void SensorManagerWindow::addSensor()
{
    SensorEditWindow window(nullptr, m_sensors, this);
    if (window.exec() == QDialog::Accepted) {
        putSensor(window.sensor());
    }
}

void SensorManagerWindow::editSelected()
{
    const QString name = selectedName();
    const QSharedPointer<SensorInfo> sensor = m_sensors->findSensor(name);
    if (!sensor) {
        return;
    }
    SensorEditWindow window(sensor, m_sensors, this);
    if (window.exec() == QDialog::Accepted) {
        putSensor(window.sensor(), name);
    }
}

void SensorManagerWindow::duplicateSelected()
{
    const QSharedPointer<SensorInfo> sensor = m_sensors->findSensor(selectedName());
    const QSharedPointer<SensorInfo> copy = sensor ? SensorInfo::create(sensor->jsonObject()) : nullptr;
    if (!copy) {
        return;
    }
    QString name;
    for (int count = 1; name.isEmpty() || m_sensors->hasSensor(name); ++count) {
        name = QStringLiteral("%1_dup%2").arg(sensor->name()).arg(count);
    }
    copy->setName(name);
    SensorEditWindow window(copy, m_sensors, this);
    window.setOriginalName(QString());
    if (window.exec() == QDialog::Accepted) {
        putSensor(window.sensor());
    }
}

void SensorManagerWindow::removeSelected()
{
    const QString name = selectedName();
    if (name.isEmpty()) {
        return;
    }
    m_sensors->removeSensor(name);
    markChanged();
}

void SensorManagerWindow::useSelected()
{
    const QSharedPointer<SensorInfo> sensor = m_sensors->findSensor(selectedName());
    if (sensor) {
        Q_EMIT sensorChosen(sensor);
    }
}

void SensorManagerWindow::openChosenFile()
{
    if (!settleChanges()) {
        return;
    }
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Open Sensor File"), m_databaseFile, tr("Sensor files (*.json);;All files (*)"));
    if (!fileName.isEmpty()) {
        openFile(fileName);
    }
}

bool SensorManagerWindow::openFile(const QString &fileName)
{
    if (!m_sensors->loadFromJsonFile(QFileInfo(fileName))) {
        reportFailure(tr("The sensor file could not be opened."), fileName, openFailureReason(fileName));
        return false;
    }
    rememberSaved();
    setDatabaseFile(fileName);
    fillList();
    Q_EMIT sensorsChanged();
    return true;
}

bool SensorManagerWindow::save()
{
    return m_databaseFile.isEmpty() ? saveAs() : saveFile(m_databaseFile);
}

bool SensorManagerWindow::saveAs()
{
    const QString fileName = QFileDialog::getSaveFileName(
        this, tr("Save Sensor File"), m_databaseFile, tr("Sensor files (*.json);;All files (*)"));
    if (fileName.isEmpty()) {
        return false;
    }
    return saveFile(fileName);
}

bool SensorManagerWindow::saveFile(const QString &fileName)
{
    if (!m_sensors->saveToJsonFile(QFileInfo(fileName))) {
        reportFailure(tr("The sensor file could not be saved."), fileName, saveFailureReason(fileName));
        return false;
    }
    rememberSaved();
    setDatabaseFile(fileName);
    updateState();
    return true;
}

void SensorManagerWindow::setDatabaseFile(const QString &fileName)
{
    if (fileName == m_databaseFile) {
        return;
    }
    m_databaseFile = fileName;
    Q_EMIT databaseFileChanged(fileName);
}

bool SensorManagerWindow::settleChanges()
{
    if (!m_changed) {
        return true;
    }
    QMessageBox question(QMessageBox::Question, tr("Sensor Manager"), tr("The sensors have been changed."),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setInformativeText(tr("Save the changes to the sensor file?"));
    question.setDefaultButton(QMessageBox::Save);
    switch (question.exec()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        discardChanges();
        return true;
    default:
        return false;
    }
}

void SensorManagerWindow::reportFailure(const QString &text, const QString &fileName, const QString &reason)
{
    QMessageBox box(QMessageBox::Warning, tr("Sensor Manager"), text, QMessageBox::Ok, this);
    box.setInformativeText(QStringLiteral("%1\n%2").arg(QDir::toNativeSeparators(fileName), reason));
    box.exec();
}

void SensorManagerWindow::reject()
{
    if (settleChanges()) {
        QDialog::reject();
    }
}
