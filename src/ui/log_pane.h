#pragma once

#include "app/log_level.h"

#include <QPlainTextEdit>

// The application log on the screen: formatted lines, newest last, only as many as anybody scrolls back.
class LogPane final : public QPlainTextEdit {
    Q_OBJECT

public:
    static constexpr int MaximumLines = 5000;

    explicit LogPane(QWidget *parent = nullptr);

    // Follows the newest line unless the operator has scrolled back, and again once he is back at the end.
    void appendLine(LogLevel level, const QString &line);

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    bool atEnd() const;
    void showEnd();
    void keepAtEnd(int minimum, int maximum);
    QTextCharFormat format(LogLevel level) const;
    void recolor();

    int m_end = 0; // of the scroll bar, before its range changes
};
