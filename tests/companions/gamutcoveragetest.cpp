// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/gamutcoverage.h>
#include <gamutmodel/publishedgamuts.h>

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

using namespace Model;

Q_DECLARE_METATYPE(Model::Diagram)

class GamutCoverageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void publishedAreas();
    void rec2020CoversRec709();
    void rec709OfRec2020();
    void dciP3ToRec709();
    void primariesBeyondTheLocus();
    void publishedUvOfPrimaries();
    void diagramsAreInverses();
    void gamutCoversItself_data();
    void gamutCoversItself();
    void partlyOverlapping();
    void star();
    void apart();
    void touching();
    void orientationDoesNotMatter();
    void whiteAndLuminanceDoNotMatter();
    void derivedValuesDoNotMatter();
    void degenerate();
    void notFinite_data();
    void notFinite();
    void agreesWithSampling();
    void primariesOutside();
    void primariesOutsideTolerance();
    void primariesOutsideNotFinite();
    void primariesOutsideNoArea();
};

namespace {

Targets gamut(double rx, double ry, double gx, double gy, double bx, double by)
{
    return {Target::fromYxy(1.0, rx, ry), Target::fromYxy(1.0, gx, gy), Target::fromYxy(1.0, bx, by),
        Target::fromYxy(1.0, 0.3127, 0.329)};
}

bool isNear(double value, double expected, double tolerance)
{
    return std::fabs(value - expected) <= tolerance;
}

bool contains(const Targets &triangle, double x, double y)
{
    const auto side
        = [x, y](const Target &a, const Target &b) { return (b.x - a.x) * (y - a.y) - (x - a.x) * (b.y - a.y) > 0.0; };
    const bool first = side(triangle.red, triangle.green);
    return first == side(triangle.green, triangle.blue) && first == side(triangle.blue, triangle.red);
}

const Targets standard709 = rec709().getTargets();
const Targets standard2020 = rec2020().getTargets();
const Targets standardP3 = dciP3D65().getTargets();

} // namespace

// The areas follow from the primaries of the recommendations by hand; they are often quoted to four digits.
void GamutCoverageTest::publishedAreas()
{
    QVERIFY(isNear(gamutArea(standard709, Diagram::Cie1931), 0.11205, 1e-12));
    QVERIFY(isNear(gamutArea(standard2020, Diagram::Cie1931), 0.2118665, 1e-12));
    QVERIFY(isNear(gamutArea(standardP3, Diagram::Cie1931), 0.152, 1e-12));
}

void GamutCoverageTest::rec2020CoversRec709()
{
    for (const Diagram diagram : {Diagram::Cie1931, Diagram::Cie1976}) {
        const GamutCoverage result = gamutCoverage(standard2020, standard709, diagram);
        QVERIFY(isNear(result.coverage, 1.0, 1e-12));
        QVERIFY(result.coverage <= 1.0);
        QVERIFY(isNear(result.commonArea, result.standardArea, 1e-12));
        QVERIFY(result.areaRatio > 1.0);
    }
}

void GamutCoverageTest::rec709OfRec2020()
{
    const GamutCoverage xy = gamutCoverage(standard709, standard2020, Diagram::Cie1931);
    QVERIFY(isNear(xy.areaRatio, 0.529, 0.0005));
    QVERIFY(isNear(xy.coverage, xy.areaRatio, 1e-12)); // it lies inside
    const GamutCoverage uv = gamutCoverage(standard709, standard2020, Diagram::Cie1976);
    QVERIFY2(isNear(uv.areaRatio, 0.5803, 0.0005), qPrintable(QString::number(uv.areaRatio)));
    QVERIFY(isNear(uv.coverage, uv.areaRatio, 1e-12));
}

// Triangles by the shoelace formula from the published primaries; the blue of ACES2065-1 lies below the axis. The
// common area of the ACES spaces by clipping in rational numbers.
void GamutCoverageTest::primariesBeyondTheLocus()
{
    const Targets aces = publishedGamut("ACES2065-1")->gamut.getTargets();
    const Targets acesCg = publishedGamut("ACEScg")->gamut.getTargets();
    QVERIFY(isNear(gamutArea(aces, Diagram::Cie1931), 0.395599215, 1e-12));
    QVERIFY(isNear(gamutArea(aces, Diagram::Cie1976), 0.29106796292231196, 1e-12));
    QVERIFY(isNear(gamutArea(acesCg, Diagram::Cie1931), 0.2252984985, 1e-8));
    QVERIFY(gamutCoverage(aces, standard2020, Diagram::Cie1931).coverage == 1.0);
    QVERIFY(gamutCoverage(aces, standard2020, Diagram::Cie1976).coverage == 1.0);
    QVERIFY(isNear(gamutCoverage(standard2020, aces, Diagram::Cie1931).coverage, 0.5355584439165281, 1e-12));
    QVERIFY(isNear(gamutCoverage(standard2020, aces, Diagram::Cie1976).coverage, 0.38418048405939914, 1e-12));
    QVERIFY(isNear(gamutCoverage(standard2020, acesCg, Diagram::Cie1931).coverage, 0.9403813163425414, 1e-12));
    QVERIFY(isNear(commonArea(acesCg, aces, Diagram::Cie1931), 0.2244143986265533, 1e-12));
    QVERIFY(Model::primariesOutside(aces, standard2020).blue);
    QVERIFY(!Model::primariesOutside(standard2020, aces).any());
}

void GamutCoverageTest::dciP3ToRec709()
{
    const GamutCoverage xy = gamutCoverage(standardP3, standard709, Diagram::Cie1931);
    QVERIFY(isNear(xy.areaRatio, 1.357, 0.0005));
    QVERIFY(isNear(xy.areaRatio, 0.152 / 0.11205, 1e-9));
    // Rec.709 lies inside, and both have the same blue primary.
    QVERIFY(xy.coverage == 1.0);
    const GamutCoverage uv = gamutCoverage(standardP3, standard709, Diagram::Cie1976);
    QVERIFY(uv.coverage == 1.0);
    QVERIFY2(isNear(uv.areaRatio, 1.256, 0.001), qPrintable(QString::number(uv.areaRatio)));
}

void GamutCoverageTest::publishedUvOfPrimaries()
{
    const auto verify = [](const Target &target, double u, double v) {
        const DiagramPoint point = toDiagram(Diagram::Cie1976, {target.x, target.y});
        QVERIFY(isNear(point.x, u, 0.00005));
        QVERIFY(isNear(point.y, v, 0.00005));
    };
    verify(standard709.red, 0.4507, 0.5229);
    verify(standard709.green, 0.1250, 0.5625);
    verify(standard709.blue, 0.1754, 0.1579);
    verify(standard709.white, 0.1978, 0.4683);
    const DiagramPoint xy = toDiagram(Diagram::Cie1931, {0.64, 0.33});
    QVERIFY(xy.x == 0.64 && xy.y == 0.33);
}

void GamutCoverageTest::diagramsAreInverses()
{
    for (const Diagram diagram : {Diagram::Cie1931, Diagram::Cie1976}) {
        for (double x = 0.0; x <= 0.8; x += 0.05) {
            for (double y = 0.01; x + y <= 1.0; y += 0.05) {
                const DiagramPoint back = fromDiagram(diagram, toDiagram(diagram, {x, y}));
                QVERIFY(isNear(back.x, x, 1e-14));
                QVERIFY(isNear(back.y, y, 1e-14));
            }
        }
    }
}

void GamutCoverageTest::gamutCoversItself_data()
{
    QTest::addColumn<Diagram>("diagram");
    QTest::newRow("xy") << Diagram::Cie1931;
    QTest::newRow("u'v'") << Diagram::Cie1976;
}

void GamutCoverageTest::gamutCoversItself()
{
    QFETCH(Diagram, diagram);
    for (const Targets &triangle : {standard709, standard2020, standardP3}) {
        const GamutCoverage result = gamutCoverage(triangle, triangle, diagram);
        QVERIFY(result.coverage == 1.0);
        QVERIFY(result.areaRatio == 1.0);
        QCOMPARE(int(commonPolygon(triangle, triangle, diagram).size()), 3);
    }
}

void GamutCoverageTest::partlyOverlapping()
{
    // The halves of a unit square, cut along either diagonal, share a quarter of it.
    const Targets lower = gamut(0, 0, 1, 0, 1, 1);
    const Targets upper = gamut(0, 0, 1, 0, 0, 1);
    QVERIFY(isNear(commonArea(lower, upper, Diagram::Cie1931), 0.25, 1e-15));
    const GamutCoverage result = gamutCoverage(lower, upper, Diagram::Cie1931);
    QVERIFY(isNear(result.coverage, 0.5, 1e-15));
    QVERIFY(isNear(result.areaRatio, 1.0, 1e-15));
    const std::vector<DiagramPoint> corners = commonPolygon(lower, upper, Diagram::Cie1931);
    QCOMPARE(int(corners.size()), 3);
}

void GamutCoverageTest::star()
{
    const double height = std::sqrt(3.0) / 2.0;
    const Targets up = gamut(0, 0, 1, 0, 0.5, height);
    const Targets down = gamut(0, height * 2 / 3, 1, height * 2 / 3, 0.5, -height / 3);
    QCOMPARE(int(commonPolygon(up, down, Diagram::Cie1931).size()), 6);
    // A hexagram's hexagon has two thirds of the area of each triangle.
    QVERIFY(isNear(gamutCoverage(up, down, Diagram::Cie1931).coverage, 2.0 / 3.0, 1e-12));
}

void GamutCoverageTest::apart()
{
    const Targets left = gamut(0, 0.1, 0.1, 0.1, 0, 0.2);
    const Targets right = gamut(0.5, 0.1, 0.6, 0.1, 0.5, 0.2);
    QVERIFY(commonPolygon(left, right, Diagram::Cie1931).empty());
    QVERIFY(commonArea(left, right, Diagram::Cie1976) == 0.0);
    QVERIFY(gamutCoverage(left, right, Diagram::Cie1931).coverage == 0.0);
    QVERIFY(isNear(gamutCoverage(left, right, Diagram::Cie1931).areaRatio, 1.0, 1e-12));
}

void GamutCoverageTest::touching()
{
    const Targets left = gamut(0, 0, 1, 0, 0, 1);
    QVERIFY(commonPolygon(left, gamut(0, 0, -1, 0, 0, 1), Diagram::Cie1931).empty()); // along an edge
    QVERIFY(commonPolygon(left, gamut(1, 0, 2, 0, 2, 1), Diagram::Cie1931).empty()); // in a corner
}

void GamutCoverageTest::orientationDoesNotMatter()
{
    const Targets inverted{standard709.red, standard709.blue, standard709.green, standard709.white};
    for (const Diagram diagram : {Diagram::Cie1931, Diagram::Cie1976}) {
        QVERIFY(gamutArea(inverted, diagram) > 0.0);
        QVERIFY(isNear(gamutArea(inverted, diagram), gamutArea(standard709, diagram), 1e-15));
        QVERIFY(isNear(commonArea(inverted, standardP3, diagram), commonArea(standard709, standardP3, diagram), 1e-15));
        QVERIFY(isNear(commonArea(standardP3, inverted, diagram), commonArea(standardP3, standard709, diagram), 1e-15));
    }
    QVERIFY(!Model::primariesOutside(standard709, inverted).any());
}

void GamutCoverageTest::whiteAndLuminanceDoNotMatter()
{
    Targets changed = standard709;
    changed.white = Target::fromYxy(0.0, 0.9, 0.9);
    changed.red.Y = -5.0;
    QVERIFY(gamutArea(changed, Diagram::Cie1976) == gamutArea(standard709, Diagram::Cie1976));
}

// A host may fill in x and y only.
void GamutCoverageTest::derivedValuesDoNotMatter()
{
    Targets bare = standard709;
    for (Target *target : {&bare.red, &bare.green, &bare.blue}) {
        target->u = target->v = target->X = target->Z = std::numeric_limits<double>::quiet_NaN();
    }
    QVERIFY(gamutArea(bare, Diagram::Cie1976) == gamutArea(standard709, Diagram::Cie1976));
}

void GamutCoverageTest::degenerate()
{
    for (const Targets &flat : {Targets(), gamut(0.3, 0.3, 0.3, 0.3, 0.3, 0.3), gamut(0, 0, 0.25, 0.25, 0.5, 0.5)}) {
        for (const Diagram diagram : {Diagram::Cie1931, Diagram::Cie1976}) {
            const GamutCoverage ofFlat = gamutCoverage(flat, standard709, diagram);
            QVERIFY(isNear(ofFlat.area, 0.0, 1e-16));
            QVERIFY(isNear(ofFlat.coverage, 0.0, 1e-14));
            QVERIFY(isNear(ofFlat.areaRatio, 0.0, 1e-14));
            QVERIFY(std::isfinite(gamutCoverage(standard709, flat, diagram).areaRatio));
        }
        const GamutCoverage toFlat = gamutCoverage(standard709, flat, Diagram::Cie1931);
        QVERIFY(toFlat.coverage == 0.0);
        QVERIFY(toFlat.areaRatio == 0.0);
        QVERIFY(commonPolygon(flat, standard709, Diagram::Cie1931).empty());
    }
}

void GamutCoverageTest::notFinite_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity();
    QTest::newRow("overflowing") << 1e300;
}

void GamutCoverageTest::notFinite()
{
    QFETCH(double, value);
    Targets bad = gamut(value, -value, value, value, 0.15, 0.06);
    for (const Diagram diagram : {Diagram::Cie1931, Diagram::Cie1976}) {
        for (const auto &[a, b] : {std::make_pair(bad, standard709), std::make_pair(standard709, bad)}) {
            const GamutCoverage result = gamutCoverage(a, b, diagram);
            QVERIFY(std::isfinite(result.area) && std::isfinite(result.standardArea));
            if (diagram == Diagram::Cie1931) {
                QVERIFY(result.coverage == 0.0);
                QVERIFY(result.areaRatio == 0.0);
                QVERIFY(result.commonArea == 0.0);
            }
            QVERIFY(std::isfinite(result.coverage) && std::isfinite(result.areaRatio));
        }
    }
}

void GamutCoverageTest::agreesWithSampling()
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> coordinate(0.0, 1.0);
    const auto any = [&] { return coordinate(random); };
    for (int round = 0; round < 20; ++round) {
        const Targets a = gamut(any(), any(), any(), any(), any(), any());
        const Targets b = gamut(any(), any(), any(), any(), any(), any());
        int both = 0;
        constexpr int samples = 400;
        for (int i = 0; i < samples; ++i) {
            for (int j = 0; j < samples; ++j) {
                const double x = (i + 0.5) / samples;
                const double y = (j + 0.5) / samples;
                both += contains(a, x, y) && contains(b, x, y);
            }
        }
        QVERIFY(isNear(commonArea(a, b, Diagram::Cie1931), double(both) / (samples * samples), 0.003));
        QVERIFY(isNear(commonArea(a, b, Diagram::Cie1931), commonArea(b, a, Diagram::Cie1931), 1e-12));
    }
}

void GamutCoverageTest::primariesOutside()
{
    QVERIFY(!Model::primariesOutside(standard709, standard2020).any());
    QVERIFY(!Model::primariesOutside(standard709, standard709).any());
    const PrimariesOutside outside = Model::primariesOutside(standard2020, standard709);
    QVERIFY(outside.red && outside.green && outside.blue);
    for (int primary = 0; primary < 3; ++primary) {
        Targets changed = standard709;
        (primary == 0 ? changed.red : primary == 1 ? changed.green : changed.blue) = Target::fromYxy(1.0, 0.05, 0.3);
        const PrimariesOutside one = Model::primariesOutside(changed, standard2020);
        QCOMPARE(one.red, primary == 0);
        QCOMPARE(one.green, primary == 1);
        QCOMPARE(one.blue, primary == 2);
        QVERIFY(one.any());
    }
}

// A point d beyond a side of length s adds s d to the area: here 0.5 d.
void GamutCoverageTest::primariesOutsideTolerance()
{
    const Targets container = gamut(0.1, 0.1, 0.6, 0.1, 0.1, 0.6);
    const auto redAt = [](double y) { return gamut(0.3, y, 0.3, 0.2, 0.2, 0.3); };
    QVERIFY(!Model::primariesOutside(redAt(0.1), container).red);
    QVERIFY(!Model::primariesOutside(redAt(0.1 - 0.000199), container).red);
    QVERIFY(Model::primariesOutside(redAt(0.1 - 0.000201), container).red);
}

void GamutCoverageTest::primariesOutsideNotFinite()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Targets bad = gamut(nan, nan, 0.3, 0.6, 0.15, 0.06);
    const PrimariesOutside outside = Model::primariesOutside(bad, standard709);
    QVERIFY(outside.red);
    QVERIFY(!outside.green);
    const PrimariesOutside ofBad = Model::primariesOutside(standard709, bad);
    QVERIFY(ofBad.red && ofBad.green && ofBad.blue);
}

void GamutCoverageTest::primariesOutsideNoArea()
{
    const auto allOutside = [](const Targets &container) {
        const PrimariesOutside outside = Model::primariesOutside(standard709, container);
        return outside.red && outside.green && outside.blue;
    };
    QVERIFY(allOutside(gamut(0.3, 0.3, 0.3, 0.3, 0.3, 0.3)));
    QVERIFY(allOutside(gamut(0.1, 0.1, 0.1, 0.1, 0.6, 0.3)));
    // On a line as far as doubles go, and the line of two of the primaries
    QVERIFY(allOutside(gamut(0.64, 0.33, 0.47, 0.465, 0.3, 0.6)));
    QVERIFY(allOutside(Targets()));
    // The thinnest that files may hold is a container still.
    const Targets thin = gamut(0.1, 0.1, 0.6, 0.1, 0.35, 0.10001);
    QVERIFY(!Model::primariesOutside(thin, thin).any());
}

QTEST_GUILESS_MAIN(GamutCoverageTest)
#include "gamutcoveragetest.moc"
