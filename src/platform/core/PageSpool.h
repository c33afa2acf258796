// A document that is kept in a temporary file, page by page, so that a report of any length needs little memory. It is
// drawn when it is whole, or page by page while it grows, as the preview does. Its lengths are those of the device
// that it is made for. RunReport (PrintJob.h) makes each document here first, so that a report that fails half-way has
// sent nothing.
#pragma once

#include <vector>

#include <QBuffer>
#include <QDataStream>
#include <QTemporaryFile>

#include "platform/core/Pages.h"

class PageSpool : public PageSink
{
public:
    /// The device measures the texts; it must outlive this object. It is turned as the report asks unless it
    /// `keepsOrientation`. Nothing is drawn on it.
    PageSpool(PageSink &device, bool keepsOrientation);

    const QString &title() const { return m_title; }
    /// How many pages are complete.
    int pages() const { return int(m_ends.size()); }
    /// Draws a complete page, counted from 1. The pictures of the report must still be there. Throws RuntimeFailure if
    /// the file cannot be read.
    void draw(int page, PageSink &on);

    QString whereTo() const override { return m_device.whereTo(); }
    void setLandscape(bool landscape) override;
    double width() const override { return m_device.width(); }
    double height() const override { return m_device.height(); }
    double textWidth(const PageFont &font, const QString &text) const override
    {
        return m_device.textWidth(font, text);
    }
    double lineHeight(const PageFont &font) const override { return m_device.lineHeight(font); }
    void beginDocument(const QString &title) override;
    void newPage() override { completePage(); }
    void endDocument() override { completePage(); }
    void text(double x, double y, const PageFont &font, const QString &text) override;
    void line(double x1, double y1, double x2, double y2) override;
    void picture(double x, double y, const QSizeF &size, const PagePicture &paint) override;

private:
    /// Writes the page to the file. Throws DiskFull if that fails.
    void completePage();
    quint8 numberOf(const PageFont &font);

    PageSink &m_device;
    const bool m_keepsOrientation;
    QString m_title;
    QBuffer m_page; ///< the page that is being printed
    QDataStream m_out;
    QTemporaryFile m_file;
    std::vector<qint64> m_ends; ///< of each page in the file
    std::vector<PageFont> m_fonts;
    std::vector<PagePicture> m_pictures;
};
