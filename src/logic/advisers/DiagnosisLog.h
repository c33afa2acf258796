// The answers of one run through the questions, line by line, as they are printed for a dealer or vet. A run starts
// with ResetAnswerLog and adds two lines per answer; the diagnosis completes it with the advice and room for comments.
// A completed log always ends at slot 60. It is part of Globals; the diagnosis windows write it and DiagnosisSheet
// prints it.
#pragma once

#include <array>

#include <QString>

struct DiagnosisLog
{
    static constexpr int slotCount = 101; ///< 0 to 100
    static constexpr int lastSlot = 60;   ///< AnswerLogCount of a completed log

    std::array<QString, slotCount> AnswerLog;
    qint16 AnswerLogCount = 0; ///< the slot for the next line

    void ResetAnswerLog();
    void AddAnswer(const QString &question, const QString &answer);
    /// Adds the advice and the room for comments.
    void AddDiagnosis(const QString &name, const QString &advice);

private:
    void put(const QString &line);
    void putAdvice(const QString &advice);
};
