#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

#include "platform/chart/Chart.h"
#include "shots/Album.h"
#include "shots/Plays.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/shell/frm_OMKMDIMain.h"
#include "windows/shell/frm_OMKOptions.h"

void playGraph(Album &album, frm_OMKMDIMain &main, Globals &globals)
{
    main.mnu_ToolsGraphing_Click();
    auto &graph = Form<frm_WaterGraph>();
    album.take(graph, QStringLiteral("graph"));
    graph.parentWidget()->resize(560, 440);
    auto &options = Form<frm_OMKOptions>();
    options.Get_Initial_Properties(); // fills the lists in the window and sets the options
    globals.options.GraphChecks = QStringLiteral("1111110110100");
    const QComboBox &styles = *options.cbo_GraphType;
    QWidget sheet;
    auto *grid = new QGridLayout(&sheet);
    for (int i = 0; i < styles.count(); ++i) {
        globals.options.GraphStyle = qint16(styles.itemData(i).toInt());
        graph.GraphChart();
        graph.Chart1->setTitleText(styles.itemText(i));
        QCoreApplication::processEvents();
        auto *picture = new QLabel;
        picture->setPixmap(graph.Chart1->grab());
        grid->addWidget(picture, i / 3, i % 3);
    }
    sheet.adjustSize();
    album.take(sheet, QStringLiteral("graph-styles"));
    globals.options.GraphStyle = 3; // lines
    graph.GraphChart();
    main.mnu_FilePrint_Click();
    graph.close();
}
