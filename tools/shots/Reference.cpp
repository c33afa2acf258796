#include <QFile>
#include <QLineEdit>

#include "shots/Album.h"
#include "shots/Plays.h"
#include "windows/reference/frm_Conversions.h"
#include "windows/reference/frm_LatintoCommon.h"
#include "windows/shell/frm_OMKMDIMain.h"

void playReference(Album &album, frm_OMKMDIMain &main)
{
    for (const QString &file : {QStringLiteral("NAMESSW.TXT"), QStringLiteral("NAMESFW.TXT")})
        QFile::copy(QStringLiteral(OMK_DATA_DIR "/") + file, file);
    main.mnu_ToolsCommonNames_Click();
    album.take(Form<frm_LatintoCommon>(), QStringLiteral("names"));
    main.mnu_ToolsConversions_Click();
    auto &calculator = Form<frm_Conversions>();
    calculator.txt_FromValue->setText(QStringLiteral("55"));
    calculator.cmd_Convert->click();
    album.take(calculator, QStringLiteral("conversions"));
    calculator.txt_FromValue->setText(QStringLiteral("55 gallons"));
    calculator.cmd_Convert->click();
}
