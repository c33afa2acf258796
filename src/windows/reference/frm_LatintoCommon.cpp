#include "windows/reference/frm_LatintoCommon.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QStatusBar>

#include "logic/common/NameFile.h"
#include "platform/controls/HourGlass.h"
#include "platform/controls/Icons.h"
#include "platform/controls/ListView.h"
#include "platform/controls/Progress.h"
#include "platform/core/Doors.h"
#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"

namespace {

// Both texts say "freshwater names" near the end, and only the saltwater text continues after the address.
const QString saltMissing =
    QStringLiteral("The file containing the saltwater names (NAMESSW.TXT) is missing or not in the correct format. You "
                   "will not be able to view freshwater names. Contact Velmoor via email or download the file from the "
                   "Velmoor Website at %1 to obtain a copy of the file.");
const QString freshMissing =
    QStringLiteral("The file containing the freshwater names (NAMESFW.TXT) is missing or not in the correct format. "
                   "You will not be able to view freshwater names. Contact Velmoor via email or download the file from "
                   "the Velmoor Website at %1");

/// The records of a name file.
class NameRows : public ListSource
{
public:
    void add(NameRecord record) { m_rows.push_back({std::move(record.common), record.latin.toString()}); }
    int count() const override { return int(m_rows.size()); }
    QString text(int row, int column) const override
    {
        const auto &[common, latin] = m_rows[size_t(row)];
        return column == 0 ? common : latin;
    }
    QString key(int) const override { return {}; }

private:
    std::vector<std::pair<QString, QString>> m_rows;
};

} // namespace

frm_LatintoCommon::frm_LatintoCommon(const FormContext &context) : ChildForm(context)
{
    setWindowTitle(QStringLiteral("Common and Latin Names Reference"));
    setWindowIcon(Icon("commonnames"));
    makeControls();
    auto *waters = new QHBoxLayout(Frame1);
    waters->addWidget(opt_Freshwater);
    waters->addWidget(opt_Salt);
    waters->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(8, 4, 8, 0);
    column->addWidget(Frame1);
    column->addWidget(lstv_Names, 1);
    column->addWidget(StatusBar1);
    beginWith(lstv_Names);
    resize(560, 520);
}

void frm_LatintoCommon::makeControls()
{
    const auto makeOption = [this](const char *name, const char *caption, void (frm_LatintoCommon::*click)()) {
        auto *option = new QRadioButton(QLatin1String(caption));
        option->setObjectName(QLatin1String(name));
        connect(option, &QRadioButton::toggled, this, guarded([this, click](bool chosen) {
                    if (chosen)
                        (this->*click)();
                }));
        return option;
    };
    Frame1 = new QGroupBox(QStringLiteral("Water Type"));
    Frame1->setObjectName(QStringLiteral("Frame1"));
    opt_Freshwater = makeOption("opt_Freshwater", "Freshwater", &frm_LatintoCommon::opt_Freshwater_Click);
    opt_Salt = makeOption("opt_Salt", "Saltwater and Reef", &frm_LatintoCommon::opt_Salt_Click);

    lstv_Names = new ListView;
    lstv_Names->setObjectName(QStringLiteral("lstv_Names"));
    lstv_Names->setAccessibleName(QStringLiteral("Names"));
    lstv_Names->setColumns({{QStringLiteral("common"), QStringLiteral("Common Name"), false, 250},
                            {QStringLiteral("latin"), QStringLiteral("Latin Name"), false, 250}});
    lstv_Names->horizontalHeader()->setStretchLastSection(true);
    connect(lstv_Names, &ListView::ColumnClick, this, guarded([this](int index) { lstv_Names_ColumnClick(index); }));

    StatusBar1 = new QStatusBar;
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));
    StatusBar1->setSizeGripEnabled(false);
    m_panel = new QLabel;
    m_panel->setObjectName(QStringLiteral("StatusBar1_1"));
    StatusBar1->addWidget(m_panel, 1);
}

void frm_LatintoCommon::Form_Load()
{
    lstv_Names->setSort(true, 0, 0);
    opt_Salt->setChecked(true); // this loads the list
}

void frm_LatintoCommon::Form_Activate()
{
    lstv_Names->setToolTip(QStringLiteral("Click column headings to sort"));
    SetListViewStyle(*lstv_Names);
}

void frm_LatintoCommon::tell(const QString &progress) { ShowProgress(*m_panel, progress); }

void frm_LatintoCommon::LoadSalt() { load(QStringLiteral("namessw.txt"), saltMissing); }

void frm_LatintoCommon::LoadFresh() { load(nameFileLookedFor, freshMissing); }

void frm_LatintoCommon::load(const QString &fileName, const QString &whereItFails)
{
    const HourGlass wait;
    tell(QStringLiteral("Loading..."));
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    lstv_Names->Clear();
    const auto rows = std::make_shared<NameRows>();
    bool read = !FindFile(nameFileLookedFor).isEmpty();
    try {
        if (read)
            ReadNameFile(
                fileName, [&rows](NameRecord record) { rows->add(std::move(record)); },
                [this](const QString &progress) { tell(progress); });
    } catch (const RuntimeFailure &) {
        read = false;
    }
    lstv_Names->setSource(rows);
    lstv_Names->setSort(lstv_Names->Sorted(), lstv_Names->SortKey(), lstv_Names->SortOrder());
    if (!read) {
        MsgBox(whereItFails.arg(makersAddress), vbExclamation, namesNotFoundTitle);
        return;
    }
    tell(QStringLiteral("%1 names loaded.").arg(rows->count()));
    if (rows->count() > 0)
        lstv_Names->Select(1);
}

void frm_LatintoCommon::lstv_Names_ColumnClick(int index)
{
    const HourGlass wait;
    SortByColumn(*lstv_Names, index);
}
