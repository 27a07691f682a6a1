#pragma once

#include "recognition/diagnosis_remark.h"
#include "recognition/stream_findings.h"

// Of what one source sends: editions, blocks that cannot be decoded, categories without a table. Empty where there is
// nothing to say but what describe() says.
Diagnosis diagnose(const SourceFindings &source);

// Whether the other edition would do as well as the best one, for all that can be seen.
bool doesAsWell(const EditionFindings &best, const EditionFindings &other);
// How each edition of the category suited, in a sentence.
QString editionEvidence(const CategoryFindings &category);
