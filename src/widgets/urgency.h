#pragma once

#include <QString>

// How much a notice matters: for who has time to read it; for who must soon look after it; for who must not go on as if
// nothing were.
enum class Urgency { Note, Caution, Alarm };

// Colours of text and ground, as a style sheet; the same in every theme, so that nobody has to learn them anew.
QString urgencyStyle(Urgency urgency);
