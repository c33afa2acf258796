// The house keeps its own rules: arrows point down, and the world is reached through the doors alone.
#include <gtest/gtest.h>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {

/// Path below src/ and text of every source file.
std::map<QString, QString> houseSources()
{
    const QDir top(OMK_DATA_DIR "/../src");
    std::map<QString, QString> sources;
    for (QDirIterator it(top.path(), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        QFile file(it.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        sources[top.relativeFilePath(it.filePath())] = QString::fromUtf8(file.readAll());
    }
    EXPECT_GT(sources.size(), 80u);
    return sources;
}

} // namespace

TEST(House, KeepsItsRules)
{
    const QString below = "#include \"(?!platform|text", above = "/)[a-z]+/";
    const std::pair<const char *, QRegularExpression> forbidden[] = {
        {"^(platform|text)/", QRegularExpression(below + above)}, // arrows point down
        {"^store/", QRegularExpression(below + "|store" + above)},
        {"[.]h$", QRegularExpression("#include \"[a-z]+/frm_")}, // no header includes a window
        {"^(?!platform/(DesktopDoors|SettingsStore))",           // the world is reached through the doors
         QRegularExpression("currentDate|currentTime|QMessageBox|QFileDialog|QPrintDialog|QRandomGenerator|"
                            "QApplication::beep|\\bQSettings [a-z]")}};
    for (const auto &[path, text] : houseSources())
        for (const auto &[where, what] : forbidden)
            EXPECT_FALSE(path.contains(QRegularExpression(where)) && text.contains(what))
                << path.toStdString() << " has " << what.match(text).captured().toStdString();
}
