#pragma once

#include <QObject>
#include <QString>

class MainWindow;

// Writes what the window shows when the program ends: a picture of the window, the newest display snapshot. An empty
// path writes nothing; a failure is a line on standard error.
class ExitReport final : public QObject {
    Q_OBJECT

public:
    // Both paths are file names; the window must outlive this object.
    ExitReport(MainWindow *window, const QString &screenshot, const QString &snapshot, QObject *parent = nullptr);

    // True when nothing that was asked for could not be written.
    bool succeeded() const { return m_succeeded; }

private:
    void write();
    void writeScreenshot();
    void writeSnapshot();
    void fail(const QString &fileName, const QString &reason);

    MainWindow *m_window;
    QString m_screenshot;
    QString m_snapshot;
    bool m_succeeded = true;
};
