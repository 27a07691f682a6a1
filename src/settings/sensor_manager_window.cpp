#include "settings/sensor_manager_window.h"

#include "app/setting.h"
#include "sensors/sensor_manager.h"
#include "settings/sensor_edit_window.h"
#include "settings/sensor_list.h"
#include "widgets/text_colors.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// In all that an input knows of its sensor, as far as files tell it.
bool areSame(const QSharedPointer<SensorInfo> &one, const QSharedPointer<SensorInfo> &other)
{
    Config a;
    Config b;
    a.setSensor(one);
    b.setSensor(other);
    const auto settings = Setting::all();
    return std::all_of(settings.begin(), settings.end(),
        [&a, &b](const Setting &setting) { return setting.values(a) == setting.values(b); });
}

} // namespace

SensorManagerWindow::SensorManagerWindow(SensorManager *sensors, const QString &databaseFile, QWidget *parent)
    : GeometryDialog(QStringLiteral("SensorManagerWindow"), parent), m_sensors(sensors), m_history(sensors),
      m_databaseFile(databaseFile), m_fileLabel(new QLabel(this)), m_inputLabel(new QLabel(this)),
      m_note(new QLabel(this)), m_list(new SensorList(this))
{
    setWindowTitle(tr("Sensor Manager"));
    m_list->setObjectName(QStringLiteral("sensorList"));
    m_list->setAccessibleName(tr("Sensors"));
    m_list->setToolTip(tr("In the order of the file; drag a sensor, or move it with Alt+Up and Alt+Down."));
    m_note->setObjectName(QStringLiteral("note"));
    m_note->setWordWrap(true);
    // The buttons beside the list stay where they are when there is nothing to say any more.
    m_note->setMinimumHeight(fontMetrics().height());
    QSizePolicy policy = m_note->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_note->setSizePolicy(policy);
    auto *panes = new QHBoxLayout;
    panes->addWidget(m_list, 1);
    panes->addLayout(makeButtons());
    auto *notes = new QHBoxLayout;
    notes->addWidget(m_note, 1);
    notes->addWidget(m_reloadButton);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_fileLabel);
    layout->addWidget(m_inputLabel);
    layout->addLayout(notes);
    layout->addLayout(panes, 1);
    makeKeys();
    connect(m_list, &SensorList::itemSelectionChanged, this, &SensorManagerWindow::updateState);
    connect(m_list, &SensorList::itemActivated, this, &SensorManagerWindow::editSelected);
    connect(m_list, &SensorList::orderChanged, this, &SensorManagerWindow::takeOrder, Qt::QueuedConnection);
    m_inputLabel->setObjectName(QStringLiteral("inputSensor"));
    m_inputLabel->setTextFormat(Qt::PlainText);
    showSensors();
    selectSensor(m_sensors->sensors().isEmpty() ? QString() : m_sensors->sensors().constFirst()->name());
    m_list->setFocus();
    resize(fontMetrics().averageCharWidth() * 140, fontMetrics().height() * 26);
}

QPushButton *SensorManagerWindow::addButton(
    QVBoxLayout *column, const QString &text, const QString &objectName, void (SensorManagerWindow::*pressed)())
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(objectName);
    button->setAutoDefault(false); // the return key edits the selected sensor
    column->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, pressed] { (this->*pressed)(); });
    return button;
}

QVBoxLayout *SensorManagerWindow::makeButtons()
{
    using Window = SensorManagerWindow;
    auto *column = new QVBoxLayout;
    addButton(column, tr("&Add..."), QStringLiteral("addButton"), &Window::addSensor);
    m_buttons.edit = addButton(column, tr("&Edit..."), QStringLiteral("editButton"), &Window::editSelected);
    m_buttons.duplicate =
        addButton(column, tr("&Duplicate..."), QStringLiteral("duplicateButton"), &Window::duplicateSelected);
    m_buttons.remove = addButton(column, tr("&Remove"), QStringLiteral("removeButton"), &Window::removeSelected);
    m_buttons.up = addButton(column, tr("Move U&p"), QStringLiteral("upButton"), &Window::moveUp);
    m_buttons.down = addButton(column, tr("Move Do&wn"), QStringLiteral("downButton"), &Window::moveDown);
    m_buttons.undo = addButton(column, tr("U&ndo"), QStringLiteral("undoButton"), &Window::undo);
    column->addSpacing(12);
    m_buttons.use = addButton(column, tr("&Use for input"), QStringLiteral("useButton"), &Window::useSelected);
    column->addStretch(1);
    auto *file = new QPushButton(tr("&File"), this);
    file->setAutoDefault(false);
    file->setMenu(makeFileMenu());
    column->addWidget(file);
    m_buttons.save = addButton(column, tr("&Save"), QStringLiteral("saveButton"), &Window::saveChanges);
    addButton(column, tr("&Close"), QStringLiteral("closeButton"), &Window::reject);
    m_reloadButton = new QPushButton(tr("Re&load"), this);
    m_reloadButton->setObjectName(QStringLiteral("reloadButton"));
    m_reloadButton->setAutoDefault(false);
    connect(m_reloadButton, &QPushButton::clicked, this, &SensorManagerWindow::reload);
    return column;
}

QMenu *SensorManagerWindow::makeFileMenu()
{
    auto *menu = new QMenu(this);
    menu->addAction(tr("&Open..."), this, &SensorManagerWindow::openChosenFile);
    menu->addAction(tr("&Save As..."), this, &SensorManagerWindow::saveAs);
    menu->addSeparator();
    menu->addAction(tr("&Import..."), this, &SensorManagerWindow::chooseImport);
    menu->addAction(tr("&Export..."), this, &SensorManagerWindow::chooseExport);
    return menu;
}

void SensorManagerWindow::makeKeys()
{
    const auto key = [this](const QKeySequence &keys, void (SensorManagerWindow::*pressed)()) {
        auto *shortcut = new QShortcut(keys, m_list);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, pressed);
    };
    key(QKeySequence::Delete, &SensorManagerWindow::removeSelected);
    key(QKeySequence(Qt::ALT | Qt::Key_Up), &SensorManagerWindow::moveUp);
    key(QKeySequence(Qt::ALT | Qt::Key_Down), &SensorManagerWindow::moveDown);
    key(QKeySequence::Undo, &SensorManagerWindow::undo);
    key(QKeySequence::Save, &SensorManagerWindow::saveChanges);
}

void SensorManagerWindow::showSensors()
{
    m_list->setSensors(m_sensors->sensors());
    updateState();
    updateNote();
    showInputSensor();
}

void SensorManagerWindow::setInputSensor(const QSharedPointer<SensorInfo> &sensor)
{
    m_inputSensor = sensor;
    m_list->setUsed(sensor ? sensor->name() : QString());
    showInputSensor();
}

// The input has values of its own, which do not follow when the record is edited.
void SensorManagerWindow::showInputSensor()
{
    if (!m_inputSensor) {
        m_inputLabel->setText(tr("Sensor of the input: none"));
        return;
    }
    const QString name = m_inputSensor->name();
    const QSharedPointer<SensorInfo> record = m_sensors->findSensor(name);
    m_inputLabel->setText(record && !areSame(m_inputSensor, record)
            ? tr("Sensor of the input: %1. Its record has other values by now: use it again to take them.").arg(name)
            : tr("Sensor of the input: %1").arg(name));
}

void SensorManagerWindow::updateState()
{
    const auto selected = m_list->selectedNames();
    const bool one = selected.size() == 1;
    m_buttons.edit->setEnabled(one);
    m_buttons.duplicate->setEnabled(one);
    m_buttons.remove->setEnabled(!selected.isEmpty());
    for (QPushButton *button : {m_buttons.up, m_buttons.down}) {
        button->setEnabled(one && m_list->inOwnOrder());
        button->setToolTip(m_list->inOwnOrder() ? QString() : tr("Click the header until the list is not sorted."));
    }
    m_buttons.undo->setEnabled(m_history.canUndo());
    m_buttons.use->setEnabled(one && !m_inputRunning);
    m_buttons.use->setToolTip(
        m_inputRunning ? tr("The input is running: stop it to choose another sensor.") : QString());
    m_buttons.save->setEnabled(hasUnsavedChanges() || m_databaseFile.isEmpty());
    const QString file = m_databaseFile.isEmpty() ? tr("not saved yet") : QDir::toNativeSeparators(m_databaseFile);
    m_fileLabel->setText(hasUnsavedChanges() ? tr("File: %1 (changed)").arg(file) : tr("File: %1").arg(file));
}

// What is most pressing to know of the file.
void SensorManagerWindow::updateNote()
{
    const bool changedOutside = m_sensors->changedOutside(QFileInfo(m_databaseFile));
    QString note;
    if (changedOutside) {
        note = tr("Another program has changed the file since it was read.");
    } else if (!m_sensors->skipped().isEmpty()) {
        note = tr("These records of the file could not be read, and will not be in it when it is saved:\n%1")
                   .arg(shortened(m_sensors->skipped()));
    } else if (m_sensors->sensors().isEmpty()) {
        note = tr("No sensors yet. Add one, or import a file.");
    }
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, warningTextColor(palette()));
    m_note->setPalette(m_sensors->sensors().isEmpty() ? palette() : colors);
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
    m_reloadButton->setVisible(changedOutside);
}

void SensorManagerWindow::changeEvent(QEvent *event)
{
    GeometryDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        updateNote();
    }
}

void SensorManagerWindow::setInputRunning(bool running)
{
    m_inputRunning = running;
    updateState();
}

QString SensorManagerWindow::selectedName() const
{
    const QStringList selected = m_list->selectedNames();
    return selected.size() == 1 ? selected.constFirst() : QString();
}

void SensorManagerWindow::selectSensor(const QString &name)
{
    m_list->select({name});
}

void SensorManagerWindow::change(const SensorHistory::Records &records)
{
    if (m_history.change(records)) {
        showSensors();
        Q_EMIT sensorsChanged();
    }
}

void SensorManagerWindow::takeOrder(const QStringList &names)
{
    SensorHistory::Records records;
    for (const QString &name : names) {
        records.append(m_sensors->findSensor(name));
    }
    change(records);
}

void SensorManagerWindow::putSensor(const QSharedPointer<SensorInfo> &sensor, const QString &replacedName)
{
    SensorHistory::Records records = m_sensors->sensors();
    const qsizetype place = records.indexOf(m_sensors->findSensor(replacedName));
    if (place < 0) {
        records.append(sensor);
    } else {
        records[place] = sensor;
    }
    change(records);
    selectSensor(sensor->name());
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

QString SensorManagerWindow::freeName(const QString &wanted, const SensorHistory::Records &taken)
{
    QString name = wanted;
    const auto has = [&name](const QSharedPointer<SensorInfo> &sensor) { return sensor->name() == name; };
    for (int count = 1; std::any_of(taken.begin(), taken.end(), has); ++count) {
        name = QStringLiteral("%1_dup%2").arg(wanted).arg(count);
    }
    return name;
}

void SensorManagerWindow::duplicateSelected()
{
    const QSharedPointer<SensorInfo> sensor = m_sensors->findSensor(selectedName());
    const QSharedPointer<SensorInfo> copy = sensor ? SensorInfo::create(sensor->jsonObject()) : nullptr;
    if (!copy) {
        return;
    }
    copy->setName(freeName(sensor->name(), m_sensors->sensors()));
    SensorEditWindow window(copy, m_sensors, this);
    window.setOriginalName(QString());
    if (window.exec() == QDialog::Accepted) {
        putSensor(window.sensor());
    }
}

void SensorManagerWindow::removeSelected()
{
    SensorHistory::Records records = m_sensors->sensors();
    const QStringList names = m_list->selectedNames();
    const auto first = std::find_if(
        records.begin(), records.end(), [&names](const auto &sensor) { return names.contains(sensor->name()); });
    const qsizetype place = first - records.begin();
    records.removeIf([&names](const auto &sensor) { return names.contains(sensor->name()); });
    change(records);
    if (!names.isEmpty()) {
        selectAt(place);
    }
}

void SensorManagerWindow::selectAt(qsizetype place)
{
    const SensorHistory::Records records = m_sensors->sensors();
    if (!records.isEmpty()) {
        selectSensor(records.at(std::clamp<qsizetype>(place, 0, records.size() - 1))->name());
    }
}

void SensorManagerWindow::moveSelected(int places)
{
    SensorHistory::Records records = m_sensors->sensors();
    const qsizetype from = records.indexOf(m_sensors->findSensor(selectedName()));
    const qsizetype to = from + places;
    if (from >= 0 && to >= 0 && to < records.size() && m_list->inOwnOrder()) {
        records.move(from, to);
        change(records);
    }
}

void SensorManagerWindow::undo()
{
    if (!m_history.canUndo()) {
        return;
    }
    const int place = m_list->currentIndex().row();
    m_history.undo();
    showSensors();
    if (m_list->selectedNames().isEmpty()) { // it has gone: the keys go on from its place
        selectAt(place);
    }
    Q_EMIT sensorsChanged();
}

void SensorManagerWindow::useSelected()
{
    const QSharedPointer<SensorInfo> sensor = m_sensors->findSensor(selectedName());
    if (sensor) {
        Q_EMIT sensorChosen(sensor);
    }
}
