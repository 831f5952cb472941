// SPDX-License-Identifier: MIT
#include "display/displaydescription.h"

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

std::vector<Model::ColorGamut> DisplayDescription::allStandards() const
{
    QStringList names = standards;
    for (const Model::ColorGamut &published : Model::standardGamuts()) {
        names.append(QString::fromStdString(published.colorGamutName()));
    }
    names.removeDuplicates();
    std::vector<Model::ColorGamut> found;
    for (const QString &name : qAsConst(names)) {
        if (const auto standard = gamut(name)) {
            found.push_back(*standard);
        }
    }
    return found;
}

} // namespace gamutviewer
