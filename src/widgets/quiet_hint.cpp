#include "widgets/quiet_hint.h"

#include "widgets/text_colors.h"

#include <QEvent>
#include <QLabel>

namespace {

class QuietHint final : public QLabel {
public:
    using QLabel::QLabel;

    void recolor()
    {
        QPalette colors = palette();
        const QColor quiet = quietTextColor(colors);
        if (colors.color(QPalette::WindowText) != quiet) { // setting it calls here again
            colors.setColor(QPalette::WindowText, quiet);
            setPalette(colors);
        }
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::PaletteChange) {
            recolor();
        }
    }
};

} // namespace

QLabel *makeQuietHint(const QString &text, QWidget *parent)
{
    auto *hint = new QuietHint(text, parent);
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    hint->setForegroundRole(QPalette::WindowText); // an item view's default is another role
    hint->recolor();
    return hint;
}
