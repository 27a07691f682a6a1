#pragma once

#include "recognition/diagnosis_remark.h"
#include "recognition/stream_findings.h"

// What the settings that a stream is read with make of it. Empty where they suit it.
Diagnosis diagnoseSettings(const StreamFindings &stream, const Config &config);
