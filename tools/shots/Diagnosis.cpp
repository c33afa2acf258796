#include <QRadioButton>

#include "shots/Album.h"
#include "shots/Plays.h"
#include "windows/advisers/frm_DiagDiagnosis.h"
#include "windows/advisers/frm_DiagnosisQA.h"
#include "windows/shell/frm_OMKMDIMain.h"

/// Goes from the disclaimer to a diagnosis, photographs each page before leaving it, and prints the sheet.
void playDiagnosis(Album &album, frm_OMKMDIMain &main)
{
    const std::vector<int> answers{0, 0, 1, 0, 1};
    size_t page = 0;
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, [&] {
        auto *wizard = Forms::current().loaded<frm_DiagnosisQA>();
        if (!wizard || !wizard->isVisible())
            return;
        if (page > 0 && page <= answers.size())
            wizard->findChild<QRadioButton *>(QStringLiteral("opt_Answer_%1").arg(answers[page - 1]))->click();
        album.take(*wizard, QStringLiteral("diagnosis-%1").arg(++page));
        if (page <= answers.size() + 1)
            return wizard->cmd_Next->click();
        hand.stop();
        wizard->cmd_PrintQuestionsandAnswers->click();
        wizard->cmd_Cancel->click();
    });
    hand.start(0);
    main.mnu_ToolsDisease_Click();

    auto &alone = Form<frm_DiagDiagnosis>();
    alone.DiagnosisName = QStringLiteral("Unable to Diagnose");
    inDialog([&alone] { alone.Showdiagnosis(); },
             [&] {
                 album.take(alone, QStringLiteral("diagnosis-alone"));
                 alone.cmd_Close->click();
             });
}
