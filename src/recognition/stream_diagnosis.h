#pragma once

#include "recognition/diagnosis_remark.h"

struct RecordingFindings;
struct StreamFindings;

// Of a whole stream, its sources included. The contents come first.
Diagnosis diagnose(const StreamFindings &stream);
// The same for a recording, with what is wrong with its file.
Diagnosis diagnose(const RecordingFindings &recording);
