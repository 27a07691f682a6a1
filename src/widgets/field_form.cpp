#include "widgets/field_form.h"

#include "widgets/coordinate_edit.h"
#include "widgets/dialog_layout.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPalette>
#include <QRegularExpression>
#include <QTimer>

namespace {

QString withoutMnemonic(const QString &text)
{
    static const QRegularExpression trailing(QStringLiteral("\\s*\\(&.\\)")); // where letters have no keys: "文件(&F)"
    QString plain = text;
    plain.remove(trailing).remove(u'&');
    plain = plain.trimmed();
    for (const QChar colon : {QChar(u':'), QChar(u'：')}) {
        if (plain.endsWith(colon)) {
            plain.chop(1);
        }
    }
    return plain.trimmed();
}

QColor noteColor(const QPalette &palette)
{
    const bool lightGround = palette.color(QPalette::Window).lightness() > 127;
    return lightGround ? QColor(0xb0, 0x00, 0x20) : QColor(0xff, 0x8a, 0x80);
}

} // namespace

FieldForm::FieldForm(QWidget *parent) : QWidget(parent), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setColumnStretch(1, 1);
    m_grid->setHorizontalSpacing(12);
}

void FieldForm::addHeading(const QString &text)
{
    m_heading = text;
    auto *heading = new QLabel(text, this);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    heading->setContentsMargins(0, m_nextRow == 0 ? 0 : 10, 0, 0);
    m_grid->addWidget(heading, m_nextRow++, 0, 1, 2);
}

void FieldForm::addField(const QString &label, QWidget *field)
{
    auto *labelWidget = new QLabel(label, this);
    labelWidget->setBuddy(field);
    m_grid->addWidget(labelWidget, m_nextRow, 0);
    place(field, labelWidget);
}

void FieldForm::addField(QWidget *field)
{
    place(field, nullptr);
}

void FieldForm::place(QWidget *field, QLabel *label)
{
    // Spin boxes and buttons keep their natural width instead of filling the column.
    const bool narrow = qobject_cast<QAbstractSpinBox *>(field) || qobject_cast<QAbstractButton *>(field);
    m_grid->addWidget(field, m_nextRow++, 1, narrow ? Qt::AlignLeft : Qt::Alignment());
    auto *note = new QLabel(this);
    note->setWordWrap(true);
    note->setFocusPolicy(Qt::NoFocus);
    note->hide();
    m_grid->addWidget(note, m_nextRow++, 1);
    m_rows.insert(field, Row{label, note, m_heading});
    m_order.append(field);
    if (label) {
        field->setAccessibleName(withoutMnemonic(label->text()));
        label->setToolTip(field->toolTip());
    }
    if (QWidget *inner = field->focusProxy()) {
        inner->setAccessibleName(field->accessibleName());
    }
    if (auto *coordinate = qobject_cast<CoordinateEdit *>(field)) {
        connect(coordinate, &QLineEdit::textChanged, this, [this, coordinate] {
            if (!this->note(coordinate).isEmpty()) {
                checkCoordinate(coordinate);
            }
        });
    }
}

void FieldForm::addSpacing()
{
    m_grid->setRowMinimumHeight(m_nextRow++, 10);
}

void FieldForm::addStretch()
{
    m_grid->setRowStretch(m_nextRow++, 1);
}

void FieldForm::setRowVisible(QWidget *field, bool visible)
{
    const Row row = m_rows.value(field);
    field->setVisible(visible);
    if (row.label) {
        row.label->setVisible(visible);
    }
    if (row.note) {
        row.note->setVisible(visible && !row.note->text().isEmpty());
    }
}

void FieldForm::setRowEnabled(QWidget *field, bool enabled)
{
    m_rows[field].enabled = enabled;
    updateEnabled(field);
}

void FieldForm::setRowLocked(QWidget *field, bool locked)
{
    Row &row = m_rows[field];
    if (row.locked != locked) { // who enables his fields himself is left alone
        row.locked = locked;
        updateEnabled(field);
    }
}

void FieldForm::updateEnabled(QWidget *field)
{
    const Row row = m_rows.value(field);
    field->setEnabled(row.enabled && !row.locked);
    if (row.label) {
        row.label->setEnabled(!row.locked);
    }
}

QString FieldForm::title(const QWidget *field) const
{
    if (const QLabel *label = m_rows.value(field).label) {
        return withoutMnemonic(label->text());
    }
    const auto *button = qobject_cast<const QAbstractButton *>(field);
    return button ? withoutMnemonic(button->text()) : QString();
}

QRect FieldForm::rowRect(const QWidget *field) const
{
    const Row row = m_rows.value(field);
    if (!field->isVisibleTo(this)) {
        return {};
    }
    const QRect whole(0, field->y(), width(), field->height());
    return row.label ? whole.united(row.label->geometry()) : whole;
}

QWidget *FieldForm::fieldAt(const QPoint &point) const
{
    for (QWidget *field : m_order) {
        if (rowRect(field).contains(point)) {
            return field;
        }
    }
    return nullptr;
}

void FieldForm::setToolTip(QWidget *field, const QString &text)
{
    field->setToolTip(text);
    if (QLabel *label = m_rows.value(field).label) {
        label->setToolTip(text);
    }
}

bool FieldForm::check(QWidget *field, const QString &problem)
{
    const Row row = m_rows.value(field);
    if (row.note) {
        QPalette colors = row.note->palette();
        colors.setColor(QPalette::WindowText, noteColor(palette()));
        row.note->setPalette(colors);
        row.note->setText(problem);
        row.note->setVisible(!problem.isEmpty());
        QTimer::singleShot(0, this, &FieldForm::makeRoom);
    }
    return problem.isEmpty();
}

// For what is said now, where nothing scrolls.
void FieldForm::makeRoom()
{
    for (const QWidget *around = parentWidget(); around; around = around->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea *>(around)) {
            return;
        }
    }
    if (auto *dialog = qobject_cast<QDialog *>(window()); dialog && dialog->isVisible()) {
        growToContents(dialog);
    }
}

bool FieldForm::checkCoordinate(CoordinateEdit *field)
{
    const QString problem = field->problem();
    return check(field, problem.isEmpty() ? problem : tr("INVALID COORDINATE") + u'\n' + problem);
}

void FieldForm::clearNotes()
{
    for (QWidget *field : std::as_const(m_order)) {
        check(field, QString());
    }
}

QString FieldForm::note(const QWidget *field) const
{
    const Row row = m_rows.value(field);
    return row.note ? row.note->text() : QString();
}

QWidget *FieldForm::firstWithNote() const
{
    for (QWidget *field : m_order) {
        if (!note(field).isEmpty()) {
            return field;
        }
    }
    return nullptr;
}
