// The diagnoses with their advice, and the fixed notes around them: the disclaimer, the reminder and the notice of the
// printed sheet. Diagnoses.cpp holds them as tables of text that can be checked against a book. Used by the two
// diagnosis windows and by the printed sheet.
#pragma once

#include <array>
#include <optional>

#include <QString>

/// The two windows that show a diagnosis. Their wording differs in places.
enum class DiagnosisWindow { Wizard, OwnWindow };

/// The advice for a diagnosis, found by its exact name; nothing if there is none, as for "Open Sore". A carriage return
/// starts a new line.
std::optional<QString> AdviceOf(const QString &diagnosisName, DiagnosisWindow window);

/// Puts the advice into `message`, the last message of the whole program. If there is none, a plain box says so and
/// `message` does not change: an earlier advice, or whatever any window said last, is then shown and printed.
void TakeAdvice(QString &message, const QString &diagnosisName, DiagnosisWindow window);

/// The text before the first question. Its lines end with carriage return and line feed.
extern const char *const disclaimerText;

extern const std::array<const char *, 3> reminderLines;

/// Printed at the foot of the sheet.
extern const char *const legalNotice;
