#pragma once

#include <QString>

// The text without the characters that no XML document can hold (control characters, halves of surrogate pairs).
QString xmlText(const QString &text);
