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

#include "Desk.h"
#include "OwnProcess.h"
#include "platform/controls/ListView.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/reference/frm_LatintoCommon.h"

namespace {

constexpr int names = 50'000;

/// Writes both name files into the current directory, with made-up names in no order.
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
    window.lst_AnimalList->hidePopup(); // an open list would take the clicks of the other figures
    return sample;
}

Sample loadInNames(frm_LatintoCommon &window)
{
    settle(window.lstv_Names);
    const std::int64_t start = nowNanoseconds();
    PaintWatch watch(window.lstv_Names->viewport());
    window.LoadSalt();
    watch.wait();
    return {millisecondsSince(start)};
}

/// Reads, rearranges and sorts the same lines in a plain loop.
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

/// Sorts the list of the names window, and as the floor ready keys; each call reverses the order.
class SortAgain
{
public:
    explicit SortAgain(ListView &list) : m_list(list)
    {
        for (int row = 1; row <= m_list.Count(); ++row)
            m_keys.push_back(m_list.Text(row).toCaseFolded());
    }
    Sample ours()
    {
        settle(&m_list);
        const std::int64_t start = nowNanoseconds();
        PaintWatch watch(m_list.viewport());
        SortByColumn(m_list, 1);
        watch.wait();
        return {millisecondsSince(start)};
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
    ListView &m_list;
    std::vector<QString> m_keys;
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

Figure namesWindowFigure()
{
    auto &window = Form<frm_LatintoCommon>();
    window.resize(700, 500);
    window.show();
    return {.name = QStringLiteral("The same in the names window, ms"),
            .target = 5,
            .ours = [&window] { return loadInNames(window); },
            .floor = loadPlainly};
}

Figure namesAgainFigure()
{
    const auto both = std::make_shared<SortAgain>(*Form<frm_LatintoCommon>().lstv_Names);
    return {.name = QStringLiteral("Sorting 50,000 names again, ms"),
            .target = 3.5,
            .ours = [both] { return both->ours(); },
            .floor = [both] { return both->floor(); }};
}
