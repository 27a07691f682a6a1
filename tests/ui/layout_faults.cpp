#include "layout_faults.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

QString textOf(const QWidget *widget)
{
    for (const char *property : {"text", "title", "currentText", "placeholderText"}) {
        const QString text = widget->property(property).toString().simplified();
        if (!text.isEmpty()) {
            return text.left(40);
        }
    }
    return widget->accessibleName();
}

QString describe(const QWidget *widget)
{
    return QStringLiteral("%1 %2 \"%3\"")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(), textOf(widget));
}

QString tooSmall(const QWidget *widget, const QString &what, int has, int needs)
{
    return QStringLiteral("%1: %2 %3 of %4 pixels").arg(describe(widget), what).arg(has).arg(needs);
}

int textWidth(const QWidget *widget, const QString &text)
{
    return widget->fontMetrics().horizontalAdvance(text);
}

QStringList ofLabel(const QLabel *label)
{
    if (label->text().isEmpty()) {
        return {};
    }
    const QSize needs = label->sizeHint();
    if (!label->wordWrap() && label->width() < needs.width() && label->toolTip().isEmpty()) {
        return {tooSmall(label, "width", label->width(), needs.width())};
    }
    const int height = label->wordWrap() ? label->heightForWidth(label->width()) : needs.height();
    if (label->height() < height) {
        return {tooSmall(label, "height", label->height(), height)};
    }
    return {};
}

QStringList ofButton(const QAbstractButton *button)
{
    const auto *tool = qobject_cast<const QToolButton *>(button);
    if (button->text().isEmpty() || (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)) {
        return {};
    }
    const QSize needs = button->sizeHint();
    if (button->width() < needs.width()) {
        return {tooSmall(button, "width", button->width(), needs.width())};
    }
    if (button->height() + 1 < needs.height()) { // a font of another script may round differently
        return {tooSmall(button, "height", button->height(), needs.height())};
    }
    return {};
}

QStringList ofComboBox(const QComboBox *box)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    const int room =
        box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box).width();
    int needs = 0;
    const bool told = !box->toolTip().isEmpty() || qobject_cast<const QFontComboBox *>(box); // its list is wider
    for (int i = 0; i < box->count() && !told; ++i) {
        needs = std::max(needs, textWidth(box, box->itemText(i)));
    }
    needs = std::max(needs, textWidth(box, box->currentText()));
    return room < needs ? QStringList{tooSmall(box, "room", room, needs)} : QStringList();
}

QStringList ofSpinBox(const QAbstractSpinBox *box)
{
    const auto *edit = box->findChild<QLineEdit *>();
    const int needs = textWidth(box, box->text()) + 2;
    return edit && edit->width() < needs ? QStringList{tooSmall(box, "room", edit->width(), needs)} : QStringList();
}

QStringList ofLineEdit(const QLineEdit *edit)
{
    const int frame = edit->hasFrame() ? 8 : 0;
    const int needs = textWidth(edit, edit->placeholderText()) + frame;
    const bool shown = edit->text().isEmpty() && !edit->placeholderText().isEmpty() && edit->toolTip().isEmpty();
    return shown && edit->width() < needs ? QStringList{tooSmall(edit, "room", edit->width(), needs)} : QStringList();
}

QStringList ofGroupBox(const QGroupBox *box)
{
    const int needs = textWidth(box, box->title());
    return box->width() < needs ? QStringList{tooSmall(box, "width", box->width(), needs)} : QStringList();
}

QStringList ofTabBar(const QTabBar *bar)
{
    QStringList faults;
    int all = 0;
    for (int i = 0; i < bar->count(); ++i) {
        const int needs = textWidth(bar, QString(bar->tabText(i)).remove(u'&'));
        if (bar->isTabVisible(i) && bar->tabRect(i).width() < needs && bar->tabToolTip(i).isEmpty()) {
            faults += tooSmall(bar, bar->tabText(i), bar->tabRect(i).width(), needs);
        }
        all = std::max(all, bar->tabRect(i).right());
    }
    if (all > bar->width()) {
        faults += tooSmall(bar, "all tabs", bar->width(), all);
    }
    return faults;
}

QStringList ofToolBar(const QToolBar *bar)
{
    const auto *more = bar->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"));
    return more && more->isVisible() ? QStringList{describe(bar) + QStringLiteral(" hides some of its buttons")}
                                     : QStringList();
}

QStringList ofHeader(const QHeaderView *header)
{
    QStringList faults;
    for (int i = 0; header->orientation() == Qt::Horizontal && i < header->count(); ++i) {
        const auto *model = header->model();
        const QString text = model->headerData(i, Qt::Horizontal).toString();
        const bool told = !model->headerData(i, Qt::Horizontal, Qt::ToolTipRole).toString().isEmpty();
        const int needs = textWidth(header, text) + 4;
        if (!header->isSectionHidden(i) && !told && header->sectionSize(i) < needs) {
            faults += tooSmall(header, text, header->sectionSize(i), needs);
        }
    }
    return faults;
}

// A list or table whose texts are cut off though it cannot be scrolled to their ends, and says them nowhere else.
QStringList ofView(const QAbstractItemView *view)
{
    QStringList faults;
    const QAbstractItemModel *model = view->model();
    const int rows = model ? std::min(model->rowCount(view->rootIndex()), 30) : 0;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < model->columnCount(view->rootIndex()); ++column) {
            const QModelIndex index = model->index(row, column, view->rootIndex());
            const QRect place = view->visualRect(index);
            const QString text = index.data().toString();
            const bool told = !index.data(Qt::ToolTipRole).toString().isEmpty();
            if (place.isEmpty() || told || text.isEmpty() || text.contains(u'\n') || view->indexWidget(index)) {
                continue;
            }
            const int needs = view->sizeHintForIndex(index).width();
            const bool shown = place.intersects(view->viewport()->rect());
            if (shown && place.width() < needs - 2) {
                faults += tooSmall(view, text.left(40), place.width(), needs);
            }
        }
    }
    return faults;
}

QStringList ofItsKind(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return ofLabel(label);
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        return ofButton(button);
    }
    if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
        return ofComboBox(box);
    }
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(widget)) {
        return ofSpinBox(box);
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        return ofLineEdit(edit);
    }
    if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
        return ofGroupBox(box);
    }
    if (const auto *bar = qobject_cast<const QTabBar *>(widget)) {
        return ofTabBar(bar);
    }
    if (const auto *bar = qobject_cast<const QToolBar *>(widget)) {
        return ofToolBar(bar);
    }
    if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
        return ofHeader(header);
    }
    const auto *view = qobject_cast<const QAbstractItemView *>(widget);
    return view ? ofView(view) : QStringList();
}

// What a layout holds stands beside each other and within the widget.
QStringList ofLayout(const QLayout *layout)
{
    QStringList faults;
    QList<const QWidget *> widgets;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->layout()) {
            faults += ofLayout(item->layout());
        } else if (item->widget() && item->widget()->isVisible()) {
            widgets.append(item->widget());
        }
    }
    const QWidget *holder = layout->parentWidget();
    for (const QWidget *widget : widgets) {
        if (holder && !holder->rect().adjusted(-1, -1, 1, 1).contains(widget->geometry())) {
            faults += describe(widget) + QStringLiteral(" stands out of ") + describe(holder);
        }
    }
    for (qsizetype i = 0; i < widgets.size(); ++i) {
        for (qsizetype j = i + 1; j < widgets.size(); ++j) {
            if (widgets[i]->geometry().intersects(widgets[j]->geometry())) {
                faults += describe(widgets[i]) + QStringLiteral(" overlaps ") + describe(widgets[j]);
            }
        }
    }
    return faults;
}

bool isStacked(const QLayout *layout)
{
    return layout->inherits("QStackedLayout") || layout->inherits("QMainWindowLayout")
        || layout->inherits("QToolBarLayout");
}

// The parts of controls are the toolkit's.
bool isPart(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return parent && !widget->isWindow()
        && (qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent)
            || qobject_cast<const QTabBar *>(parent) || qobject_cast<const QLineEdit *>(parent)
            || parent->inherits("QComboBoxPrivateContainer")
            || (widget->objectName().startsWith(QLatin1String("qt_")) && !qobject_cast<const QTabBar *>(widget)));
}

} // namespace

QStringList LayoutFaults::clipped(QWidget *window)
{
    QStringList faults;
    QWidgetList widgets = window->findChildren<QWidget *>();
    widgets.prepend(window);
    for (const QWidget *widget : std::as_const(widgets)) {
        if (!widget->isVisible() || widget->window() != window || isPart(widget)) {
            continue;
        }
        faults += ofItsKind(widget);
        if (widget->layout() && !isStacked(widget->layout())) {
            faults += ofLayout(widget->layout());
        }
    }
    faults.removeDuplicates();
    return faults;
}
