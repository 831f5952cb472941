// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/targetedits.h"

#include <gamutmodel/publishedgamuts.h>

#include <QRegularExpression>

#include <algorithm>

namespace gamutviewer {

namespace {

void setLuminance(Model::Target &target, double luminance)
{
    target = Model::Target::fromYxy(luminance, target.x, target.y);
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

//! "X (edited)", "X (edited 2)" and so on.
QString editedName(const QString &plain, int number)
{
    return plain + (number < 2 ? QStringLiteral(" (edited)") : QStringLiteral(" (edited %1)").arg(number));
}

QString freeEditedName(const DisplayDescription &description)
{
    const QString plain = plainName(description.target.isEmpty() ? nameOf(defaultTarget()) : description.target);
    int number = 1;
    while (description.ownGamut(editedName(plain, number))) {
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
    const QString name = nameOf(published);
    const DisplayGamut *own = description.ownGamut(name);
    return own && !saved.ownGamut(name) && !playsAnotherPart(description, name)
        && sameTargets(own->getTargets(), scaledTo(published.getTargets(), own->getTargets().white.Y));
}

//! Published gamuts are relative to a white of 1: the description gets one of its own for a target of \a luminance.
void matchLuminance(DisplayDescription &description, double luminance, LuminanceUnit unit)
{
    const bool isPublished = !description.ownGamut(description.target);
    const auto published = description.gamut(description.target);
    const bool isFree = isPublished && !playsAnotherPart(description, description.target);
    if (published && isFree && luminance > 0.0 && luminance != published->getTargets().white.Y) {
        description.gamuts.emplace_back(
            Model::ColorGamut(description.target.toStdString(), scaledTo(published->getTargets(), luminance)), unit);
    }
}

QRegularExpressionMatch editedMatch(const QString &gamutName)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(.*) \\(edited(?: ([0-9]{1,9}))?\\)\\z"), QRegularExpression::DotMatchesEverythingOption);
    return form.match(gamutName);
}

} // namespace

DisplayGamut defaultTarget()
{
    return {Model::rec709(), LuminanceUnit::Relative};
}

std::optional<DisplayGamut> targetToEdit(const DisplayDescription &description)
{
    return description.target.isEmpty() ? defaultTarget() : description.gamut(description.target);
}

DisplayDescription withEditedTarget(DisplayDescription description, const Model::Targets &targets)
{
    const auto before = targetToEdit(description);
    return withEditedTarget(std::move(description), targets, before ? before->unit : LuminanceUnit::NotKnown);
}

DisplayDescription withEditedTarget(DisplayDescription description, const Model::Targets &targets, LuminanceUnit unit)
{
    if (!isEditedName(description.target) || !isOnlyTheTarget(description)) {
        description.target = freeEditedName(description);
    }
    const DisplayGamut edited(Model::ColorGamut(description.target.toStdString(), targets), unit);
    if (DisplayGamut *former = description.ownGamut(description.target)) {
        *former = edited;
    } else {
        description.gamuts.push_back(edited);
    }
    return description;
}

DisplayDescription withLuminanceUnit(
    const DisplayDescription &description, LuminanceUnit unit, std::optional<double> brightestWhite)
{
    const auto target = targetToEdit(description);
    if (!target || target->unit == unit) {
        return description;
    }
    const Model::Targets &targets = target->getTargets();
    std::optional<double> white;
    if (target->unit == LuminanceUnit::CandelaPerSquareMetre && unit == LuminanceUnit::Relative) {
        white = 1.0;
    } else if (target->unit == LuminanceUnit::Relative && unit == LuminanceUnit::CandelaPerSquareMetre) {
        white = brightestWhite;
    }
    const bool isScaled = white && *white > 0.0 && targets.white.Y > 0.0;
    return withEditedTarget(description, isScaled ? scaledTo(targets, *white) : targets, unit);
}

DisplayDescription withTargetNamed(
    DisplayDescription description, const QString &gamutName, const DisplayDescription &saved)
{
    const QString before = description.target;
    const auto targetBefore = description.gamut(before);
    description.target = gamutName;
    for (const Model::PublishedGamut &published : Model::publishedGamuts()) {
        if (isMadeToMatch(description, published.gamut, saved)) {
            description.removeOwnGamut(nameOf(published.gamut));
        }
    }
    if (targetBefore) {
        matchLuminance(description, targetBefore->getTargets().white.Y, targetBefore->unit);
    }
    if (isEditedName(before) && !isReferredTo(description, before) && !saved.ownGamut(before)) {
        description.removeOwnGamut(before);
    }
    return description;
}

bool canBeTarget(const Model::Targets &targets)
{
    return std::all_of(allVertices.begin(), allVertices.end(),
        [&targets](Vertex vertex) { return ceiechart::isChromaticity(xyOf(targetAt(targets, vertex))); });
}

bool isEditedName(const QString &gamutName)
{
    // Almost no name is one, which is found out soonest by its end.
    return gamutName.endsWith(QLatin1Char(')')) && editedMatch(gamutName).hasMatch();
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
