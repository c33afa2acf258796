// Fuzzes dates and times as someone might type or store them.
#include "Fuzzing.h"
#include "text/Dates.h"

namespace {

constexpr DateOrder orders[] = {DateOrder::MMDDYY, DateOrder::DDMMYY, DateOrder::YYMMDD};

/// In each order, a date that is shown in the user's format must be read back as the same day, typed or normalised.
void checkShownAndReadBack(const QDate &date, const QString &delimiter)
{
    const bool inWindow = date.year() <= lastTypedYear() && date.year() > lastTypedYear() - 100;
    FUZZ_REQUIRE(ReadDate(Format(date, QStringLiteral("mm/dd/yyyy"))) == date, date.toString());
    for (const DateOrder order : orders) {
        const QString shown = Format(date, MakeDatePicture(order, delimiter));
        FUZZ_REQUIRE(shown.size() == 8, shown);
        FUZZ_REQUIRE(!inWindow || ReadDate(NormalizeDateText(shown, order)) == date, shown);
        FUZZ_REQUIRE(!inWindow || ReadTypedDate(shown, order) == ReadDate(shown).value_or(date), shown);
    }
}

void checkDate(const QString &text, DateOrder order, const QString &delimiter)
{
    const auto date = ReadDate(text), typed = ReadTypedDate(text, order);
    FUZZ_REQUIRE(IsDate(text) == date.has_value() && (!date || typed == date), text);
    if (!typed)
        return;
    FUZZ_REQUIRE(typed->isValid() && typed->year() >= 100 && typed->year() <= 9999, text);
    checkShownAndReadBack(*typed, delimiter);
}

void checkTime(const QString &text)
{
    const auto time = ReadTime(text);
    FUZZ_REQUIRE(time || !IsBoxTime(text), text);
    for (const char *picture : {"hh:mm:ss am/pm", "hh:mm:ss AM/PM", "hh:mm:ss"})
        FUZZ_REQUIRE(!time || ReadTime(Format(*time, QLatin1String(picture))) == time, text);
    FUZZ_REQUIRE(!time || IsBoxTime(Format(*time, QStringLiteral("hh:mm:ss am/pm"))), text);
}

} // namespace

void fuzz(Input &input, ScriptedDoors &doors)
{
    doors.clock.setDate(QDate(1990 + 5 * input.choice(32), 6, 1));
    const QString delimiter = QStringLiteral("/-.").at(input.choice(3));
    const DateOrder order = orders[input.choice(3)];
    const QString text = input.line();
    checkDate(text, order, delimiter);
    checkTime(text);
}
