// SPDX-License-Identifier: MIT
#include <gamutfiles/displaydescription.h>

#include "gamutfromprimaries_p.h"

#include <gamutmodel/publishedgamuts.h>

#include <algorithm>

namespace gamutfiles {

bool hasRealPrimaries(const Model::Targets &gamut)
{
    const auto isReal = [](const Model::Target &color) { return isPrimary({color.x, color.y}, PrimariesOf::Display); };
    return isReal(gamut.red) && isReal(gamut.green) && isReal(gamut.blue);
}

std::optional<DisplayGamut> DisplayDescription::gamut(const QString &gamutName) const
{
    const std::string wanted = gamutName.toStdString();
    const auto isWanted = [&wanted](const Model::ColorGamut &gamut) { return gamut.colorGamutName() == wanted; };
    const auto own = std::find_if(gamuts.begin(), gamuts.end(), isWanted);
    if (own != gamuts.end()) {
        return *own;
    }
    const std::vector<Model::PublishedGamut> &published = Model::publishedGamuts();
    const auto standard = std::find_if(published.begin(), published.end(),
        [&isWanted](const Model::PublishedGamut &candidate) { return isWanted(candidate.gamut); });
    return standard == published.end() ? std::nullopt
                                       : std::make_optional(DisplayGamut(standard->gamut, LuminanceUnit::Relative));
}

std::vector<DisplayGamut> DisplayDescription::allStandards() const
{
    QStringList names = standards;
    for (const Model::ColorGamut &published : Model::standardGamuts()) {
        names.append(QString::fromStdString(published.colorGamutName()));
    }
    names.removeDuplicates();
    std::vector<DisplayGamut> found;
    for (const QString &name : qAsConst(names)) {
        if (const auto standard = gamut(name)) {
            found.push_back(*standard);
        }
    }
    return found;
}

} // namespace gamutfiles
