#pragma once

#include "ui/main_window.h"

#include <functional>

// Goes through every window of the program, and through every page of each, as far as they can be opened without an
// answer from somebody: a picture of radar traffic stands behind them, and no input of theirs is changed.
class WindowTour {
public:
    // The name is one for each stop: window, then page. Only one window is open at a time besides the main window.
    using Visit = std::function<void(const QString &name, QWidget *window)>;

    // The window has been shown; its input is open and receives at the port.
    WindowTour(MainWindow &window, quint16 port) : m_window(window), m_port(port) { }

    // Traffic until there are tracks. False when none come.
    bool fillScope();
    void run(const Visit &visit);
    // What could not be opened, in words.
    const QStringList &problems() const { return m_problems; }

private:
    void visitMainWindow();
    void visitMenus();
    void visitActions();
    void visitDialogsOfDialogs();
    void visitDialog(const QString &name, QWidget *dialog);
    void visitPages(const QString &name, QWidget *window);
    void visitStops(const QString &name, QWidget *window);

    MainWindow &m_window;
    quint16 m_port;
    Visit m_visit;
    QStringList m_problems;
};
