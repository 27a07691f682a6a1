#pragma once

#include "app/config.h"
#include "widgets/geometry_dialog.h"

class EngineHost;
class InputConfigPage;
class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class SensorConfigPage;
class SensorManager;
class WelcomePage;

#include <functional>

// From nothing to a picture: the demonstration, a recording, or a live input in two steps, each filled in with what was
// found. Nothing is applied before the end; Esc leaves everything as it was. GUI thread.
class FirstStartGuide final : public GeometryDialog {
    Q_OBJECT

public:
    // The user's own settings, at any time.
    using Settings = std::function<Config()>;

    // Engine and sensors must outlive the guide.
    FirstStartGuide(Settings settings, SensorManager *sensors, EngineHost *engine, QWidget *parent = nullptr);

    // One of the themes there are, to be chosen unless the operator chooses another one.
    void preselectTheme(const QString &name);
    // The program's input runs: what arrives is told by it, and where it comes from cannot be changed.
    void setInputRunning(bool running);

Q_SIGNALS:
    // The theme that is to be taken goes before each of them.
    void themeChosen(const QString &name);
    void demoWanted();
    void recordingWanted();
    // The way to a live input begins: what is shown in its place should end.
    void liveWanted();
    // All that was entered and found, with the theme.
    void settingsEntered(const Config &settings);

private:
    enum Step { Welcome, Input, Sensor };

    void makeButtons();
    void connectWelcome();
    QWidget *makeStep(const QString &heading, QWidget *note, QWidget *page);
    void goTo(Step step);
    void goBack();
    void advance();
    void enterSensor();
    void finish();
    void showProblem(const QString &problem);

    Settings m_settings;
    Config m_entered; // as far as it has come
    QStackedWidget *m_steps;
    WelcomePage *m_welcome;
    InputConfigPage *m_input;
    SensorConfigPage *m_sensor;
    QLabel *m_found; // what the sensor's fields are filled in from
    QLabel *m_problem;
    QPushButton *m_back = nullptr;
    QPushButton *m_next = nullptr;
};
