#pragma once

class QString;

// Gives the application the widget style of that name, spelled as the toolkit does; with one that it does not have,
// that of the default setting or else what the application has already.
void applyWidgetStyle(const QString &name);
