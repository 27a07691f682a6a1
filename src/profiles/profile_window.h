#pragma once

#include "widgets/geometry_dialog.h"

class FieldForm;
class QComboBox;
class QString;

// Asks for a profile, one that there is or a new one.
class ProfileWindow final : public GeometryDialog {
    Q_OBJECT

public:
    explicit ProfileWindow(QWidget *parent = nullptr);

    void accept() override;

    // Starts this program once more with the profile; it outlives this one. False when it cannot be started.
    static bool startProgram(const QString &profile);

Q_SIGNALS:
    // A name that is possible, of another profile than this program's.
    void profileChosen(const QString &name);

private:
    QString problem(const QString &name) const;

    FieldForm *m_form;
    QComboBox *m_name;
};
