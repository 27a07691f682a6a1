#pragma once

#include "widgets/urgency.h"

#include <QLabel>

// A text over the top of the plan view that says why the picture is empty or old. Takes no mouse input; hidden
// while it has nothing to say.
class ScopeNotice final : public QLabel {
    Q_OBJECT

public:
    explicit ScopeNotice(QWidget *scope);

    void showText(const QString &text);
    // A headline in large letters over a text, on a ground of its urgency.
    void showWarning(Urgency urgency, const QString &headline, const QString &text);

private:
    void show(Urgency urgency, Qt::TextFormat format, const QString &text);
    void place();
};
