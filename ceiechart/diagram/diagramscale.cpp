// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/diagramticks_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/spectrum_p.h>
#include <ceiechart/diagram/whitepoint.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace ceiechart {

namespace {

// Logical pixels
constexpr double numberGap = 6.0; // between an axis and its numbers, and beside a number
constexpr double edgeGap = 4.0; // between texts and the edge of the whole
constexpr double tickRoom = 8.0; // beside a number on the level axis, at least
constexpr double rowsPerTick = 2.6; // heights of a text from tick to tick on the upright axis, at least
constexpr double mostTicksOfShorterAxis = 12.0; // on the shorter axis: more are not read better
constexpr double locusWidth = 1.5;
constexpr double curvePieces = 3.0; // lengths of the pieces of curves, where there are shorter ones
constexpr double roughPieces = 12.0; // so, of curves that texts keep clear of
constexpr double tickWidth = 1.0;
constexpr double casingOfTicks = 2.0; // on both sides together
constexpr double shortTick = 4.0;
constexpr double longTick = 7.0;
constexpr double tickGap = 3.0; // between a tick and its number
constexpr double wavelengthTicks = 7.0; // least distance of ticks
constexpr double wavelengthNumbers = 34.0; // least distance of the middles of numbers
constexpr double shortestIsotherm = 10.0; // one that is shorter, in a small view, looks like a mark
constexpr double isothermLines = 30.0; // least distance of isotherms
constexpr double mostIsotherms = 18.0; // side by side on the shorter side of the plot

constexpr double isothermDuv = 0.02; // of the ends of isotherms, at most
constexpr double wholeIsothermDuv = 0.011; // where the whole horseshoe is seen, lest they cover it
constexpr double coolest = 998.0; // mired, of the isotherms
constexpr double hottest = 12.0;
constexpr double closestIsotherms = 1.0; // kelvin
constexpr double closestWavelengths = 0.01; // nm

const QString widestNumber = QStringLiteral("-0.00000");
constexpr double hinting = 0.5; // pixels by which hinting may widen a digit beyond its design

QPointF unit(const QPointF &way)
{
    return way / length(way);
}

//! The box of \a size that touches \a at from the side to which \a way, of length 1, leads.
QRectF besides(const QPointF &at, const QPointF &way, const QSizeF &size)
{
    // The nearer to an axis the way is, the more of the box's half lies along it.
    const double reach = std::min(way.x() != 0.0 ? size.width() / 2.0 / std::fabs(way.x()) : HUGE_VAL,
        way.y() != 0.0 ? size.height() / 2.0 / std::fabs(way.y()) : HUGE_VAL);
    const QPointF centre = at + way * reach;
    return QRectF(centre - QPointF(size.width(), size.height()) / 2.0, size);
}

//! Steps of 2 nm and less would look restless beside those of 5.
TickScale wavelengthScale(double least)
{
    const TickScale scale = ticksAtLeast(least);
    return scale.digit == 2 && scale.exponent < 1 ? TickScale{5, scale.exponent} : scale;
}

bool isApart(const QVector<QPointF> &centres, const QPointF &centre, double distance)
{
    return std::all_of(
        centres.cbegin(), centres.cend(), [&](const QPointF &other) { return length(other - centre) >= distance; });
}

class Scale {
public:
    explicit Scale(const DiagramSheet &sheet)
        : m_sheet(sheet)
        , m_viewport(sheet.viewport)
        , m_palette(sheet.palette())
        , m_innerPalette(sheet.innerPalette())
        , m_plot(sheet.viewport.plot())
        , m_inner(m_plot.adjusted(labelGap, labelGap, -labelGap, -labelGap))
        , m_whole(QPointF(), sheet.viewport.size())
    {
    }

    DiagramStep take()
    {
        drawAxes();
        if (m_sheet.shows(DiagramLayer::Locus)) {
            drawLocus();
        }
        if (m_sheet.shows(DiagramLayer::Wavelengths)) {
            drawWavelengths();
        }
        if (m_sheet.shows(DiagramLayer::PlanckianLocus)) {
            drawPlanckianLocus();
        }
        if (m_sheet.shows(DiagramLayer::Isotherms)) {
            drawIsotherms();
        }
        return std::move(m_step);
    }

private:
    QPointF toPosition(const QPointF &point) const { return m_viewport.fromPoint(point); }

    double tickRows() const
    {
        return std::max(rowsPerTick * m_sheet.fonts.numbers.height(),
            std::min(m_plot.width(), m_plot.height()) / mostTicksOfShorterAxis);
    }

    TickScale ticksUp() const { return ticksAtLeast(tickRows() / m_viewport.scale()); }

    TickScale ticksAcross() const
    {
        const TextStyle &style = m_sheet.fonts.numbers;
        TickScale scale = ticksUp();
        // More decimals need more room, and may be more for it: once more is enough.
        for (int round = 0; round < 2; ++round) {
            const QString number = QString::number(0.0, 'f', scale.decimals());
            scale = ticksAtLeast(std::max(tickRows(), style.width(number) + tickRoom) / m_viewport.scale());
        }
        return scale;
    }

    void drawAxes()
    {
        const bool isGrid = m_sheet.shows(DiagramLayer::Grid);
        const bool isNumbered = m_sheet.shows(DiagramLayer::Axes);
        if (!isGrid && !isNumbered) {
            return;
        }
        const TickScale acrossScale = ticksAcross();
        const TickScale upScale = ticksUp();
        const QRectF range = m_viewport.range();
        const QVector<qint64> across = acrossScale.within(range.left(), range.right());
        const QVector<qint64> up = upScale.within(range.top(), range.bottom());
        if (isGrid) {
            for (const qint64 tick : across) {
                const double x = toPosition(QPointF(acrossScale.value(tick), 0.0)).x();
                m_step.drawing.hairline(QLineF(x, m_plot.top(), x, m_plot.bottom()), m_palette.grid);
            }
            for (const qint64 tick : up) {
                const double y = toPosition(QPointF(0.0, upScale.value(tick))).y();
                m_step.drawing.hairline(QLineF(m_plot.left(), y, m_plot.right(), y), m_palette.grid);
            }
        }
        if (!isNumbered) {
            return;
        }
        m_step.drawing.hairline(QLineF(m_plot.bottomLeft(), m_plot.bottomRight()), m_palette.frame);
        m_step.drawing.hairline(QLineF(m_plot.topLeft(), m_plot.bottomLeft()), m_palette.frame);
        drawNames();
        const TextStyle &style = m_sheet.fonts.numbers;
        for (const qint64 tick : across) {
            const double x = toPosition(QPointF(acrossScale.value(tick), 0.0)).x();
            const QSizeF size = style.size(acrossScale.text(tick));
            drawNumber(acrossScale.text(tick), QRectF(QPointF(x - size.width() / 2.0, m_plot.bottom() + edgeGap), size),
                numberGap);
        }
        for (const qint64 tick : up) {
            const double y = toPosition(QPointF(0.0, upScale.value(tick))).y();
            const QSizeF size = style.size(upScale.text(tick));
            drawNumber(upScale.text(tick),
                QRectF(QPointF(m_plot.left() - numberGap - size.width(), y - size.height() / 2.0), size), 0.0);
        }
    }

    //! Side by side with another text, a number needs a \a gap to be read as one of its own.
    void drawNumber(const QString &number, const QRectF &place, double gap)
    {
        if (m_step.places.isFree(place, m_whole, gap)) {
            m_step.places.add(DiagramLabel::Kind::Axis, number, place);
            m_step.drawing.textIn(place, number, m_sheet.fonts.numbers, m_palette.numbers);
        }
    }

    void drawNames()
    {
        const Model::DiagramTraits &traits = Model::diagramTraits(m_viewport.diagram());
        const TextStyle &style = m_sheet.fonts.axes;
        const auto draw = [&](const QString &name, const QPointF &topRight) {
            const QRectF place(topRight - QPointF(style.width(name), 0.0), style.size(name));
            if (m_step.places.isFree(place, m_whole, 0.0)) {
                m_step.places.add(DiagramLabel::Kind::Axis, name, place);
                m_step.drawing.textIn(place, name, style, m_palette.text);
            }
        };
        draw(QString::fromUtf8(traits.xName), QPointF(m_plot.right(), m_plot.bottom() + edgeGap));
        draw(QString::fromUtf8(traits.yName), QPointF(m_plot.left() - numberGap, m_plot.top()));
    }

    QPen pen(const QColor &color, double width) const
    {
        return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    }

    void drawLocus()
    {
        const QPolygonF points
            = m_viewport.fromPoints(spectralLocusIn(m_viewport.diagram(), spectrumDetail(m_viewport.scale())));
        for (const LinePart &part : partsWithin(thinned(points, curvePieces), true, m_plot)) {
            m_step.drawing.line(part.points, part.closed, pen(m_palette.locus, locusWidth));
            QPolygonF whole = part.points;
            if (part.closed) {
                whole.append(whole.first());
            }
            m_step.curves.emplace_back(thinned(whole, roughPieces));
        }
    }

    QPointF spectralPosition(double wavelength) const
    {
        return m_viewport.toPosition(spectralChromaticity(wavelength));
    }

    struct Wavelength {
        double nanometres;
        QPointF foot;
        QPointF outwards; // of length 1
        bool mayBeNumbered;
        int roundness;
    };

    //! What has a tick, from the roundest on.
    QVector<Wavelength> wavelengths() const
    {
        QVector<Wavelength> result;
        const QRectF around = m_plot.adjusted(-longTick, -longTick, longTick, longTick);
        const QPolygonF &locus = spectralLocusIn(m_viewport.diagram(), 1);
        QPointF from = toPosition(locus.first());
        for (int i = 1; i < locus.size(); ++i) {
            const double whole = shortestWavelength + i - 1;
            const QPointF to = toPosition(locus.at(i));
            const QPointF way = to - from;
            const QRectF bounds = QRectF(from, to).normalized().adjusted(-1.0, -1.0, 1.0, 1.0);
            if (bounds.intersects(around) && length(way) > 0.0) {
                const TickScale scale = wavelengthScale(std::max(closestWavelengths, wavelengthTicks / length(way)));
                const TickScale numbers
                    = wavelengthScale(std::max(closestWavelengths, wavelengthNumbers / length(way)));
                const double step = scale.step();
                for (const qint64 number : scale.within(whole, whole + std::max(0.5, 1.0 - step / 2.0))) {
                    const double nanometres = scale.value(number);
                    const QPointF along
                        = spectralPosition(nanometres + step / 8.0) - spectralPosition(nanometres - step / 8.0);
                    const QPointF foot = spectralPosition(nanometres);
                    if (around.contains(foot)) {
                        const double numbered = nanometres / numbers.step();
                        result.append({nanometres, foot, unit(QPointF(along.y(), -along.x())),
                            std::fabs(numbered - std::round(numbered)) < 1e-6, roundness(nanometres)});
                    }
                }
            }
            from = to;
        }
        std::stable_sort(result.begin(), result.end(),
            [](const Wavelength &a, const Wavelength &b) { return a.roundness > b.roundness; });
        return result;
    }

    void drawWavelengths()
    {
        const TextStyle &style = m_sheet.fonts.numbers;
        QVector<QPointF> numbered;
        LabelPlaces places = m_step.places;
        for (const Wavelength &wavelength : wavelengths()) {
            const QPointF tip = wavelength.foot + wavelength.outwards * longTick;
            bool isNumbered = false;
            if (wavelength.mayBeNumbered) {
                const QString number = QString::number(wavelength.nanometres, 'g', 6);
                const QRectF place
                    = besides(tip + wavelength.outwards * tickGap, wavelength.outwards, style.size(number));
                isNumbered
                    = isApart(numbered, place.center(), wavelengthNumbers) && places.isFree(place, m_inner, labelGap);
                if (isNumbered) {
                    numbered.append(place.center());
                    places.add(DiagramLabel::Kind::Wavelength, number, place);
                    PendingNumber pending{number, {place}, QLineF(wavelength.foot, tip)};
                    // Farther out, where a handle is on the locus.
                    for (const double farther : {0.5, 1.0}) {
                        pending.places.append(place.translated(wavelength.outwards * (farther * 2.0 * handleExtent)));
                    }
                    m_step.wavelengths.append(pending);
                }
            }
            const QLineF tick(wavelength.foot, isNumbered ? tip : wavelength.foot + wavelength.outwards * shortTick);
            if (const auto part = partWithin(tick, m_plot)) {
                m_step.drawing.line(
                    QPolygonF(QVector<QPointF>{part->p1(), part->p2()}), false, pen(m_palette.locus, tickWidth));
            }
        }
    }

    void drawPlanckianLocus()
    {
        const QPolygonF points = m_viewport.fromPoints(planckianLocusIn(m_viewport.diagram()));
        for (const LinePart &part : partsWithin(points, false, m_plot)) {
            m_step.curves.emplace_back(thinned(part.points, roughPieces));
        }
        drawCased(m_step.drawing, thinned(points, curvePieces), false, m_plot,
            pen(m_innerPalette.planckian, locusWidth), m_innerPalette.casing);
    }

    //! From below the locus to above it.
    QLineF isotherm(double mired) const
    {
        const LocusPoint foot = planckianPoint(mired);
        const auto at
            = [&](double duv) { return toPosition(fromUv1960(m_viewport.diagram(), foot.uv + foot.normal * duv)); };
        const double reach = std::min(isothermDuv, wholeIsothermDuv * std::sqrt(m_viewport.zoom()));
        return QLineF(at(-reach), at(reach));
    }

    //! The reciprocal temperatures of which isotherms can be seen.
    std::optional<std::pair<double, double>> seenMireds() const
    {
        const QPointF corners[] = {m_plot.topLeft(), m_plot.topRight(), m_plot.bottomLeft(), m_plot.bottomRight()};
        const auto isBehind = [&corners](const QLineF &line, double sign) {
            const QPointF way = line.p2() - line.p1();
            return std::all_of(std::begin(corners), std::end(corners), [&](const QPointF &corner) {
                const QPointF to = corner - line.p1();
                return sign * (way.x() * to.y() - way.y() * to.x()) < 0.0;
            });
        };
        const auto isSeenBetween = [&](const QLineF &from, const QLineF &to, double room) {
            const QRectF bounds = QPolygonF(QVector<QPointF>{from.p1(), from.p2(), to.p1(), to.p2()}).boundingRect();
            const QRectF area = bounds.adjusted(
                -room * bounds.width(), -room * bounds.height(), room * bounds.width(), room * bounds.height());
            // The hotter isotherm has the cooler one on its right, which on the screen is the positive side.
            return area.intersects(m_plot) && !isBehind(from, 1.0) && !isBehind(to, -1.0);
        };
        constexpr double step = 2.0;
        constexpr int stepsAtOnce = 17;
        constexpr int groups = int((coolest - hottest) / (stepsAtOnce * step));
        static_assert(hottest + groups * stepsAtOnce * step == coolest);
        constexpr double roomOfMany = 0.1; // the ends of isotherms lie on curves
        const auto isSeen = [&](int from, int to, double room) {
            return isSeenBetween(isotherm(hottest + from * step), isotherm(hottest + to * step), room);
        };
        // From one end on: what is seen between the first and the last one need not be looked for.
        const auto firstSeen = [&](bool fromCoolest) -> std::optional<int> {
            for (int i = 0; i < groups; ++i) {
                const int begin = (fromCoolest ? groups - 1 - i : i) * stepsAtOnce;
                const int count = isSeen(begin, begin + stepsAtOnce, roomOfMany) ? stepsAtOnce : 0;
                for (int k = 0; k < count; ++k) {
                    const int at = begin + (fromCoolest ? stepsAtOnce - 1 - k : k);
                    if (isSeen(at, at + 1, 0.0)) {
                        return at;
                    }
                }
            }
            return std::nullopt;
        };
        const std::optional<int> first = firstSeen(false);
        if (!first) {
            return std::nullopt;
        }
        return std::make_pair(hottest + *first * step, hottest + (*firstSeen(true) + 1) * step);
    }

    struct Isotherm {
        double kelvin;
        QLineF line;
        QPointF foot;
    };

    //! From the roundest on.
    QVector<Isotherm> isotherms() const
    {
        QVector<Isotherm> result;
        const auto seen = seenMireds();
        if (!seen) {
            return result;
        }
        constexpr double kelvinTimesMired = 1e6;
        const auto stepAt = [this](double kelvin) {
            const double mired = std::clamp(kelvinTimesMired / kelvin, hottest, coolest - 1.0);
            const auto at = [this](double where) {
                return toPosition(fromUv1960(m_viewport.diagram(), planckianPoint(where).uv));
            };
            const double perMired = length(at(mired + 1.0) - at(mired));
            const double perKelvin = perMired * kelvinTimesMired / (kelvin * kelvin);
            const double distance = std::max(isothermLines, std::min(m_plot.width(), m_plot.height()) / mostIsotherms);
            return std::max(closestIsotherms, roundStep(distance / perKelvin));
        };
        double kelvin = kelvinTimesMired / seen->second;
        while (true) {
            // The hotter, the closer: the step is that of where it leads.
            const double first = stepAt(kelvin);
            const double step = stepAt(kelvin + first);
            kelvin = (std::floor(kelvin / step + 1e-9) + 1.0) * step;
            if (!(kelvin <= kelvinTimesMired / seen->first)) {
                break;
            }
            const double mired = kelvinTimesMired / kelvin;
            const QPointF foot = toPosition(fromUv1960(m_viewport.diagram(), planckianPoint(mired).uv));
            const QLineF whole = this->isotherm(mired);
            const auto line = whole.length() >= shortestIsotherm ? partWithin(whole, m_plot) : std::nullopt;
            if (line) {
                result.append({kelvin, *line, foot});
            }
        }
        std::stable_sort(result.begin(), result.end(),
            [](const Isotherm &a, const Isotherm &b) { return roundness(a.kelvin) > roundness(b.kelvin); });
        return result;
    }

    void drawIsotherms()
    {
        const TextStyle &style = m_sheet.fonts.numbers;
        const QVector<Isotherm> lines = isotherms();
        QVector<QLineF> drawn;
        for (const Isotherm &isotherm : lines) {
            drawn.append(isotherm.line);
        }
        m_step.drawing.lines(drawn, QPen(m_innerPalette.casing, tickWidth + casingOfTicks, Qt::SolidLine, Qt::FlatCap));
        m_step.drawing.lines(drawn, QPen(m_innerPalette.planckian, tickWidth, Qt::SolidLine, Qt::FlatCap));
        for (const Isotherm &isotherm : lines) {
            PendingNumber pending;
            const QString number = QString::number(isotherm.kelvin, 'f', 0) + QStringLiteral(" K");
            const QSizeF size = style.size(number);
            // Beyond an end, or on the last part of a line that leaves the view.
            for (const double share : {1.0, 0.0, 0.88, 0.12}) {
                const QPointF at = isotherm.line.pointAt(share);
                const QPointF way = unit(
                    share > 0.5 ? isotherm.line.p2() - isotherm.line.p1() : isotherm.line.p1() - isotherm.line.p2());
                const bool isEnd = share == 0.0 || share == 1.0;
                const QRectF place = isEnd ? besides(at + way * tickGap, way, size)
                                           : QRectF(at - QPointF(size.width(), size.height()) / 2.0, size);
                pending.places.append(place);
            }
            // Aslant beyond an end, where the view is wide and marks are close to the locus.
            for (const double share : {1.0, 0.0}) {
                const QPointF at = isotherm.line.pointAt(share);
                const QPointF way = unit(at - isotherm.line.center());
                for (const double turn : {1.0, -1.0}) {
                    const QPointF aslant = unit(way + QPointF(-way.y(), way.x()) * turn);
                    pending.places.append(besides(at + aslant * tickGap, aslant, size));
                }
            }
            pending.text = number;
            pending.line = isotherm.line;
            m_step.isotherms.append(pending);
        }
    }

    const DiagramSheet &m_sheet;
    const DiagramViewport &m_viewport;
    const DiagramPalette &m_palette;
    const DiagramPalette &m_innerPalette;
    QRectF m_plot;
    QRectF m_inner; // where texts may stand
    QRectF m_whole;
    DiagramStep m_step;
};

} // namespace

QMarginsF diagramMargins(const DiagramContent &content, const DiagramFonts &fonts)
{
    if (!content.layers.testFlag(DiagramLayer::Axes)) {
        return QMarginsF();
    }
    const QSizeF number = fonts.numbers.designedSize(widestNumber);
    const QSizeF name = fonts.axes.designedSize(QStringLiteral("m"));
    const double height = std::ceil(std::max(number.height(), name.height()));
    const double width = number.width() + hinting * double(widestNumber.size());
    return QMarginsF(std::ceil(edgeGap + width + numberGap), std::ceil(edgeGap + height / 2.0),
        std::ceil(2.0 * edgeGap + name.width() / 2.0), std::ceil(2.0 * edgeGap + height));
}

DiagramStep scaleStep(const DiagramSheet &sheet)
{
    return Scale(sheet).take();
}

} // namespace ceiechart
