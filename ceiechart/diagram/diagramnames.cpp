// SPDX-License-Identifier: MIT
// The names of gamuts and marks and the numbers of isotherms, and where they stand.
#include <ceiechart/diagram/diagramgamuts_p.h>
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ceiechart {

namespace {

// Logical pixels
constexpr double nameGap = 6.0; // between a line and its name
constexpr double platePadding = 4.0; // beside a name
constexpr double plateRadius = 3.0;
constexpr double plateOpacity = 0.94; // leaves names a contrast of 3:1 on every colour
constexpr double namedMarks = 30.0; // least distance of marks that have names beside them
constexpr double leaderWidth = 1.0; // from a number to its isotherm
constexpr double isothermNumbers = 44.0; // least distance of the middles of numbers
constexpr double leastNameShare = 0.2; // of the plot's width, to which names may be shortened
constexpr int leastLetters = 3; // of a name that is shortened: fewer say nothing

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
    return std::any_of(some.cbegin(), some.cend(), [&place](const QRectF &other) { return other.intersects(place); });
}

//! Whether the line from \a line's first to its second point meets \a area.
bool meets(const QLineF &line, const QRectF &area)
{
    return area.contains(line.p1()) || area.contains(line.p2()) || partWithin(line, area).has_value();
}

} // namespace

QVector<QRectF> DiagramGamuts::handles() const
{
    QVector<QRectF> result;
    for (const Shown &gamut : m_shown) {
        if (gamut.role == GamutRole::Target) {
            for (const QPointF &corner : gamut.corners) {
                result.append(around(corner, handleExtent));
            }
            result.append(around(whiteOf(gamut), handleExtent));
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

void DiagramGamuts::drawIsothermNumber(const QString &number, const QRectF &place)
{
    m_step.places.add(DiagramLabel::Kind::Isotherm, number, place);
    m_step.texts.textIn(place, number, m_sheet.fonts.numbers, m_innerPalette.planckian, m_innerPalette.casing);
}

bool DiagramGamuts::leadToIsotherm(const PendingNumber &number, const QVector<QRectF> &clear)
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
                && !meetsAny(clear, place) && !isOnRing(place)) {
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

void DiagramGamuts::nameOneIsotherm(QVector<PendingNumber> isotherms, const QVector<QRectF> &clear)
{
    if (!m_shown.empty() && isFinite(whiteOf(m_shown.back()))) {
        const QPointF white = whiteOf(m_shown.back());
        std::stable_sort(isotherms.begin(), isotherms.end(), [&white](const PendingNumber &a, const PendingNumber &b) {
            return length(a.line.center() - white) < length(b.line.center() - white);
        });
    }
    for (const PendingNumber &number : qAsConst(isotherms)) {
        if (leadToIsotherm(number, clear)) {
            return;
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
                && !meetsAny(clear, place) && !isOnRing(place)) {
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

void DiagramGamuts::drawPlate(const QRectF &place, const DiagramPalette &palette)
{
    QPainterPath plate;
    plate.addRoundedRect(place, plateRadius, plateRadius);
    m_step.texts.shape(plate, Qt::NoPen, faded(palette.ground, plateOpacity));
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

int DiagramGamuts::covered(const QRectF &place) const
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

QRectF DiagramGamuts::bestPlace(const Shown &gamut, const QSizeF &text) const
{
    QRectF best;
    int least = std::numeric_limits<int>::max();
    for (const QRectF &place : namePlaces(gamut, text + QSizeF(2.0 * platePadding, 0.0))) {
        if (meetsAny(m_handles, place) || !m_step.places.isFree(place, m_inner, labelGap)) {
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

void DiagramGamuts::drawNames()
{
    // The target first, as the last is the most likely to find no room.
    for (auto gamut = m_shown.crbegin(); gamut != m_shown.crend(); ++gamut) {
        const QString name = nameOf(m_content.gamuts.at(gamut->index));
        if (name.isEmpty()) {
            continue;
        }
        const TextStyle &style = gamut->role == GamutRole::Standard ? m_sheet.fonts.texts : m_sheet.fonts.names;
        // What finds no room as a whole is shortened, more and more.
        QString shown = name;
        QRectF best = bestPlace(*gamut, style.size(shown));
        for (double share = 0.6; best.isNull() && share >= leastNameShare; share -= 0.2) {
            const QString shorter = style.elided(name, share * m_plot.width());
            if (shorter != shown && shorter.size() > leastLetters) {
                shown = shorter;
                best = bestPlace(*gamut, style.size(shown));
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

void DiagramGamuts::drawMarkName(const QPointF &at, const QString &markName)
{
    const QString name = onOneLine(markName);
    if (name.isEmpty()) {
        return;
    }
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
        if (!meetsAny(m_marks, place) && !meetsAny(m_handles, place)
            && m_step.places.isFree(place, m_inner, labelGap)) {
            m_step.places.add(DiagramLabel::Kind::Mark, name, place);
            m_step.texts.textIn(place, name, style, m_innerPalette.text, m_innerPalette.casing);
            return;
        }
    }
}

} // namespace ceiechart
