// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_PICTUREFIXTURE_H
#define TESTS_APPS_PICTUREFIXTURE_H

#include "drawing/documentcontent.h"
#include "drawing/picture.h"

#include <ceiechart/diagram/diagrampainter.h>
#include <gamutfiles/descriptionfile.h>

#include <QXmlStreamReader>
#include <QtTest>

#include <cmath>

Q_DECLARE_METATYPE(Model::Diagram)

/*! \brief Pictures of the sample, and what is in them. */
namespace picturefixture {

using namespace gamutviewer;
using ceiechart::DiagramContent;
using ceiechart::DiagramLayer;
using ceiechart::DiagramPainter;
using ceiechart::DiagramViewport;

/*! The sample with a trail. */
inline ceiechart::DiagramContent sampleContent()
{
    const auto description = readDescriptionFile(QStringLiteral(SAMPLE_FILE));
    if (!description) {
        qFatal("the sample cannot be read");
    }
    ceiechart::DiagramContent content = documentContent(*description);
    content.trail = {QPointF(0.32, 0.34), QPointF(0.315, 0.335), QPointF(0.3127, 0.329)};
    return content;
}

inline Picture sample(Model::Diagram diagram = Model::Diagram::Cie1931)
{
    Picture picture;
    picture.content = sampleContent();
    picture.view = DiagramViewport(diagram, QSizeF());
    return picture;
}

/*! The bytes of the file; empty when it is not written. */
inline QByteArray exported(const Picture &picture, PictureFormat format, const PictureExtent &extent = {})
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("picture"));
    const QString error = exportPicture(picture, QStringLiteral("A & <B>"), extent, format, name);
    QFile file(name);
    return error.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline const QRgb lightGround = ceiechart::diagramPalette(ceiechart::DiagramGround::Light).ground.rgb();

/*! The mean difference of a channel, of 255, after both pictures have been made coarse: lines may lie a pixel apart. */
inline double coarseDifference(const QImage &a, const QImage &b)
{
    const QSize coarse(100, 100);
    const QImage first = a.scaled(coarse, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage second = b.scaled(coarse, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    double sum = 0.0;
    for (int y = 0; y < coarse.height(); ++y) {
        for (int x = 0; x < coarse.width(); ++x) {
            const QColor p = first.pixelColor(x, y);
            const QColor q = second.pixelColor(x, y);
            sum += std::abs(p.red() - q.red()) + std::abs(p.green() - q.green()) + std::abs(p.blue() - q.blue());
        }
    }
    return sum / (3.0 * coarse.width() * coarse.height());
}

constexpr double mostCoarseDifference = 0.8;

inline QImage pixels(Picture picture, const QSize &size, bool withKey, qreal ratio = 1.0)
{
    picture.hasKey = withKey;
    return pixelsOf(picture, {size, ratio});
}

inline QStringList textsOf(const QByteArray &svg)
{
    QStringList texts;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("text")) {
            texts << xml.readElementText().trimmed();
        }
    }
    return texts;
}

inline void addDiagrams(const QVector<QSize> &sizes)
{
    QTest::addColumn<Model::Diagram>("diagram");
    QTest::addColumn<QSize>("size");
    for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960}) {
        for (const QSize &size : sizes) {
            QTest::addRow("%s %dx%d", Model::diagramTraits(diagram).name, size.width(), size.height())
                << diagram << size;
        }
    }
}

} // namespace picturefixture

#endif
