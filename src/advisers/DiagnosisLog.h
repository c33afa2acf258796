// The answers of one run through the questions, line by line, as they will be printed for a dealer or vet. A run begins
// with ResetAnswerLog, adds two lines an answer, and is completed by the diagnosis: advice, room for comments. It
// always ends at slot 60. Lives in Globals; the windows of the diagnosis write it, DiagnosisSheet prints it.
#pragma once

#include <array>

#include <QString>

struct DiagnosisLog
{
    static constexpr int slotCount = 101; ///< 0 to 100
    static constexpr int lastSlot = 60;   ///< of a completed log

    std::array<QString, slotCount> AnswerLog;
    qint16 AnswerLogCount = 0; ///< the slot that the next line goes into

    void ResetAnswerLog();
    void AddAnswer(const QString &question, const QString &answer);
    /// Completes the log.
    void AddDiagnosis(const QString &name, const QString &advice);

private:
    void put(const QString &line);
    void putAdvice(const QString &advice);
};
