#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTransform>

class QSettings;

// Saved views of the plan view by name. A view is the widget's transform from the projection plane (metres) to the
// screen. "default" is always there, is set by the program and never stored. GUI thread.
class MapLayout final : public QObject {
    Q_OBJECT

public:
    explicit MapLayout(QObject *parent = nullptr);

    // Forgets the layouts held and announces the one that was current when the file was saved; without a file, the
    // default.
    void load(const QString &fileName);
    // Six significant digits of each number are kept. False when the file could not be written.
    bool save(const QString &fileName) const;

    // Adds or replaces; a layout without a name or named "default" is ignored.
    void addLayout(const QString &name, const QTransform &transform, bool makeCurrent);
    void removeLayout(const QString &name);
    // Keeps what saveViewport() yields under the name.
    void saveCurrentView(const QString &name, bool makeCurrent);

    // In ascending order, without "default".
    QStringList layoutNames() const { return m_layouts.keys(); }
    QString currentLayoutName() const { return m_currentName; }
    QTransform currentLayout() const { return m_layouts.value(m_currentName, m_default); }
    // An unknown name stands for "default".
    void setCurrentLayout(const QString &name);

    QTransform defaultlayout() const { return m_default; }
    // North up around a point of the plane (metres), about 331 m a pixel.
    void setDefaultLayout(double x, double y);

    // Lists the layouts in the debug log, under the heading.
    void dump(const QString &heading) const;

Q_SIGNALS:
    void currentLayoutChanged(const QTransform &transform);
    // Asks for the view that is shown; connected directly, the receiver fills the transform.
    void saveViewport(QTransform &transform);

private:
    QMap<QString, QString> loadArray(QSettings &settings);
    void loadGroup(QSettings &settings);

    QTransform m_default;
    QString m_currentName;
    QMap<QString, QTransform> m_layouts;
};
