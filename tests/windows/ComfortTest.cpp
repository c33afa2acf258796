// What every window must offer to a keeper who uses no mouse, cannot see the screen, or has arranged the desktop.
#include <map>

#include "AllWindows.h"
#include "Desk.h"
#include "support/TestFiles.h"

namespace {

/// Focusable controls that a screen reader has no name for.
QStringList nameless(const QWidget &window)
{
    QStringList names;
    for (QWidget *control : window.findChildren<QWidget *>())
        if (control->focusPolicy() != Qt::NoFocus && !control->focusProxy() && control->window() == window.window() &&
            QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
            names << control->objectName() + u'/' + QLatin1String(control->metaObject()->className());
    return names;
}

/// The controls that Tab does not reach before it is back, and the options that it reaches although another one of
/// their group is checked.
QStringList wrongForTab(QWidget &window)
{
    QStringList names;
    for (QRadioButton *option : window.findChildren<QRadioButton *>())
        if (option->isVisible() && option->isEnabled())
            option->setChecked(true); // at the end the last one of each group
    QSet<QWidget *> reached;
    while (!reached.contains(QApplication::focusWidget())) {
        reached << QApplication::focusWidget();
        hand::press(Qt::Key_Tab);
        const auto *option = qobject_cast<QRadioButton *>(QApplication::focusWidget());
        if (option && !option->isChecked())
            names << option->objectName();
    }
    for (QWidget *control : window.findChildren<QWidget *>())
        if (control->isVisible() && control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) &&
            !control->focusProxy() && !reached.contains(control))
            names << control->objectName();
    return names;
}

/// Mnemonics that two captions share and that keepers know: an option and a menu, or the same words in two groups.
const std::map<QString, QString> knownTwice = {{"frm_Fantasy", "F"}, {"frm_Schedule", "T"}, {"frm_OMKOptions", "O"}};

/// The mnemonics that two visible captions share.
QString colliding(const QWidget &window)
{
    QString letters = window.isWindow() ? "" : "FVTWH", twice; // those of a child must differ from those of the menus
    for (const QWidget *control : window.findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(control);
        const QVariant caption = control->property(qobject_cast<const QGroupBox *>(control) ? "title" : "text");
        const QString letter = QKeySequence::mnemonic(caption.toString()).toString().right(1);
        if (!letter.isEmpty() && control->isVisible() && (!label || label->buddy()))
            (letters.contains(letter) ? twice : letters) += letter;
    }
    return twice;
}

void examine(QWidget &window)
{
    SCOPED_TRACE(window.objectName().toStdString());
    EXPECT_TRUE(isInFront(*window.window()));
    EXPECT_EQ(nameless(window).join(u' '), "");
    auto *tabs = window.findChild<QTabWidget *>();
    QString twice;
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            tabs->setCurrentIndex(page);
        EXPECT_EQ(wrongForTab(window).join(u' '), "") << page;
        twice += colliding(window);
    }
    const auto known = knownTwice.find(window.objectName());
    EXPECT_EQ(twice, known == knownTwice.end() ? QString() : known->second);
}

} // namespace

TEST(Comfort, EveryControlHasANameAndIsReachedByKeys)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    forEachWindow(main, examine);
    EXPECT_EQ(nameless(main).join(u' '), "");
}

using Keys = Desk;

TEST_F(Keys, EnterInsertAndDeleteInAListDoWhatItsButtonsDo)
{
    hand::clickTank(*logbook, "Same");
    list().setFocus();
    for (const auto &[key, way] : {std::pair(Qt::Key_Insert, Qt::Key_Return), {Qt::Key_Return, Qt::Key_Escape}}) {
        keeper.inNext<frm_WaterAddEdit>([way = way](auto &) { hand::press(way); });
        hand::press(key);
        EXPECT_TRUE(isInFront(*main));
    }
    EXPECT_EQ(keeper.count("WATERLOG"), 1);
    keeper.doors.answers = {MsgBoxAnswer::OK};
    hand::press(Qt::Key_Delete);
    EXPECT_EQ(keeper.count("WATERLOG"), 0);
}

TEST_F(Keys, LettersGoToARowOfEachList)
{
    for (const char *moment : {"2026-03-01 09:30:00", "2026-11-02 09:30:00", "2026-12-03 09:30:00"})
        addEntry(WaterTab, "r1", moment, "ph", "8");
    hand::clickTank(*logbook, "Reef"); // shows them
    for (const char *names : {"NAMESSW.TXT", "NAMESFW.TXT"})
        writeFile(names, QByteArray("Tang").leftJustified(60) + "\n" + QByteArray("Cowfish").leftJustified(60) + '\n');
    const struct
    {
        QWidget *(*open)(frm_OMKMDIMain &);
        const char *list, *keys, *row;
    } cases[] = {
        {makeShown<frm_Waterlog>, "lstv_WaterLog", "12", "12/03/26"},
        {makeShown<frm_Waterlog>, "TreeView1", "bo", "Bowl"},
        {makeShown<frm_LatintoCommon>, "lstv_Names", "co", "Cowfish"},
        {makeShown<frm_Conversions>, "lstv_Convert", "ga", "Gallons"},
        {makeShown<frm_Fantasy>, "lst_select", "tr", "Trigger"},
    };
    QApplication::setKeyboardInputInterval(60000);
    for (const auto &[open, list, keys, row] : cases) {
        QWidget &window = *open(*main);
        EXPECT_TRUE(isInFront(*window.window()));
        auto &view = control<QAbstractItemView>(window, list);
        for (int tab = 0; tab < 40 && !view.hasFocus(); ++tab)
            hand::press(Qt::Key_Tab);
        hand::write(keys);
        EXPECT_TRUE(view.currentIndex().siblingAtColumn(0).data().toString().startsWith(row)) << list << ' ' << keys;
    }
    QApplication::setKeyboardInputInterval(-1);
}

using Memory = Desk;

TEST_F(Memory, BringsWindowsBackAsTheyWereLeftIfTheyCanBeSeenThere)
{
    const auto arranged = [this] {
        QString text;
        QDebug(&text) << main->geometry() << logbook->size() << logbook->lstv_Livestock->columnLayout();
        return text;
    };
    const auto next = [&] {
        keeper.restart();
        open("Reef");
        return arranged();
    };
    const QString untouched = arranged();
    main->setGeometry(40, 30, 700, 620);
    logbook->parentWidget()->resize(500, 400);
    logbook->lstv_Livestock->setColumnWidth(1, 66);
    logbook->lstv_Livestock->horizontalHeader()->moveSection(1, 0);
    const QString left = arranged();
    main->close();
    EXPECT_EQ(next(), left);
    const auto startOn = [&](const QString &key, const QString &value) {
        main->close();
        QFile::remove(keeper.doors.settings().fileName());
        keeper.doors.settings().setValue(key, value, SettingsStore::Section::Windows);
        return next();
    };
    for (const auto &[key, value] : {std::pair("frm_OMKMDIMain", "0x620+40+30"),
                                     {"frm_OMKMDIMain", "700000x620"},
                                     {"frm_OMKMDIMain", "700x620+-2147483648+30"},
                                     {"frm_Waterlog", "-5x400"},
                                     {"frm_Waterlog.lstv_Livestock", "2:66 1:96"}})
        EXPECT_EQ(startOn(key, value), untouched) << key << ' ' << value;
    startOn("frm_OMKMDIMain", "700x620+5000+30");
    EXPECT_TRUE(main->screen()->availableGeometry().contains(main->geometry())) << "off every screen";
}
