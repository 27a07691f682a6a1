#pragma once

#include <QLabel>

// A line of text over the top of the plan view that says why the picture is empty or old. Takes no mouse input; hidden
// while it has nothing to say.
class ScopeNotice final : public QLabel {
    Q_OBJECT

public:
    explicit ScopeNotice(QWidget *scope);

    void showText(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
};
