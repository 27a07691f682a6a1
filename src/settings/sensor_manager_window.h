#pragma once

#include "sensors/sensor_info.h"
#include "settings/sensor_history.h"
#include "widgets/geometry_dialog.h"

#include <QSharedPointer>

class QLabel;
class QMenu;
class QPushButton;
class QVBoxLayout;
class SensorList;
class SensorManager;

// The list of known sensors and their JSON file. Changes take effect in the manager at once, and can be undone step by
// step; the file is written only on request, and closing with unsaved changes asks.
class SensorManagerWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The manager must outlive the window. The file may be empty: none yet.
    SensorManagerWindow(SensorManager *sensors, const QString &databaseFile, QWidget *parent = nullptr);

    // What the input has, or will be started with; null for none.
    void setInputSensor(const QSharedPointer<SensorInfo> &sensor);
    // While one runs its sensor stays as it is; the list may be changed all the same.
    void setInputRunning(bool running);

    const QString &databaseFile() const { return m_databaseFile; }
    bool hasUnsavedChanges() const { return m_history.changed(); }

    // They report a failure to the operator, with the file and the reason, and return false. Saving asks before it
    // takes back what another program has written.
    bool openFile(const QString &fileName);
    bool saveFile(const QString &fileName);
    // Adds the records of another file, under other names where theirs are taken, and tells which it could not take.
    bool importFile(const QString &fileName);
    // Writes what is selected, or else all, to another file.
    bool exportFile(const QString &fileName);

    // Adds the record, or puts it in the place of the one named replacedName.
    void putSensor(const QSharedPointer<SensorInfo> &sensor, const QString &replacedName = QString());
    // Empty unless a single one is selected.
    QString selectedName() const;
    void selectSensor(const QString &name);

    void reject() override;
    void changeEvent(QEvent *event) override;

public Q_SLOTS:
    void addSensor();
    void editSelected();
    void duplicateSelected();
    void removeSelected();
    // By that many places.
    void moveSelected(int places);
    void undo();
    void useSelected();
    void openChosenFile();
    bool save();
    bool saveAs();

Q_SIGNALS:
    void sensorsChanged();
    void sensorChosen(const QSharedPointer<SensorInfo> &sensor);
    void databaseFileChanged(const QString &fileName);

private:
    QPushButton *addButton(
        QVBoxLayout *column, const QString &text, const QString &objectName, void (SensorManagerWindow::*pressed)());
    QVBoxLayout *makeButtons();
    QMenu *makeFileMenu();
    void makeKeys();
    void chooseImport();
    void chooseExport();
    void moveUp() { moveSelected(-1); }
    void moveDown() { moveSelected(1); }
    void saveChanges() { save(); }
    void reload();

    void change(const SensorHistory::Records &records);
    void selectAt(qsizetype place);
    void takeOrder(const QStringList &names);
    void showSensors();
    void updateState();
    void updateNote();
    void showInputSensor();
    void setDatabaseFile(const QString &fileName);
    // The name wanted or one that is made of it.
    static QString freeName(const QString &wanted, const SensorHistory::Records &taken);
    // Asks what to do with unsaved changes; false when the operator cancels or saving fails.
    bool settleChanges();
    // False when the operator does not want to write over what another program has written.
    bool settleOutsideChanges(const QString &fileName);
    static QString shortened(const QStringList &lines);
    void report(const QString &text, const QString &fileName, const QStringList &lines);

    SensorManager *m_sensors;
    SensorHistory m_history;
    QString m_databaseFile;
    bool m_inputRunning = false;
    QSharedPointer<SensorInfo> m_inputSensor;
    QLabel *m_fileLabel;
    QLabel *m_inputLabel;
    QLabel *m_note;
    QPushButton *m_reloadButton = nullptr;
    SensorList *m_list;
    struct {
        QPushButton *edit = nullptr;
        QPushButton *duplicate = nullptr;
        QPushButton *remove = nullptr;
        QPushButton *up = nullptr;
        QPushButton *down = nullptr;
        QPushButton *undo = nullptr;
        QPushButton *use = nullptr;
        QPushButton *save = nullptr;
    } m_buttons;
};
