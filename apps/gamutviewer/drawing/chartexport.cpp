// SPDX-License-Identifier: MIT
#include "drawing/chartexport.h"

#include "display/filebytes.h"
#include "display/messages.h"
#include "drawing/chartkeypainter.h"
#include "drawing/chartpainter.h"
#include "drawing/chartrenderer.h"
#include "drawing/diagrampainter.h"

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

//! As sharp as asked for, but no larger than a picture may be.
qreal imageScale(const ChartExtent &extent)
{
    const int side = std::max(extent.size.width(), extent.size.height());
    return std::min(std::max(extent.devicePixelRatio, 2.0), qreal(maximumPictureSide) / side);
}

bool paintPng(const ChartScene &scene, const ChartExtent &extent, QIODevice &device)
{
    return chartPicture(scene, extent).save(&device, "PNG");
}

bool paintSvg(const ChartScene &scene, const QString &title, const ChartExtent &extent, QIODevice &device)
{
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setResolution(dotsPerInch);
    generator.setSize(extent.size);
    generator.setViewBox(QRect(QPoint(), extent.size));
    generator.setTitle(oneLine(title).toHtmlEscaped()); // which the generator takes for XML as it is
    QPainter painter;
    if (!painter.begin(&generator)) {
        return false;
    }
    paintChart(painter, scene, extent.size, imageScale(extent));
    return painter.end();
}

bool paintPdf(const ChartScene &scene, const QString &title, const ChartExtent &extent, QIODevice &device)
{
    QPdfWriter writer(&device);
    writer.setTitle(title);
    writer.setResolution(dotsPerInch);
    const QPageSize page(QSizeF(extent.size) * pointsPerDot, QPageSize::Point, QString(), QPageSize::ExactMatch);
    writer.setPageLayout(QPageLayout(page, QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    if (!painter.begin(&writer)) {
        return false;
    }
    paintChart(painter, scene, extent.size, imageScale(extent));
    return painter.end();
}

bool isThePictureOfTheLibrary(const ChartScene &scene, const QSize &size)
{
    return scene.diagram == Model::Diagram::Cie1931 && scene.wavelengths && scene.planckianLocus
        && (!scene.wholeDigits || libraryDigitsFit(size));
}

} // namespace

std::optional<ChartFormat> chartFormat(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix == QLatin1String("png")) {
        return ChartFormat::Png;
    }
    if (suffix == QLatin1String("svg")) {
        return ChartFormat::Svg;
    }
    if (suffix == QLatin1String("pdf")) {
        return ChartFormat::Pdf;
    }
    return std::nullopt;
}

QImage chartPicture(const ChartScene &scene, const ChartExtent &extent)
{
    const qreal ratio = extent.devicePixelRatio;
    const QSizeF exact = QSizeF(extent.size) * ratio;
    const auto isSide = [](qreal side) { return side >= 0.5 && side < maximumPictureSide + 0.5; };
    if (extent.size.isEmpty() || !isSide(exact.width()) || !isSide(exact.height())) {
        return {};
    }
    QImage picture;
    if (ratio == 1.0 && isThePictureOfTheLibrary(scene, extent.size)) {
        picture = ChartRenderer().draw(scene, extent.size);
        if (scene.key.isEmpty() || picture.isNull()) {
            return picture;
        }
        QPainter painter(&picture);
        paintChartKey(painter, scene.key, DiagramFrame(scene.diagram, extent.size));
    } else {
        picture = QImage(QSize(qRound(exact.width()), qRound(exact.height())), QImage::Format_ARGB32);
        if (picture.isNull()) {
            return picture;
        }
        QPainter painter(&picture);
        painter.scale(picture.width() / qreal(extent.size.width()), picture.height() / qreal(extent.size.height()));
        paintChart(painter, scene, extent.size, ratio);
    }
    picture.setDevicePixelRatio(ratio);
    return picture;
}

QString exportChart(const ChartScene &scene, const QString &title, const ChartExtent &extent, ChartFormat format,
    const QString &fileName)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    bool done = false;
    switch (format) {
    case ChartFormat::Png:
        done = paintPng(scene, extent, buffer);
        break;
    case ChartFormat::Svg:
        done = paintSvg(scene, title, extent, buffer);
        break;
    case ChartFormat::Pdf:
        done = paintPdf(scene, title, extent, buffer);
        break;
    }
    if (!done) {
        return QCoreApplication::translate("gamutviewer", "the picture cannot be encoded");
    }
    return writeBytes(bytes, fileName);
}

} // namespace gamutviewer
