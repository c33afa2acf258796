#include "store/Collation.h"

#include <algorithm>

#include <QString>
#include <sqlite3.h>

namespace {

constexpr unsigned char asciiLower(char c) { return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + 32 : c); }

constexpr bool isAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

QString folded(std::string_view text) { return QString::fromUtf8(text.data(), qsizetype(text.size())).toCaseFolded(); }

int collate(void *, int sizeA, const void *a, int sizeB, const void *b) noexcept
{
    return compareCaseBlind({static_cast<const char *>(a), std::size_t(sizeA)},
                            {static_cast<const char *>(b), std::size_t(sizeB)});
}

} // namespace

int compareCaseBlind(std::string_view a, std::string_view b)
{
    const std::size_t common = std::min(a.size(), b.size());
    std::size_t i = 0;
    for (; i < common && isAscii(a[i]) && isAscii(b[i]); ++i)
        if (const int difference = asciiLower(a[i]) - asciiLower(b[i]); difference != 0)
            return difference;
    const std::string_view restA = a.substr(i), restB = b.substr(i);
    const bool plain = restA.empty() || restB.empty();
    const int difference = plain ? int(!restA.empty()) - int(!restB.empty()) : folded(restA).compare(folded(restB));
    return difference != 0 ? difference : a.compare(b);
}

int registerCaseBlind(sqlite3 *handle)
{
    return sqlite3_create_collation_v2(handle, "CASEBLIND", SQLITE_UTF8, nullptr, collate, nullptr);
}
