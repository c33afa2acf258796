// Dates and times as somebody might type or store them, and any picture.
#include "Fuzzing.h"
#include "text/Dates.h"

namespace {

const QString orders[] = {QStringLiteral("MMDDYY"), QStringLiteral("DDMMYY"), QStringLiteral("YYMMDD")};

void checkNormalizer(const QString &text, const QString &order)
{
    const QString normal = NormalizeDateText(text, order);
    if (std::find(std::begin(orders), std::end(orders), order) == std::end(orders))
        FUZZ_REQUIRE(normal.isEmpty(), order);
    else
        FUZZ_REQUIRE(NormalizeDateText(normal, orders[0]) == normal || text.size() < 8, normal);
}

/// A date shown with the user's picture and read back is the same day, typed or normalised, in each order.
void checkShownAndReadBack(const QDate &date, const QString &delimiter)
{
    const bool inWindow = date.year() <= lastTypedYear() && date.year() > lastTypedYear() - 100;
    FUZZ_REQUIRE(ReadDate(Format(date, QStringLiteral("mm/dd/yyyy"))) == date, date.toString());
    for (const QString &order : orders) {
        const QString shown = Format(date, MakeDatePicture(order, delimiter));
        FUZZ_REQUIRE(shown.size() == 8, shown);
        if (!inWindow)
            continue;
        FUZZ_REQUIRE(ReadDate(NormalizeDateText(shown, order)) == date, shown);
        FUZZ_REQUIRE(ReadTypedDate(shown, order) == ReadDate(shown).value_or(date), shown);
    }
}

void checkDate(const QString &text, const QString &order, const QString &delimiter)
{
    const auto date = ReadDate(text);
    FUZZ_REQUIRE(IsDate(text) == date.has_value(), text);
    const auto typed = ReadTypedDate(text, order);
    FUZZ_REQUIRE(!date || typed == date, text);
    if (!typed)
        return;
    FUZZ_REQUIRE(typed->isValid() && typed->year() >= 100 && typed->year() <= 9999, text);
    checkShownAndReadBack(*typed, delimiter);
}

void checkTime(const QString &text)
{
    const auto time = ReadTime(text);
    FUZZ_REQUIRE(time || !IsBoxTime(text), text);
    if (!time)
        return;
    for (const QString &picture :
         {QStringLiteral("hh:mm:ss am/pm"), QStringLiteral("hh:mm:ss AM/PM"), QStringLiteral("hh:mm:ss")})
        FUZZ_REQUIRE(ReadTime(Format(*time, picture)) == time, text);
    FUZZ_REQUIRE(IsBoxTime(Format(*time, QStringLiteral("hh:mm:ss am/pm"))), text);
}

/// What is no placeholder stands as it is, and a placeholder shows "Wednesday" at most.
void checkPicture(const QString &picture)
{
    const QDate date(2003, 9, 24);
    const QTime time(20, 5, 7);
    const auto has = [&](const char *letters) {
        return std::any_of(picture.begin(), picture.end(),
                           [&](QChar c) { return QLatin1String(letters).contains(c, Qt::CaseInsensitive); });
    };
    FUZZ_REQUIRE(has("mdy") || Format(date, picture) == picture, picture);
    FUZZ_REQUIRE(has("hmsa") || Format(time, picture) == picture, picture);
    FUZZ_REQUIRE(Format(date, picture).size() <= picture.size() * 9, picture);
    FUZZ_REQUIRE(Format(time, picture).size() <= picture.size() * 2, picture);
    FUZZ_REQUIRE(Format(QDate(), picture).isEmpty() && Format(QTime(), picture).isEmpty(), picture);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    fuzzDoors().clock.setDate(QDate(1990 + 5 * input.choice(32), 6, 1));
    const QString delimiter = QStringLiteral("/-.").at(input.choice(3));
    const QString order = orders[input.choice(3)];
    const QString text = input.line(), picture = input.line();
    checkDate(text, order, delimiter);
    checkNormalizer(text, order);
    checkNormalizer(text, picture);
    checkTime(text);
    checkPicture(picture);
    return 0;
}
