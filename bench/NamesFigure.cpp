#include "Figure.h"

#include <algorithm>
#include <fstream>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListView>

#include "common/NameFile.h"
#include "Desk.h"
#include "logbook/frm_LivesAddEdit.h"
#include "OwnProcess.h"
#include "platform/ListView.h"

namespace {

constexpr int names = 50'000;

/// Both name files, in the current directory: made-up names, in no order.
void writeNameFiles()
{
    for (const char *fileName : {"NAMESSW.TXT", "NAMESFW.TXT"}) {
        std::ofstream file(fileName);
        for (unsigned i = 0; i < names; ++i) {
            const unsigned mixed = i * 2654435761U;
            std::string common = "Fish " + std::to_string(mixed % 977) + " Kind" + std::to_string(mixed % 99991);
            common.resize(49, ' ');
            file << common << "Genus species" << i << '\n';
        }
    }
}

Sample loadInWindow(frm_LivesAddEdit &window)
{
    settle(window.lst_AnimalList);
    const std::int64_t start = nowNanoseconds();
    window.Salt_List_From_File();
    PaintWatch watch(window.lst_AnimalList->view()->viewport());
    window.lst_AnimalList->showPopup();
    watch.wait();
    const Sample sample{millisecondsSince(start)};
    window.lst_AnimalList->hidePopup(); // an open one would take the clicks of the other figures
    return sample;
}

/// The same lines read, turned about and sorted, in a plain loop.
Sample loadPlainly()
{
    const std::int64_t start = nowNanoseconds();
    std::vector<std::string> turned;
    std::ifstream file("NAMESSW.TXT");
    for (std::string line; std::getline(file, line);) {
        if (line.size() < 51 || line[0] == '!')
            continue;
        std::string name = line.substr(0, 49);
        name.erase(name.find_last_not_of(' ') + 1);
        if (const size_t blank = name.rfind(' '); blank != std::string::npos)
            name = name.substr(blank + 1) + " - " + name.substr(0, blank + 1);
        turned.push_back(std::move(name));
    }
    std::sort(turned.begin(), turned.end());
    return {millisecondsSince(start), double(turned.size())};
}

/// Common and Latin names, as the names window will show them.
class NameRows : public ListSource
{
public:
    NameRows()
    {
        ReadNameFile(
            QStringLiteral("namessw.txt"),
            [this](NameRecord record) {
                m_records.push_back({std::move(record.common), record.latin.toString()});
            },
            [](const QString &) {});
    }
    int count() const override { return int(m_records.size()); }
    QString text(int row, int column) const override
    {
        const auto &[common, latin] = m_records[size_t(row)];
        return column == 0 ? common : latin;
    }
    QString key(int) const override { return {}; }

private:
    std::vector<std::pair<QString, QString>> m_records;
};

/// The list beside ready keys, each call the other way round.
class SortAgain
{
public:
    SortAgain() : m_rows(std::make_shared<NameRows>()), m_list(std::make_unique<ListView>())
    {
        m_list->setColumns({{QStringLiteral("common"), QStringLiteral("Common Name"), false, 300},
                            {QStringLiteral("latin"), QStringLiteral("Latin Name"), false, 300}});
        m_list->setSource(m_rows);
        m_list->resize(700, 500);
        for (int row = 0; row < m_rows->count(); ++row)
            m_keys.push_back(m_rows->text(row, 0).toCaseFolded());
    }
    Sample ours()
    {
        m_list->show();
        settle(m_list.get());
        m_order = 1 - m_order;
        const std::int64_t start = nowNanoseconds();
        PaintWatch watch(m_list->viewport());
        m_list->setSort(true, 0, m_order);
        watch.wait();
        const Sample sample{millisecondsSince(start)};
        m_list->hide();
        return sample;
    }
    Sample floor()
    {
        const std::int64_t start = nowNanoseconds();
        std::vector<int> rows(m_keys.size());
        std::iota(rows.begin(), rows.end(), 0);
        const bool ascending = std::exchange(m_ascending, !m_ascending);
        std::stable_sort(rows.begin(), rows.end(), [this, ascending](int a, int b) {
            return ascending ? m_keys[size_t(a)] < m_keys[size_t(b)] : m_keys[size_t(b)] < m_keys[size_t(a)];
        });
        return {millisecondsSince(start)};
    }

private:
    std::shared_ptr<NameRows> m_rows;
    std::unique_ptr<ListView> m_list;
    std::vector<QString> m_keys;
    int m_order = 1;
    bool m_ascending = true;
};

} // namespace

Figure namesFigure()
{
    writeNameFiles();
    auto &window = Form<frm_LivesAddEdit>();
    window.show();
    return {.name = QStringLiteral("A name file of 50,000 in the list, ms"),
            .target = 5,
            .ours = [&window] { return loadInWindow(window); },
            .floor = loadPlainly};
}

Figure namesAgainFigure()
{
    const auto both = std::make_shared<SortAgain>();
    return {.name = QStringLiteral("Sorting 50,000 names again, ms"),
            .target = 3.5,
            .ours = [both] { return both->ours(); },
            .floor = [both] { return both->floor(); }};
}
