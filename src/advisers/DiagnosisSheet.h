// The sheet of questions, answers and diagnosis that a keeper takes to his dealer or vet: the lines of a completed log
// under a title, each answer set off from its question, and the notice at the foot. The windows of the diagnosis print
// it; title, reminder and blank lines differ between them.
#pragma once

#include "advisers/Diagnoses.h"
#include "platform/PrintJob.h"

struct DiagnosisLog;

/// The log must live as long as the report.
Report MakeDiagnosisSheet(const DiagnosisLog &log, DiagnosisWindow window);
