// What the sensor manager does with files.

#include "app/app_paths.h"
#include "sensors/sensor_manager.h"
#include "settings/sensor_list.h"
#include "settings/sensor_manager_window.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>

namespace {

constexpr int MostLines = 12; // of a report; the rest is counted

QString saveFailureReason(const QString &fileName)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    file.cancelWriting();
    return SensorManagerWindow::tr("The device reported an error while writing.");
}

QString fileFilter()
{
    return SensorManagerWindow::tr("Sensor files (*.json);;All files (*)");
}

// Empty: the dialog was cancelled. A name without a suffix gets that of sensor files before an existing file is asked
// about.
QString fileToWrite(QWidget *parent, const QString &title, const QString &proposed)
{
    QFileDialog dialog(parent, title, QFileInfo(proposed).path(), fileFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("json"));
    dialog.selectFile(QFileInfo(proposed).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constFirst() : QString();
}

} // namespace

QString SensorManagerWindow::shortened(const QStringList &lines)
{
    QStringList shown = lines.mid(0, MostLines);
    if (lines.size() > MostLines) {
        shown.append(tr("and %n more", nullptr, static_cast<int>(lines.size() - MostLines)));
    }
    return shown.join(u'\n');
}

void SensorManagerWindow::report(const QString &text, const QString &fileName, const QStringList &lines)
{
    QMessageBox box(QMessageBox::Warning, tr("Sensor Manager"), text, QMessageBox::Ok, this);
    box.setInformativeText(QStringLiteral("%1\n%2").arg(QDir::toNativeSeparators(fileName), shortened(lines)));
    box.exec();
}

void SensorManagerWindow::openChosenFile()
{
    if (!settleChanges()) {
        return;
    }
    const QString fileName = QFileDialog::getOpenFileName(this, tr("Open Sensor File"), m_databaseFile, fileFilter());
    if (!fileName.isEmpty()) {
        openFile(fileName);
    }
}

bool SensorManagerWindow::openFile(const QString &fileName)
{
    if (!m_sensors->loadFromJsonFile(QFileInfo(fileName))) {
        report(tr("The sensor file could not be opened."), fileName, {SensorManager::problemOfFile(fileName)});
        return false;
    }
    m_history = SensorHistory(m_sensors);
    setDatabaseFile(fileName);
    showSensors();
    Q_EMIT sensorsChanged();
    return true;
}

void SensorManagerWindow::reload()
{
    if (settleChanges()) {
        openFile(m_databaseFile);
    }
}

void SensorManagerWindow::chooseImport()
{
    const QString fileName = QFileDialog::getOpenFileName(this, tr("Import Sensors"), m_databaseFile, fileFilter());
    if (!fileName.isEmpty()) {
        importFile(fileName);
    }
}

bool SensorManagerWindow::importFile(const QString &fileName)
{
    SensorManager other;
    QStringList lines;
    connect(&other, &SensorManager::warning, this, [&lines](const QString &text) { lines.append(text); });
    if (!other.loadFromJsonFile(QFileInfo(fileName))) {
        report(tr("The sensor file could not be imported."), fileName, {SensorManager::problemOfFile(fileName)});
        return false;
    }
    lines = other.skipped() + lines;
    SensorHistory::Records records = m_sensors->sensors();
    QStringList names;
    for (const QSharedPointer<SensorInfo> &sensor : other.sensors()) {
        const QString name = freeName(sensor->name(), records);
        if (name != sensor->name()) {
            lines.append(tr("\"%1\" is there already: imported as \"%2\".").arg(sensor->name(), name));
            sensor->setName(name);
        }
        records.append(sensor);
        names.append(name);
    }
    change(records);
    m_list->select(names);
    if (!lines.isEmpty()) {
        report(tr("%n sensor(s) imported.", nullptr, static_cast<int>(names.size())), fileName, lines);
    }
    return true;
}

void SensorManagerWindow::chooseExport()
{
    const QString fileName = fileToWrite(this, tr("Export Sensors"), QString());
    if (!fileName.isEmpty()) {
        exportFile(fileName);
    }
}

bool SensorManagerWindow::exportFile(const QString &fileName)
{
    const QStringList selected = m_list->selectedNames();
    SensorManager exported;
    for (const QSharedPointer<SensorInfo> &sensor : m_sensors->sensors()) {
        if (selected.isEmpty() || selected.contains(sensor->name())) {
            exported.addSensor(sensor);
        }
    }
    if (!exported.saveToJsonFile(QFileInfo(fileName))) {
        report(tr("The sensors could not be exported."), fileName, {saveFailureReason(fileName)});
        return false;
    }
    return true;
}

bool SensorManagerWindow::save()
{
    return m_databaseFile.isEmpty() ? saveAs() : saveFile(m_databaseFile);
}

bool SensorManagerWindow::saveAs()
{
    const QString proposed =
        m_databaseFile.isEmpty() ? AppPaths::appDataDir() + QStringLiteral("/sensors.json") : m_databaseFile;
    const QString fileName = fileToWrite(this, tr("Save Sensor File"), proposed);
    return !fileName.isEmpty() && saveFile(fileName);
}

bool SensorManagerWindow::saveFile(const QString &fileName)
{
    if (!settleOutsideChanges(fileName)) {
        return false;
    }
    if (!m_sensors->saveToJsonFile(QFileInfo(fileName))) {
        report(tr("The sensor file could not be saved."), fileName, {saveFailureReason(fileName)});
        return false;
    }
    m_history.noteSaved();
    setDatabaseFile(fileName);
    updateState();
    updateNote();
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

bool SensorManagerWindow::settleOutsideChanges(const QString &fileName)
{
    if (!m_sensors->changedOutside(QFileInfo(fileName))) {
        return true;
    }
    QMessageBox question(QMessageBox::Question, tr("Sensor Manager"),
        tr("Another program has changed the file since it was read."), QMessageBox::Cancel, this);
    question.setInformativeText(tr("If it is saved now, the changes of the other program are lost.\n%1")
                                    .arg(QDir::toNativeSeparators(fileName)));
    const QAbstractButton *over = question.addButton(tr("Save &Anyway"), QMessageBox::DestructiveRole);
    question.setDefaultButton(QMessageBox::Cancel);
    question.exec();
    return question.clickedButton() == over;
}

bool SensorManagerWindow::settleChanges()
{
    if (!hasUnsavedChanges()) {
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
        m_history.discard();
        showSensors();
        Q_EMIT sensorsChanged();
        return true;
    default:
        return false;
    }
}

void SensorManagerWindow::reject()
{
    if (settleChanges()) {
        QDialog::reject();
    }
}
