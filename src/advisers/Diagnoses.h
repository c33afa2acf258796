// The diagnoses with their advice, and the fixed notes around them: the disclaimer, the reminder and the notice of the
// printed sheet. All of it is tables of text in Diagnoses.cpp, to be checked against a book; the two windows of the
// diagnosis and the sheet read them here.
#pragma once

#include <array>
#include <optional>

#include <QString>

/// The two windows that show a diagnosis. Their words differ in places.
enum class DiagnosisWindow { Wizard, OwnWindow };

/// The advice of a diagnosis, by its exact name; nothing where there is none, as for "Open Sore". A carriage return in
/// it begins a new line.
std::optional<QString> AdviceOf(const QString &diagnosisName, DiagnosisWindow window);

/// Puts the advice into `message`, the last message of the whole program. Where there is none a plain box says so, and
/// `message` stays as it stood: what is then shown and printed is an earlier advice, or what any window said last.
void TakeAdvice(QString &message, const QString &diagnosisName, DiagnosisWindow window);

/// What a keeper reads before the first question; its lines end with carriage return and line feed.
extern const char *const disclaimerText;

extern const std::array<const char *, 3> reminderLines;

/// At the foot of the sheet.
extern const char *const legalNotice;
