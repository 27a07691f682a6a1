#pragma once

#include "widgets/geometry_dialog.h"

#include <QStringList>

#include <functional>

class FieldForm;
class QCheckBox;
class QLineEdit;

// Asks for the name under which the view is to be kept.
class LayoutSaveWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // The names that there are already.
    explicit LayoutSaveWindow(const QStringList &names, QWidget *parent = nullptr);

    void setName(const QString &name);
    // Stays open with a note when the name cannot be used, and when one that exists is not to be replaced.
    void accept() override;

    // Replaces the question whether to replace the layout of this name; true replaces it.
    void setReplaceQuestion(std::function<bool(const QString &name)> question);

Q_SIGNALS:
    void layoutNamed(const QString &name, bool makeCurrent);

private:
    QString problem(const QString &name) const;
    bool askToReplace(const QString &name);

    QStringList m_names;
    std::function<bool(const QString &name)> m_replaceQuestion;
    FieldForm *m_form = nullptr;
    QLineEdit *m_name = nullptr;
    QCheckBox *m_makeCurrent = nullptr;
};
