#pragma once

#include "map_editor/map_editor_document.h"

#include <QWidget>

class CoordinateEdit;
class FieldForm;
class MapEditorPointPane;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QToolButton;

// What can be changed of the chosen group or element. Fields take effect when they are left.
class MapEditorElementPane final : public QWidget {
    Q_OBJECT

public:
    // The document must outlive the pane.
    explicit MapEditorElementPane(MapEditorDocument *document, QWidget *parent = nullptr);

    // An index of -1 shows the group, a group of -1 nothing. Stays with the element when its index changes because
    // others are inserted or removed.
    void setElement(const MapElementRef &ref);
    MapEditorPointPane *pointPane() const { return m_points; }

    // Takes over what stands in the fields, as leaving them does.
    void commit();
    // Gives the image element this picture, and the file's path relative to the map's folder.
    void setImageFile(const QString &file);

Q_SIGNALS:
    void refused(const QString &reason);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildForm();
    void connectFields();
    void showRows();
    void fill();
    void fillClasses();
    void fillCoordinates();
    void follow(const MapEditorChange &change);
    void commitGroup();
    void commitElement();
    void chooseImage();
    bool isGroup() const { return m_ref.group >= 0 && m_ref.index < 0; }

    MapEditorDocument *m_document;
    MapElementRef m_ref;
    bool m_filling = false;
    bool m_changing = false; // the map is being changed: commit() has to keep out of it
    FieldForm *m_form;
    QLineEdit *m_name;
    QComboBox *m_class;
    QPlainTextEdit *m_caption;
    QComboBox *m_type;
    QToolButton *m_image;
    CoordinateEdit *m_coordinate; // of a label or symbol
    CoordinateEdit *m_northwest; // corners of an image
    CoordinateEdit *m_southeast;
    MapEditorPointPane *m_points;
    QLabel *m_hint; // shown instead of the fields while nothing is chosen
};
