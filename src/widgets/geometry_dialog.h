#pragma once

#include <QDialog>
#include <QString>

// A dialog that comes back where, and as large as, it was when it was last open. Each dialog keeps its geometry in the
// window state under a group of its own.
class GeometryDialog : public QDialog {
    Q_OBJECT

public:
    explicit GeometryDialog(const QString &stateGroup, QWidget *parent = nullptr);
    ~GeometryDialog() override;

    void setVisible(bool visible) override;

protected:
    const QString &stateGroup() const { return m_stateGroup; }

private:
    QString m_stateGroup;
    bool m_restored = false;
};
