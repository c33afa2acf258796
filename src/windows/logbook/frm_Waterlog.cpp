#include "windows/logbook/frm_Waterlog.h"

#include <QApplication>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/controls/EmptyText.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "platform/controls/ListKeys.h"
#include "platform/controls/WindowSize.h"
#include "windows/shell/MenuEntry.h"

namespace {

using Command = void (frm_Waterlog::*)();

struct ButtonRow
{
    const char *key;
    const char *toolTip;
    Command command;
    bool groupBefore;
};

constexpr ButtonRow buttonRows[] = {
    {"addentries", "Add New Entry", &frm_Waterlog::Add_Entries, false},
    {"changeentries", "Change an existing entry", &frm_Waterlog::Change_Entries, false},
    {"deleteentries", "Delete Entry", &frm_Waterlog::Delete_Entries, false},
    {"moveentries", "Move Livestock to Another Tank", &frm_Waterlog::Move_Entries, true},
    {"printentries", "Print Log Entries", &frm_Waterlog::Print_Entries, true},
    {"graphentries", "View Graph of Entries", &frm_Waterlog::Graph_Entries, false},
    {"refresh", "Refresh", &frm_Waterlog::Refresh_Treeview, true},
};

QStatusBar *makeStatusBar(const QString &name)
{
    auto *bar = new QStatusBar;
    bar->setObjectName(name);
    bar->setSizeGripEnabled(false);
    return bar;
}

} // namespace

frm_Waterlog::frm_Waterlog(const FormContext &context) : ChildForm(context)
{
    setWindowTitle(QStringLiteral("Logbook"));
    setWindowIcon(Icon("testlog"));
    makeToolbar();
    makeTree();
    makeLists();
    sb_ListviewCaption = makeStatusBar(QStringLiteral("sb_ListviewCaption"));
    StatusBar1 = makeStatusBar(QStringLiteral("StatusBar1"));

    auto *splitter = new QSplitter;
    splitter->setObjectName(QStringLiteral("sp_splitter"));
    splitter->addWidget(TreeView1);
    splitter->addWidget(tab_logtype);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({qRound(190 * FontScale(font())), qRound(700 * FontScale(font()))});

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(4, 0, 4, 0);
    column->setSpacing(2);
    column->addWidget(Toolbar1);
    column->addWidget(sb_ListviewCaption);
    column->addWidget(splitter, 1);
    column->addWidget(StatusBar1);
    beginWith(TreeView1);
    resize(940, 560);
}

void frm_Waterlog::makeToolbar()
{
    Toolbar1 = new QToolBar;
    Toolbar1->setObjectName(QStringLiteral("Toolbar1"));
    Toolbar1->setIconSize(QSize(24, 24));
    for (const ButtonRow &row : buttonRows) {
        if (row.groupBefore)
            Toolbar1->addSeparator();
        auto *button = AddToolButton(*Toolbar1, QLatin1String(row.key), QLatin1String(row.toolTip), row.key,
                                     [this, command = row.command] { (this->*command)(); });
        m_buttons.emplace(QLatin1String(row.key), button);
    }
}

void frm_Waterlog::makeTree()
{
    TreeView1 = new QTreeWidget;
    TreeView1->setObjectName(QStringLiteral("TreeView1"));
    TreeView1->setAccessibleName(QStringLiteral("Tanks"));
    TreeView1->setHeaderHidden(true);
    TreeView1->setUniformRowHeights(true);
    TreeView1->setMinimumWidth(110);
    TreeView1->setContextMenuPolicy(Qt::CustomContextMenu);
    // A node can be chosen by mouse or keys, and a click on the chosen node reloads its list. A click that chooses a
    // node must not load the list twice.
    connect(TreeView1, &QTreeWidget::currentItemChanged, this, guarded([this] {
                m_nodeJustChanged = QApplication::mouseButtons() != Qt::NoButton;
                TreeView1_NodeClick();
            }));
    connect(TreeView1, &QTreeWidget::itemClicked, this, guarded([this] {
                if (!std::exchange(m_nodeJustChanged, false))
                    TreeView1_NodeClick();
            }));
    connect(TreeView1, &QTreeWidget::customContextMenuRequested, this, guarded([this](const QPoint &position) {
                m_nodeJustChanged = false;
                TreeView1_MouseUp(TreeView1->viewport()->mapToGlobal(position));
            }));
    OnListKey(*TreeView1, Qt::Key_Insert, button(QStringLiteral("addentries"))); // for a tank chosen by keys
}

void frm_Waterlog::makeLists()
{
    tab_logtype = new QTabWidget;
    tab_logtype->setObjectName(QStringLiteral("tab_logtype"));
    for (const Log &log : logs) {
        const LogKind &kind = KindOf(log.tab);
        auto *list = this->*log.list = new ListView;
        list->setObjectName(QLatin1String(kind.list.name));
        list->setAccessibleName(QLatin1String(kind.caption));
        std::vector<ListColumn> columns;
        for (const LogColumn &column : kind.list.columns)
            columns.push_back({QLatin1String(column.key), QLatin1String(column.heading), column.right, column.width});
        list->setColumns(columns);
        m_empty[log.tab] = new EmptyText(*list);
        tab_logtype->addTab(list, Icon(kind.list.image), QLatin1String(kind.caption));
        connectList(*list, log.tab);
    }
    on(tab_logtype, &QTabWidget::currentChanged, this, &frm_Waterlog::tab_logtype_Click);
    QTabBar *bar = tab_logtype->tabBar();
    bar->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(bar, &QTabBar::customContextMenuRequested, this, guarded([this, bar](const QPoint &position) {
                list_MouseUp(Qt::RightButton, bar->mapToGlobal(position));
            }));
}

void frm_Waterlog::connectList(ListView &list, LogTab tab)
{
    connect(&list, &ListView::ColumnClick, this, guarded([this, &list](int index) { ColumnClick(list, index); }));
    on(&list, &ListView::DblClick, this, &frm_Waterlog::Change_Entries);
    OnListKey(list, Qt::Key_Delete, button(QStringLiteral("deleteentries")));
    OnListKey(list, Qt::Key_Insert, button(QStringLiteral("addentries")));
    connect(&list, &ListView::MouseUp, this,
            guarded([this](Qt::MouseButton button, const QPoint &position) { list_MouseUp(button, position); }));
    if (tab != LivestockTab) // the livestock list has no handler for clicks
        on(&list, &ListView::Click, this, &frm_Waterlog::list_Click);
}

void frm_Waterlog::Form_Load() { FirstActivation = true; }

LogTab frm_Waterlog::tab() const { return LogTab(tab_logtype->currentIndex()); }

bool frm_Waterlog::isTankSelected() const
{
    const QTreeWidgetItem *node = TreeView1->currentItem();
    return node && node->text(0).toUpper() != u"ALL TANKS";
}

frm_Waterlog::Tank frm_Waterlog::takeTankInHand()
{
    const QTreeWidgetItem *node = TreeView1->currentItem();
    if (!node)
        return {}; // before the first activation
    g.gTankName = node->text(0);
    g.gTankId = node->data(0, Qt::UserRole).toString();
    return {g.gTankId, g.gTankName};
}
