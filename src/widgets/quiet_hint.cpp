#include "widgets/quiet_hint.h"

#include "widgets/text_colors.h"

#include <QLabel>

QLabel *makeQuietHint(const QString &text, QWidget *parent)
{
    auto *hint = new QLabel(text, parent);
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    hint->setForegroundRole(QPalette::WindowText); // an item view's default is another role
    QPalette palette = hint->palette();
    palette.setColor(QPalette::WindowText, quietTextColor(palette));
    hint->setPalette(palette);
    return hint;
}
