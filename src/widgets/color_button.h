#pragma once

#include <QColor>
#include <QToolButton>

// Shows a colour and its code; a click opens the colour chooser.
class ColorButton final : public QToolButton {
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged USER true)

public:
    explicit ColorButton(const QString &chooserTitle, QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    // Lets the operator choose the opacity too.
    void setAlphaShown(bool shown) { m_alphaShown = shown; }

Q_SIGNALS:
    void colorChanged(const QColor &color);
    // By the operator.
    void colorChosen(const QColor &color);

private:
    void choose();

    QString m_chooserTitle;
    QColor m_color;
    bool m_alphaShown = false;
};
