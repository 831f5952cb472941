// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_DIAGRAM_DIAGRAMFILE_H
#define CEIECHART_TESTS_DIAGRAM_DIAGRAMFILE_H

#include <ceiechart/diagram/diagrampainter.h>

#include <QBuffer>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgGenerator>

namespace fulldiagram {

/*! \brief What \a painter paints, as an SVG file of \a size. */
inline QByteArray svgOf(const ceiechart::DiagramPainter &painter, const QSize &size)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator file;
    file.setOutputDevice(&buffer);
    file.setSize(size);
    file.setViewBox(QRect(QPoint(), size));
    file.setResolution(96);
    QPainter onto(&file);
    painter.paint(&onto, QRectF(QPointF(), size));
    onto.end();
    return bytes;
}

/*! \brief Whether no coordinate of \a svg is infinite or not a number. The letters of an image's data may be anything.
 */
inline bool hasNumbersOnly(const QByteArray &svg)
{
    const QString text = QString::fromUtf8(svg).remove(QRegularExpression(QStringLiteral("data:image/[^\"]*")));
    return !text.contains(QStringLiteral("nan")) && !text.contains(QStringLiteral("inf"));
}

} // namespace fulldiagram

#endif // CEIECHART_TESTS_DIAGRAM_DIAGRAMFILE_H
