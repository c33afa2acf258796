#include "platform/core/PageSpool.h"

#include <algorithm>

#include "platform/core/RuntimeFailure.h"

namespace {

enum Drawn : quint8 { drawnText, drawnLine, drawnPicture };

constexpr auto precision = QDataStream::SinglePrecision; // a thousandth of a printer's dot

} // namespace

PageSpool::PageSpool(PageSink &device, bool keepsOrientation) : m_device(device), m_keepsOrientation(keepsOrientation)
{
    m_page.open(QIODevice::WriteOnly);
    m_out.setDevice(&m_page);
    m_out.setFloatingPointPrecision(precision);
}

void PageSpool::setLandscape(bool landscape)
{
    if (!m_keepsOrientation)
        m_device.setLandscape(landscape);
}

void PageSpool::beginDocument(const QString &title)
{
    m_title = title;
    if (!m_file.open())
        throw RuntimeFailure(Failure::PermissionDenied, QStringLiteral("Pages cannot be kept in the folder for "
                                                                       "temporary files: %1")
                                                            .arg(m_file.errorString()));
}

void PageSpool::completePage()
{
    const QByteArray &page = m_page.buffer();
    const qint64 start = m_ends.empty() ? 0 : m_ends.back();
    if (!m_file.seek(start) || m_file.write(page) != page.size() || !m_file.flush())
        throw RuntimeFailure(
            Failure::DiskFull,
            QStringLiteral("\"%1\" could not be written: %2").arg(m_file.fileName(), m_file.errorString()));
    m_ends.push_back(start + page.size());
    m_page.buffer().resize(0); // keeps its room for the next page
    m_page.seek(0);
}

quint8 PageSpool::numberOf(const PageFont &font)
{
    const auto number = std::find(m_fonts.cbegin(), m_fonts.cend(), font) - m_fonts.cbegin();
    if (std::size_t(number) == m_fonts.size())
        m_fonts.push_back(font);
    return quint8(number); // a report has a dozen fonts
}

void PageSpool::text(double x, double y, const PageFont &font, const QString &text)
{
    m_out << quint8(drawnText) << x << y << numberOf(font) << text.toUtf8();
}

void PageSpool::line(double x1, double y1, double x2, double y2) { m_out << quint8(drawnLine) << x1 << y1 << x2 << y2; }

void PageSpool::picture(double x, double y, const QSizeF &size, const PagePicture &paint)
{
    m_out << quint8(drawnPicture) << x << y << size << quint32(m_pictures.size());
    m_pictures.push_back(paint);
}

void PageSpool::draw(int page, PageSink &on)
{
    const qint64 start = page == 1 ? 0 : m_ends.at(std::size_t(page) - 2), end = m_ends.at(std::size_t(page) - 1);
    const QByteArray drawn = m_file.seek(start) ? m_file.read(end - start) : QByteArray();
    if (drawn.size() != end - start)
        throw RuntimeFailure(
            Failure::DeviceError,
            QStringLiteral("\"%1\" could not be read: %2").arg(m_file.fileName(), m_file.errorString()));
    QDataStream in(drawn);
    in.setFloatingPointPrecision(precision);
    while (!in.atEnd()) {
        quint8 what = 0, font = 0;
        double x = 0, y = 0, x2 = 0, y2 = 0;
        QByteArray text;
        QSizeF size;
        quint32 picture = 0;
        in >> what >> x >> y;
        if (what == drawnText) {
            in >> font >> text;
            on.text(x, y, m_fonts.at(font), QString::fromUtf8(text));
        } else if (what == drawnLine) {
            in >> x2 >> y2;
            on.line(x, y, x2, y2);
        } else {
            in >> size >> picture;
            on.picture(x, y, size, m_pictures.at(picture));
        }
    }
}
