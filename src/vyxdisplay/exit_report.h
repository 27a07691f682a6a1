#pragma once

#include <QObject>
#include <QString>

class MainWindow;
class QImage;

// What the run leaves behind when the program ends: a picture of the window, the newest display snapshot, and whether
// all went well. An empty path writes nothing; a failure is a line on standard error.
class ExitReport final : public QObject {
    Q_OBJECT

public:
    // Both paths are file names; the window must outlive this object.
    ExitReport(MainWindow *window, const QString &screenshot, const QString &snapshot, QObject *parent = nullptr);

    // Ends the program with the next input to end. One that cannot be opened is a failure.
    void exitWithInput();

    // True when nothing that was asked for has failed.
    bool succeeded() const { return m_succeeded; }

private:
    void write();
    void writeScreenshot(const QImage &picture);
    void writeSnapshot();
    void failToWrite(const QString &fileName, const QString &reason);
    void fail(const QString &line);

    MainWindow *m_window;
    QString m_screenshot;
    QString m_snapshot;
    bool m_succeeded = true;
};
