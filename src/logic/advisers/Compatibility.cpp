#include "logic/advisers/Compatibility.h"

namespace {

// Also used for fresh water: its animals 40 to 50 can be asked about, but no list names them.
constexpr int lastSorted = 39;

constexpr int longestShortName = 25;

QString text(std::string_view characters)
{
    return QString::fromLatin1(characters.data(), qsizetype(characters.size()));
}

} // namespace

QStringList SelectionLines(WaterKind water)
{
    const bool salt = water == WaterKind::Salt;
    QStringList lines;
    for (int number = 1; number <= (salt ? saltAnimalCount : freshAnimalCount); ++number) {
        const AnimalRow &row = AnimalOf(water, number);
        // A saltwater name already contains a size.
        lines << text(row.AnimalName) + (salt ? QString() : QStringLiteral("        %1 in.").arg(row.TypicalSize));
    }
    return lines;
}

char CompatLetter(WaterKind water, int animal, int other)
{
    const std::string_view letters = AnimalOf(water, animal).CompatLetters;
    return other >= 1 && size_t(other) <= letters.size() ? letters[size_t(other) - 1] : '\0';
}

QString ShortName(WaterKind water, int animal)
{
    const QString name = text(AnimalOf(water, animal).AnimalName).left(longestShortName);
    return name.left(name.indexOf(QLatin1String("  ")));
}

CompatLists SortAnimals(WaterKind water, int animal)
{
    CompatLists lists;
    for (int other = 1; other <= lastSorted; ++other) {
        const QString name = text(AnimalOf(water, other).AnimalName);
        switch (CompatLetter(water, animal, other)) {
        case 'Y': lists.compatible << name; break;
        case 'M': lists.maybe << name; break;
        case 'N': lists.incompatible << name; break;
        default: break;
        }
    }
    return lists;
}
