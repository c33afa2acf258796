// What pages are made on: a printer, a preview, a PDF or a test's record. Lengths are pixels of the device, from the
// left top of its printable area. Printer (Printer.h) turns the verbs of a report into these calls.
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
};

/// Paints a picture into a rectangle of that size, whose left top corner is 0, 0.
using PagePicture = std::function<void(QPainter &painter, const QSizeF &size)>;

class PageSink
{
public:
    virtual ~PageSink() = default;

    /// Outside of a document: the pages' orientation, which width() and height() follow.
    virtual void setLandscape(bool landscape) = 0;
    virtual double width() const = 0;
    virtual double height() const = 0;
    virtual double textWidth(const PageFont &font, const QString &text) const = 0;
    virtual double lineHeight(const PageFont &font) const = 0;

    /// Begins a document on its first page. Throws RuntimeFailure where the device cannot be written.
    virtual void beginDocument(const QString &title) = 0;
    virtual void newPage() = 0;
    /// Ends it and hands it over; throws RuntimeFailure where that fails, and nothing of a PDF is left then.
    virtual void endDocument() = 0;

    /// One line of text, its top left corner at the place given.
    virtual void text(double x, double y, const PageFont &font, const QString &text) = 0;
    virtual void line(double x1, double y1, double x2, double y2) = 0;
    virtual void picture(double x, double y, const QSizeF &size, const PagePicture &paint) = 0;
};
