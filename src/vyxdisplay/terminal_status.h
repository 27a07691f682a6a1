#pragma once

#include "control/status_json.h"

class InputHealth;
class InputSession;

// What session and health tell of the input; the rest is left as it was.
void describeInput(const InputSession &session, const InputHealth &health, TerminalStatus &status);
