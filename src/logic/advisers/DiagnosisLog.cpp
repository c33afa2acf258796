#include "logic/advisers/DiagnosisLog.h"

#include <algorithm>

namespace {

constexpr qsizetype lineWidth = 80; // characters
constexpr int commentLines = 10;

} // namespace

void DiagnosisLog::ResetAnswerLog()
{
    AnswerLog.fill({});
    // This is never printed, because a sheet starts at slot 2 and has its own title.
    AnswerLog[1] = QStringLiteral(" Ostrelmark for Windows - Marine Disease Diagnosis Aid");
    AnswerLogCount = 3;
}

void DiagnosisLog::put(const QString &line)
{
    // A second run on the same log could exceed its end. Nothing after slot 60 is printed.
    if (AnswerLogCount < slotCount)
        AnswerLog[static_cast<size_t>(AnswerLogCount)] = line;
}

void DiagnosisLog::AddAnswer(const QString &question, const QString &answer)
{
    put(u"Q: " + question);
    ++AnswerLogCount;
    put(u"  A:" + answer);
    ++AnswerLogCount;
}

void DiagnosisLog::putAdvice(const QString &advice)
{
    // A line ends before a blank, which starts the next line. A single last character gets no line. A text from another
    // window may contain a word that is longer than a line, which is cut, and may itself be too long for the log; then
    // the rest is left out.
    for (qsizetype at = 0; at + 1 < advice.size() && AnswerLogCount < slotCount;) {
        qsizetype width = lineWidth;
        while (width > 0 && at + width < advice.size() && advice.at(at + width) != u' ')
            --width;
        if (width == 0)
            width = std::min(lineWidth, advice.size() - at);
        ++AnswerLogCount;
        put(advice.mid(at, width));
        at += width;
    }
}

void DiagnosisLog::AddDiagnosis(const QString &name, const QString &advice)
{
    AnswerLogCount += 2;
    put(u"DIAGNOSIS: " + name);
    ++AnswerLogCount;
    putAdvice(advice);
    AnswerLogCount += 4;
    put(u"Dealer or Vet's Comments " + QString(59, u'_'));
    for (int i = 0; i < commentLines && AnswerLogCount < lastSlot; ++i) {
        ++AnswerLogCount;
        put(QString(84, u'_'));
    }
    AnswerLogCount = lastSlot;
}
