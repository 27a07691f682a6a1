#pragma once

class Config;
class InputProposal;

// Sets processor and sensor as found. Of a sensor that is configured already what the data do not tell stays as it was:
// its name, its surveyed place, its coverage.
void applyFound(const InputProposal &found, Config *config);
