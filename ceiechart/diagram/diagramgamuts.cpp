// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramsheet_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <gamutmodel/gamutcoverage.h>

#include <QLocale>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace ceiechart {

namespace {

// Logical pixels
constexpr double casing = 2.5; // of a line, on both sides together
constexpr double equalWithin = 1.0; // corners as near as that are equal to the eye
constexpr double equalWidening = 3.0; // of the lower of two equal lines
constexpr double hatchDistance = 8.0;
constexpr double nameGap = 6.0; // between a line and its name
constexpr double labelGap = 3.0; // round any text
constexpr double platePadding = 4.0; // beside a name
constexpr double plateRadius = 3.0;
constexpr double plateOpacity = 0.94; // leaves names a contrast of 3:1 on every colour
constexpr double namedMarks = 30.0; // least distance of marks that have names beside them
constexpr double handleRoom = 11.0; // round the corners of a target, where handles are
constexpr double leaderWidth = 1.0; // from a number to its isotherm
constexpr double isothermNumbers = 44.0; // least distance of the middles of numbers
constexpr double leastNameShare = 0.2; // of the plot's width, to which names may be shortened
constexpr double markRadius = 4.0;
constexpr double whiteRadius = 5.0;
constexpr double whiteArm = 4.0; // of the cross through the target's white
constexpr double trailRadius = 2.5;
constexpr double ringWidth = 1.2;
constexpr double curvePieces = 2.0; // lengths of the pieces of rings, at least

// From bottom to top
constexpr std::array drawingOrder{
    GamutRole::Standard, GamutRole::Declared, GamutRole::Original, GamutRole::Measured, GamutRole::Target};

double length(const QPointF &way)
{
    return std::hypot(way.x(), way.y());
}

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

QPointF xyOf(const Model::Target &target)
{
    return QPointF(target.x, target.y);
}

//! On one line: what controls a terminal or breaks a line has no glyph.
QString onOneLine(QString text)
{
    for (QChar &character : text) {
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph) {
            character = QLatin1Char(' ');
        }
    }
    return text.simplified();
}

QString nameOf(const DiagramGamut &gamut)
{
    return onOneLine(QString::fromStdString(gamut.gamut.colorGamutName()));
}

//! Six digits at most, and no exponent.
QString decimal(double value)
{
    return QString::number(QString::number(value, 'g', 6).toDouble(), 'f', QLocale::FloatingPointShortest);
}

QColor faded(QColor color, double share)
{
    color.setAlphaF(color.alphaF() * share);
    return color;
}

//! Whether the line from \a line's first to its second point meets \a area.
bool meets(const QLineF &line, const QRectF &area)
{
    return area.contains(line.p1()) || area.contains(line.p2()) || partWithin(line, area).has_value();
}

QPainterPath closedPath(const QPolygonF &corners)
{
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

QPolygonF diamond(const QPointF &at, double radius)
{
    return QPolygonF(
        {at - QPointF(0.0, radius), at + QPointF(radius, 0.0), at + QPointF(0.0, radius), at - QPointF(radius, 0.0)});
}

//! Each role's white has a shape of its own.
QPainterPath whiteShape(GamutRole role, const QPointF &at)
{
    constexpr double r = whiteRadius;
    QPainterPath path;
    switch (role) {
    case GamutRole::Target:
        path.addEllipse(at, r, r);
        for (const QPointF &way : {QPointF(1.0, 0.0), QPointF(-1.0, 0.0), QPointF(0.0, 1.0), QPointF(0.0, -1.0)}) {
            path.moveTo(at + way * (r - whiteArm / 2.0));
            path.lineTo(at + way * (r + whiteArm));
        }
        break;
    case GamutRole::Original:
    case GamutRole::Standard:
        path.addRect(QRectF(at - QPointF(r, r), at + QPointF(r, r)));
        break;
    case GamutRole::Measured:
        path = closedPath(diamond(at, r + 1.5));
        break;
    case GamutRole::Declared:
        path = closedPath(QPolygonF(
            QVector<QPointF>{at + QPointF(0.0, -r - 1.0), at + QPointF(r + 0.5, r), at + QPointF(-r - 0.5, r)}));
        break;
    }
    return path;
}

class Gamuts {
public:
    Gamuts(const DiagramSheet &sheet, const LabelPlaces &places)
        : m_sheet(sheet)
        , m_content(sheet.content)
        , m_palette(sheet.palette())
        , m_innerPalette(sheet.innerPalette())
        , m_plot(sheet.viewport.plot())
        , m_inner(m_plot.adjusted(labelGap, labelGap, -labelGap, -labelGap))
    {
        m_step.places = places;
        for (const GamutRole role : drawingOrder) {
            for (int i = 0; i < m_content.gamuts.size(); ++i) {
                const DiagramGamut &gamut = m_content.gamuts.at(i);
                if (gamut.role == role && m_content.shows(gamut)) {
                    const QPolygonF corners = sheet.viewport.outline(gamut.gamut.getTargets());
                    if (std::all_of(corners.cbegin(), corners.cend(), isFinite)) {
                        m_shown.push_back({i, role, corners});
                    }
                }
            }
        }
        // Painted again and again, the soft edges of a line would harden.
        for (size_t i = m_shown.size(); i-- > 0;) {
            for (size_t k = i + 1; k < m_shown.size() && m_shown[k].role == m_shown[i].role; ++k) {
                m_shown[i].isCovered = m_shown[i].isCovered || (!m_shown[k].isCovered && areEqual(i, k));
            }
        }
    }

    DiagramStep takeUnedited()
    {
        for (size_t i = 0; i < m_shown.size(); ++i) {
            if (isDrawn(i, false)) {
                drawOutline(i, false);
            }
        }
        return std::move(m_step);
    }

    DiagramStep takeEdited(const QVector<PendingNumber> &isotherms)
    {
        placeIsotherms(isotherms);
        drawCommonArea();
        if (m_sheet.shows(DiagramLayer::LostArea)) {
            drawLostArea();
        }
        for (size_t i = 0; i < m_shown.size(); ++i) {
            const bool isTarget = m_shown[i].role == GamutRole::Target;
            // What the target would cover comes out on both sides of it.
            if (isDrawn(i, true) && (isTarget || equalsAbove(i, false) != equalsAbove(i, true))) {
                drawOutline(i, true);
            }
        }
        if (m_sheet.shows(DiagramLayer::Rings)) {
            for (const DiagramRings &rings : m_content.rings) {
                drawRings(rings);
            }
        }
        if (m_sheet.shows(DiagramLayer::Trail)) {
            drawTrail();
        }
        drawMarks();
        if (m_sheet.shows(DiagramLayer::Whites)) {
            drawWhites();
        }
        if (m_sheet.shows(DiagramLayer::Names)) {
            drawNames();
            for (const auto &[at, name] : m_named) {
                drawMarkName(at, name);
            }
        }
        return std::move(m_step);
    }

private:
    struct Shown {
        int index;
        GamutRole role;
        QPolygonF corners;
        bool isCovered = false; // by the equal outline of another gamut of the role, which looks the same
    };

    //! Whether the outlines number \a i and \a k fall on one another.
    bool areEqual(size_t i, size_t k) const
    {
        const QPolygonF &a = m_shown[i].corners;
        const QPolygonF &b = m_shown[k].corners;
        return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(),
            [](const QPointF &p, const QPointF &q) { return length(p - q) < equalWithin; });
    }

    bool isDrawn(size_t i, bool targetsToo) const
    {
        return !m_shown[i].isCovered && (targetsToo || m_shown[i].role != GamutRole::Target);
    }

    //! How many other roles have gamuts that are drawn later and equal number \a i: those of one role look the same.
    int equalsAbove(size_t i, bool targetsToo) const
    {
        int count = 0;
        GamutRole last = m_shown[i].role;
        for (size_t k = i + 1; k < m_shown.size(); ++k) {
            // A role's gamuts follow one another.
            if (m_shown[k].role != last && isDrawn(k, targetsToo) && areEqual(i, k)) {
                ++count;
                last = m_shown[k].role;
            }
        }
        return count;
    }

    bool hasEqualBelow(size_t i) const
    {
        for (size_t k = 0; k < i; ++k) {
            if (!m_shown[k].isCovered && areEqual(i, k)) {
                return true;
            }
        }
        return false;
    }

    //! Of gamuts that equal one another the lower ones are wider, so that each shows on both sides of the next.
    void drawOutline(size_t i, bool targetsToo)
    {
        QPen pen = DiagramPainter::gamutPen(m_shown[i].role);
        const int equals = equalsAbove(i, targetsToo);
        if (equals > 0) {
            pen = QPen(pen.color(), pen.widthF() + equals * equalWidening, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        }
        drawCased(m_step.drawing, m_shown[i].corners, true, m_plot, pen,
            hasEqualBelow(i) ? QColor(Qt::transparent) : m_palette.casing);
    }

    void drawCommonArea()
    {
        if (!m_sheet.shows(DiagramLayer::CommonArea) || m_sheet.colors() == HorseshoeColors::Dimmed) {
            return; // there, it is what is not dimmed
        }
        QPolygonF corners;
        for (const QPointF &point : commonArea(m_content, m_sheet.viewport.diagram())) {
            corners.append(m_sheet.viewport.fromPoint(point));
        }
        if (corners.isEmpty()) {
            return;
        }
        if (m_sheet.colors() == HorseshoeColors::None) {
            const QPolygonF seen = corners.intersected(QPolygonF(m_plot.adjusted(0.0, 0.0, 0.0, 0.0)));
            m_step.drawing.shape(closedPath(seen), Qt::NoPen, faded(m_palette.accent, 0.12));
        }
        drawCased(m_step.drawing, corners, true, m_plot, QPen(m_palette.numbers, 1.0), m_palette.casing);
    }

    void drawLostArea()
    {
        const DiagramGamut *display = m_content.display();
        const DiagramGamut *target = m_content.find(GamutRole::Target);
        if (!display || !target) {
            return;
        }
        const QPolygonF whole = m_sheet.viewport.outline(display->gamut.getTargets());
        const QPolygonF kept = m_sheet.viewport.outline(target->gamut.getTargets());
        if (!std::all_of(whole.cbegin(), whole.cend(), isFinite)
            || !std::all_of(kept.cbegin(), kept.cend(), isFinite)) {
            return;
        }
        // Lines x + y = const on the screen, fixed to the diagram and not to the view.
        const QPointF origin = m_sheet.viewport.fromPoint(QPointF());
        const double phase = std::fmod(origin.x() + origin.y(), hatchDistance);
        const double last = m_plot.right() + m_plot.bottom();
        QVector<QLineF> hatch;
        for (double sum = phase - hatchDistance; sum < last; sum += hatchDistance) {
            const auto line
                = partWithin(QLineF(m_plot.left(), sum - m_plot.left(), m_plot.right(), sum - m_plot.right()), m_plot);
            const auto within = line ? sharesWithin(*line, whole) : std::nullopt;
            if (!within) {
                continue;
            }
            const auto drawPart = [&](double from, double to) {
                if (to > from) {
                    hatch.append(QLineF(line->pointAt(from), line->pointAt(to)));
                }
            };
            const auto hidden = sharesWithin(*line, kept);
            drawPart(within->first, hidden ? std::min(within->second, hidden->first) : within->second);
            if (hidden) {
                drawPart(std::max(within->first, hidden->second), within->second);
            }
        }
        m_step.drawing.lines(hatch, QPen(m_palette.hatch, 1.0, Qt::SolidLine, Qt::FlatCap));
    }

    void drawRings(const DiagramRings &rings)
    {
        const QPointF centre = m_sheet.viewport.toPosition(rings.xy);
        if (!isFinite(centre)) {
            return;
        }
        const QColor color = gamutStyle(GamutRole::Target).color;
        const TextStyle &style = m_sheet.fonts.numbers;
        for (const double radius : rings.radii) {
            const QPolygonF curve = DiagramPainter::ring(m_sheet.viewport, rings.xy, radius);
            if (curve.isEmpty() || !std::all_of(curve.cbegin(), curve.cend(), isFinite)) {
                continue;
            }
            QPen pen(color, ringWidth, Qt::CustomDashLine, Qt::FlatCap);
            pen.setDashPattern({5.0, 3.0});
            const QRectF bounds = curve.boundingRect();
            if (m_plot.contains(bounds) && m_sheet.viewport.diagram() != Model::Diagram::Cie1931) {
                // As an ellipse, which files keep as one.
                m_step.drawing.ellipse(bounds.center(), bounds.width() / 2.0, bounds.height() / 2.0,
                    QPen(m_innerPalette.casing, ringWidth + casing), Qt::NoBrush);
                m_step.drawing.ellipse(bounds.center(), bounds.width() / 2.0, bounds.height() / 2.0, pen, Qt::NoBrush);
            } else {
                drawCased(m_step.drawing, thinned(curve, curvePieces), true, m_plot, pen, m_innerPalette.casing);
            }
            const QString number = decimal(radius);
            const QSizeF size = style.size(number);
            if (bounds.height() < 3.2 * size.height()) {
                continue;
            }
            const auto ends = std::minmax_element(
                curve.cbegin(), curve.cend(), [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
            for (const QPointF &end : {*ends.second, *ends.first}) {
                const QRectF place(end - QPointF(size.width(), size.height()) / 2.0, size);
                if (m_step.places.isFree(place, m_inner, labelGap)) {
                    m_step.places.add(DiagramLabel::Kind::Ring, number, place);
                    drawPlate(place, m_innerPalette);
                    m_step.texts.textIn(place, number, style, color);
                    break;
                }
            }
        }
    }

    void drawPlate(const QRectF &place, const DiagramPalette &palette)
    {
        QPainterPath plate;
        plate.addRoundedRect(place, plateRadius, plateRadius);
        m_step.texts.shape(plate, Qt::NoPen, faded(palette.ground, plateOpacity));
    }

    void drawTrail()
    {
        const QColor color = gamutStyle(GamutRole::Target).color;
        const int count = int(m_content.trail.size());
        const auto at = [this](int i) { return m_sheet.viewport.toPosition(m_content.trail.at(i)); };
        for (int i = 0; i + 1 < count; ++i) {
            if (const auto part = isFinite(at(i)) && isFinite(at(i + 1)) ? partWithin(QLineF(at(i), at(i + 1)), m_plot)
                                                                         : std::nullopt) {
                const QPolygonF points(QVector<QPointF>{part->p1(), part->p2()});
                m_step.drawing.line(
                    points, false, QPen(m_innerPalette.casing, 1.5 + casing, Qt::SolidLine, Qt::RoundCap));
                m_step.drawing.line(points, false, QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap));
            }
        }
        for (int i = 0; i < count; ++i) {
            if (isSeen(at(i), trailRadius)) {
                // The older, the smaller.
                const double radius = trailRadius * (0.6 + 0.4 * (i + 1) / count);
                m_step.drawing.ellipse(at(i), radius, radius, QPen(m_innerPalette.casing, 1.0), color);
            }
        }
    }

    bool isSeen(const QPointF &at, double radius) const
    {
        return isFinite(at) && m_plot.adjusted(radius, radius, -radius, -radius).contains(at);
    }

    void drawMarks()
    {
        const QColor cmy[] = {QColor(0, 200, 220), QColor(220, 40, 200), QColor(240, 205, 0)};
        if (m_sheet.shows(DiagramLayer::MeasurePoints)) {
            for (const DiagramMark &mark : m_content.measurePoints) {
                QPainterPath disc;
                disc.addEllipse(m_sheet.viewport.toPosition(mark.xy), markRadius, markRadius);
                drawMark(mark, disc, Qt::white);
            }
        }
        if (m_sheet.shows(DiagramLayer::ColorTemperaturePoints)) {
            for (const DiagramMark &mark : m_content.colorTemperaturePoints) {
                drawMark(mark, closedPath(diamond(m_sheet.viewport.toPosition(mark.xy), markRadius + 1.5)), Qt::white);
            }
        }
        if (m_sheet.shows(DiagramLayer::CmyPoints)) {
            for (int i = 0; i < m_content.cmyPoints.size(); ++i) {
                const DiagramMark &mark = m_content.cmyPoints.at(i);
                const QPointF at = m_sheet.viewport.toPosition(mark.xy);
                QPainterPath square;
                square.addRect(QRectF(at - QPointF(markRadius, markRadius), at + QPointF(markRadius, markRadius)));
                drawMark(mark, square, cmy[i % 3]);
            }
        }
    }

    void drawMark(const DiagramMark &mark, const QPainterPath &shape, const QColor &color)
    {
        const QPointF at = m_sheet.viewport.toPosition(mark.xy);
        if (!isSeen(at, markRadius + 2.0)) {
            return;
        }
        // White round black round the mark's colour can be seen on every ground.
        m_step.drawing.shape(shape, QPen(Qt::white, 3.5), Qt::NoBrush);
        m_step.drawing.shape(shape, QPen(QColor(24, 26, 30), 1.4), mark.color.isValid() ? mark.color : color);
        m_marks.append(QRectF(at - QPointF(markRadius, markRadius), at + QPointF(markRadius, markRadius)));
        const QString name = onOneLine(mark.name);
        if (!name.isEmpty()) {
            m_named.push_back({at, name});
        }
    }

    static QRectF around(const QPointF &at, double reach)
    {
        return QRectF(at - QPointF(reach, reach), at + QPointF(reach, reach));
    }

    QPointF whiteOf(const Shown &gamut) const
    {
        return m_sheet.viewport.toPosition(xyOf(m_content.gamuts.at(gamut.index).gamut.getTargets().white));
    }

    //! Where a target has its handles.
    QVector<QRectF> handles() const
    {
        QVector<QRectF> result;
        for (const Shown &gamut : m_shown) {
            if (gamut.role == GamutRole::Target) {
                for (const QPointF &corner : gamut.corners) {
                    result.append(around(corner, handleRoom));
                }
                result.append(around(whiteOf(gamut), handleRoom));
            }
        }
        return result;
    }

    //! What numbers must leave to be seen: marks, whites and handles.
    QVector<QRectF> clearOfNumbers() const
    {
        QVector<QRectF> result = handles();
        const auto add = [&](DiagramLayer layer, const QVector<DiagramMark> &marks) {
            for (const DiagramMark &mark : m_sheet.shows(layer) ? marks : QVector<DiagramMark>()) {
                const QPointF at = m_sheet.viewport.toPosition(mark.xy);
                if (isSeen(at, markRadius + 2.0)) {
                    result.append(around(at, markRadius + 2.0));
                }
            }
        };
        add(DiagramLayer::MeasurePoints, m_content.measurePoints);
        add(DiagramLayer::ColorTemperaturePoints, m_content.colorTemperaturePoints);
        add(DiagramLayer::CmyPoints, m_content.cmyPoints);
        for (const Shown &gamut : m_shown) {
            if (gamut.role != GamutRole::Standard && m_sheet.shows(DiagramLayer::Whites) && isFinite(whiteOf(gamut))) {
                result.append(around(whiteOf(gamut), whiteRadius + 2.0));
            }
        }
        return result;
    }

    void drawIsothermNumber(const QString &number, const QRectF &place)
    {
        m_step.places.add(DiagramLabel::Kind::Isotherm, number, place);
        m_step.texts.textIn(place, number, m_sheet.fonts.numbers, m_innerPalette.planckian, m_innerPalette.casing);
    }

    //! The isotherm's number at the nearest free place, with a line from there to the isotherm.
    bool leadToIsotherm(const PendingNumber &number, const QVector<QRectF> &clear)
    {
        constexpr double step = 4.0;
        constexpr double farther = 1e4; // what is nearer to something else would be taken for its name
        const QSizeF size = m_sheet.fonts.numbers.size(number.text);
        QRectF best;
        QLineF leader;
        double least = std::numeric_limits<double>::max();
        for (double y = m_inner.top(); y + size.height() <= m_inner.bottom(); y += step) {
            for (double x = m_inner.left(); x + size.width() <= m_inner.right(); x += step) {
                const QRectF place(QPointF(x, y), size);
                const auto wayTo = [&place](const QPointF &at) {
                    return QLineF(QPointF(std::clamp(at.x(), place.left(), place.right()),
                                      std::clamp(at.y(), place.top(), place.bottom())),
                        at);
                };
                const QLineF ends[] = {wayTo(number.line.p1()), wayTo(number.line.p2())};
                const QLineF &way = ends[0].length() < ends[1].length() ? ends[0] : ends[1];
                const double toMiddle = length(way.p2() - place.center());
                const bool isNearerToOther = std::any_of(clear.cbegin(), clear.cend(),
                    [&](const QRectF &mark) { return length(mark.center() - place.center()) < toMiddle; });
                const double away = toMiddle + (isNearerToOther ? farther : 0.0);
                if (way.length() > labelGap && away < least && m_step.places.isFree(place, m_inner, labelGap)
                    && std::none_of(clear.cbegin(), clear.cend(),
                        [&place](const QRectF &mark) { return mark.intersects(place); })) {
                    least = away;
                    best = place;
                    leader = way;
                }
            }
        }
        if (best.isNull()) {
            return false;
        }
        drawCased(m_step.drawing, QPolygonF(QVector<QPointF>{leader.p1(), leader.p2()}), false, m_plot,
            QPen(m_innerPalette.planckian, leaderWidth), m_innerPalette.casing);
        drawIsothermNumber(number.text, best);
        return true;
    }

    //! Of isotherms none of which has room for its number beside it, that nearest to the white is named all the same.
    void nameOneIsotherm(QVector<PendingNumber> isotherms, const QVector<QRectF> &clear)
    {
        if (!m_shown.empty() && isFinite(whiteOf(m_shown.back()))) {
            const QPointF white = whiteOf(m_shown.back());
            std::stable_sort(
                isotherms.begin(), isotherms.end(), [&white](const PendingNumber &a, const PendingNumber &b) {
                    return length(a.line.center() - white) < length(b.line.center() - white);
                });
        }
        for (const PendingNumber &number : qAsConst(isotherms)) {
            if (leadToIsotherm(number, clear)) {
                return;
            }
        }
    }

    void placeIsotherms(const QVector<PendingNumber> &isotherms)
    {
        const QVector<QRectF> clear = clearOfNumbers();
        QVector<QPointF> placed;
        for (const PendingNumber &number : isotherms) {
            for (const QRectF &place : number.places) {
                const auto isNear
                    = [&](const QPointF &other) { return length(other - place.center()) < isothermNumbers; };
                const auto isCovered = [&](const QRectF &mark) { return mark.intersects(place); };
                if (m_step.places.isFree(place, m_inner, labelGap)
                    && std::none_of(placed.cbegin(), placed.cend(), isNear)
                    && std::none_of(clear.cbegin(), clear.cend(), isCovered)) {
                    placed.append(place.center());
                    drawIsothermNumber(number.text, place);
                    break;
                }
            }
        }
        if (placed.isEmpty()) {
            nameOneIsotherm(isotherms, clear);
        }
    }

    void drawWhites()
    {
        for (const Shown &gamut : m_shown) {
            const QPointF at = whiteOf(gamut);
            if (gamut.role == GamutRole::Standard || !isSeen(at, whiteRadius + whiteArm)) {
                continue;
            }
            const QPainterPath shape = whiteShape(gamut.role, at);
            QPen pen = DiagramPainter::gamutPen(gamut.role);
            pen.setStyle(Qt::SolidLine);
            m_step.drawing.shape(shape, QPen(m_innerPalette.casing, pen.widthF() + casing), Qt::NoBrush);
            m_step.drawing.shape(shape, pen, Qt::NoBrush);
            const QPointF reach(whiteRadius + whiteArm, whiteRadius + whiteArm);
            m_marks.append(QRectF(at - reach, at + reach));
        }
    }

    //! Where a name may stand, the best first.
    QVector<QRectF> namePlaces(const Shown &gamut, const QSizeF &size) const
    {
        const QPolygonF &corners = gamut.corners;
        const QPointF middle = (corners.at(0) + corners.at(1) + corners.at(2)) / 3.0;
        const auto beside = [&size](const QPointF &at, const QPointF &way) {
            const QPointF centre
                = at + QPointF(way.x() * (nameGap + size.width() / 2.0), way.y() * (nameGap + size.height() / 2.0));
            return QRectF(centre - QPointF(size.width(), size.height()) / 2.0, size);
        };
        QVector<QRectF> atCorners;
        for (const int corner : {1, 0, 2}) {
            const QPointF &at = corners.at(corner);
            const QPointF out = at - middle;
            if (length(out) > 0.0) {
                const double side = out.x() < 0.0 ? -1.0 : 1.0;
                const double height = out.y() < 0.0 ? -1.0 : 1.0;
                for (const QPointF &way :
                    {QPointF(1.0, -0.2), QPointF(-1.0, -0.2), QPointF(0.0, height), QPointF(side, height)}) {
                    atCorners.append(beside(at, way));
                }
            }
        }
        QVector<QRectF> atLines;
        // From green to blue, from red to green, from blue to red.
        for (const int side : {1, 0, 2}) {
            const auto seen = partWithin(QLineF(corners.at(side), corners.at((side + 1) % 3)), m_plot);
            if (!seen || seen->length() < size.width() / 2.0) {
                continue;
            }
            QPointF out = QPointF(seen->dy(), -seen->dx()) / seen->length();
            if (QPointF::dotProduct(out, middle - seen->p1()) > 0.0) {
                out = -out;
            }
            for (const double share : {0.3, 0.5, 0.7, 0.15, 0.85}) {
                // Clear of the line, however it slants.
                const double reach
                    = nameGap + (std::fabs(out.x()) * size.width() + std::fabs(out.y()) * size.height()) / 2.0;
                for (const double way : {1.0, -1.0}) {
                    const QPointF centre = seen->pointAt(share) + out * (way * reach);
                    atLines.append(QRectF(centre - QPointF(size.width(), size.height()) / 2.0, size));
                }
            }
        }
        if (atCorners.isEmpty() && atLines.isEmpty()) {
            // All corners are in one point.
            for (const QPointF &way : {QPointF(1.0, 0.0), QPointF(-1.0, 0.0), QPointF(0.0, -1.0), QPointF(0.0, 1.0)}) {
                atCorners.append(beside(middle, way));
            }
        }
        return gamut.role == GamutRole::Standard ? atCorners + atLines : atLines + atCorners;
    }

    //! How much \a place would cover.
    int covered(const QRectF &place) const
    {
        int count = 0;
        for (const Shown &gamut : m_shown) {
            for (int i = 0; i < 3; ++i) {
                count += meets(QLineF(gamut.corners.at(i), gamut.corners.at((i + 1) % 3)), place) ? 2 : 0;
            }
        }
        for (const QRectF &mark : m_marks) {
            count += mark.intersects(place) ? 3 : 0;
        }
        return count;
    }

    void drawNames()
    {
        const QVector<QRectF> handles = this->handles();
        // The target first, as the last is the most likely to find no room.
        for (auto gamut = m_shown.crbegin(); gamut != m_shown.crend(); ++gamut) {
            const QString name = nameOf(m_content.gamuts.at(gamut->index));
            if (name.isEmpty()) {
                continue;
            }
            const TextStyle &style = gamut->role == GamutRole::Standard ? m_sheet.fonts.texts : m_sheet.fonts.names;
            // What finds no room as a whole is shortened, more and more.
            QString shown = name;
            QRectF best = bestPlace(*gamut, style.size(shown), handles);
            for (double share = 0.6; best.isNull() && share >= leastNameShare; share -= 0.2) {
                const QString shorter = style.elided(name, share * m_plot.width());
                if (shorter != shown) {
                    shown = shorter;
                    best = bestPlace(*gamut, style.size(shown), handles);
                }
            }
            if (!best.isNull()) {
                m_step.places.add(DiagramLabel::Kind::Gamut, shown, best, gamut->index);
                drawPlate(best, m_palette);
                m_step.texts.textIn(best.adjusted(platePadding, 0.0, -platePadding, 0.0), shown, style,
                    DiagramPainter::gamutPen(gamut->role).color());
            }
        }
    }

    //! Where a name of the size \a text covers least; null where it has no place.
    QRectF bestPlace(const Shown &gamut, const QSizeF &text, const QVector<QRectF> &handles) const
    {
        QRectF best;
        int least = std::numeric_limits<int>::max();
        for (const QRectF &place : namePlaces(gamut, text + QSizeF(2.0 * platePadding, 0.0))) {
            const bool isOnHandle = std::any_of(
                handles.cbegin(), handles.cend(), [&place](const QRectF &handle) { return handle.intersects(place); });
            if (isOnHandle || !m_step.places.isFree(place, m_inner, labelGap)) {
                continue;
            }
            const int cost = covered(place);
            if (cost < least) {
                least = cost;
                best = place;
            }
            if (cost == 0) {
                break;
            }
        }
        return best;
    }

    void drawMarkName(const QPointF &at, const QString &name)
    {
        const auto isNear = [&at](const QRectF &mark) {
            const double distance = length(mark.center() - at);
            return distance > 0.5 && distance < namedMarks;
        };
        if (std::any_of(m_marks.cbegin(), m_marks.cend(), isNear)) {
            return;
        }
        const TextStyle &style = m_sheet.fonts.texts;
        const QSizeF size = style.size(name);
        for (const QPointF &way : {QPointF(1.0, 0.0), QPointF(-1.0, 0.0), QPointF(0.0, -1.0), QPointF(0.0, 1.0)}) {
            const double reach = markRadius + labelGap + 1.0;
            const QPointF centre
                = at + QPointF(way.x() * (reach + size.width() / 2.0), way.y() * (reach + size.height() / 2.0));
            const QRectF place(centre - QPointF(size.width(), size.height()) / 2.0, size);
            const bool coversMark = std::any_of(
                m_marks.cbegin(), m_marks.cend(), [&place](const QRectF &mark) { return mark.intersects(place); });
            if (!coversMark && m_step.places.isFree(place, m_inner, labelGap)) {
                m_step.places.add(DiagramLabel::Kind::Mark, name, place);
                m_step.texts.textIn(place, name, style, m_innerPalette.text, m_innerPalette.casing);
                return;
            }
        }
    }

    const DiagramSheet &m_sheet;
    const DiagramContent &m_content;
    const DiagramPalette &m_palette;
    const DiagramPalette &m_innerPalette;
    QRectF m_plot;
    QRectF m_inner; // where texts may stand
    std::vector<Shown> m_shown; // from bottom to top
    QVector<QRectF> m_marks;
    std::vector<std::pair<QPointF, QString>> m_named;
    DiagramStep m_step;
};

} // namespace

void drawCased(DrawList &list, const QPolygonF &points, bool closed, const QRectF &area, const QPen &pen,
    const QColor &casingColor)
{
    const std::vector<LinePart> parts = partsWithin(points, closed, area);
    for (const LinePart &part : casingColor.alpha() > 0 ? parts : std::vector<LinePart>()) {
        const QPen under(casingColor, pen.widthF() + casing, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        list.line(part.points, part.closed, under);
    }
    for (const LinePart &part : parts) {
        QPen placed = pen;
        if (pen.style() != Qt::SolidLine) {
            // Offsets are counted in widths of the pen, and repeat with the pattern.
            double period = 0.0;
            for (const qreal dash : pen.dashPattern()) {
                period += dash;
            }
            placed.setDashOffset(std::fmod(part.begin / pen.widthF(), period));
        }
        list.line(part.points, part.closed, placed);
    }
}

QPolygonF commonArea(const DiagramContent &content, Model::Diagram diagram)
{
    QPolygonF corners;
    const DiagramGamut *display = content.display();
    const DiagramGamut *target = content.find(GamutRole::Target);
    const DiagramGamut *only = target ? target : display;
    if (!only || !content.layers.testFlag(DiagramLayer::CommonArea)) {
        return corners;
    }
    const Model::Targets &first = only->gamut.getTargets();
    const Model::Targets &second = display ? display->gamut.getTargets() : first;
    for (const Model::DiagramPoint &point : Model::commonPolygon(first, second, diagram)) {
        corners.append(QPointF(point.x, point.y));
    }
    return corners;
}

DiagramStep gamutsStep(const DiagramSheet &sheet, const LabelPlaces &places)
{
    return Gamuts(sheet, places).takeUnedited();
}

DiagramStep editedStep(const DiagramSheet &sheet, const LabelPlaces &places, const QVector<PendingNumber> &isotherms)
{
    return Gamuts(sheet, places).takeEdited(isotherms);
}

} // namespace ceiechart
