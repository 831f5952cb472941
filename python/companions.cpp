// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// The module ceiechart._companions: the companions for arrays of one fixed shape each. The package around it brings
// arrays into these shapes, names the results and documents them.
#include <colortemperature/colortemperature.h>
#include <gamutmodel/commongamut.h>
#include <gamutmodel/correction.h>
#include <gamutmodel/diagram.h>
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/gamutfit.h>
#include <gamutmodel/publishedgamuts.h>

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace py = pybind11;
using namespace Model;

namespace {

using Array = py::array_t<double, py::array::c_style | py::array::forcecast>;
using Indexes = py::array_t<std::int64_t>;

constexpr double none = std::numeric_limits<double>::quiet_NaN();

/*! \brief How many rows \a array has, whose other dimensions have to be \a shape. */
py::ssize_t rowsOf(const Array &array, std::initializer_list<py::ssize_t> shape)
{
    bool fits = array.ndim() == py::ssize_t(shape.size()) + 1;
    py::ssize_t i = 1;
    for (const py::ssize_t size : shape) {
        fits = fits && array.shape(i++) == size;
    }
    if (!fits) {
        throw py::value_error("the array does not have the right shape");
    }
    return array.shape(0);
}

void requireRows(py::ssize_t found, py::ssize_t expected)
{
    if (found != expected) {
        throw py::value_error("the arrays do not have the same length");
    }
}

Diagram diagramOf(int diagram)
{
    if (diagram < int(Diagram::Cie1931) || diagram > int(Diagram::Cie1960)) {
        throw py::value_error("no such diagram");
    }
    return Diagram(diagram);
}

Array newArray(std::vector<py::ssize_t> shape)
{
    return Array(std::move(shape));
}

//! The record of three chromaticities x, y; nothing but x and y has a value.
Targets trianglesTargets(const double *xy)
{
    Targets targets;
    Target *colors[] = {&targets.red, &targets.green, &targets.blue};
    for (Target *color : colors) {
        color->x = *xy++;
        color->y = *xy++;
    }
    return targets;
}

//! The record of colours Y, x, y: red, green, blue and, if \a hasWhite, white.
Targets targetsOf(const double *colors, bool hasWhite)
{
    const auto color = [colors](int i) { return Target::fromYxy(colors[3 * i], colors[3 * i + 1], colors[3 * i + 2]); };
    return {color(0), color(1), color(2), hasWhite ? color(3) : Target()};
}

void write(const Target &color, double *out)
{
    out[0] = color.Y;
    out[1] = color.x;
    out[2] = color.y;
}

void write(const std::optional<Target> &color, double *out)
{
    write(color.value_or(Target::fromYxy(none, none, none)), out);
}

void write(const Targets &colors, double *out)
{
    write(colors.red, out);
    write(colors.green, out + 3);
    write(colors.blue, out + 6);
    write(colors.white, out + 9);
}

Array arrayOf(const Targets &colors)
{
    Array array = newArray({4, 3});
    write(colors, array.mutable_data());
    return array;
}

Array arrayOf(const std::vector<DiagramPoint> &points)
{
    Array array = newArray({py::ssize_t(points.size()), 2});
    double *out = array.mutable_data();
    for (const DiagramPoint &point : points) {
        *out++ = point.x;
        *out++ = point.y;
    }
    return array;
}

Indexes arrayOf(const std::vector<std::size_t> &indexes)
{
    Indexes array(py::ssize_t(indexes.size()));
    std::copy(indexes.begin(), indexes.end(), array.mutable_data());
    return array;
}

std::tuple<Array, Array> colorTemperature(const Array &xy)
{
    const py::ssize_t count = rowsOf(xy, {2});
    Array kelvins = newArray({count});
    Array distances = newArray({count});
    const double *in = xy.data();
    double *kelvin = kelvins.mutable_data();
    double *duv = distances.mutable_data();
    {
        const py::gil_scoped_release release;
        for (py::ssize_t i = 0; i < count; ++i) {
            duv[i] = GetColorTemperatureFromXY(in[2 * i], in[2 * i + 1], &kelvin[i]);
            if (kelvin[i] == 0.0) { // no chromaticity
                kelvin[i] = none;
                duv[i] = none;
            }
        }
    }
    return {kelvins, distances};
}

Array whitePoint(const Array &primaries)
{
    const py::ssize_t count = rowsOf(primaries, {3, 3});
    Array whites = newArray({count, 3});
    for (py::ssize_t i = 0; i < count; ++i) {
        const double *p = primaries.data() + 9 * i;
        double *white = whites.mutable_data() + 3 * i;
        RGBCxCyToWhiteCxCy(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], &white[0], &white[1], &white[2]);
        if (white[1] == 0.0 && white[2] == 0.0) {
            white[0] = white[1] = white[2] = none;
        }
    }
    return whites;
}

Array primaryLuminances(const Array &primaries, const Array &whites)
{
    const py::ssize_t count = rowsOf(primaries, {3, 2});
    requireRows(rowsOf(whites, {3}), count);
    Array luminances = newArray({count, 3});
    for (py::ssize_t i = 0; i < count; ++i) {
        const double *p = primaries.data() + 6 * i;
        const double *white = whites.data() + 3 * i;
        double *out = luminances.mutable_data() + 3 * i;
        RGBCxCyFromWhiteCxCy(
            &out[0], p[0], p[1], &out[1], p[2], p[3], &out[2], p[4], p[5], white[0], white[1], white[2]);
        if (out[0] == std::numeric_limits<double>::infinity()) { // then all three are
            out[0] = out[1] = out[2] = none;
        }
    }
    return luminances;
}

template <typename Convert>
Array converted(const Array &points, const Convert &convert)
{
    const py::ssize_t count = rowsOf(points, {2});
    Array results = newArray({count, 2});
    for (py::ssize_t i = 0; i < count; ++i) {
        const double *in = points.data() + 2 * i;
        const DiagramPoint point = convert(DiagramPoint{in[0], in[1]});
        results.mutable_data()[2 * i] = point.x;
        results.mutable_data()[2 * i + 1] = point.y;
    }
    return results;
}

Array toDiagramArray(const Array &xy, int diagram)
{
    return converted(xy, [to = diagramOf(diagram)](DiagramPoint point) { return toDiagram(to, point); });
}

Array fromDiagramArray(const Array &points, int diagram)
{
    return converted(points, [from = diagramOf(diagram)](DiagramPoint point) { return fromDiagram(from, point); });
}

Array coverage(const Array &gamuts, const Array &standards, int diagram)
{
    const py::ssize_t count = rowsOf(gamuts, {3, 2});
    requireRows(rowsOf(standards, {3, 2}), count);
    const Diagram on = diagramOf(diagram);
    Array results = newArray({count, 5});
    for (py::ssize_t i = 0; i < count; ++i) {
        const GamutCoverage found
            = gamutCoverage(trianglesTargets(gamuts.data() + 6 * i), trianglesTargets(standards.data() + 6 * i), on);
        double *out = results.mutable_data() + 5 * i;
        const double values[] = {found.area, found.standardArea, found.commonArea, found.coverage, found.areaRatio};
        std::copy(std::begin(values), std::end(values), out);
    }
    return results;
}

using Published = std::tuple<std::string, std::string, Array>;

std::vector<Published> listOf(const std::vector<PublishedGamut> &gamuts)
{
    std::vector<Published> list;
    for (const PublishedGamut &published : gamuts) {
        list.emplace_back(published.gamut.colorGamutName(), published.source, arrayOf(published.gamut.getTargets()));
    }
    return list;
}

std::vector<GamutTriangle> trianglesOf(const Array &gamuts)
{
    const py::ssize_t count = rowsOf(gamuts, {3, 2});
    std::vector<GamutTriangle> triangles(static_cast<std::size_t>(count));
    const double *in = gamuts.data();
    for (GamutTriangle &triangle : triangles) {
        triangle = {{in[0], in[1]}, {in[2], in[3]}, {in[4], in[5]}};
        in += 6;
    }
    return triangles;
}

using Common = std::tuple<int, Array, Indexes, Indexes, Indexes>;

Common commonGamutOf(const Array &gamuts)
{
    const std::vector<GamutTriangle> triangles = trianglesOf(gamuts);
    CommonGamut common;
    {
        const py::gil_scoped_release release;
        common = commonGamut(triangles);
    }
    std::vector<std::size_t> cabinets;
    for (const CommonSide &side : common.sides) {
        cabinets.push_back(side.cabinet);
    }
    return {int(common.shape), arrayOf(common.corners), arrayOf(cabinets), arrayOf(common.excluding),
        arrayOf(common.invalid)};
}

using Fit = std::tuple<int, Array, std::array<double, 3>, std::array<std::int64_t, 3>, double, double, double>;

//! With the largest target if there is a diagram for it, else with what is left of the wish.
Fit fitOf(const Array &gamuts, const Array &wish, std::optional<int> diagram)
{
    if (rowsOf(wish, {3}) != 4) {
        throw py::value_error("the array does not have the right shape");
    }
    const std::optional<Diagram> on = diagram ? std::make_optional(diagramOf(*diagram)) : std::nullopt;
    const std::vector<GamutTriangle> triangles = trianglesOf(gamuts);
    const Targets wished = targetsOf(wish.data(), true);
    GamutFit fit;
    {
        const py::gil_scoped_release release;
        const CommonGamut common = commonGamut(triangles);
        fit = on ? largestTarget(common, wished, *on) : fittedTarget(common, wished);
    }
    const auto limit = [](const FittedPrimary &primary) { return primary.limit ? std::int64_t(*primary.limit) : -1; };
    return {int(fit.fault), arrayOf(fit.target), {fit.red.share, fit.green.share, fit.blue.share},
        {limit(fit.red), limit(fit.green), limit(fit.blue)}, fit.whiteMoved, fit.costXy.coverage, fit.costUv.coverage};
}

struct Wall {
    WallCorrection correction;
    Array matrices;
    Array shown;
    Array uncorrected;
    Array largest;
    Indexes faults;
};

Wall wallOf(const Array &cabinets, const std::optional<Array> &blacks, const Array &target,
    const std::optional<double> &luminance)
{
    const py::ssize_t count = rowsOf(cabinets, {3, 3});
    if (blacks) {
        requireRows(rowsOf(*blacks, {3}), count);
    }
    if (rowsOf(target, {2}) != 4) {
        throw py::value_error("the array does not have the right shape");
    }
    std::vector<Cabinet> wall(static_cast<std::size_t>(count));
    for (py::ssize_t i = 0; i < count; ++i) {
        Cabinet &cabinet = wall[std::size_t(i)];
        cabinet.colors = targetsOf(cabinets.data() + 9 * i, false);
        if (blacks) {
            const double *black = blacks->data() + 3 * i;
            cabinet.black = Target::fromYxy(black[0], black[1], black[2]);
        }
    }
    const double *xy = target.data();
    const Targets wished{Target::fromYxy(1, xy[0], xy[1]), Target::fromYxy(1, xy[2], xy[3]),
        Target::fromYxy(1, xy[4], xy[5]), Target::fromYxy(1, xy[6], xy[7])};
    Wall result;
    {
        const py::gil_scoped_release release;
        result.correction = wallCorrection(wall, wished, luminance);
    }
    result.matrices = newArray({count, 3, 3});
    result.shown = newArray({count, 4, 3});
    result.uncorrected = newArray({count, 3});
    result.largest = newArray({count});
    result.faults = Indexes(count);
    for (py::ssize_t i = 0; i < count; ++i) {
        const Correction &found = result.correction.corrections[std::size_t(i)];
        double *entry = result.matrices.mutable_data() + 9 * i;
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column) {
                *entry++ = found.matrix ? found.matrix->rows[row][column] : none;
            }
        }
        const Target nothing = Target::fromYxy(none, none, none);
        write(found.shown.value_or(Targets{nothing, nothing, nothing, nothing}), result.shown.mutable_data() + 12 * i);
        write(found.uncorrectedWhite, result.uncorrected.mutable_data() + 3 * i);
        result.largest.mutable_data()[i] = found.largestWhite ? found.largestWhite->luminance : none;
        result.faults.mutable_data()[i] = int(found.fault);
    }
    return result;
}

using LimitedWhite = std::tuple<double, std::int64_t, int>;
using Corrections = std::tuple<int, Array, std::optional<LimitedWhite>, Indexes, Indexes, Array, Array, Array, Array>;

Corrections corrections(const Array &cabinets, const std::optional<Array> &blacks, const Array &target,
    const std::optional<double> &luminance)
{
    const Wall wall = wallOf(cabinets, blacks, target, luminance);
    std::optional<LimitedWhite> white;
    if (wall.correction.largestWhite) {
        const WallWhite &largest = *wall.correction.largestWhite;
        white = LimitedWhite{largest.luminance, std::int64_t(largest.cabinet), int(largest.limit)};
    }
    return {int(wall.correction.fault), arrayOf(wall.correction.target), white, arrayOf(wall.correction.without),
        wall.faults, wall.matrices, wall.shown, wall.uncorrected, wall.largest};
}

} // namespace

PYBIND11_MODULE(_companions, module)
{
    module.def("color_temperature", colorTemperature);
    module.def("white_point", whitePoint);
    module.def("primary_luminances", primaryLuminances);
    module.def("to_diagram", toDiagramArray);
    module.def("from_diagram", fromDiagramArray);
    module.def("coverage", coverage);
    module.def("published_gamuts", [] { return listOf(publishedGamuts()); });
    module.def("published_gamuts_named", [](const std::string &name) { return listOf(publishedGamutsNamed(name)); });
    module.def("common_gamut", commonGamutOf);
    module.def("fit", fitOf);
    module.def("corrections", corrections);
}
