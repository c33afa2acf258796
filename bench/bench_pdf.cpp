// bench_pdf FOLDER ENTRIES [bare]: writes the water log of a tank with that many entries to a PDF in the folder, as
// "Print Report to a File" does. With "bare", a QPainter draws the same texts at the same places on a QPdfWriter;
// collecting them is not measured. Reports the time, scaled to 10,000 entries, and the largest amount of memory used.
#include <fstream>
#include <string>

#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include "logic/logbook/LogReports.h"
#include "OwnProcess.h"
#include "platform/core/Printer.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/DesktopDoors.h"
#include "platform/desktop/PaintedPages.h"
#include "SampleData.h"
#include "store/Database.h"
#include "store/NewDatabase.h"

namespace {

constexpr double reported = 10'000;
constexpr std::size_t mostOfEntry = 20; ///< texts and lines, with the share of the headings

long mostKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes)
            return kilobytes;
    }
    return 0;
}

/// Answers the dialog that asks for the name of the file.
class NamedFile : public DesktopDoors
{
public:
    explicit NamedFile(QString name) : m_name(std::move(name)) {}
    std::optional<QString> saveDialog(const SaveDialogRequest &) override { return m_name; }

private:
    QString m_name;
};

struct Drawing
{
    enum { Text, Line, Page } what;
    QPointF from;
    QPointF to = {};
    int font = -1;
    QString text = {};
};

void layOut(QPdfWriter &writer)
{
    writer.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, usualMargins, QPageLayout::Millimeter));
    writer.setResolution(usualResolution);
}

/// Collects what a report draws, measured as a PDF measures it.
class Collected : public PageSink
{
public:
    /// Freeing a large block, as a growing vector does, would make the C library keep more memory for what is measured.
    Collected(const QString &file, int entries) : m_pages(PagesInPdf(file)), m_measure(file + u".measure")
    {
        layOut(m_measure);
        drawings.reserve(std::size_t(entries) * mostOfEntry);
    }

    std::vector<Drawing> drawings;
    std::vector<QFont> fonts;

    QString whereTo() const override { return {}; }
    void setLandscape(bool landscape) override { m_pages->setLandscape(landscape); }
    double width() const override { return m_pages->width(); }
    double height() const override { return m_pages->height(); }
    double textWidth(const PageFont &font, const QString &text) const override
    {
        return m_pages->textWidth(font, text);
    }
    double lineHeight(const PageFont &font) const override { return m_pages->lineHeight(font); }
    void beginDocument(const QString &) override {}
    void newPage() override { drawings.push_back({Drawing::Page, {}}); }
    void endDocument() override {}
    void text(double x, double y, const PageFont &font, const QString &text) override
    {
        if (m_fonts.empty() || font != m_fonts.back()) {
            m_fonts.push_back(font);
            fonts.push_back(FontOf(font));
            m_ascent = QFontMetricsF(fonts.back(), &m_measure).ascent();
        }
        drawings.push_back({Drawing::Text, {x, y + m_ascent}, {}, int(fonts.size()) - 1, text});
    }
    void line(double x1, double y1, double x2, double y2) override
    {
        drawings.push_back({Drawing::Line, {x1, y1}, {x2, y2}});
    }
    void picture(double, double, const QSizeF &, const PagePicture &) override {}

private:
    std::unique_ptr<PageSink> m_pages;
    QPdfWriter m_measure;
    std::vector<PageFont> m_fonts;
    double m_ascent = 0;
};

void drawBare(const Collected &collected, const QString &file)
{
    QPdfWriter writer(file);
    layOut(writer);
    QPainter painter(&writer);
    int font = -1;
    for (const Drawing &drawing : collected.drawings) {
        if (drawing.what == Drawing::Page) {
            writer.newPage();
        } else if (drawing.what == Drawing::Line) {
            painter.drawLine(drawing.from, drawing.to);
        } else {
            if (font != drawing.font)
                painter.setFont(collected.fonts[std::size_t(font = drawing.font)]);
            painter.drawText(drawing.from, drawing.text);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    Application application(argc, argv);
    const QString file = QString::fromLocal8Bit(argv[1]) + u"/pdf-" + QString::number(nowNanoseconds());
    const int entries = QString::fromLatin1(argv[2]).toInt();
    NamedFile doors(file + u".pdf");
    Doors::install(&doors);
    CreateDatabase(file + u".mdb");
    const auto database = Database::OpenDatabase(file + u".mdb");
    const QString tank = AddSampleTank(*database, QStringLiteral("Reef"), {}, 180, QStringLiteral("3"), {});
    AddSampleWaterTests(*database, tank, entries, QDate(2010, 1, 1), 60, true);
    const Report report = MakeLogReport(WaterTab, *database, QStringLiteral("MM/DD/YY"), tank);
    std::optional<Collected> collected;
    if (argc > 3) {
        collected.emplace(file, entries);
        Printer page(*collected, report.documentName);
        report.print(page);
    }
    std::ofstream("/proc/self/clear_refs") << 5; // resets the peak memory that the system reports
    const std::int64_t start = nowNanoseconds();
    if (collected)
        drawBare(*collected, file + u".pdf");
    else if (RunReport(report, PrintTarget::File, [](const QString &) {}) != PrintOutcome::Printed)
        return 1;
    reportMeasured(millisecondsSince(start) * reported / entries, mostKilobytes());
    return 0;
}
