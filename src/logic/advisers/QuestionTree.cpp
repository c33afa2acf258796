#include "logic/advisers/QuestionTree.h"

#include <algorithm>
#include <iterator>

namespace {

using enum QuestionPage;

// One block per page: its name, the question, and the answers in the order in which they are offered. Each answer is
// followed by its target: a name without quotation marks is the next page, a name in quotation marks a diagnosis
// (Diagnoses.cpp holds the advice). \" is a quotation mark within a text. Keepers know the wording and spelling, so
// they must not change.
constexpr Question questions[] = {
    {Question_Disclaimer, "", {}},
    {Question_StartingPoint,
     "Look at the animal's body shape and condition, as well as the condition of it's fins.",
     {
         {"The fish's body shape is fine, it's fins seem OK also.", Question_Behavior},
         {"The body shape is normal, but it's FINS are not.", Question_Fins},
         {"The fish's body is swollen, or has localized swelling", Question_Swelling},
         {"The fish's anus is swollen, and white slimy feces trail.", "Diarrhoea"},
         {"The fish's eye(s) are swollen and protrude from their socket.", "Popeye"},
         {"The fish is emaciated, and has poor color.", Question_Eating},
     }},
    {Question_Behavior,
     "How would you characterize the fish's behavior?",
     {
         {"The fish seems to be swimming and eating normally.", Question_Breathing},
         {"Swimming is erratic, fish does not eat, dashes constantly, bumps into walls.",
          "Possible poisoning or stress"},
         {"The fish cannot seem to control it's position in the water.", "Swim Bladder problem"},
         {"Fish hides, does not come out to eat, stays in one small area.", "Bullying or Failure to Acclimate"},
     }},
    {Question_Breathing,
     "Look closely at the animal's breathing and swimming. Does it appear to be normal?",
     {
         {"The fish seems to be breathing and swimming normally.", Question_RedMarks},
         {"The fish is swimming normally, but breathing is rapid. Mouth is held open.", Question_WhiteSpots},
     }},
    {Question_RedMarks,
     "Look closely at the fish's skin and fins. Do you see any red marks, streaks, or open wounds?",
     {
         {"No. There are no red marks, streaks, wounds, or open sores.", Question_WhitePatches},
         {"There ARE red marks or streaks, but no open wounds or sores.", Question_LateralLineDisease},
         {"There are OPEN red wounds or sores on the fish.", "Open Sore"},
         {"There are red wound(s) with WHITE fuzz covering them", "Fungus"},
     }},
    {Question_WhiteSpots,
     "Can you see any white spots, specks, patches, or areas visible on the fish's fins or body?",
     {
         {"No. There are no white spots or patches visible.", Question_GillFlukes},
         {"There are TINY white spots visible on the fish.", "ICK or other parasite"},
         {"There are larger white PATCHES visible.", Question_WhitePatches},
     }},
    {Question_WhitePatches,
     "Do you see any new or unusual white-colored patches (flat or fuzzy) anywhere on the fish?",
     {
         {"No. There are no new or unusual white areas on the fish.", Question_Eating},
         {"There is one or more FUZZY white patches on the fish", "Fungus"},
         {"There is one or more FLAT white patches on the fish", "Chilodonella"},
     }},
    {Question_GillFlukes,
     "Look closely at the animal's gills and gill covers. Can you see anything small or \"thread-like\" "
     "hanging onto or trailing from them?",
     {
         {"Yes, there are small \"threads\" hanging onto or out of the gills.", "Gill Flukes"},
         {"No, I cannot see anything like that.", "ICK or other parasite"},
     }},
    {Question_LateralLineDisease,
     "Is there redness or open holes along the fish's \"Lateral Line\"?  (the \"Lateral Line\" starts at the "
     "head and extends along the back of the fish, and ends at the tail.)",
     {
         {"Yes, the \"Lateral Line\" looks red or open", "Lateral Line Disease"},
         {"No, the \"Lateral Line\" looks normal", "Bacterial Infection"},
     }},
    {Question_Fins,
     "Describe the fish's fins. Are any of the fins ragged, torn, red, or misshapen?",
     {
         {"Edges of fins are ragged, and look torn and \"fringed\".", "Fin Rot"},
         {"The BASE of the (where it meets the body) is RED and looks sore.", "Bacterial Infection"},
         {"Fin has one or several clean-edged pieces missing.", "Fin Nipping"},
         {"A side or tail fin has a long split.", "Fin Nipping"},
     }},
    {Question_Swelling,
     "Can you describe how the swellings look?",
     {
         {"The entire fish is swollen. Scales are raised.", "Dropsy"},
         {"The fish has one or more swollen area(s) WITHOUT raised scales.", "Bacterial Infection"},
         {"The fish has \"cauliflower\"-looking lumps.", "Lymphocyctis"},
     }},
    {Question_Eating,
     "Is the fish eating regularly and normally?",
     {
         {"Yes, the fish is eating regularly.", "Unable to Diagnose"},
         {"The fish WAS eating actively, but is not now. ", "Loss of Appetite"},
         {"The fish has never eaten regularly since it was acquired.", "Failure to Acclimate"},
     }},
};

constexpr bool inOrder()
{
    for (size_t i = 0; i < std::size(questions); ++i)
        if (questions[i].page != static_cast<QuestionPage>(i))
            return false;
    return true;
}
static_assert(std::size(questions) == questionPageCount && inOrder());

} // namespace

int Question::answerCount() const
{
    return static_cast<int>(std::ranges::count_if(answers, [](const Answer &answer) { return answer.text; }));
}

const Question &QuestionOf(QuestionPage page) { return questions[static_cast<size_t>(page)]; }

std::optional<LeadsTo> FollowAnswer(QuestionPage page, const QString &answerIndex)
{
    if (page == Question_Disclaimer)
        return answerIndex == startedOver ? std::nullopt : std::optional<LeadsTo>(Question_StartingPoint);
    const Question &question = QuestionOf(page);
    for (int i = 0; i < question.answerCount(); ++i)
        if (answerIndex == QString::number(i))
            return question.answers[i].leadsTo;
    return {};
}
