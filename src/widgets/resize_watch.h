#pragma once

#include <QObject>

#include <functional>

class QWidget;

// Calls a function whenever a widget has got another size: what lies over it finds its place by it. The owner deletes
// the watch. GUI thread only.
class ResizeWatch final : public QObject {
public:
    ResizeWatch(QWidget *watched, QObject *owner, std::function<void()> resized);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const std::function<void()> m_resized;
};
