#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

// How far the reading or writing of a file has come, with a button that cancels it. Hidden while there is nothing to
// tell, and while it might be over in a moment.
class MapEditorProgress final : public QWidget {
    Q_OBJECT

public:
    explicit MapEditorProgress(QWidget *parent = nullptr);

    // The text says what is being done.
    void begin(const QString &text);
    void setPercent(int percent);
    void end();

Q_SIGNALS:
    void cancelled();

private:
    QLabel *m_text = nullptr;
    QProgressBar *m_bar = nullptr;
    QTimer m_delay;
};
