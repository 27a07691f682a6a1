#pragma once

#include <QString>

#include <span>

class QObject;

// Which place of the manual is about which window, pane or page of settings.
struct HelpTopic {
    const char *subject; // a class, or the name of an object
    const char *place; // as Manual has it
};

std::span<const HelpTopic> helpTopics();

// Of the object, or of the innermost around it that has one; empty when none has. What is a window of its own is not
// asked for what is behind it.
QString helpPlaceOf(const QObject *object);
