// Answers and advice of any length on the log of a diagnosis, and its sheet.
#include "advisers/DiagnosisLog.h"
#include "advisers/DiagnosisSheet.h"
#include "Fuzzing.h"
#include "platform/Printer.h"

namespace {

constexpr qsizetype lineWidth = 80;

/// The advice stands line by line from `slot` on, as far as the log goes; a last single character gets no line.
void checkAdvice(const DiagnosisLog &log, int slot, const QString &advice)
{
    qsizetype at = 0;
    for (; at + 1 < advice.size() && slot < DiagnosisLog::slotCount; ++slot) {
        const QString line = log.AnswerLog[std::size_t(slot)];
        FUZZ_REQUIRE(!line.isEmpty() && line.size() <= lineWidth, line);
        FUZZ_REQUIRE(line == QStringView(advice).mid(at, line.size()), line);
        at += line.size();
        FUZZ_REQUIRE(at >= advice.size() || advice[at] == u' ' || line.size() == lineWidth, line);
    }
}

QString letters(const QString &text)
{
    QString kept = text;
    return kept.removeIf([](QChar c) { return c.isSpace(); });
}

/// Every letter of the log stands on the sheet, in order and within the width of the page.
void checkSheet(const DiagnosisLog &log, DiagnosisWindow window)
{
    std::vector<PrintedDocument> documents;
    RecordedPages pages(documents);
    Printer page(pages, {});
    MakeDiagnosisSheet(log, window).print(page);
    FUZZ_REQUIRE(documents.size() == 1 && documents[0].ended, QString::number(documents.size()));
    QString printed, wanted;
    for (const PrintedPage &made : documents[0].pages)
        for (const PrintedText &text : made.texts) {
            FUZZ_REQUIRE(text.x >= -0.5 && text.right <= page.ScaleWidth() + 0.5, text.text);
            printed += letters(text.text);
        }
    for (int slot = 2; slot <= log.AnswerLogCount; ++slot)
        wanted += letters(log.AnswerLog[std::size_t(slot)]);
    FUZZ_REQUIRE(printed.contains(wanted), printed + u" has not " + wanted);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const int answers = input.choice(70);
    const bool vast = input.choice(256) == 1; // more lines than 16 bits count
    const QString name = input.line(), question = input.line(), answer = input.line(), line = input.line();
    const QString advice = vast ? line.repeated(3'000'000 / (line.size() + 1)) : line;
    DiagnosisLog log;
    log.ResetAnswerLog();
    for (int run = 0; run < 2; ++run) { // the second without a reset, as a wizard that goes on
        for (int i = 0; i < answers; ++i)
            log.AddAnswer(question, answer);
        const int slot = log.AnswerLogCount;
        log.AddDiagnosis(name, advice);
        FUZZ_REQUIRE(log.AnswerLogCount == DiagnosisLog::lastSlot, QString::number(log.AnswerLogCount));
        if (slot + 2 < DiagnosisLog::slotCount)
            FUZZ_REQUIRE(log.AnswerLog[std::size_t(slot + 2)] == u"DIAGNOSIS: " + name, name);
        checkAdvice(log, slot + 4, advice);
        for (const DiagnosisWindow window : {DiagnosisWindow::Wizard, DiagnosisWindow::OwnWindow})
            checkSheet(log, window);
    }
    return 0;
}
