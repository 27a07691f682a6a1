#include "help/help.h"

#include "app/languages.h"
#include "help/help_topics.h"
#include "help/help_window.h"
#include "widgets/window_opening.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPushButton>

namespace {

bool isHelpKey(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.key() == Qt::Key_F1 && !(key.modifiers() & ~Qt::ShiftModifier);
}

} // namespace

Help::Help(QWidget *mainWindow) : QObject(mainWindow), m_mainWindow(mainWindow)
{
    qApp->installEventFilter(this);
}

Help::~Help() = default;

void Help::showContents()
{
    const QWidget *focus = QApplication::focusWidget();
    const QString place = focus && focus->window() == m_mainWindow ? helpPlaceOf(focus) : QString();
    if (place.isEmpty() && m_window) {
        showPlace(m_window->place());
    } else {
        showPlace(place);
    }
}

void Help::showPlace(const QString &place)
{
    if (!m_window) {
        Manual::MadePages made;
        for (auto page = m_made.cbegin(); page != m_made.cend(); ++page) {
            made.insert(page.key(), page.value()());
        }
        m_window = std::make_unique<HelpWindow>(made, Languages::spoken());
    }
    m_window->showPlace(place);
    bringUp(m_window.get());
}

void Help::setMadePage(const QString &file, QString (*make)())
{
    m_made.insert(file, make);
}

void Help::closeWindow()
{
    m_window.reset();
}

bool Help::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Polish && watched->isWidgetType()) {
        if (auto *dialog = qobject_cast<QDialog *>(watched)) {
            addButton(dialog);
        }
    } else if (isHelpKey(*event) && watched->isWidgetType()) {
        const auto *widget = static_cast<const QWidget *>(watched);
        const QString place = widget->window() == m_mainWindow ? QString() : helpPlaceOf(widget);
        if (!place.isEmpty()) {
            showPlace(place);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

// Before the dialog is sized.
void Help::addButton(QDialog *dialog)
{
    auto *box = dialog->findChild<QDialogButtonBox *>();
    if (!box || box->button(QDialogButtonBox::Help) || helpPlaceOf(dialog).isEmpty()) {
        return;
    }
    QPushButton *button = box->addButton(QDialogButtonBox::Help);
    button->setAutoDefault(false);
    // What has the focus tells more than the dialog, but pressing the button takes the focus.
    button->setFocusPolicy(Qt::TabFocus);
    connect(box, &QDialogButtonBox::helpRequested, this, [this, dialog] {
        const QWidget *focus = dialog->focusWidget();
        showPlace(helpPlaceOf(focus ? focus : dialog));
    });
}
