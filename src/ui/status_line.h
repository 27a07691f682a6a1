#pragma once

#include "app/log_level.h"

#include <QString>

class QStatusBar;

// The line at the left of the status bar: log lines, each for a few seconds, and how far something has come. What must
// be read is not wiped by progress.
class StatusLine final {
public:
    // The bar must outlive this object.
    explicit StatusLine(QStatusBar *bar) : m_bar(bar) { }

    void showLine(LogLevel level, const QString &text);
    // Nothing while a warning stands there.
    void showProgress(const QString &text);
    // Takes away the progress that was shown last, and nothing else.
    void clearProgress();

private:
    QStatusBar *m_bar;
    QString m_warning; // of the newest line; empty: it was none
    QString m_progress;
};
