// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/gamutroles.h"

#include "editing/targetedits.h"

#include <QCoreApplication>

#include <algorithm>

namespace gamutviewer {

namespace {

struct RoleText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::GamutRoles)
};

//! The member that names the gamut in \a role; null for standards, of which there are many.
template <typename Description>
auto nameIn(Description &description, GamutRole role) -> decltype(&description.target)
{
    switch (role) {
    case GamutRole::Original:
        return &description.original;
    case GamutRole::Measured:
        return &description.measured;
    case GamutRole::Declared:
        return &description.declared;
    case GamutRole::Target:
        return &description.target;
    case GamutRole::Standard:
        break;
    }
    return nullptr;
}

} // namespace

QString gamutRolePhrase(std::optional<GamutRole> role)
{
    if (!role) {
        return RoleText::tr("no role", "what a gamut is");
    }
    switch (*role) {
    case GamutRole::Original:
        return RoleText::tr("the original gamut");
    case GamutRole::Measured:
        return RoleText::tr("the measured gamut");
    case GamutRole::Declared:
        return RoleText::tr("the declared gamut");
    case GamutRole::Target:
        return RoleText::tr("the target");
    case GamutRole::Standard:
        return RoleText::tr("a standard to compare with");
    }
    return QString();
}

QString whyNotInRole(const Model::Targets &targets, GamutRole role)
{
    if (role == GamutRole::Declared || role == GamutRole::Standard) {
        return QString();
    }
    return hasRealPrimaries(targets) && (role != GamutRole::Target || canBeTarget(targets))
        ? QString()
        : RoleText::tr("No display can show it: it has primaries that no light has.");
}

QString gamutInRole(const DisplayDescription &description, GamutRole role)
{
    const QString *name = nameIn(description, role);
    return name ? *name : QString();
}

bool playsRole(const DisplayDescription &description, const QString &gamutName, GamutRole role)
{
    return role == GamutRole::Standard ? description.standards.contains(gamutName)
                                       : gamutInRole(description, role) == gamutName;
}

DisplayDescription withRole(DisplayDescription description, const QString &gamutName, GamutRole role, bool plays,
    const DisplayDescription &saved)
{
    if (playsRole(description, gamutName, role) == plays) {
        return description;
    }
    const auto gamut = description.gamut(gamutName);
    if (plays && gamut && !whyNotInRole(gamut->getTargets(), role).isEmpty()) {
        return description;
    }
    if (role == GamutRole::Standard) {
        if (plays) {
            description.standards.append(gamutName);
        } else {
            description.standards.removeAll(gamutName);
        }
    } else if (role == GamutRole::Target && plays) {
        return withTargetNamed(description, gamutName, saved);
    } else {
        *nameIn(description, role) = plays ? gamutName : QString();
    }
    return description;
}

DisplayDescription withoutGamut(DisplayDescription description, const QString &gamutName)
{
    if (!description.removeOwnGamut(gamutName)) {
        return description;
    }
    // A published gamut of the name is another one.
    for (const GamutRole role : allGamutRoles) {
        description = withRole(description, gamutName, role, false);
    }
    return description;
}

QString whyNotRenamed(const DisplayDescription &description, const QString &from, const QString &to)
{
    if (!hasOwnGamut(description, from)) {
        return RoleText::tr("A published gamut keeps its name.");
    }
    if (to.trimmed().isEmpty()) {
        return RoleText::tr("A gamut needs a name.");
    }
    if (to != from && description.gamut(to)) {
        return RoleText::tr("There is already a gamut named \"%1\".").arg(oneLine(to));
    }
    return QString();
}

DisplayDescription withGamutRenamed(DisplayDescription description, const QString &from, const QString &to)
{
    DisplayGamut *gamut = description.ownGamut(from);
    if (!gamut || !whyNotRenamed(description, from, to).isEmpty()) {
        return description;
    }
    *gamut = gamut->renamed(to);
    for (const GamutRole role : allGamutRoles) {
        QString *name = nameIn(description, role);
        if (name && *name == from) {
            *name = to;
        }
    }
    std::replace(description.standards.begin(), description.standards.end(), from, to);
    return description;
}

bool hasOwnGamut(const DisplayDescription &description, const QString &gamutName)
{
    return description.ownGamut(gamutName) != nullptr;
}

bool isEmpty(const DisplayDescription &description)
{
    const auto isFree = [&](GamutRole role) { return gamutInRole(description, role).isEmpty(); };
    return description.name.isEmpty() && description.notes.isEmpty() && description.gamuts.empty()
        && std::all_of(std::begin(allGamutRoles), std::end(allGamutRoles), isFree) && description.standards.isEmpty()
        && description.colorTemperaturePoints.isEmpty() && description.measurePoints.isEmpty()
        && description.cmyPoints.isEmpty() && description.wall.cabinets.empty();
}

} // namespace gamutviewer
