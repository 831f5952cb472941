// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/picture.h"

#include "display/gamutfiles.h"
#include "drawing/librarychart.h"
#include "drawing/picturekey.h"
#include "drawing/png.h"
#include "drawing/wallpainter.h"

#include <ceiechart/diagram/diagrampainter.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr int dotsPerInch = 96;
constexpr double pointsPerDot = 72.0 / dotsPerInch;
constexpr int leastSideWithTexts = 200;
constexpr int leastSideWithNames = 350;

//! The content without the texts that would cover a small diagram or leave no room for it.
ceiechart::DiagramContent contentOn(const QSize &size, ceiechart::DiagramContent content)
{
    using ceiechart::DiagramLayer;
    const int side = std::min(size.width(), size.height());
    if (side < leastSideWithNames) {
        content.layers &= ~(DiagramLayer::Isotherms | DiagramLayer::Names);
    }
    if (side < leastSideWithTexts) {
        content.layers &= ~(DiagramLayer::Axes | DiagramLayer::Wavelengths);
    }
    return content;
}

PictureLayout layoutOn(const QSize &size, const Picture &picture)
{
    return picture.layout && picture.layout->first == size
        ? picture.layout->second
        : layOutPicture(contentOn(size, picture.content), picture.view, size);
}

//! Paints the wall, or the diagram and its key; the painter's units are pixels of 1/96 inch.
void paintDiagram(QPainter &painter, const Picture &picture, const QSize &size)
{
    if (picture.wall) {
        paintWallPicture(&painter, QRectF(QPointF(), size), *picture.wall);
        return;
    }
    const ceiechart::DiagramContent content = contentOn(size, picture.content);
    PictureLayout layout;
    layout.diagram = QRectF(QPointF(), size);
    if (picture.hasKey) {
        layout = layoutOn(size, picture);
    }
    ceiechart::DiagramPainter diagram;
    diagram.setContent(content);
    diagram.setViewport(picture.view);
    painter.fillRect(QRectF(QPointF(), size), ceiechart::diagramPalette(content.ground).ground);
    diagram.paint(&painter, layout.diagram);
    layout.key.paint(&painter, layout.keyPlace);
}

bool writeSvg(const Picture &picture, const QString &title, const QSize &size, QIODevice &device)
{
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setResolution(dotsPerInch);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(), size));
    generator.setTitle(oneLine(title).toHtmlEscaped()); // which the generator takes for XML as it is
    QPainter painter;
    if (!painter.begin(&generator)) {
        return false;
    }
    paintDiagram(painter, picture, size);
    return painter.end();
}

bool writePdf(const Picture &picture, const QString &title, const QSize &size, QIODevice &device)
{
    QPdfWriter writer(&device);
    writer.setTitle(title);
    writer.setResolution(dotsPerInch);
    const QPageSize page(QSizeF(size) * pointsPerDot, QPageSize::Point, QString(), QPageSize::ExactMatch);
    writer.setPageLayout(QPageLayout(page, QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    if (!painter.begin(&writer)) {
        return false;
    }
    paintDiagram(painter, picture, size);
    return painter.end();
}

} // namespace

QString pictureSuffix(PictureFormat format)
{
    switch (format) {
    case PictureFormat::Png:
        break;
    case PictureFormat::Svg:
        return QStringLiteral("svg");
    case PictureFormat::Pdf:
        return QStringLiteral("pdf");
    }
    return QStringLiteral("png");
}

std::optional<PictureFormat> pictureFormat(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        if (suffix == pictureSuffix(format)) {
            return format;
        }
    }
    return std::nullopt;
}

bool lacksRoomForKey(const Picture &picture, const QSize &size)
{
    return picture.hasKey && !picture.isLibraryChart && !picture.wall && !PictureKey(picture.content, 1).isEmpty()
        && layoutOn(size, picture).key.isEmpty();
}

Picture laidOut(Picture picture, const QSize &size)
{
    if (picture.hasKey && !picture.isLibraryChart && !picture.wall) {
        picture.layout = std::make_shared<const std::pair<QSize, PictureLayout>>(size, layoutOn(size, picture));
    } else {
        picture.layout.reset();
    }
    return picture;
}

QImage pixelsOf(const Picture &picture, const PictureExtent &extent)
{
    const qreal ratio = extent.devicePixelRatio;
    const QSizeF exact = QSizeF(extent.size) * ratio;
    const auto isSide = [](qreal side) { return side >= 0.5 && side < maximumPictureSide + 0.5; };
    if (extent.size.isEmpty() || !isSide(exact.width()) || !isSide(exact.height())) {
        return {};
    }
    if (picture.isLibraryChart) {
        return libraryChart(picture.content, extent.size);
    }
    const QSize pixels(qRound(exact.width()), qRound(exact.height()));
    const Picture shown = laidOut(picture, extent.size);
    if (shown.layout && extent.size == pixels && !shown.layout->second.painted.isNull()) {
        return shown.layout->second.painted;
    }
    QImage image(pixels, QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    // The same on every screen.
    image.setDotsPerMeterX(pictureDotsPerMeter);
    image.setDotsPerMeterY(pictureDotsPerMeter);
    QPainter painter(&image);
    painter.scale(image.width() / qreal(extent.size.width()), image.height() / qreal(extent.size.height()));
    paintDiagram(painter, shown, extent.size);
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}

QString exportPicture(const Picture &picture, const QString &title, const PictureExtent &extent, PictureFormat format,
    const QString &fileName)
{
    if (picture.isLibraryChart && format != PictureFormat::Png) {
        return QCoreApplication::translate("gamutviewer", "the library's chart is written as PNG only");
    }
    QByteArray bytes;
    QBuffer buffer(&bytes); // of a document
    buffer.open(QIODevice::WriteOnly);
    bool done = false;
    switch (format) {
    case PictureFormat::Png:
        bytes = png(pixelsOf(picture, extent));
        done = !bytes.isEmpty();
        break;
    case PictureFormat::Svg:
        done = writeSvg(picture, title, extent.size, buffer);
        break;
    case PictureFormat::Pdf:
        done = writePdf(picture, title, extent.size, buffer);
        break;
    }
    if (!done) {
        return QCoreApplication::translate("gamutviewer", "the picture cannot be encoded");
    }
    return writeBytes(bytes, fileName);
}

} // namespace gamutviewer
