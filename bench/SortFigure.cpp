#include "Figure.h"

#include <algorithm>
#include <memory>
#include <numeric>
#include <vector>

#include <QHeaderView>
#include <QScrollBar>

#include "Desk.h"
#include "OwnProcess.h"
#include "platform/controls/ListView.h"

namespace {

/// Makes case-folded keys of ready texts and sorts row numbers by them. Each call reverses the order, as the list's
/// header does.
class FoldAndSort
{
public:
    explicit FoldAndSort(std::vector<QString> texts) : m_texts(std::move(texts)) {}

    Sample operator()()
    {
        const bool ascending = std::exchange(m_ascending, !m_ascending);
        const std::int64_t start = nowNanoseconds();
        std::vector<QString> keys;
        keys.reserve(m_texts.size());
        for (const QString &text : m_texts)
            keys.push_back(text.toCaseFolded());
        std::vector<int> rows(keys.size());
        std::iota(rows.begin(), rows.end(), 0);
        std::stable_sort(rows.begin(), rows.end(), [&keys, ascending](int a, int b) {
            return ascending ? keys[size_t(a)] < keys[size_t(b)] : keys[size_t(b)] < keys[size_t(a)];
        });
        return {millisecondsSince(start)};
    }

private:
    std::vector<QString> m_texts;
    bool m_ascending = true;
};

Sample clickHeader(ListView &list, int column)
{
    list.horizontalScrollBar()->setValue(list.horizontalScrollBar()->maximum());
    settle(&list);
    QHeaderView *header = list.horizontalHeader();
    const QPoint place(header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
    const std::int64_t start = nowNanoseconds();
    press(header->viewport(), place);
    PaintWatch watch(list.viewport()); // from here on, because the release sorts
    release(header->viewport(), place);
    watch.wait();
    return {millisecondsSince(start)};
}

} // namespace

Figure sortFigure(Desk &desk)
{
    ListView &list = desk.waterList();
    const int comments = list.columnCount() - 1;
    std::vector<QString> texts;
    for (int row = 1; row <= list.Count(); ++row)
        texts.push_back(list.Text(row, comments));
    return {.name = QStringLiteral("Sorting them by Comments, ms"),
            .target = 2,
            .ours =
                [&desk, &list, comments] {
                    desk.openFirstTank(); // a list that is sorted already would only be reversed
                    return clickHeader(list, comments);
                },
            .floor = FoldAndSort(std::move(texts))};
}
