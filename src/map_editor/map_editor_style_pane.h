#pragma once

#include "map_editor/map_editor_document.h"

#include <QWidget>

class ColorButton;
class FieldForm;
class MapStylePreview;
class QComboBox;
class QFontComboBox;
class QListWidget;
class QPushButton;
class QSpinBox;

// The classes of the style sheet, and how the chosen one looks. Every change takes effect at once.
class MapEditorStylePane final : public QWidget {
    Q_OBJECT

public:
    // The document must outlive the pane.
    explicit MapEditorStylePane(MapEditorDocument *document, QWidget *parent = nullptr);

    QString currentClass() const;
    // Does nothing when the sheet has no such class.
    void selectClass(const QString &name);
    // Takes the looks of the chosen class for a beginning. False when the name is empty or taken.
    bool addClass(const QString &name);
    void removeCurrentClass();
    // Of the plan view.
    void setGround(const QColor &color);

private:
    void buildForm();
    void connectFields();
    QWidget *buttonRow();
    void askForClass();
    void fillList();
    void fill();
    void follow(const QString &name);
    MapStyleClass entered() const;
    void commit();
    void commitStep(const QSpinBox *box);
    void commitRun(quint64 run);

    MapEditorDocument *m_document;
    bool m_filling = false;
    const QSpinBox *m_steps = nullptr; // whose value was changed last, and is still being changed
    quint64 m_run = 0; // of such changes
    QListWidget *m_list;
    MapStylePreview *m_preview;
    FieldForm *m_form;
    QPushButton *m_remove = nullptr;
    ColorButton *m_color;
    ColorButton *m_penColor;
    QComboBox *m_line;
    QSpinBox *m_width;
    ColorButton *m_brushColor;
    QComboBox *m_pattern;
    QFontComboBox *m_family;
    QSpinBox *m_size;
};
