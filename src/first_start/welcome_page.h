#pragma once

#include <QWidget>

class QComboBox;
class QGridLayout;
class QPushButton;

// The one page of a first start: three ways to a picture, and how it is to look.
class WelcomePage final : public QWidget {
    Q_OBJECT

public:
    explicit WelcomePage(QWidget *parent = nullptr);

    void preselectTheme(const QString &name);
    QString theme() const;

Q_SIGNALS:
    void demoChosen();
    void recordingChosen();
    void liveChosen();

private:
    QPushButton *addWay(
        QGridLayout *ways, const QString &text, const QString &description, void (WelcomePage::*chosen)());

    QComboBox *m_theme;
};
