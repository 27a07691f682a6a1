#pragma once

#include <QWidget>

class Config;
class FieldForm;

// One page of the settings window. A page owns the fields of its keys and touches no other key of a record.
class ConfigPage : public QWidget {
    Q_OBJECT

public:
    ConfigPage(const QString &title, QWidget *parent = nullptr);

    const QString &title() const { return m_title; }
    FieldForm *form() const { return m_form; }

    virtual void load(const Config &config) = 0;
    // Notes beside the fields what is wrong; true when nothing is.
    virtual bool validate() = 0;
    // Only after a successful validate().
    virtual void store(Config *config) const = 0;

private:
    QString m_title;
    FieldForm *m_form = nullptr;
};
