#pragma once

#include <QCoreApplication>
#include <QString>

// All settings as the pages of the settings window have them, with their defaults, explanations and keys.
class SettingsReference {
    Q_DECLARE_TR_FUNCTIONS(SettingsReference)

public:
    // A page of the manual, in Markdown. Needs an application with widgets. GUI thread.
    static QString page();
};
