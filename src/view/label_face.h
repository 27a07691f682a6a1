#pragma once

// Adds the face that the settings name for track labels, regular and bold, to the program's fonts, so that labels look
// the same on every machine. Once a program run; GUI thread, after the application object.
void loadLabelFace();
