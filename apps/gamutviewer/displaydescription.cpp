// SPDX-License-Identifier: MIT
#include "displaydescription.h"

#include <algorithm>

namespace gamutviewer {

namespace {

std::optional<Model::ColorGamut> find(const std::vector<Model::ColorGamut> &gamuts, const QString &name)
{
    const std::string wanted = name.toStdString();
    const auto found = std::find_if(gamuts.begin(), gamuts.end(),
        [&wanted](const Model::ColorGamut &gamut) { return gamut.colorGamutName() == wanted; });
    return found == gamuts.end() ? std::nullopt : std::make_optional(*found);
}

} // namespace

std::optional<Model::ColorGamut> DisplayDescription::gamut(const QString &gamutName) const
{
    const auto own = find(gamuts, gamutName);
    return own ? own : find(Model::standardGamuts(), gamutName);
}

} // namespace gamutviewer
