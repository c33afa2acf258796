// What every window must offer to a keeper who uses no mouse, cannot see the screen, or has arranged the desktop.
#include <algorithm>
#include <map>
#include <QClipboard>

#include "AllWindows.h"
#include "Desk.h"
#include "support/TestFiles.h"

namespace {

/// Mnemonics that two captions share and that keepers know: an option and a menu, or the same words in two groups.
const std::map<QString, QString> knownTwice = {{"frm_Fantasy", "F"}, {"frm_Schedule", "T"}, {"frm_OMKOptions", "O"}};

bool takesTab(const QWidget &control)
{
    return control.isVisible() && control.isEnabled() && (control.focusPolicy() & Qt::TabFocus) &&
           !control.focusProxy();
}

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

/// Whether this is a visible unchecked option while another one of its group is checked.
bool isNotTheOneSet(const QWidget &control)
{
    const auto *option = qobject_cast<const QRadioButton *>(&control);
    const auto siblings = control.parent()->findChildren<QRadioButton *>(Qt::FindDirectChildrenOnly);
    return option && !option->isChecked() && std::ranges::any_of(siblings, [option](const QRadioButton *other) {
               return other->isChecked() && other->group() == option->group();
           });
}

/// Checks the last option of each visible group, which Tab would reach last.
void setLastOptions(QWidget &window)
{
    for (QRadioButton *option : window.findChildren<QRadioButton *>())
        if (option->isVisible() && option->isEnabled())
            option->setChecked(true);
}

/// The options that Tab reaches although another one is checked.
QStringList wrongOptions(QWidget &window)
{
    QStringList names;
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        setLastOptions(window);
        for (int i = 0; i < 40; ++i) {
            hand::press(key);
            if (isNotTheOneSet(*QApplication::focusWidget()))
                names << QApplication::focusWidget()->objectName();
        }
    }
    return names;
}

/// The controls that Tab never reaches before it is back where it began.
QStringList unreached(QWidget &window)
{
    QStringList names;
    QMap<QWidget *, int> visits;
    for (int i = 0; i < 80 && visits[QApplication::focusWidget()] < 1; ++i) {
        ++visits[QApplication::focusWidget()];
        hand::press(Qt::Key_Tab);
    }
    for (QWidget *control : window.findChildren<QWidget *>())
        if (takesTab(*control) && visits[control] != 1)
            names << control->objectName();
    return names;
}

/// The mnemonics that two visible captions share.
QString colliding(QWidget &window)
{
    QString letters = window.isWindow() ? "" : "FVTWH", twice; // those of a child must differ from those of the menus
    for (const QWidget *control : window.findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(control);
        const QString caption =
            control->property(qobject_cast<const QGroupBox *>(control) ? "title" : "text").toString();
        const QString letter = QKeySequence::mnemonic(caption).toString().right(1);
        if (letter.isEmpty() || !control->isVisible() || (label && !label->buddy()))
            continue;
        (letters.contains(letter) ? twice : letters) += letter;
    }
    return twice;
}

void examine(QWidget &window)
{
    SCOPED_TRACE(window.objectName().toStdString());
    EXPECT_TRUE(isInFront(*window.window()));
    EXPECT_TRUE(takesTab(*QApplication::focusWidget()) && !isNotTheOneSet(*QApplication::focusWidget()))
        << QApplication::focusWidget()->objectName().toStdString() << " has the focus";
    EXPECT_EQ(nameless(window).join(u' '), "");
    auto *tabs = window.findChild<QTabWidget *>();
    QString twice;
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            tabs->setCurrentIndex(page);
        EXPECT_EQ(unreached(window).join(u' '), "") << page;
        EXPECT_EQ(wrongOptions(window).join(u' '), "") << page;
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
    for (const auto window : allWindows) {
        QWidget &shown = *window(main);
        shown.window()->activateWindow();
        examine(shown);
        Unload(shown);
    }
    keeper.inNext<frm_Caltool>([](auto &calendar) {
        examine(calendar);
        calendar.close();
    });
    Form<frm_Caltool>().ShowCalendar(0, 0);
    EXPECT_EQ(nameless(main).join(u' '), "");
}

using Keys = Desk;

TEST_F(Keys, EnterInsertAndDeleteInAListDoWhatItsButtonsDo)
{
    hand::clickTank(*logbook, "All Tanks");
    list().setFocus();
    hand::press(Qt::Key_Insert); // its button is disabled
    hand::clickTank(*logbook, "Same");
    list().setFocus();
    for (const auto &[key, way] : {std::pair(Qt::Key_Insert, Qt::Key_Return), {Qt::Key_Return, Qt::Key_Escape}}) {
        keeper.inNext<frm_WaterAddEdit>([way = way](auto &) { hand::press(way); });
        hand::press(key);
        EXPECT_TRUE(isInFront(*main));
    }
    EXPECT_EQ(keeper.count("WATERLOG"), 1);
    hand::press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 2) << "the headings and the entry";
    keeper.doors.answers = {MsgBoxAnswer::OK, MsgBoxAnswer::OK};
    hand::press(Qt::Key_Delete);
    EXPECT_EQ(keeper.count("WATERLOG"), 0);
    keeper.inNext<frm_TankMaint>([&](frm_TankMaint &tanks) {
        tanks.lst_tanklist->setFocus();
        for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_Return}) {
            keeper.inNext<frm_TankAddNew>([](auto &) { hand::press(Qt::Key_Escape); });
            hand::press(key);
            EXPECT_TRUE(isInFront(tanks)) << "Enter in the list is not the window's OK";
        }
        hand::press(Qt::Key_Delete);
        EXPECT_EQ(keeper.count("TANKLST"), 4);
        hand::press(Qt::Key_Escape);
    });
    hand::press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(keeper.doors.boxes.size(), 3U) << "two questions, and that the tank is gone";
}

TEST_F(Keys, LettersGoToARowOfEachListAndRightToItsNextCell)
{
    addEntry(WaterTab, "r1", "2026-03-01 09:30:00", "ph", "8");
    addEntry(WaterTab, "r1", "2026-11-02 09:30:00", "ph", "8");
    addEntry(WaterTab, "r1", "2026-12-03 09:30:00", "ph", "8");
    hand::clickTank(*logbook, "Reef"); // shows them
    for (const char *names : {"NAMESSW.TXT", "NAMESFW.TXT"})
        writeFile(names, QByteArray("Tang").leftJustified(60) + "\n" + QByteArray("Cowfish").leftJustified(60) + '\n');
    const struct
    {
        QWidget *(*open)(frm_OMKMDIMain &);
        const char *list, *keys, *row;
        const char *cell; ///< the heading of the next cell; empty where a row has only one
    } cases[] = {
        {makeShown<frm_Waterlog>, "lstv_WaterLog", "12", "12/03/26", "ph"},
        {makeShown<frm_Waterlog>, "TreeView1", "bo", "Bowl", ""},
        {makeShown<frm_LatintoCommon>, "lstv_Names", "co", "Cowfish", "Latin Name"},
        {makeShown<frm_Conversions>, "lstv_Convert", "ga", "Gallons", "Convert To"},
        {makeShown<frm_Fantasy>, "lst_select", "tr", "Trigger", ""},
    };
    QApplication::setKeyboardInputInterval(60000);
    for (const auto &[open, list, keys, row, cell] : cases) {
        QWidget &window = *open(*main);
        window.window()->activateWindow();
        EXPECT_TRUE(isInFront(*window.window()));
        auto &view = control<QAbstractItemView>(window, list);
        for (int tab = 0; tab < 40 && !view.hasFocus(); ++tab)
            hand::press(Qt::Key_Tab);
        ASSERT_TRUE(view.hasFocus()) << list;
        hand::write(keys);
        EXPECT_TRUE(view.currentIndex().siblingAtColumn(0).data().toString().startsWith(row)) << list << ' ' << keys;
        if (*cell) {
            hand::press(Qt::Key_Right);
            EXPECT_EQ(view.model()->headerData(view.currentIndex().column(), Qt::Horizontal).toString(), cell);
        }
        if (&window != logbook)
            Unload(window);
    }
    QApplication::setKeyboardInputInterval(-1);
}

class Memory : public Desk
{
protected:
    QString arranged() const
    {
        const auto text = [](const QRect &r) {
            return QString("%1,%2 %3x%4 ").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
        };
        return text(main->geometry()) + text({QPoint(), logbook->size()}) + logbook->lstv_Livestock->columnLayout();
    }
    /// Restarts the program, and returns how the windows look.
    QString next()
    {
        keeper.restart();
        open("Reef");
        return arranged();
    }
    void arrange()
    {
        main->setGeometry(40, 30, 700, 620);
        logbook->parentWidget()->resize(500, 400);
        logbook->lstv_Livestock->setColumnWidth(1, 66);
        logbook->lstv_Livestock->horizontalHeader()->moveSection(1, 0);
    }
    void inTankList(const std::function<void(frm_TankMaint &)> &action)
    {
        keeper.inNext<frm_TankMaint>([&](frm_TankMaint &tanks) {
            action(tanks);
            tanks.close();
        });
        hand::press(Qt::Key_T, Qt::ControlModifier);
    }
};

TEST_F(Memory, BringsWindowsBackAsTheyWereLeft)
{
    const QString untouched = arranged();
    arrange();
    const QString left = arranged();
    EXPECT_NE(left, untouched);
    QSize dialog;
    inTankList([&](frm_TankMaint &tanks) { tanks.resize(dialog = tanks.size() + QSize(50, 70)); });
    main->close();
    const QSettings kept(keeper.doors.settings().fileName(), QSettings::IniFormat);
    EXPECT_EQ(kept.allKeys().filter("frm_OMKMDIMain.").join(u' '), "") << "the lists are its children's";
    EXPECT_EQ(next(), left);
    inTankList([&](frm_TankMaint &tanks) { EXPECT_EQ(tanks.size(), dialog); });
}

TEST_F(Memory, PassesOverWhatItCannotUse)
{
    const QString untouched = arranged(), file = keeper.doors.settings().fileName();
    const auto startOn = [&](const QString &key, const QString &value) {
        main->close();
        QFile::remove(file);
        keeper.doors.settings().setValue(key, value, SettingsStore::Section::Windows);
        return next();
    };
    for (const auto &[key, value] : {std::pair("frm_OMKMDIMain", "0x620+40+30"),
                                     {"frm_OMKMDIMain", "700000x620"},
                                     {"frm_OMKMDIMain", "700x620+-2147483648+30"},
                                     {"frm_Waterlog", "-5x400"},
                                     {"frm_Waterlog.lstv_Livestock", "2:66 1:96"}})
        EXPECT_EQ(startOn(key, value), untouched) << key << ' ' << value;
    EXPECT_TRUE(startOn("frm_OMKMDIMain", "700x620+5000+30").startsWith(untouched.section(' ', 0, 0) + " 700x620 "))
        << "off every screen";
    startOn("frm_OMKMDIMain", "700x620+40+30 maximized");
    EXPECT_TRUE(main->isMaximized());
}
