#pragma once

#include "sensors/sensor_info.h"

#include <QList>
#include <QSharedPointer>
#include <QStringList>
#include <QTreeWidget>

// The sensor records as a list in their own order, in which they can be dragged about. A click on a header sorts it, a
// third one brings the own order back.
class SensorList final : public QTreeWidget {
    Q_OBJECT

public:
    explicit SensorList(QWidget *parent = nullptr);

    // Keeps what is selected, as far as it is still there.
    void setSensors(const QList<QSharedPointer<SensorInfo>> &sensors);
    // The one that the input has stands out.
    void setUsed(const QString &name);
    // From top to bottom.
    QStringList selectedNames() const;
    void select(const QStringList &names);
    bool inOwnOrder() const;

Q_SIGNALS:
    // By dragging: all names as they are now.
    void orderChanged(const QStringList &names);

protected:
    void dropEvent(QDropEvent *event) override;

private:
    QStringList names() const;
    void sortAsAsked();

    void markUsed();

    QList<QSharedPointer<SensorInfo>> m_sensors;
    QString m_used;
};
