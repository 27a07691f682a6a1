#pragma once

#include "sensors/sensor_info.h"
#include "widgets/geometry_dialog.h"

#include <QSharedPointer>

class QLabel;
class QLayout;
class QPushButton;
class QTreeWidget;
class SensorManager;

// The list of known sensors and their JSON file. Changes take effect in the manager at once; the file is written only
// on request, and closing with unsaved changes asks.
class SensorManagerWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The manager must outlive the window. The file may be empty: none yet.
    SensorManagerWindow(SensorManager *sensors, const QString &databaseFile, QWidget *parent = nullptr);

    // While one runs its sensor stays as it is; the list may be changed all the same.
    void setInputRunning(bool running);

    const QString &databaseFile() const { return m_databaseFile; }
    bool hasUnsavedChanges() const { return m_changed; }

    // Both report a failure to the operator, with the file and the reason, and return false.
    bool openFile(const QString &fileName);
    bool saveFile(const QString &fileName);

    // Adds the record, or puts it in the place of the one named replacedName.
    void putSensor(const QSharedPointer<SensorInfo> &sensor, const QString &replacedName = QString());
    QString selectedName() const;
    void selectSensor(const QString &name);

    void reject() override;

public Q_SLOTS:
    void addSensor();
    void editSelected();
    void duplicateSelected();
    void removeSelected();
    void useSelected();
    void openChosenFile();
    bool save();
    bool saveAs();

Q_SIGNALS:
    void sensorsChanged();
    void sensorChosen(const QSharedPointer<SensorInfo> &sensor);
    void databaseFileChanged(const QString &fileName);

private:
    QPushButton *addButton(QLayout *layout, const QString &text);
    void buildLayout();
    void fillList();
    void updateState();
    void markChanged();
    void rememberSaved();
    void discardChanges();
    void setDatabaseFile(const QString &fileName);
    // Asks what to do with unsaved changes; false when the operator cancels or saving fails.
    bool settleChanges();
    void reportFailure(const QString &text, const QString &fileName, const QString &reason);

    SensorManager *m_sensors;
    QString m_databaseFile;
    QList<QSharedPointer<SensorInfo>>
        m_saved; // records are replaced, never changed, so the pointers keep the old state
    bool m_changed = false;
    bool m_inputRunning = false;
    QLabel *m_fileLabel = nullptr;
    QTreeWidget *m_list = nullptr;
    QPushButton *m_editButton = nullptr;
    QPushButton *m_duplicateButton = nullptr;
    QPushButton *m_removeButton = nullptr;
    QPushButton *m_useButton = nullptr;
    QPushButton *m_saveButton = nullptr;
};
