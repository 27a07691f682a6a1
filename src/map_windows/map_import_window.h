#pragma once

#include "map_import/map_import.h"
#include "widgets/geometry_dialog.h"

#include <functional>

class FieldForm;
class FileEdit;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QSpinBox;

// Asks how a file in a foreign format becomes a map. Every field may stay as it is: the return key imports at once.
class MapImportWindow final : public GeometryDialog {
    Q_OBJECT

public:
    struct Proposals {
        QString folder; // of the target; what is entered without a folder is there too
        QStringList classes; // of the style sheet
    };

    MapImportWindow(const QString &source, const Proposals &proposals, QWidget *parent = nullptr);

    // Absolute; a binary map when no suffix was entered.
    QString target() const;
    MapImport::Options options() const;

    // Stays open with a note when the target cannot be used, and when one that exists is not to be replaced.
    void accept() override;
    // Replaces the question whether to replace the target; true replaces it.
    void setReplaceQuestion(std::function<bool(const QString &file)> question);

Q_SIGNALS:
    void importRequested(const QString &target, const MapImport::Options &options);

private:
    void makeFields(const Proposals &proposals);
    void addMeaningRows();
    void addContentRows();
    void addButtons();
    QString targetProblem() const;
    bool askToReplace(const QString &file);

    QString m_source;
    QString m_folder;
    std::function<bool(const QString &file)> m_replaceQuestion;
    FieldForm *m_form = nullptr;
    FileEdit *m_target = nullptr;
    QComboBox *m_class = nullptr;
    QLineEdit *m_nameProperties = nullptr;
    QLineEdit *m_captionProperties = nullptr;
    QComboBox *m_symbol = nullptr;
    QLineEdit *m_layers = nullptr;
    QSpinBox *m_epsg = nullptr;
    QDoubleSpinBox *m_tolerance = nullptr;
    QCheckBox *m_symbols = nullptr;
    QCheckBox *m_labels = nullptr;
    QCheckBox *m_areas = nullptr;
    QCheckBox *m_airspaces = nullptr;
};
