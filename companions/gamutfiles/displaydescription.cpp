// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/displaydescription.h>

#include "gamutfromprimaries_p.h"

#include <gamutmodel/publishedgamuts.h>

#include <algorithm>
#include <utility>

namespace gamutfiles {

namespace {

const QHash<QString, Model::ColorGamut> &publishedByName()
{
    static const QHash<QString, Model::ColorGamut> gamuts = [] {
        QHash<QString, Model::ColorGamut> all;
        for (const Model::PublishedGamut &gamut : Model::publishedGamuts()) {
            all.insert(nameOf(gamut.gamut), gamut.gamut);
        }
        return all;
    }();
    return gamuts;
}

//! The published gamut of exactly the name \a gamutName.
std::optional<DisplayGamut> published(const QString &gamutName)
{
    const auto found = publishedByName().constFind(gamutName);
    return found != publishedByName().cend() ? std::make_optional(DisplayGamut(*found, LuminanceUnit::Relative))
                                             : std::nullopt;
}

} // namespace

QString nameOf(const Model::ColorGamut &gamut)
{
    const std::string name = gamut.colorGamutName();
    // QString::fromStdString() takes a byte order mark at the beginning away.
    const bool hasMark = name.compare(0, 3, "\xEF\xBB\xBF") == 0;
    return hasMark ? QChar(QChar::ByteOrderMark) + QString::fromStdString('_' + name.substr(3)).mid(1)
                   : QString::fromStdString(name);
}

bool hasRealPrimaries(const Model::Targets &gamut)
{
    const auto isReal = [](const Model::Target &color) { return isPrimary({color.x, color.y}, PrimariesOf::Display); };
    return isReal(gamut.red) && isReal(gamut.green) && isReal(gamut.blue);
}

bool sameBlacks(const std::optional<Model::Target> &a, const std::optional<Model::Target> &b)
{
    return a && b ? a->Y == b->Y && a->x == b->x && a->y == b->y : a.has_value() == b.has_value();
}

DisplayGamut DisplayGamut::renamed(const QString &name) const
{
    DisplayGamut result(Model::ColorGamut(name.toStdString(), getTargets()), unit);
    result.black = black;
    result.blackLuminance = blackLuminance;
    return result;
}

std::optional<DisplayGamut> DisplayDescription::gamut(const QString &gamutName) const
{
    const DisplayGamut *own = ownGamut(gamutName);
    return own ? std::make_optional(*own) : published(gamutName);
}

QHash<QString, int> DisplayDescription::gamutPlaces() const
{
    QHash<QString, int> places;
    places.reserve(int(gamuts.size()));
    for (int i = int(gamuts.size()) - 1; i >= 0; --i) {
        places.insert(nameOf(gamuts[std::size_t(i)]), i);
    }
    return places;
}

std::optional<DisplayGamut> DisplayDescription::gamut(const QString &gamutName, const QHash<QString, int> &places) const
{
    const auto place = places.constFind(gamutName);
    return place != places.cend() ? std::make_optional(gamuts.at(std::size_t(*place))) : published(gamutName);
}

const DisplayGamut *DisplayDescription::ownGamut(const QString &gamutName) const
{
    const auto found = std::find_if(gamuts.begin(), gamuts.end(),
        [wanted = gamutName.toStdString()](const DisplayGamut &gamut) { return gamut.colorGamutName() == wanted; });
    return found != gamuts.end() ? &*found : nullptr;
}

DisplayGamut *DisplayDescription::ownGamut(const QString &gamutName)
{
    return const_cast<DisplayGamut *>(std::as_const(*this).ownGamut(gamutName));
}

bool DisplayDescription::removeOwnGamut(const QString &gamutName)
{
    const DisplayGamut *gamut = ownGamut(gamutName);
    if (gamut) {
        gamuts.erase(gamuts.begin() + (gamut - gamuts.data()));
    }
    return gamut != nullptr;
}

std::vector<DisplayGamut> DisplayDescription::allStandards() const
{
    const QHash<QString, int> places = gamutPlaces();
    const QStringList names = standardNames(places);
    std::vector<DisplayGamut> found;
    found.reserve(std::size_t(names.size()));
    for (const QString &name : names) {
        found.push_back(*gamut(name, places));
    }
    return found;
}

QStringList DisplayDescription::standardNames(const QHash<QString, int> &places) const
{
    QStringList names = standards;
    for (const Model::ColorGamut &standard : Model::standardGamuts()) {
        names.append(nameOf(standard));
    }
    names.removeDuplicates();
    const auto isUnknown
        = [&places](const QString &name) { return !places.contains(name) && !publishedByName().contains(name); };
    names.erase(std::remove_if(names.begin(), names.end(), isUnknown), names.end());
    return names;
}

} // namespace gamutfiles
