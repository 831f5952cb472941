// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_FOLLOWEDDOCUMENT_H
#define TESTS_APPS_FOLLOWEDDOCUMENT_H

#include "editing/document.h"
#include "editing/targetsession.h"

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

/*! \brief A document, and measurements that it shows while they are followed. */
namespace followeddocument {

using namespace gamutviewer;

inline Model::Targets targets(double redX)
{
    return {Model::Target::fromYxy(240, redX, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
        Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)};
}

inline DisplayDescription description()
{
    DisplayDescription d;
    d.gamuts.push_back({Model::ColorGamut("Wall", targets(0.700)), LuminanceUnit::CandelaPerSquareMetre});
    d.gamuts.push_back({Model::ColorGamut("Before", targets(0.698)), LuminanceUnit::CandelaPerSquareMetre});
    d.original = QStringLiteral("Wall");
    d.measured = QStringLiteral("Before");
    d.target = QStringLiteral("Rec.709");
    d.measurePoints = {{QStringLiteral("old"), QPointF(0.4, 0.4)}};
    return d;
}

//! As of a list called "meter" with a gamut and a point.
inline GamutFile followed(double redX, const QString &point = QStringLiteral("grey"))
{
    GamutFile file;
    file.content = GamutFile::Content::Measurements;
    file.name = QStringLiteral("meter");
    file.measurements.unit = LuminanceUnit::CandelaPerSquareMetre;
    const Model::Targets t = targets(redX);
    const std::pair<MeasurementPart, Model::Target> colors[] = {{MeasurementPart::Red, t.red},
        {MeasurementPart::Green, t.green}, {MeasurementPart::Blue, t.blue}, {MeasurementPart::White, t.white}};
    for (const auto &[part, color] : colors) {
        Measurement measurement;
        measurement.part = part;
        measurement.color = color;
        file.measurements.measurements.append(measurement);
    }
    Measurement other;
    other.name = point;
    other.color = Model::Target::fromYxy(100, 0.31, 0.33);
    file.measurements.measurements.append(other);
    return file;
}

//! Before a gamut is complete.
inline GamutFile pointOnly()
{
    GamutFile file = followed(0.7);
    file.measurements.measurements = file.measurements.measurements.mid(4);
    return file;
}

inline DisplayWall wall(const std::vector<const char *> &names)
{
    DisplayWall result;
    result.unit = LuminanceUnit::CandelaPerSquareMetre;
    const Model::Targets t = targets(0.69);
    for (const char *name : names) {
        WallCabinet cabinet;
        cabinet.name = QLatin1String(name);
        cabinet.red = t.red;
        cabinet.green = t.green;
        cabinet.blue = t.blue;
        result.cabinets.push_back(cabinet);
    }
    return result;
}

inline FollowedMeasurement measurement(
    const GamutFile &file, const std::optional<DisplayWall> &wall = std::nullopt, const QString &cabinet = QString())
{
    return {file, wall, cabinet, wall.has_value()};
}

inline QString namesOf(const DisplayWall &wall)
{
    QStringList names;
    for (const WallCabinet &cabinet : wall.cabinets) {
        names.append(cabinet.label());
    }
    return names.join(QLatin1Char(' '));
}

inline QString leftOutOf(const DisplayWall &wall)
{
    DisplayWall leftOut = wall;
    leftOut.cabinets.clear();
    std::copy_if(wall.cabinets.begin(), wall.cabinets.end(), std::back_inserter(leftOut.cabinets),
        [](const WallCabinet &cabinet) { return cabinet.isLeftOut; });
    return namesOf(leftOut);
}

struct Fixture {
    Fixture() { document.open(description(), QStringLiteral("wall.json")); }
    void open(const DisplayWall &before)
    {
        DisplayDescription opened = description();
        opened.wall = before;
        document.open(opened, QStringLiteral("wall.json"));
    }
    QString cabinets() const { return namesOf(document.description().wall); }
    QString leftOut() const { return leftOutOf(document.description().wall); }
    QString ownCabinets() const { return namesOf(document.own().wall); }
    QString ownLeftOut() const { return leftOutOf(document.own().wall); }
    double measuredRed() const { return document.measured() ? document.measured()->getTargets().red.x : -1.0; }
    QString points() const
    {
        QStringList names;
        for (const NamedPoint &point : document.description().measurePoints) {
            names.append(point.name);
        }
        return names.join(QLatin1Char(' '));
    }
    bool ownIs(const DisplayDescription &expected) const
    {
        return descriptionText(document.own()) == descriptionText(expected);
    }

    Document document;
    TargetSession session{&document};
};

} // namespace followeddocument

#endif // TESTS_APPS_FOLLOWEDDOCUMENT_H
