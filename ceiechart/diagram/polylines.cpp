// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/polylines_p.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace ceiechart {

namespace {

using Shares = std::optional<std::pair<double, double>>;

//! The shares of a line within \a area (Liang and Barsky, A new concept and method for line clipping, 1984).
Shares sharesOf(const QPointF &from, const QPointF &to, const QRectF &area)
{
    const QPointF way = to - from;
    double first = 0.0;
    double last = 1.0;
    const auto cut = [&first, &last](double speed, double room) {
        if (speed == 0.0) {
            return room >= 0.0;
        }
        const double share = room / speed;
        if (speed < 0.0) {
            first = std::max(first, share);
        } else {
            last = std::min(last, share);
        }
        return first <= last;
    };
    const bool isWithin = cut(-way.x(), from.x() - area.left()) && cut(way.x(), area.right() - from.x())
        && cut(-way.y(), from.y() - area.top()) && cut(way.y(), area.bottom() - from.y());
    return isWithin ? std::make_optional(std::make_pair(first, last)) : std::nullopt;
}

} // namespace

std::vector<LinePart> partsWithin(const QPolygonF &points, bool closed, const QRectF &area)
{
    std::vector<LinePart> parts;
    const int count = int(points.size());
    if (count < 2) {
        return parts;
    }
    if (std::all_of(points.cbegin(), points.cend(), [&area](const QPointF &point) { return area.contains(point); })) {
        parts.push_back({points, 0.0, closed});
        return parts;
    }
    double length = 0.0;
    bool isOpen = false; // whether the last part goes on
    for (int i = 0; i + (closed ? 0 : 1) < count; ++i) {
        const QPointF &from = points.at(i);
        const QPointF &to = points.at((i + 1) % count);
        const QPointF way = to - from;
        const double step = std::hypot(way.x(), way.y());
        if (!std::isfinite(step)) {
            isOpen = false;
            continue; // no place on such a line can be told
        }
        const Shares shares = sharesOf(from, to, area);
        if (shares) {
            if (!isOpen || shares->first > 0.0) {
                parts.push_back({QPolygonF({from + way * shares->first}), length + step * shares->first, false});
            }
            parts.back().points.append(from + way * shares->second);
        }
        isOpen = shares && shares->second == 1.0;
        length += step;
    }
    return parts;
}

std::optional<QLineF> partWithin(const QLineF &line, const QRectF &area)
{
    const Shares shares = sharesOf(line.p1(), line.p2(), area);
    if (!shares || shares->first == shares->second) {
        return std::nullopt;
    }
    return QLineF(line.pointAt(shares->first), line.pointAt(shares->second));
}

std::optional<std::pair<double, double>> sharesWithin(const QLineF &line, const QPolygonF &polygon)
{
    double area = 0.0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF &a = polygon.at(i);
        const QPointF &b = polygon.at((i + 1) % polygon.size());
        area += a.x() * b.y() - b.x() * a.y();
    }
    double first = 0.0;
    double last = 1.0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon.at(i);
        const QPointF side = (polygon.at((i + 1) % polygon.size()) - a) * (area < 0.0 ? -1.0 : 1.0);
        // Distances from the side, in units of its length; inside they are positive.
        const double begin = side.x() * (line.y1() - a.y()) - side.y() * (line.x1() - a.x());
        const double end = side.x() * (line.y2() - a.y()) - side.y() * (line.x2() - a.x());
        if (begin < 0.0 && end < 0.0) {
            return std::nullopt;
        }
        if (begin < 0.0) {
            first = std::max(first, begin / (begin - end));
        } else if (end < 0.0) {
            last = std::min(last, begin / (begin - end));
        }
    }
    return area != 0.0 && first < last ? std::make_optional(std::make_pair(first, last)) : std::nullopt;
}

QPolygonF thinned(const QPolygonF &points, double least)
{
    QPolygonF kept;
    if (points.isEmpty()) {
        return kept;
    }
    QPointF last = points.first();
    kept.append(last);
    const auto isFar = [&last, squared = least * least](const QPointF &point) {
        const QPointF way = point - last;
        return QPointF::dotProduct(way, way) >= squared;
    };
    for (auto point = points.cbegin() + 1; point != points.cend(); ++point) {
        if (isFar(*point) || point + 1 == points.cend()) {
            last = *point;
            kept.append(last);
        }
    }
    return kept;
}

std::vector<QPolygonF> dashesOf(const QPolygonF &points, bool closed, const std::vector<double> &pattern, double begin)
{
    std::vector<QPolygonF> dashes;
    double period = 0.0;
    for (const double part : pattern) {
        period += part;
    }
    if (!(period > 0.0) || points.size() < 2) {
        return dashes;
    }
    size_t part = 0;
    double left = std::fmod(begin, period); // of the dash or gap at hand
    while (left >= pattern[part]) {
        left -= pattern[part];
        part = (part + 1) % pattern.size();
    }
    left = pattern[part] - left;
    const auto isDash = [&part] { return part % 2 == 0; };
    if (isDash()) {
        dashes.push_back(QPolygonF() << points.first());
    }
    for (int i = 0; i + (closed ? 0 : 1) < points.size(); ++i) {
        const QPointF &from = points.at(i);
        const QPointF way = points.at((i + 1) % points.size()) - from;
        const double length = std::hypot(way.x(), way.y());
        double done = 0.0;
        while (length - done >= left) {
            done += left;
            const QPointF at = from + way * (length > 0.0 ? done / length : 0.0);
            if (isDash()) {
                dashes.back().append(at);
            }
            part = (part + 1) % pattern.size();
            left = pattern[part];
            if (isDash()) {
                dashes.push_back(QPolygonF() << at);
            }
        }
        left -= length - done;
        if (isDash() && done < length) {
            dashes.back().append(from + way);
        }
    }
    if (!dashes.empty() && dashes.back().size() < 2) {
        dashes.pop_back(); // it would begin where the line ends
    }
    return dashes;
}

bool passesThrough(const QLineF &line, const QRectF &area)
{
    return area.contains(line.p1()) || area.contains(line.p2()) || partWithin(line, area).has_value();
}

bool isExactly(const QPointF &a, const QPointF &b)
{
    return a.x() == b.x() && a.y() == b.y();
}

bool isExactly(const QPolygonF &a, const QPolygonF &b)
{
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(), [](const QPointF &p, const QPointF &q) { return isExactly(p, q); });
}

bool isSameTriangle(const QPolygonF &a, const QPolygonF &b, double within)
{
    std::array<int, 3> order{0, 1, 2};
    if (a.size() != int(order.size()) || b.size() != a.size()) {
        return false;
    }
    const auto isNear = [squared = within * within](
                            const QPointF &p, const QPointF &q) { return QPointF::dotProduct(p - q, p - q) < squared; };
    do {
        const bool isSame = std::equal(
            a.cbegin(), a.cend(), order.begin(), [&](const QPointF &p, int k) { return isNear(p, b.at(k)); });
        if (isSame) {
            return true;
        }
    } while (std::next_permutation(order.begin(), order.end()));
    return false;
}

} // namespace ceiechart
