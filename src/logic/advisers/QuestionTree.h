// The questions about a sick fish: twelve pages with the possible answers, each of which leads to another page or to a
// diagnosis. QuestionTree.cpp holds the tree as a table that can be checked against a book. frm_DiagnosisQA shows the
// pages.
#pragma once

#include <optional>
#include <variant>

#include <QString>

enum class QuestionPage {
    Question_Disclaimer,
    Question_StartingPoint,
    Question_Behavior,
    Question_Breathing,
    Question_RedMarks,
    Question_WhiteSpots,
    Question_WhitePatches,
    Question_GillFlukes,
    Question_LateralLineDisease,
    Question_Fins,
    Question_Swelling,
    Question_Eating,
};
constexpr int questionPageCount = 12;
constexpr int mostAnswers = 6; ///< the most that a page has

/// The target of an answer: a page, or the name of a diagnosis.
using LeadsTo = std::variant<QuestionPage, const char *>;

struct Answer
{
    const char *text = nullptr; ///< null after the last answer of a page
    LeadsTo leadsTo;
};

struct Question
{
    QuestionPage page;
    const char *text; ///< empty on the disclaimer's page, which has no question
    Answer answers[mostAnswers];

    /// 0 to 6.
    int answerCount() const;
};

const Question &QuestionOf(QuestionPage page);

/// The value of AnswerIndex after Start Over. No answer has this number.
inline const QString startedOver = QStringLiteral("99");

/// The page or diagnosis that follows. `answerIndex` is the number of the chosen answer, as text; nothing follows if
/// the page has no such answer. From the disclaimer's page everything but Start Over continues.
std::optional<LeadsTo> FollowAnswer(QuestionPage page, const QString &answerIndex);
