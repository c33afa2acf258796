// The interface to what pages are printed on: a printer, a preview, a PDF, or the record of a test. Lengths are in
// pixels of the device, measured from the top left of its printable area. Reports print through Printer (Printer.h),
// which calls these functions.
#pragma once

#include <functional>

#include <QSizeF>
#include <QString>

class QPainter;

struct PageFont
{
    QString name;
    double size = 10; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool operator==(const PageFont &) const = default;
};

/// Paints a picture into a rectangle of that size whose top left corner is at 0, 0.
using PagePicture = std::function<void(QPainter &painter, const QSizeF &size)>;

class PageSink
{
public:
    virtual ~PageSink() = default;

    /// Where a document goes, in words for the keeper, such as `written to "/home/kim/log.pdf"`.
    virtual QString whereTo() const = 0;
    /// Sets the orientation of the pages; width() and height() follow. Not to be called within a document.
    virtual void setLandscape(bool landscape) = 0;
    virtual double width() const = 0;
    virtual double height() const = 0;
    virtual double textWidth(const PageFont &font, const QString &text) const = 0;
    virtual double lineHeight(const PageFont &font) const = 0;

    /// Begins a document on its first page. Throws RuntimeFailure if the device cannot be written.
    virtual void beginDocument(const QString &title) = 0;
    virtual void newPage() = 0;
    /// Ends the document and sends it to the printer or the file. Throws RuntimeFailure if that fails; a PDF file is
    /// then not written at all.
    virtual void endDocument() = 0;

    /// Draws one line of text with its top left corner at x, y.
    virtual void text(double x, double y, const PageFont &font, const QString &text) = 0;
    virtual void line(double x1, double y1, double x2, double y2) = 0;
    virtual void picture(double x, double y, const QSizeF &size, const PagePicture &paint) = 0;
};
