// The printed sheet that a keeper takes to a dealer or vet: a title, the lines of a completed log with questions,
// answers and diagnosis, and the notice at the foot. Both diagnosis windows print it, with a different title, reminder
// and blank lines.
#pragma once

#include "logic/advisers/Diagnoses.h"
#include "platform/core/PrintJob.h"

struct DiagnosisLog;

/// The log must live as long as the report.
Report MakeDiagnosisSheet(const DiagnosisLog &log, DiagnosisWindow window);
