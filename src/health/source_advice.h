#pragma once

struct JudgementBasis;
struct SourceJudgement;
struct SourceStatistics;

namespace SourceAdvice {

// Says in one or two sentences what is the matter with a source whose light, trouble and reason are known, and what
// cures it.
void advise(const SourceStatistics &source, const JudgementBasis &basis, SourceJudgement &judgement);

} // namespace SourceAdvice
