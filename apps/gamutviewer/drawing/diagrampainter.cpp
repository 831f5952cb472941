// SPDX-License-Identifier: MIT
#include "drawing/diagrampainter.h"

#include "display/chromaticity.h"
#include "display/whitepoint.h"

#include <ceiechart/atlas/ceiatlasvalue.h>
#include <ceiechart/diagram/chartstyle.h>

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

const QColor lineColor = ceiechart::chartLineColor();
constexpr double gridStep = ceiechart::chartTickStep;
constexpr double gridOpacity = 80.0 / 255.0 * 0.3;
constexpr double numberDrop = 15.0; // from the x axis to its numbers
constexpr double axisTop = 10.0;
constexpr double titleGap = 6.0;
constexpr double edgeWidth = 2.0;
constexpr double tickLength = 0.0168; // in chromaticity units
constexpr double tickWidth = 0.002; // of the picture's height
constexpr int wavelengthFontSize = 11;
constexpr int highestMired = 999; // 1001 K
constexpr int lowestMired = 67; // 14 925 K

constexpr int smallestFontSize = 6;
constexpr double edgeGap = 3.0; // pixels from the edge of the picture to digits
constexpr double leastGap = 1.5; // and from digits to their axis

QFont axisFont(const QSize &size)
{
    QFont font = ceiechart::chartNumberFont(ceiechart::ChartKind::CurrentXy, size.height());
    const int fitting = int(std::min(size.width() * 0.03, size.height() * 0.04));
    font.setPixelSize(qBound(smallestFontSize, fitting, font.pixelSize()));
    return font;
}

QFont wavelengthFont()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(wavelengthFontSize);
    return font;
}

QPointF chromaticity(const CEIAtlasValue::CEIAtlasCoordinate &row)
{
    const double sum = row.X + row.Y + row.Z;
    return {row.X / sum, row.Y / sum};
}

const CEIAtlasValue &atlas()
{
    static const CEIAtlasValue values;
    return values;
}

//! The library's own rows have three decimals, which shows once the lines are vectors.
const QVector<QPointF> &planckianLocus()
{
    static const QVector<QPointF> locus = [] {
        QVector<QPointF> points;
        for (int mired = highestMired; mired >= lowestMired; mired -= 4) {
            if (const auto xy = chromaticityAt(1e6 / mired, 0.0)) {
                points.append(*xy);
            }
        }
        return points;
    }();
    return locus;
}

void drawText(QPainter &painter, const QString &text, const QRectF &place, Qt::Alignment alignment)
{
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::NoWrap);
    painter.drawText(place, text, option);
}

//! The ends of the locus are too crowded for ticks.
bool hasTick(int wavelength)
{
    return (wavelength == 420 || wavelength == 680 || (wavelength >= 450 && wavelength <= 630)) && wavelength % 5 == 0;
}

class AxesPainter {
public:
    AxesPainter(QPainter &painter, const DiagramFrame &frame)
        : m_painter(painter)
        , m_frame(frame)
        , m_metrics(axisFont(frame.size()), painter.device())
        , m_origin(frame.fromPoint(QPointF()))
        , m_end(double(DiagramFrame::range(frame.diagram()).xMax), double(DiagramFrame::range(frame.diagram()).yMax))
    {
    }

    //! Where the numbers of the upright axis stand.
    QVector<QRectF> yNumberPlaces() const
    {
        QVector<QRectF> places;
        for (int tick = 0; tick * gridStep < m_end.y(); ++tick) {
            places.append(
                yNumberPlace(QString::number(tick * gridStep), m_frame.fromPoint(QPointF(0.0, tick * gridStep))));
        }
        return places;
    }

    void paint(bool titles)
    {
        m_painter.setFont(axisFont(m_frame.size()));
        for (int tick = 0; tick * gridStep < m_end.x(); ++tick) {
            const QPointF foot = m_frame.fromPoint(QPointF(tick * gridStep, 0.0));
            gridLine(foot, m_frame.fromPoint(QPointF(tick * gridStep, m_end.y())));
            xNumber(QString::number(tick * gridStep), foot);
        }
        for (int tick = 0; tick * gridStep < m_end.y(); ++tick) {
            const QPointF foot = m_frame.fromPoint(QPointF(0.0, tick * gridStep));
            gridLine(foot, m_frame.fromPoint(QPointF(m_end.x(), tick * gridStep)));
            yNumber(QString::number(tick * gridStep), foot);
        }
        m_painter.setPen(outlinePen(lineColor, 1.0));
        m_painter.drawLine(QPointF(m_origin.x(), axisTop), m_origin);
        m_painter.drawLine(m_origin, QPointF(m_frame.size().width(), m_origin.y()));
        if (titles) {
            paintTitles();
        }
    }

private:
    void gridLine(const QPointF &from, const QPointF &to)
    {
        QColor color = lineColor;
        color.setAlphaF(gridOpacity);
        m_painter.setPen(QPen(color, 1.0, Qt::DashLine));
        m_painter.drawLine(from, to);
        m_painter.setPen(lineColor);
    }

    void xNumber(const QString &number, const QPointF &foot)
    {
        const double top = std::min(foot.y() + numberDrop, m_frame.size().height() - m_metrics.height());
        const double half = m_metrics.horizontalAdvance(number) / 2.0;
        if (top >= foot.y() && foot.x() - half >= 0.0 && foot.x() + half <= m_frame.size().width()) {
            drawText(m_painter, number, QRectF(foot.x() - 30.0, top, 60.0, m_metrics.height()), Qt::AlignHCenter);
        }
    }

    void yNumber(const QString &number, const QPointF &foot)
    {
        const QRectF place = yNumberPlace(number, foot);
        if (place.left() >= edgeGap && place.top() >= 0.0) {
            drawText(m_painter, number, place, Qt::AlignRight | Qt::AlignVCenter);
        }
    }

    QRectF yNumberPlace(const QString &number, const QPointF &foot) const
    {
        const double width = m_metrics.horizontalAdvance(number);
        const double natural = foot.x() - std::min(8.0, m_frame.size().width() * 0.01) - width;
        // Nearer to the axis before it would touch the edge.
        const double left = std::min(std::max(natural, edgeGap), foot.x() - leastGap - width);
        return QRectF(left, foot.y() - m_metrics.height() / 2.0, width, m_metrics.height());
    }

    void paintTitles()
    {
        const bool isXy = m_frame.diagram() == Model::Diagram::Cie1931;
        const QString first = isXy ? QStringLiteral("x") : QStringLiteral("u′");
        const QString second = isXy ? QStringLiteral("y") : QStringLiteral("v′");
        const double height = m_metrics.height();
        drawText(m_painter, second, QRectF(m_origin.x() + titleGap, axisTop, 60.0, height), Qt::AlignLeft);
        drawText(m_painter, first,
            QRectF(m_frame.size().width() - 60.0 - titleGap, m_origin.y() - height - titleGap, 60.0, height),
            Qt::AlignRight);
    }

    QPainter &m_painter;
    const DiagramFrame &m_frame;
    QFontMetricsF m_metrics;
    QPointF m_origin;
    QPointF m_end;
};

} // namespace

QPen outlinePen(const QColor &color, double width)
{
    return QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

bool libraryDigitsFit(const QSize &size)
{
    const QFont font = axisFont(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    const QFontMetricsF metrics(font);
    const QPointF origin = DiagramFrame(Model::Diagram::Cie1931, size).fromPoint(QPointF());
    return origin.x() >= metrics.horizontalAdvance(QStringLiteral("0.0")) + 10.0
        && origin.y() + numberDrop + metrics.height() <= size.height();
}

void paintAxes(QPainter &painter, const DiagramFrame &frame, bool titles)
{
    AxesPainter(painter, frame).paint(titles);
}

void paintWavelengths(QPainter &painter, const DiagramFrame &frame, bool besideAxes)
{
    painter.setFont(wavelengthFont());
    const QFontMetricsF metrics(wavelengthFont(), painter.device());
    QVector<QRectF> taken = besideAxes ? AxesPainter(painter, frame).yNumberPlaces() : QVector<QRectF>();
    const auto &rows = atlas().atlasCoordinates;
    for (int i = 1; i < rows.size(); ++i) {
        const int wavelength = rows.at(i).waveLength;
        if (!hasTick(wavelength)) {
            continue;
        }
        const bool numbered = wavelength % 10 == 0;
        const QPointF at = toDiagram(frame.diagram(), chromaticity(rows.at(i)));
        const QPointF step = at - toDiagram(frame.diagram(), chromaticity(rows.at(i - 1)));
        const QPointF outwards = QPointF(-step.y(), step.x()) / std::hypot(step.x(), step.y());
        const QPointF foot = frame.fromPoint(at);
        const QPointF tip = frame.fromPoint(at + outwards * tickLength * (numbered ? 1.0 : 0.5));
        painter.setPen(QPen(lineColor, numbered ? 1.0 : frame.size().height() * tickWidth + 0.5));
        painter.drawLine(foot, tip);
        if (!numbered) {
            continue;
        }
        const QString number = QString::number(wavelength);
        const QSizeF box(metrics.horizontalAdvance(number) + 4.0, metrics.height());
        const QPointF way = (tip - foot) / std::hypot(tip.x() - foot.x(), tip.y() - foot.y());
        const QPointF center = tip + QPointF(way.x() * box.width(), way.y() * box.height()) / 2.0;
        QRectF place(center - QPointF(box.width(), box.height()) / 2.0, box);
        place.moveLeft(std::max(place.left(), 1.0));
        const QRectF digits = place.adjusted(2.0, metrics.descent(), -2.0, -metrics.descent());
        const bool isFree = std::none_of(
            taken.cbegin(), taken.cend(), [&digits](const QRectF &other) { return other.intersects(digits); });
        if (isFree && QRectF(QPointF(), frame.size()).contains(digits)) {
            taken.append(digits);
            drawText(painter, number, place, Qt::AlignCenter);
        }
    }
}

QPolygonF spectralLocus(const DiagramFrame &frame)
{
    QPolygonF locus;
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : atlas().atlasCoordinates) {
        locus.append(frame.fromXy(chromaticity(row)));
    }
    return locus;
}

void paintSpectralLocus(QPainter &painter, const DiagramFrame &frame)
{
    painter.setPen(outlinePen(lineColor, edgeWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(spectralLocus(frame));
}

void paintPlanckianLocus(QPainter &painter, const DiagramFrame &frame)
{
    QPolygonF locus;
    for (const QPointF &xy : planckianLocus()) {
        locus.append(frame.fromXy(xy));
    }
    painter.setPen(QPen(Qt::black, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(locus);
}

} // namespace gamutviewer
