// SPDX-License-Identifier: MIT
#include "editing/targetedits.h"

#include "display/chromaticity.h"
#include "display/gamutfromprimaries.h"

#include <colortemperature/colortemperature.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

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
    t.white = Model::Target::fromYxy(Y, x, y);
}

struct Luminances {
    double red = 0.0, green = 0.0, blue = 0.0;

    // Also false for infinities, which say that there are none.
    bool areDeliverable() const { return inRange(red) && inRange(green) && inRange(blue); }
    static bool inRange(double luminance) { return luminance >= 0.0 && std::isfinite(luminance); }
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

bool isReferredTo(const DisplayDescription &d, const QString &name)
{
    return d.target == name || d.original == name || d.measured == name || d.declared == name
        || d.standards.contains(name);
}

bool playsAnotherPart(DisplayDescription d, const QString &name)
{
    d.target.clear();
    d.standards.clear();
    return isReferredTo(d, name);
}

bool isOnlyTheTarget(DisplayDescription d)
{
    const QString name = d.target;
    d.target.clear();
    return !isReferredTo(d, name);
}

template <typename Gamuts>
auto find(Gamuts &gamuts, const QString &name)
{
    const std::string wanted = name.toStdString();
    return std::find_if(gamuts.begin(), gamuts.end(),
        [&wanted](const Model::ColorGamut &gamut) { return gamut.colorGamutName() == wanted; });
}

bool contains(const std::vector<Model::ColorGamut> &gamuts, const QString &name)
{
    return find(gamuts, name) != gamuts.end();
}

void put(std::vector<Model::ColorGamut> &gamuts, const Model::ColorGamut &gamut)
{
    const auto existing = find(gamuts, QString::fromStdString(gamut.colorGamutName()));
    if (existing != gamuts.end()) {
        *existing = gamut;
    } else {
        gamuts.push_back(gamut);
    }
}

void remove(std::vector<Model::ColorGamut> &gamuts, const QString &name)
{
    const auto existing = find(gamuts, name);
    if (existing != gamuts.end()) {
        gamuts.erase(existing);
    }
}

//! "X (edited)", "X (edited 2)" and so on.
QString editedName(const QString &plain, int number)
{
    return plain + (number < 2 ? QStringLiteral(" (edited)") : QStringLiteral(" (edited %1)").arg(number));
}

QString freeEditedName(const DisplayDescription &description)
{
    const QString plain = plainName(description.target);
    int number = 1;
    while (contains(description.gamuts, editedName(plain, number))) {
        ++number;
    }
    return editedName(plain, number);
}

Model::Targets scaledTo(Model::Targets targets, double whiteLuminance)
{
    const double factor = whiteLuminance / targets.white.Y;
    for (const Vertex vertex : allVertices) {
        Model::Target &target = targetAt(targets, vertex);
        setLuminance(target, target.Y * factor);
    }
    return targets;
}

//! Whether matchLuminance() may have made the gamut that \a description has under the name of \a published.
bool isMadeToMatch(
    const DisplayDescription &description, const Model::ColorGamut &published, const DisplayDescription &saved)
{
    const QString name = QString::fromStdString(published.colorGamutName());
    const auto own = find(description.gamuts, name);
    return own != description.gamuts.end() && !contains(saved.gamuts, name) && !playsAnotherPart(description, name)
        && sameTargets(own->getTargets(), scaledTo(published.getTargets(), own->getTargets().white.Y));
}

//! Published gamuts are relative to a white of 1: the description gets one of its own for a target of \a luminance.
void matchLuminance(DisplayDescription &description, double luminance)
{
    const std::vector<Model::ColorGamut> standards = Model::standardGamuts();
    const auto published = find(standards, description.target);
    const bool isFree
        = !contains(description.gamuts, description.target) && !playsAnotherPart(description, description.target);
    if (published != standards.end() && isFree && luminance > 0.0 && luminance != published->getTargets().white.Y) {
        description.gamuts.emplace_back(description.target.toStdString(), scaledTo(published->getTargets(), luminance));
    }
}

QRegularExpressionMatch editedMatch(const QString &gamutName)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(.*) \\(edited(?: ([0-9]{1,9}))?\\)\\z"), QRegularExpression::DotMatchesEverythingOption);
    return form.match(gamutName);
}

} // namespace

Model::Target &targetAt(Model::Targets &targets, Vertex vertex)
{
    return const_cast<Model::Target &>(targetAt(const_cast<const Model::Targets &>(targets), vertex));
}

const Model::Target &targetAt(const Model::Targets &targets, Vertex vertex)
{
    switch (vertex) {
    case Vertex::Red:
        return targets.red;
    case Vertex::Green:
        return targets.green;
    case Vertex::Blue:
        return targets.blue;
    case Vertex::White:
        break;
    }
    return targets.white;
}

QPointF xyOf(const Model::Target &target)
{
    return QPointF(target.x, target.y);
}

bool sameTargets(const Model::Targets &a, const Model::Targets &b)
{
    return std::all_of(allVertices.begin(), allVertices.end(), [&](Vertex vertex) {
        const Model::Target &p = targetAt(a, vertex);
        const Model::Target &q = targetAt(b, vertex);
        return p.Y == q.Y && p.x == q.x && p.y == q.y;
    });
}

QPointF roundedXy(const QPointF &xy)
{
    // Through decimal text: the double nearest to the four decimals, as it would be read from a file.
    const auto rounded = [](double value) { return QString::number(value, 'f', 4).toDouble(); };
    return QPointF(rounded(xy.x()), rounded(xy.y()));
}

std::optional<Model::Targets> withPrimary(
    const Model::Targets &targets, Vertex primary, const QPointF &xy, bool holdWhite, const Model::Targets &original)
{
    if (!isChromaticity(xy) || primary == Vertex::White) {
        return std::nullopt;
    }
    Model::Targets edited = targets;
    setXy(targetAt(edited, primary), xy);
    if (!spanTriangle(edited)) {
        return std::nullopt;
    }
    if (!holdWhite) {
        mixWhite(edited);
        return edited;
    }
    return balance(edited, heldWhiteLuminance(edited, original)) ? std::make_optional(edited) : std::nullopt;
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
    const Model::Targets &targets, Vertex vertex, double luminance, bool holdWhite)
{
    if (!Luminances::inRange(luminance)) {
        return std::nullopt;
    }
    Model::Targets edited = targets;
    if (vertex != Vertex::White && !holdWhite) {
        setLuminance(targetAt(edited, vertex), luminance);
        mixWhite(edited);
        return edited;
    }
    const double before = targetAt(targets, vertex).Y;
    if (!(before > 0.0)) {
        return std::nullopt;
    }
    for (const Vertex each : allVertices) {
        setLuminance(targetAt(edited, each), targetAt(targets, each).Y * (luminance / before));
    }
    setLuminance(targetAt(edited, vertex), luminance);
    return edited;
}

std::optional<QPointF> nearest(const QPointF &position, const QVector<QPointF> &candidates, double reach)
{
    std::optional<QPointF> best;
    double bestDistance = reach;
    for (const QPointF &candidate : candidates) {
        const double distance = std::hypot(candidate.x() - position.x(), candidate.y() - position.y());
        if (distance <= bestDistance) {
            best = candidate;
            bestDistance = distance;
        }
    }
    return best;
}

QVector<QPointF> snapPoints(const DisplayDescription &description, Vertex vertex)
{
    QVector<QPointF> points;
    const auto add = [&](const Model::ColorGamut &gamut) {
        const QString name = QString::fromStdString(gamut.colorGamutName());
        // A target changed by hand would stick to where it is.
        if (name != description.target || !isEditedName(name)) {
            points.append(xyOf(targetAt(gamut.getTargets(), vertex)));
        }
    };
    if (const auto original = description.gamut(description.original)) {
        add(*original);
    }
    for (const Model::ColorGamut &standard : description.allStandards()) {
        add(standard);
    }
    return points;
}

DisplayDescription withEditedTarget(DisplayDescription description, const Model::Targets &targets)
{
    if (!isEditedName(description.target) || !isOnlyTheTarget(description)) {
        description.target = freeEditedName(description);
    }
    put(description.gamuts, Model::ColorGamut(description.target.toStdString(), targets));
    return description;
}

DisplayDescription withTargetNamed(
    DisplayDescription description, const QString &gamutName, const DisplayDescription &saved)
{
    const QString before = description.target;
    const auto targetBefore = description.gamut(before);
    description.target = gamutName;
    for (const Model::ColorGamut &published : Model::standardGamuts()) {
        if (isMadeToMatch(description, published, saved)) {
            remove(description.gamuts, QString::fromStdString(published.colorGamutName()));
        }
    }
    if (targetBefore) {
        matchLuminance(description, targetBefore->getTargets().white.Y);
    }
    if (isEditedName(before) && !isReferredTo(description, before) && !contains(saved.gamuts, before)) {
        remove(description.gamuts, before);
    }
    return description;
}

bool isEditedName(const QString &gamutName)
{
    return editedMatch(gamutName).hasMatch();
}

QString plainName(const QString &gamutName)
{
    const QRegularExpressionMatch match = editedMatch(gamutName);
    return match.hasMatch() ? match.captured(1) : gamutName;
}

int editNumber(const QString &gamutName)
{
    return std::max(1, editedMatch(gamutName).captured(2).toInt());
}

} // namespace gamutviewer
