// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/targetrules.h>
#include <ceiechart/diagram/whitepoint.h>
#include <colortemperature/colortemperature.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/nearestinside.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace ceiechart {

namespace {

struct RulesText {
    Q_DECLARE_TR_FUNCTIONS(ceiechart::TargetRules)
};

QPointF toDiagram(Model::Diagram diagram, const QPointF &xy)
{
    const Model::DiagramPoint point = Model::toDiagram(diagram, {xy.x(), xy.y()});
    return QPointF(point.x, point.y);
}

QPointF fromDiagram(Model::Diagram diagram, const QPointF &point)
{
    const Model::DiagramPoint xy = Model::fromDiagram(diagram, {point.x(), point.y()});
    return QPointF(xy.x, xy.y);
}

double cross(const QPointF &a, const QPointF &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

QPointF nearestOnPiece(const QPointF &point, const QPointF &from, const QPointF &to)
{
    const QPointF way = to - from;
    const double square = QPointF::dotProduct(way, way);
    const double share = square > 0.0 ? QPointF::dotProduct(point - from, way) / square : 0.0;
    return from + way * std::clamp(share, 0.0, 1.0);
}

//! Where the piece between two points crosses the endless line through \a line.
std::optional<QPointF> crossing(const QPointF &from, const QPointF &to, const QLineF &line)
{
    const QPointF direction = line.p2() - line.p1();
    const double a = cross(direction, from - line.p1());
    const double b = cross(direction, to - line.p1());
    if (a == b || (a > 0.0 && b > 0.0) || (a < 0.0 && b < 0.0)) {
        return std::nullopt;
    }
    return from + (to - from) * (a / (a - b));
}

void setXy(Model::Target &target, const QPointF &xy)
{
    target = Model::Target::fromYxy(target.Y, xy.x(), xy.y());
}

void setLuminance(Model::Target &target, double luminance)
{
    target = Model::Target::fromYxy(luminance, target.x, target.y);
}

void mixWhite(Model::Targets &t)
{
    double Y = 0.0;
    double x = 0.0;
    double y = 0.0;
    RGBCxCyToWhiteCxCy(
        t.red.Y, t.red.x, t.red.y, t.green.Y, t.green.x, t.green.y, t.blue.Y, t.blue.x, t.blue.y, &Y, &x, &y);
    if (Y > 0.0) {
        t.white = Model::Target::fromYxy(Y, x, y);
    } else {
        setLuminance(t.white, 0.0); // no light has no chromaticity
    }
}

bool isLuminance(double luminance)
{
    return luminance >= 0.0 && std::isfinite(luminance);
}

struct Luminances {
    double red = 0.0, green = 0.0, blue = 0.0;

    // Also false for infinities, which say that there are none.
    bool areDeliverable() const { return isLuminance(red) && isLuminance(green) && isLuminance(blue); }
};

Luminances luminancesFor(const Model::Targets &t, double whiteLuminance)
{
    Luminances l;
    RGBCxCyFromWhiteCxCy(&l.red, t.red.x, t.red.y, &l.green, t.green.x, t.green.y, &l.blue, t.blue.x, t.blue.y,
        whiteLuminance, t.white.x, t.white.y);
    return l;
}

bool balance(Model::Targets &t, double whiteLuminance)
{
    const Luminances l = luminancesFor(t, whiteLuminance);
    if (!l.areDeliverable()) {
        return false;
    }
    setLuminance(t.red, l.red);
    setLuminance(t.green, l.green);
    setLuminance(t.blue, l.blue);
    setLuminance(t.white, whiteLuminance);
    return true;
}

//! What the primaries of \a original deliver of the white of \a t, and no more than they mix to.
double heldWhiteLuminance(const Model::Targets &t, const Model::Targets &original)
{
    constexpr double rounding = 1e-9; // relative
    const double most = original.red.Y + original.green.Y + original.blue.Y;
    double luminance = most;
    const Luminances share = luminancesFor(t, 1.0);
    const auto limit = [&luminance](double needed, double available) {
        if (needed > 0.0) {
            luminance = std::min(luminance, available / needed);
        }
    };
    limit(share.red, original.red.Y);
    limit(share.green, original.green.Y);
    limit(share.blue, original.blue.Y);
    return luminance < most * (1.0 - rounding) ? luminance : most;
}

//! \a targets with \a primary at \a xy and nothing else changed, when that leaves a triangle.
std::optional<Model::Targets> withPrimaryAlone(const Model::Targets &targets, GamutVertex primary, const QPointF &xy)
{
    if (!isChromaticity(xy) || primary == GamutVertex::White) {
        return std::nullopt;
    }
    Model::Targets edited = targets;
    setXy(targetAt(edited, primary), xy);
    return spanTriangle(edited) ? std::make_optional(edited) : std::nullopt;
}

//! Illuminants D of CIE 15:2018, table T.3.
struct Daylight {
    const char *name;
    double x;
    double y;
};

constexpr Daylight daylights[] = {
    {"D50", 0.34567, 0.35851},
    {"D55", 0.33243, 0.34744},
    {"D65", 0.31272, 0.32903},
    {"D75", 0.29903, 0.31488},
};

} // namespace

QString gamutVertexName(GamutVertex vertex)
{
    switch (vertex) {
    case GamutVertex::Red:
        return RulesText::tr("red");
    case GamutVertex::Green:
        return RulesText::tr("green");
    case GamutVertex::Blue:
        return RulesText::tr("blue");
    case GamutVertex::White:
        break;
    }
    return RulesText::tr("white");
}

const Model::Target &targetAt(const Model::Targets &targets, GamutVertex vertex)
{
    switch (vertex) {
    case GamutVertex::Red:
        return targets.red;
    case GamutVertex::Green:
        return targets.green;
    case GamutVertex::Blue:
        return targets.blue;
    case GamutVertex::White:
        break;
    }
    return targets.white;
}

Model::Target &targetAt(Model::Targets &targets, GamutVertex vertex)
{
    return const_cast<Model::Target &>(targetAt(const_cast<const Model::Targets &>(targets), vertex));
}

bool sameTargets(const Model::Targets &a, const Model::Targets &b)
{
    return std::all_of(allGamutVertices.begin(), allGamutVertices.end(), [&](GamutVertex vertex) {
        const Model::Target &p = targetAt(a, vertex);
        const Model::Target &q = targetAt(b, vertex);
        return p.Y == q.Y && p.x == q.x && p.y == q.y;
    });
}

bool isChromaticity(const QPointF &xy)
{
    return xy.x() >= 0.0 && xy.y() > 0.0 && xy.x() + xy.y() <= 1.0;
}

std::optional<Model::Targets> withPrimary(const Model::Targets &targets, GamutVertex primary, const QPointF &xy)
{
    auto edited = withPrimaryAlone(targets, primary, xy);
    if (edited) {
        mixWhite(*edited);
    }
    return edited;
}

std::optional<Model::Targets> withPrimaryHoldingWhite(const Model::Targets &targets, GamutVertex primary,
    const QPointF &xy, const std::optional<Model::Targets> &original)
{
    auto edited = withPrimaryAlone(targets, primary, xy);
    if (!edited) {
        return std::nullopt;
    }
    const double luminance = original ? heldWhiteLuminance(*edited, *original) : edited->white.Y;
    return balance(*edited, luminance) ? edited : std::nullopt;
}

std::optional<Model::Targets> withWhite(const Model::Targets &targets, const QPointF &xy)
{
    if (!isChromaticity(xy)) {
        return std::nullopt;
    }
    Model::Targets edited = targets;
    setXy(edited.white, xy);
    return balance(edited, edited.white.Y) ? std::make_optional(edited) : std::nullopt;
}

std::optional<Model::Targets> withLuminance(
    const Model::Targets &targets, GamutVertex vertex, double luminance, bool holdWhite)
{
    if (!isLuminance(luminance)) {
        return std::nullopt;
    }
    Model::Targets edited = targets;
    if (vertex != GamutVertex::White && !holdWhite) {
        setLuminance(targetAt(edited, vertex), luminance);
        mixWhite(edited);
        return edited;
    }
    const double before = targetAt(targets, vertex).Y;
    if (!(before > 0.0)) {
        return std::nullopt;
    }
    for (const GamutVertex each : allGamutVertices) {
        setLuminance(targetAt(edited, each), targetAt(targets, each).Y * (luminance / before));
    }
    setLuminance(targetAt(edited, vertex), luminance);
    return edited;
}

QPointF nearestInside(const Model::Targets &gamut, const QPointF &xy, Model::Diagram diagram)
{
    if (!spanTriangle(gamut)) {
        return xy;
    }
    const auto nearest = Model::nearestPoint(gamut, {xy.x(), xy.y()}, diagram);
    return nearest ? QPointF(nearest->x, nearest->y) : xy;
}

std::optional<Snap> snapped(
    const QPointF &xy, const QVector<SnapLine> &lines, Model::Diagram diagram, double reach, const QLineF &along)
{
    constexpr double onLine = 1e-6; // a point nearer than this to the line that is kept to lies on it
    const bool isBound = along.p1() != along.p2();
    const QPointF wanted = toDiagram(diagram, xy);
    std::optional<Snap> best;
    double bestDistance = reach;
    const auto consider = [&](const QPointF &candidate, const SnapLine &line) {
        const double away = length(candidate - wanted);
        if (away <= bestDistance) {
            bestDistance = away;
            best = Snap{line.xy.size() == 1 ? line.xy.first() : fromDiagram(diagram, candidate), line};
        }
    };
    for (const SnapLine &line : lines) {
        if (line.xy.size() != 1) {
            continue;
        }
        const QPointF point = toDiagram(diagram, line.xy.first());
        const QPointF direction = along.p2() - along.p1();
        if (!isBound || std::fabs(cross(direction, point - along.p1())) <= onLine * along.length()) {
            consider(point, line);
        }
    }
    if (best) {
        return best;
    }
    for (const SnapLine &line : lines) {
        for (int i = 1; i < line.xy.size(); ++i) {
            const QPointF from = toDiagram(diagram, line.xy[i - 1]);
            const QPointF to = toDiagram(diagram, line.xy[i]);
            if (!isBound) {
                consider(nearestOnPiece(wanted, from, to), line);
            } else if (const auto at = crossing(from, to, along)) {
                consider(*at, line);
            }
        }
    }
    return best;
}

TargetRules::TargetRules() = default;

TargetRules::~TargetRules() = default;

class StandardTargetRules::Private {
public:
    bool holdsWhite = false;
    bool locksPrimaries = false;
    bool locksWhite = false;
    bool staysInsideOriginal = false;
    bool snaps = true;
};

StandardTargetRules::StandardTargetRules()
    : d(std::make_unique<Private>())
{
}

StandardTargetRules::~StandardTargetRules() = default;

bool StandardTargetRules::holdsWhite() const
{
    return d->holdsWhite;
}

void StandardTargetRules::setHoldsWhite(bool holds)
{
    d->holdsWhite = holds;
}

bool StandardTargetRules::locksPrimaries() const
{
    return d->locksPrimaries;
}

void StandardTargetRules::setLocksPrimaries(bool locks)
{
    d->locksPrimaries = locks;
}

bool StandardTargetRules::locksWhite() const
{
    return d->locksWhite;
}

void StandardTargetRules::setLocksWhite(bool locks)
{
    d->locksWhite = locks;
}

bool StandardTargetRules::staysInsideOriginal() const
{
    return d->staysInsideOriginal;
}

void StandardTargetRules::setStaysInsideOriginal(bool stays)
{
    d->staysInsideOriginal = stays;
}

bool StandardTargetRules::snaps() const
{
    return d->snaps;
}

void StandardTargetRules::setSnaps(bool snaps)
{
    d->snaps = snaps;
}

bool StandardTargetRules::isMovable(GamutVertex vertex) const
{
    return vertex == GamutVertex::White ? !d->locksWhite : !d->locksPrimaries;
}

TargetMove StandardTargetRules::move(const TargetContext &context, GamutVertex vertex, const QPointF &xy) const
{
    TargetMove move;
    if (!isMovable(vertex)) {
        move.reason = vertex == GamutVertex::White ? RulesText::tr("The white is locked.")
                                                   : RulesText::tr("The primaries are locked.");
        return move;
    }
    QPointF position = xy;
    if (d->staysInsideOriginal && context.original) {
        position = nearestInside(*context.original, xy, context.diagram);
        if (position != xy) {
            move.reason = RulesText::tr("The original does not reach farther.");
        }
    }
    if (!isChromaticity(position)) {
        move.reason = RulesText::tr("That is no chromaticity: x and y are from 0 to 1, and so is their sum.");
        return move;
    }
    if (vertex == GamutVertex::White) {
        move.targets = withWhite(context.target, position);
    } else if (d->holdsWhite) {
        move.targets = withPrimaryHoldingWhite(context.target, vertex, position, context.original);
    } else {
        move.targets = withPrimary(context.target, vertex, position);
    }
    if (!move.targets) {
        Model::Targets moved = context.target;
        setXy(targetAt(moved, vertex), position);
        move.reason = spanTriangle(moved) ? RulesText::tr("The white would lie outside of the target.")
                                          : RulesText::tr("The primaries would span no triangle.");
    }
    return move;
}

QVector<SnapLine> StandardTargetRules::snapLines(const TargetContext &context, GamutVertex vertex) const
{
    QVector<SnapLine> lines;
    if (!d->snaps) {
        return lines;
    }
    const auto addPoint = [&lines](const QString &name, const QPointF &xy) { lines.append({name, QPolygonF({xy})}); };
    for (const Model::ColorGamut &standard : context.standards) {
        addPoint(RulesText::tr("%1 %2", "gamut and colour: Rec.709 red")
                     .arg(QString::fromStdString(standard.colorGamutName()), gamutVertexName(vertex)),
            xyOf(targetAt(standard.getTargets(), vertex)));
    }
    if (context.original) {
        const Model::Targets &original = *context.original;
        addPoint(RulesText::tr("original %1", "colour of the original gamut").arg(gamutVertexName(vertex)),
            xyOf(targetAt(original, vertex)));
        if (vertex != GamutVertex::White) {
            lines.append({RulesText::tr("edge of the original"),
                QPolygonF({xyOf(original.red), xyOf(original.green), xyOf(original.blue), xyOf(original.red)})});
        }
    }
    if (vertex == GamutVertex::White) {
        for (const Daylight &daylight : daylights) {
            addPoint(QString::fromLatin1(daylight.name), QPointF(daylight.x, daylight.y));
        }
        lines.append({RulesText::tr("Planckian locus"), planckianLocusXy()});
    }
    return lines;
}

TargetMove movedTowards(const TargetRules &rules, const TargetContext &context, GamutVertex vertex, const QPointF &xy)
{
    TargetMove answer = rules.move(context, vertex, xy);
    if (answer.targets || !rules.isMovable(vertex)) {
        return answer;
    }
    constexpr int halvings = 12;
    const QPointF from = toDiagram(context.diagram, xyOf(targetAt(context.target, vertex)));
    const QPointF way = toDiagram(context.diagram, xy) - from;
    if (!std::isfinite(way.x()) || !std::isfinite(way.y())) {
        return answer;
    }
    double allowed = 0.0;
    double refused = 1.0;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (allowed + refused) / 2.0;
        const TargetMove step = rules.move(context, vertex, fromDiagram(context.diagram, from + way * middle));
        if (step.targets) {
            answer.targets = step.targets;
            allowed = middle;
        } else {
            refused = middle;
        }
    }
    return answer;
}

} // namespace ceiechart
