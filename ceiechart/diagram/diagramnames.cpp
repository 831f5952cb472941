// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// The names of gamuts and marks and the numbers of isotherms, and where they stand.
#include <ceiechart/diagram/diagramgamuts_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/spectrum_p.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace ceiechart {

namespace {

// Logical pixels
constexpr double nameGap = 6.0; // between a line and its name
constexpr double platePadding = 4.0; // beside a name
constexpr double plateRadius = 3.0;
constexpr double plateOpacity = 0.94; // leaves names a contrast of 3:1 on every colour
constexpr double sameMark = 0.5; // distance up to which marks count as one
constexpr int mostCovered = 1000; // marks to count below a name: a place that covers as many is none
constexpr double namedMarks = 30.0; // least distance of marks that have names beside them
constexpr double leaderWidth = 1.0; // from a number to its isotherm
constexpr double isothermNumbers = 44.0; // least distance of the middles of numbers
constexpr double leastNameShare = 0.2; // of the plot's width, to which names may be shortened
constexpr int leastLetters = 3; // of a name that is shortened: fewer say nothing
constexpr double leaderDot = 2.0; // radius of the end of a leader, on the line of its gamut
constexpr int mostLedOutlines = 20; // among more of them, a leader is hard to follow

// What a place for a name costs, in pixels of a leader that would be as bad
constexpr double costOfCovering = 60.0; // for each unit of what costOfCovered() counts
constexpr double costOfCurve = 15.0; // of covering part of a locus: not worth a leader
constexpr double costOfCrossing = 15.0; // of another outline by the leader
constexpr double worthLeading = 20.0; // what costs no more is clear enough without a leader
constexpr double mostDoubt = 60.0; // of a place that is away from its outline, and has no leader
constexpr double costOfShortening = 80.0; // of the name, each time

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

bool meetsAny(const QVector<QRectF> &some, const QRectF &place)
{
    return std::any_of(some.cbegin(), some.cend(), [&place](const QRectF &other) { return overlap(other, place); });
}

} // namespace

QVector<QRectF> DiagramGamuts::handles() const
{
    QVector<QRectF> result;
    for (size_t i = m_outlines.standards; i < m_shown.size(); ++i) {
        if (m_shown[i].role == GamutRole::Target) {
            for (const QPointF &corner : m_shown[i].corners) {
                result.append(around(corner, handleExtent));
            }
            result.append(around(whiteOf(m_shown[i]), handleExtent));
        }
    }
    return result;
}

void DiagramGamuts::placeWavelengths(const QVector<PendingNumber> &wavelengths)
{
    // Only those that have to give way look for room between the others.
    QVector<PendingNumber> moved;
    const auto draw = [this](const PendingNumber &number, const QRectF &place) {
        m_step.places.add(DiagramLabel::Kind::Wavelength, number.text, place);
        m_step.texts.textIn(place, number.text, m_sheet.fonts.numbers, m_palette.numbers, m_palette.casing);
    };
    for (const PendingNumber &number : wavelengths) {
        if (meetsAny(m_handles, number.places.first())) {
            moved.append(number);
        } else {
            draw(number, number.places.first());
        }
    }
    for (const PendingNumber &number : qAsConst(moved)) {
        for (const QRectF &place : number.places) {
            if (!meetsAny(m_handles, place) && m_step.places.isFree(place, m_inner, labelGap)) {
                draw(number, place);
                break;
            }
        }
    }
}

QVector<QRectF> DiagramGamuts::clearOfNumbers() const
{
    QVector<QRectF> result = m_handles;
    for (size_t i = m_outlines.standards; i < m_shown.size() && m_sheet.shows(DiagramLayer::Whites); ++i) {
        const QPointF white = whiteOf(m_shown[i]);
        if (isFinite(white)) {
            result.append(around(white, whiteRadius + 2.0));
        }
    }
    return result;
}

bool DiagramGamuts::isTaken(const QRectF &place, const QVector<QRectF> &clear) const
{
    return meetsAny(clear, place) || m_marks.places.meets(place, markRadius + 2.0) || isOnRing(place);
}

void DiagramGamuts::drawIsothermNumber(const QString &number, const QRectF &place, const QLineF &leader)
{
    m_step.places.add(DiagramLabel::Kind::Isotherm, number, place, -1, leader);
    // Away from its isotherm it may be beyond the colours, on the ground of the view.
    const bool isOnColors = leader.isNull()
        || spectralLocusIn(m_sheet.viewport.diagram(), 1)
               .containsPoint(m_sheet.viewport.toPoint(place.center()), Qt::WindingFill);
    const DiagramPalette &palette = isOnColors ? m_innerPalette : m_palette;
    m_step.texts.textIn(place, number, m_sheet.fonts.numbers, palette.planckian, palette.casing);
}

bool DiagramGamuts::leadToIsotherm(const PendingNumber &number, const QVector<QRectF> &clear, bool mayCross)
{
    constexpr double finest = 4.0;
    constexpr double mostPlaces = 20000.0; // to look at in a large picture that has room nowhere
    const double step = std::max(finest, std::sqrt(m_inner.width() * m_inner.height() / mostPlaces));
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
            if (way.length() <= labelGap || toMiddle >= least || !m_step.places.isFree(place, m_inner, labelGap)
                || m_step.places.isCrossed(way) || isTaken(place, clear) || (!mayCross && outlinesAt(place) > 0)) {
                continue;
            }
            const bool isNearerToOther = m_marks.places.isBetween(place.center(), 0.0, toMiddle)
                || std::any_of(clear.cbegin(), clear.cend(),
                    [&](const QRectF &mark) { return length(mark.center() - place.center()) < toMiddle; });
            const double away = toMiddle + (isNearerToOther ? farther : 0.0);
            if (away < least) {
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
    drawIsothermNumber(number.text, best, leader);
    return true;
}

void DiagramGamuts::nameOneIsotherm(QVector<PendingNumber> isotherms, const QVector<QRectF> &clear)
{
    if (!m_shown.empty() && isFinite(whiteOf(m_shown.back()))) {
        const QPointF white = whiteOf(m_shown.back());
        std::stable_sort(isotherms.begin(), isotherms.end(), [&white](const PendingNumber &a, const PendingNumber &b) {
            return length(a.line.center() - white) < length(b.line.center() - white);
        });
    }
    for (const bool mayCross : {false, true}) {
        for (const PendingNumber &number : qAsConst(isotherms)) {
            if (leadToIsotherm(number, clear, mayCross)) {
                return;
            }
        }
    }
}

void DiagramGamuts::placeIsotherms(const QVector<PendingNumber> &isotherms)
{
    const QVector<QRectF> clear = clearOfNumbers();
    QVector<QPointF> placed;
    for (const PendingNumber &number : isotherms) {
        for (const QRectF &place : number.places) {
            const auto isNear = [&](const QPointF &other) { return length(other - place.center()) < isothermNumbers; };
            if (m_step.places.isFree(place, m_inner, labelGap) && std::none_of(placed.cbegin(), placed.cend(), isNear)
                && !isTaken(place, clear) && outlinesAt(place) == 0) {
                placed.append(place.center());
                drawIsothermNumber(number.text, place, QLineF());
                break;
            }
        }
    }
    if (placed.isEmpty()) {
        nameOneIsotherm(isotherms, clear);
    }
}

void DiagramGamuts::drawPlate(const QRectF &place, const DiagramPalette &palette)
{
    m_step.texts.roundedRectangle(place, plateRadius, faded(palette.ground, plateOpacity));
}

QVector<QRectF> DiagramGamuts::namePlaces(const Shown &gamut, const QSizeF &size) const
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

std::vector<QLineF> DiagramGamuts::sides() const
{
    std::vector<QLineF> result;
    for (size_t number = m_firstNamed; number < m_shown.size(); ++number) {
        const Shown &gamut = m_shown[number];
        for (int i = 0; !gamut.isCovered && i < 3; ++i) {
            result.emplace_back(gamut.corners.at(i), gamut.corners.at((i + 1) % 3));
        }
    }
    return result;
}

int DiagramGamuts::outlinesAt(const QRectF &place) const
{
    return int(
        std::count_if(m_sides.cbegin(), m_sides.cend(), [&place](const QLineF &side) { return meets(side, place); }));
}

int DiagramGamuts::outlinesCrossedBy(const QLineF &line) const
{
    return int(std::count_if(m_sides.cbegin(), m_sides.cend(),
        [&line](const QLineF &side) { return side.intersects(line, nullptr) == QLineF::BoundedIntersection; }));
}

double DiagramGamuts::costOfCovered(const QRectF &place, double other, double most) const
{
    int count = 0;
    for (const QLineF &side : m_sides) {
        count += meets(side, place) ? 2 : 0;
        if (other + costOfCovering * count >= most) {
            return costOfCovering * count;
        }
    }
    for (const QRectF &white : m_whites) {
        count += overlap(white, place) ? 3 : 0;
    }
    return costOfCovering * (count + 3 * m_marks.places.meeting(place, markRadius, mostCovered));
}

int DiagramGamuts::curvesAt(const QRectF &place) const
{
    return int(std::count_if(m_step.curves.cbegin(), m_step.curves.cend(),
        [&place](const ComparedCurve &curve) { return curve.meets(place); }));
}

double DiagramGamuts::costOfDoubt(const Shown &gamut, const QRectF &place) const
{
    const auto isWithin = [&place](const Shown &of, double reach) {
        const QRectF roomy = place.adjusted(-reach, -reach, reach, reach);
        return meets(QLineF(of.corners.at(0), of.corners.at(1)), roomy)
            || meets(QLineF(of.corners.at(1), of.corners.at(2)), roomy)
            || meets(QLineF(of.corners.at(2), of.corners.at(0)), roomy);
    };
    double cost = 0.0;
    for (double reach = 2.0 * nameGap; reach < mostDoubt && !isWithin(gamut, reach); reach *= 1.5) {
        cost = reach;
    }
    return cost;
}

DiagramGamuts::NamePlace DiagramGamuts::placeBeside(const Shown &gamut, const QSizeF &plate) const
{
    NamePlace best;
    for (const QRectF &place : namePlaces(gamut, plate)) {
        const double covering = costOfCovered(place, 0.0, best.cost);
        if (covering >= best.cost || meetsAny(m_handles, place) || !m_step.places.isFree(place, m_inner, labelGap)) {
            continue;
        }
        const double cost = covering + costOfCurve * curvesAt(place) + costOfDoubt(gamut, place);
        if (cost < best.cost) {
            best = {place, QLineF(), cost};
        }
        if (cost == 0.0) {
            break;
        }
    }
    return best;
}

DiagramGamuts::NamePlace DiagramGamuts::placeLedTo(
    const Shown &gamut, const QSizeF &plate, const NamePlace &beside) const
{
    static const auto ways = [] {
        std::array<QPointF, 12> directions;
        for (size_t i = 0; i < directions.size(); ++i) {
            const double angle = 2.0 * M_PI * double(i) / double(directions.size());
            directions[i] = QPointF(std::cos(angle), std::sin(angle));
        }
        return directions;
    }();
    NamePlace best = beside;
    const auto tryPlace = [&](const QPointF &anchor, const QPointF &way, double distance) {
        const QPointF centre
            = anchor + way * distance + QPointF(way.x() * plate.width() / 2.0, way.y() * plate.height() / 2.0);
        const QRectF place(centre - QPointF(plate.width(), plate.height()) / 2.0, plate);
        const QLineF leader(QPointF(std::clamp(anchor.x(), place.left(), place.right()),
                                std::clamp(anchor.y(), place.top(), place.bottom())),
            anchor);
        const double reach = leader.length();
        if (reach < nameGap) {
            return;
        }
        // Most places cover too much, which is found out sooner than whether they are free.
        const double covering = costOfCovered(place, reach, best.cost);
        const auto isMet = [&leader](const QRectF &area) { return meets(leader, area); };
        if (reach + covering >= best.cost || meetsAny(m_handles, place)
            || !m_step.places.isFree(place, m_inner, labelGap) || m_step.places.isCrossed(leader)
            || std::any_of(m_handles.cbegin(), m_handles.cend(), isMet)) {
            return;
        }
        // Of its own outline it meets the side at which it ends.
        const double cost = reach + costOfCrossing * std::max(0, outlinesCrossedBy(leader) - 1);
        if (cost + covering >= best.cost) {
            return;
        }
        const double costInAll = cost + (covering + costOfCurve * curvesAt(place));
        if (costInAll < best.cost) {
            best = {place, leader, costInAll};
        }
    };
    QVector<QPointF> anchors;
    for (int side = 0; side < 3; ++side) {
        const auto seen = partWithin(QLineF(gamut.corners.at(side), gamut.corners.at((side + 1) % 3)), m_inner);
        for (const double share : {0.5, 0.25, 0.75}) {
            if (seen) {
                anchors.append(seen->pointAt(share));
            }
        }
    }
    for (const double distance : {12.0, 17.0, 24.0, 34.0, 48.0, 68.0, 96.0, 136.0, 192.0}) {
        // A leader is about as long, and one that leads to a place on nothing else is good enough.
        if (distance >= best.cost || (!best.leader.isNull() && best.cost < costOfCovering)) {
            break;
        }
        for (const QPointF &anchor : qAsConst(anchors)) {
            for (const QPointF &way : ways) {
                tryPlace(anchor, way, distance);
            }
        }
    }
    return best;
}

void DiagramGamuts::drawName(const Shown &gamut, const TextStyle &style)
{
    const QString name = nameOf(m_content.gamuts.at(gamut.index));
    if (name.isEmpty()) {
        return;
    }
    const auto placeFor = [&](const QString &text) {
        const QSizeF plate = style.size(text) + QSizeF(2.0 * platePadding, 0.0);
        const NamePlace beside = placeBeside(gamut, plate);
        return beside.cost > worthLeading && m_shown.size() <= mostLedOutlines ? placeLedTo(gamut, plate, beside)
                                                                               : beside;
    };
    QString shown = name;
    NamePlace best = placeFor(shown);
    // What covers much or finds no room is shortened, more and more.
    double costOfShort = costOfShortening;
    for (double share = 0.6; best.cost > costOfShort && share >= leastNameShare; share -= 0.2) {
        const QString shorter = style.elided(name, share * m_plot.width());
        if (shorter != shown && shorter.size() > leastLetters) {
            NamePlace place = placeFor(shorter);
            place.cost += costOfShort;
            if (place.cost < best.cost) {
                shown = shorter;
                best = place;
            }
            costOfShort += costOfShortening;
        }
    }
    if (best.place.isNull()) {
        return;
    }
    const QColor color = DiagramPainter::gamutPen(gamut.role).color();
    m_step.places.add(DiagramLabel::Kind::Gamut, shown, best.place, gamut.index, best.leader);
    if (!best.leader.isNull()) {
        const QPolygonF line(QVector<QPointF>{best.leader.p1(), best.leader.p2()});
        drawCased(m_step.drawing, line, false, m_plot, QPen(color, leaderWidth), m_palette.casing);
        m_step.drawing.ellipse(best.leader.p2(), leaderDot, leaderDot, QPen(m_palette.casing, leaderWidth), color);
    }
    drawPlate(best.place, m_palette);
    m_step.texts.textIn(best.place.adjusted(platePadding, 0.0, -platePadding, 0.0), shown, style, color);
}

void DiagramGamuts::drawNames()
{
    // The target first, as the last is the most likely to find no room.
    for (size_t i = m_shown.size(); i-- > m_firstNamed;) {
        const bool isStandard = m_shown[i].role == GamutRole::Standard;
        drawName(m_shown[i], isStandard ? m_sheet.fonts.texts : m_sheet.fonts.names);
    }
}

void DiagramGamuts::drawMarkName(const QPointF &at, const QString &markName)
{
    const QString name = onOneLine(markName);
    if (name.isEmpty()) {
        return;
    }
    const auto isNear = [&at](const QRectF &white) {
        const double distance = length(white.center() - at);
        return distance > sameMark && distance < namedMarks;
    };
    if (m_marks.places.isBetween(at, sameMark, namedMarks) || std::any_of(m_whites.cbegin(), m_whites.cend(), isNear)) {
        return;
    }
    const TextStyle &style = m_sheet.fonts.texts;
    const QSizeF size = style.size(name);
    QRectF best;
    int least = std::numeric_limits<int>::max();
    for (const QPointF &way : {QPointF(1.0, 0.0), QPointF(-1.0, 0.0), QPointF(0.0, -1.0), QPointF(0.0, 1.0),
             QPointF(1.0, 1.0), QPointF(-1.0, -1.0), QPointF(1.0, -1.0), QPointF(-1.0, 1.0)}) {
        const bool isAslant = way.x() != 0.0 && way.y() != 0.0;
        const double reach = (markRadius + labelGap + 1.0) * (isAslant ? M_SQRT1_2 : 1.0);
        const QPointF centre
            = at + QPointF(way.x() * (reach + size.width() / 2.0), way.y() * (reach + size.height() / 2.0));
        const QRectF place(centre - QPointF(size.width(), size.height()) / 2.0, size);
        if (!meetsAny(m_whites, place) && !m_marks.places.meets(place, markRadius) && !meetsAny(m_handles, place)
            && m_step.places.isFree(place, m_inner, labelGap)) {
            const int count = curvesAt(place);
            if (count < least) {
                least = count;
                best = place;
            }
            if (least == 0) {
                break;
            }
        }
    }
    if (!best.isNull()) {
        m_step.places.add(DiagramLabel::Kind::Mark, name, best);
        m_step.texts.textIn(best, name, style, m_innerPalette.text, m_innerPalette.casing);
    }
}

} // namespace ceiechart
