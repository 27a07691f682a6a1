#include "widgets/dialog_layout.h"

#include <QDialog>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int Gap = 8; // pixels above the buttons

} // namespace

QDialogButtonBox *layOutDialog(QDialog *dialog, QWidget *contents, QDialogButtonBox::StandardButtons buttons)
{
    auto *box = new QDialogButtonBox(buttons, Qt::Horizontal, dialog);
    QObject::connect(box, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(box, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    for (const auto button : {QDialogButtonBox::Ok, QDialogButtonBox::Save, QDialogButtonBox::Close}) {
        if (buttons & button) {
            box->button(button)->setDefault(true);
            break;
        }
    }
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(contents);
    layout->addSpacing(Gap);
    layout->addStretch(1);
    layout->addWidget(box);
    return box;
}

void growToContents(QDialog *dialog)
{
    dialog->layout()->activate();
    // Before it is shown it has no size of its own.
    const QSize size =
        dialog->isVisible() ? dialog->size() : QSize(std::max(dialog->minimumWidth(), dialog->sizeHint().width()), 0);
    dialog->resize(size.width(), std::max(size.height(), dialog->layout()->totalHeightForWidth(size.width())));
}
