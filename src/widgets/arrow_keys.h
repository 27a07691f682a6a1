#pragma once

#include <QObject>

class QWidget;

// Lets the arrow keys move within a widget although its window has shortcuts on them. The widget is the parent.
class ArrowKeys final : public QObject {
    Q_OBJECT

public:
    explicit ArrowKeys(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
