#pragma once

#include <QString>

// Why a record is malformed, as the decoding libraries and TakenReport::fault say it in English, in the operator's
// language; as it is where no translation is known.
QString faultText(const QString &fault);
