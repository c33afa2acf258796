#include "logic/advisers/Diagnoses.h"

#include <algorithm>

#include "platform/core/Doors.h"

namespace {

struct Diagnosis
{
    const char *name;
    const char *advice;
};

#define SUPPORT_ADDRESS "support@velmoor.example"

// One block for each diagnosis: its name, as in the answers of QuestionTree.cpp, and its advice. \" is a quotation mark
// within a text, and \r starts a new line. "Open Sore" is missing on purpose: it has no advice, and the windows say so.
// Keepers know the wording and spelling, including blanks at either end, so they must not change.
constexpr Diagnosis diagnoses[] = {
    {"Dropsy",
     "Your fish probably has a disease called \"DROPSY\" which is often caused by a bacterial infection. While "
     "some Anti-biotics may be effective, chosing the right one can be difficult. Consult your Veterinarian if "
     "possible, or check with your EXPERIENCED fish dealer. "},

    {"Popeye",
     "Your fish probably has a condition called \"POP EYE\" which is usually a reaction to some sort of stress "
     "- (i.e. poor water conditions, high ammonia, nitrite, or nitrate levels). While some Anti-biotics or "
     "Tetracycline (T.C.) can be effective, they may not always work. The best solution is probably to improve "
     "water conditions. Although \"Pop Eye\" looks pretty nasty, the animals generally act normally, and don't "
     "seem to be overly affected by it. Left untreated, however, the animal may go blind in that eye(s) or the "
     "eye may burst leading to a more serious infection. Always check with a veterinarian or an EXPERIENCED "
     "fish dealer before beginning any medicinal treatment."},

    {"Diarrhoea",
     "Your fish probably has \"DIARRHOEA\" which is usually caused by poor diet, improperly prepared or rotten "
     "food. In cases where the fish is new, (or new to you), this may have happened in the holding or shipping "
     "process. Feeding foods higher in roughage like shimp may help. Thankfully, this disease is seldom fatal. "
     "Check with a veterinarian, or an EXPERIENCED fish dealer for advice and recommendations on feeding."},

    {"Fin Rot",
     "Your fish probably has a condition called \"FIN-ROT\", a bacterial infection that is usually (but not "
     "always) associated with poor water conditions. In tanks where water conditions are poor, a partial water "
     "change should be implemented when possible. This can  be followed by one of the many anti-biotic "
     "treatments available."},

    {"Bacterial Infection",
     "Your fish probably has some sort of BACTERIAL INFECTION. These infections are often (but not always) "
     "associated with poor water conditions. Bacterial infections often look red, sometimes with swelling, and "
     "may be present along with other ailments, including parasites and/or fungus. In tanks where water "
     "conditions are poor, a partial water change should be implemented when possible. This can  be followed "
     "by one of the many antibiotic treatments available. You may need a parasite remedy as well. Always "
     "consult with a veterinarian or an EXPERIENCED fish dealer before beginning medical treatment."},

    {"Lymphocyctis",
     "Your fish may have a form of \"LYMPHOCYCTIS\" which is a viral infection which causes the "
     "\"cauliflower\" looking lumps you see. Unfortunately viral infections are difficult both to diagnose "
     "accurately and to cure. Check for poor water conditions, and do a water change if necessary. Consult "
     "your veterinarian if possible, or check with your EXPERIENCED fish dealer for more advice. "},

    {"Fin Nipping",
     "It sounds like your fish's fin may have been nipped by a tankmate, or may have been damaged in shipping "
     "or handling particularly if the fish is new. The damage will USUALLY heal by itself, provided water "
     "quality is good, AND the animal is not being harassed by other animals. Keep a close eye on the animal "
     "for signs of \"Fin-rot\" or secondary infections. Watch for more serious signals of compatibility "
     "problems (i.e. constant chasing, hiding, not eating, etc.) Be prepared to remove the animal, if it "
     "becomes necessary. Consult with a veterinarian or an EXPERIENCED fish dealer for more advice."},

    {"Unable to Diagnose",
     "Unfortunately, your problem seems to be outside the capabilities of Ostrelmark! Remember, this program "
     "is only designed to help diagnose some of the more common marine fish diseases. It is not, and is not "
     "intended to be a complete reference source. However, there are some things you can do! Go through the "
     "questions again, maybe there's something you missed. Take a good close look at your animals - then look "
     "again. Get a good comprehensive book, check with your vet, dealer, or other aquarists! Get on the "
     "Internet and check out the DOZENS (maybe hundreds) of fish oriented sites. Email us at Velmoor "
     "(" SUPPORT_ADDRESS
     ")! All of these sources are guaranteed to help! GUARANTEED! But remember, no software package "
     "can EVER replace your two eyes and a good reference source! GOOD LUCK! "},

    {"Loss of Appetite",
     "Not eating, unfortunately, can be a symptom of many things, or sometimes no disease at all. Loss of "
     "appetite can signal compatibility problems, harassment or even boredom or ageing. It can occur with "
     "other symptoms or alone. Look carefully for other symptoms. Try different foods, live if possible, "
     "particularly with a new animal. If the animal is eating, but still gets thinner, it may may have an "
     "internal fungus which can be very tough to cure. It's also possible, if the animal is new, that it may "
     "have been captured using cyanide, which, sadly, can destroy a fish's stomach lining, preventing the "
     "animal from digesting and literally starving it to death. NEVER SUPPORT A DEALER WHO YOU SUSPECT HANDLES "
     "DRUGGED FISH! For more advice, consult your veterinarian or check with your EXPERIENCED fish dealer."},

    {"Failure to Acclimate",
     "If a fish will not eat for you - ask yourself \"Am I sure I saw it eat at the dealers before I purchased "
     "it?\" If the answer to this is \"No\", it's possible the animal will never acclimate to captivity. Many "
     "fish adapt readily to the change of diet that captivity brings, some must be eased in slowly using a "
     "variety of different foods, live if possible. Some fish never make the adjustment, or adjust but later "
     "die of malnutrition because an element of their natural diet is missing like sponge for Angelfish, or "
     "parasites for cleaner wrasses. It's also possible that the fish may have been captured using cyanide, "
     "which, sadly, can destroy a fish's stomach lining, preventing the animal from digesting. NEVER SUPPORT "
     "ANY DEALER WHO YOU SUSPECT HANDLES DRUGGED FISH! For more advice, consult your veterinarian or check "
     "with your EXPERIENCED fish dealer."},

    {"Bullying or Failure to Acclimate",
     "While some fish are fairly secretive and \"loners\" by nature, a fish that will not emerge - even to eat "
     "- is usually being \"bullied\" by another animal, or has failed to acclimate to your particular "
     "aquarium. You may want to consider removing the animal that's harassing this new fish. Re-introducing it "
     "at a later time will make the \"old\" animal the \"new\" fish in town, and the two may adjust to one "
     "another better at that time. You may also want to vary the animal's diet - add live food if possible. "
     "Another common suggestion is to re-arrange the aquariums decorations and rocks so that established "
     "territories are removed and all of the fish are starting over. Other aquarists use clear flow-thru "
     "dividers so the animals can see, but not harass, one another. For other suggestions, check with an "
     "EXPERIENCED fish dealer."},

    {"Possible poisoning or stress",
     "Dashing and erratic swimming is often caused by some type of poisoning entering the aquarium. Often this "
     "can be from the unintentional introduction of smoke, paint fumes, chemicals, pesticides, or some other "
     "foreign material. Chemical filtration like activated carbon may help, as may water changes. The animal "
     "could also be stressed to the point of panic - particularly if the animal is a new introduction. Check "
     "with your Experienced dealer for ideas or advice."},

    {"Swim Bladder problem",
     "Your fish probably has some type of \"Swim Bladder\" problem. The swim bladder is used to help the fish "
     "control its postion in the water. Swim Bladder problems are often caused by a rapid drop in water "
     "temperature called \"chilling\", but can also come from physical damage to the animal. Isolating the "
     "fish to prevent bullying, and medicated foods may help. Consult your EXPERIENCED fish dealer or "
     "veterinarian for advice."},

    {"Fungus",
     "  Your fish probably has a white \"cotton-like\" FUNGUS which may have taken over an existing open sore "
     "or bacterial infection. This condition is often aggrevated in tanks which are overfed and/or "
     "over-stocked. In tanks where water conditions are poor, a partial water change followed by one of the "
     "anti-fungus treatments on the market may be effective. \r"
     "   Beware, however, that some anti-fungals MAY damage the tank's ammonia/nitrite/nitrate processing "
     "bacteria. If water conditions are not a problem, the fungus can be wiped away with cotton.  the open "
     "wound can be swabbed with iodine or mercurochrome(2%). \r"
     "   Always check with a Veterinarian or an EXPERIENCED fish dealer before beginning any medicinal "
     "treatment. "},

    {"ICK or other parasite",
     "  Your fish probably has 1 of several types of common parasite infections. These parasites are small "
     "white spots which latch onto the fish and weaken it. Generally, these spots are first noticible on the "
     "tail and fins. These parasites gradually spread to the body and, most dangerously, to the gills, which "
     "causes labored breathing, and eventually death. The parasites will often weaken and infect other "
     "tankmates, so it important that treatment begin as soon as the problem is noticed. Probably the most "
     "common parasite, commonly known as \"ICK\", is present in almost every tank, sick or healthy. Healthy "
     "\"Non-stressed\" fish are usually imune. However if a fish is stressed due to a temperature change, "
     "illness, rough handling shipping, or poor water conditions, the disease can attack.   Other possibile "
     "parasites include \"OODINIUM\" or \"Coral Fish Disease\", and \"Gill Flukes\", which can be cured "
     "similiarly. In addition to the other obvious signs, look for fish which scratch themselves against rocks "
     "or gravel, as this is often one of the first noticible signs of this type of infection. Keep an eye open "
     "for heavy, rapid, or labored breathing also. All of these parasitic infections usually respond to "
     "copper-based treatments, but beware, COPPER IS DEADLY TO INVERTS! If caught early enough, Malachite "
     "green may also be effective. In addition to medicinal remedies, a fresh water bath can be effective. "
     "Remember, though, the stress of netting and rapid changes in water temperature or condition may only "
     "aggrevate the stress level, worsening the condition. Proceed Carefully.   Always check with a "
     "Veterinarian or an EXPERIENCED fish dealer before beginning any medicinal treatment."},

    {"Chilodonella",
     "Your fish may have a parasite infection called \"CHILODONELLA\" which appears as flat (not fuzzy) white "
     "cloudy area, often on the top side of the fish, obscuring the coloration. It left untreated, it can "
     "spread to the gills causing breathing difficulties and death. Treatment with copper or other "
     "anti-parasite remedies can be effective. This parasite needs a \"host fish\" to survive and reproduce, "
     "so removing all fish from the tank for about 5 days will remove the parasite from a community tank. You "
     "will still need to treat the original diseased fish. Always check with a veterinarian or an EXPERIENCED "
     "fish dealer before beginning any medicinal treatment."},

    {"Gill Flukes",
     "Your fish probably is probably infected with an infestation of \"GILL FLUKES\". These small parasites "
     "attach themselves to the animal's gills and feed on the oxygen-rich blood contained there. They may be "
     "appear as small red threads trailing from the gills, although they are not always externally visible. A "
     "fresh-water dip is a good start to ridding your animal(s) of this pest. Also, a copper or copper-based "
     "treatment may also be effective. Also be sure to remove the animal to a quarentine or hospital tank so "
     "the infestation is not spread. Always check with a Veterinarian or an EXPERIENCED fish dealer before "
     "beginning any medical treatment."},

    {"Lateral Line Disease",
     "Your fish may have a condition called \"LATERAL LINE DISEASE\" which is an inflamation of the lateral "
     "line - a line of nerve endings which runs from the eye of the fish, along the back, to the tail. It "
     "seems to be particularly common in Tangs/Surgeonfish. It has been attributed to both a vitamin "
     "deficiency and, more recently, to a condition called \"induced voltages\", where stray voltages from "
     "tank equipment enter into the tank water. You can test for this by connecting a voltmeter measuring "
     "low-volt A/C between the tank water and a ground source. You can correct the situation by grounding the "
     "tank with a STAINLESS STEEL or Titanium probe, connected to a ground source. Some fishkeepers have "
     "reported almost over-night recovery simply by grounding their tanks. However not all cases respond so "
     "quickly. As always - check with a qualified veterinarian or your EXPERIENCED fish retailer for more "
     "information. "},

};

// The separate diagnosis window words "Unable to Diagnose" differently: passages of the advice above, and their
// replacements.
constexpr struct
{
    const char *wizard, *ownWindow;
} passages[] = {
    {"Take a good close look at your animals - then look again.",
     "Take a good close look at your animals.  look again."},
    {"Get on the Internet and check out the DOZENS (maybe hundreds) of fish oriented sites.",
     "Get on the Internet and check out a few of the dozens (hundreds maybe) of fish-related Web sites."},
};

} // namespace

std::optional<QString> AdviceOf(const QString &diagnosisName, DiagnosisWindow window)
{
    const auto *found = std::ranges::find_if(
        diagnoses, [&](const Diagnosis &diagnosis) { return diagnosisName == QLatin1String(diagnosis.name); });
    if (found == std::end(diagnoses))
        return {};
    QString advice = QLatin1String(found->advice);
    if (window == DiagnosisWindow::OwnWindow)
        for (const auto &passage : passages)
            advice.replace(QLatin1String(passage.wizard), QLatin1String(passage.ownWindow));
    return advice;
}

void TakeAdvice(QString &message, const QString &diagnosisName, DiagnosisWindow window)
{
    if (const auto advice = AdviceOf(diagnosisName, window))
        message = *advice;
    else
        MsgBox(QStringLiteral("no diagnosis defined"));
}

const char *const disclaimerText = "REMINDER: This program is only a tool to help you \r\n"
                                   "determine POSSIBLE CAUSES of disease in your \r\n"
                                   "animals - it is by no means\r\n"
                                   "complete or totally comprehensive, and is NOT intended \r\n"
                                   "to replace the advice of your Venerinarian or \r\n"
                                   "experienced dealer. \r\n"
                                   "ALWAYS consult with an EXPERIENCED DEALER or \r\n"
                                   "veterinarian before medicating your aquarium or animals.\r\n";

const std::array<const char *, 3> reminderLines{
    "REMINDER: This program is only a tool to help you determine POSSIBLE CAUSES of disease in your animals - it is by "
    "no means",
    "complete or totally comprehensive, and is NOT intended to replace the advice of your Venerinarian or experienced "
    "dealer.",
    "ALWAYS consult with an EXPERIENCED DEALER or veterinarian before medicating your aquarium or animals.",
};

const char *const legalNotice =
    "Ostrelmark 98, Version 2.0. Free software under the GNU General Public License, version 3 or later.";
