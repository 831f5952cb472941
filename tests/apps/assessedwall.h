// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_ASSESSEDWALL_H
#define TESTS_APPS_ASSESSEDWALL_H

#include "display/wallassessmenttexts.h"

#include <ceiechart/diagram/targetrules.h>

#include <QStringList>

/*! \brief Walls to be judged, and what is said of them. */
namespace assessedwall {

using namespace gamutviewer;
using Vertex = ceiechart::GamutVertex;

constexpr LuminanceUnit cd = LuminanceUnit::CandelaPerSquareMetre;

inline Model::Target color(double Y, double x, double y)
{
    return Model::Target::fromYxy(Y, x, y);
}

/*! Primaries of Rec.2020 that mix to a D65 of \a luminance. */
inline WallCabinet cabinet(const QString &name, int row, int column, double luminance = 1100.0)
{
    const Model::Targets of = Model::rec2020().getTargets();
    WallCabinet result;
    result.name = name;
    result.row = row;
    result.column = column;
    result.red = color(of.red.Y * luminance, of.red.x, of.red.y);
    result.green = color(of.green.Y * luminance, of.green.x, of.green.y);
    result.blue = color(of.blue.Y * luminance, of.blue.x, of.blue.y);
    return result;
}

/*! \a rows of 12 cabinets, "A1" at the top left. */
inline DisplayWall wallOf(int rows, LuminanceUnit unit = cd)
{
    DisplayWall wall;
    wall.unit = unit;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < 12; ++column) {
            wall.cabinets.push_back(cabinet(QStringLiteral("%1%2").arg(QChar('A' + row)).arg(column + 1), row, column));
        }
    }
    return wall;
}

inline DisplayGamut targetOf(double luminance, LuminanceUnit unit = cd)
{
    Model::Targets of = Model::rec709().getTargets();
    for (Model::Target *t : {&of.red, &of.green, &of.blue, &of.white}) {
        *t = color(t->Y * luminance, t->x, t->y);
    }
    return {Model::ColorGamut("Wanted", of), unit};
}

inline QString textOf(const WallAssessment &assessment)
{
    QStringList lines(judgementMark(assessment.judgement) + QLatin1Char(' ') + assessment.headline);
    for (const WallLine &line : assessment.lines) {
        lines.append(
            (line.judgement ? judgementMark(*line.judgement) : QStringLiteral("-")) + QLatin1Char(' ') + line.text);
    }
    return lines.join(QLatin1Char('\n'));
}

inline void dim(WallCabinet &of, double factor)
{
    for (Model::Target *t : {&of.red, &of.green, &of.blue}) {
        *t = color(t->Y * factor, t->x, t->y);
    }
}

} // namespace assessedwall

#endif
