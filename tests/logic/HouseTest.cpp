// The house keeps its own rules: arrows point down, and the world is reached through the doors alone.
#include <gtest/gtest.h>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {

/// Path below src/ and text of every source file.
std::vector<std::pair<QString, QString>> houseSources()
{
    const QDir top(OMK_DATA_DIR "/../src");
    std::vector<std::pair<QString, QString>> sources;
    for (QDirIterator it(top.path(), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        QFile file(it.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        sources.emplace_back(top.relativeFilePath(it.filePath()), QString::fromUtf8(file.readAll()));
    }
    EXPECT_GT(sources.size(), 80u);
    return sources;
}

} // namespace

TEST(House, NoFolderIncludesWhatStandsAboveItAndNoHeaderAWindow)
{
    const std::map<QString, QStringList> mayInclude{
        {"platform", {"platform", "text"}}, {"text", {"text", "platform"}}, {"store", {"store", "text", "platform"}}};
    const QRegularExpression include("#include \"([a-z]+)/"), window("#include \"[a-z]+/frm_");
    for (const auto &[path, text] : houseSources()) {
        EXPECT_FALSE(path.endsWith(".h") && text.contains(window)) << path.toStdString();
        const auto rule = mayInclude.find(path.section('/', 0, 0));
        for (auto it = include.globalMatch(text); rule != mayInclude.end() && it.hasNext();) {
            const QString folder = it.next().captured(1);
            EXPECT_TRUE(rule->second.contains(folder)) << path.toStdString() << " includes " << folder.toStdString();
        }
    }
}

TEST(House, TheWorldIsReachedThroughTheDoorsAlone)
{
    const QRegularExpression world("currentDate|currentTime|QMessageBox|QFileDialog|QPrintDialog|QRandomGenerator|"
                                   "QApplication::beep|\\bQSettings [a-z]");
    for (const auto &[path, text] : houseSources())
        if (!path.startsWith("platform/DesktopDoors") && !path.startsWith("platform/SettingsStore")) {
            EXPECT_FALSE(text.contains(world)) << path.toStdString();
        }
}
