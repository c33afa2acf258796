#include "platform/controls/Icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

namespace {

/// Replaces Qt's own SVG icon engine, which loads a plugin at the start and reads each file twice.
class DrawingEngine : public QIconEngine
{
public:
    explicit DrawingEngine(const QString &file) : m_file(file) {}

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QString key = QStringLiteral("%1 %2x%3 %4 %5")
                                .arg(m_file)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(mode)
                                .arg(QApplication::palette().cacheKey());
        QPixmap painted;
        if (!QPixmapCache::find(key, &painted)) {
            painted = paintedDrawing(size, mode);
            QPixmapCache::insert(key, painted);
        }
        return painted;
    }
    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State state) override
    {
        const double scale = painter->device()->devicePixelRatio();
        painter->drawPixmap(place, scaledPixmap(place.size() * scale, mode, state, scale));
    }
    QIconEngine *clone() const override { return new DrawingEngine(*this); }

private:
    QPixmap paintedDrawing(const QSize &size, QIcon::Mode mode) const
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QSvgRenderer drawing(m_file);
        drawing.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        QStyleOption option;
        option.palette = QApplication::palette();
        // Icons in a selected row keep their colours; the style would wash them out.
        return mode == QIcon::Disabled ? QApplication::style()->generatedIconPixmap(mode, pixmap, &option) : pixmap;
    }

    QString m_file;
};

} // namespace

QIcon Icon(const char *name)
{
    return QIcon(new DrawingEngine(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name))));
}
