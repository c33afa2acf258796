// The questions about a sick fish: twelve pages, each with the answers that a keeper chooses from, and where each
// answer leads, to another page or to the name of a diagnosis. The tree is a table in QuestionTree.cpp, to be checked
// against a book; here is how it is walked. frm_DiagnosisQA shows its pages.
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
constexpr int mostAnswers = 6; ///< of any page

/// Where an answer leads: to a page, or to the name of a diagnosis.
using LeadsTo = std::variant<QuestionPage, const char *>;

struct Answer
{
    const char *text = nullptr; ///< null behind the last answer of a page
    LeadsTo leadsTo;
};

struct Question
{
    QuestionPage page;
    const char *text; ///< empty on the disclaimer's page, which asks nothing
    Answer answers[mostAnswers];

    /// 0 to 6.
    int answerCount() const;
};

const Question &QuestionOf(QuestionPage page);

/// What AnswerIndex holds after Start Over; no answer has that number.
inline const QString startedOver = QStringLiteral("99");

/// Where a page goes on to: `answerIndex` is the number of the answer chosen, as text. Nowhere where it is none of the
/// page's; the disclaimer's page alone goes on by anything but Start Over.
std::optional<LeadsTo> FollowAnswer(QuestionPage page, const QString &answerIndex);
