// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <contrast.h>
#include <diagram/fulldiagram.h>

#include <QPainter>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(Model::ColorGamut)

using namespace fulldiagram;

namespace {

QColor over(const QColor &color, const QColor &ground)
{
    const double share = color.alphaF();
    return QColor::fromRgbF(color.redF() * share + ground.redF() * (1.0 - share),
        color.greenF() * share + ground.greenF() * (1.0 - share),
        color.blueF() * share + ground.blueF() * (1.0 - share));
}

} // namespace

/*! How the lines, areas and colours of a diagram look. */
class DiagramLookTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void contrastIsEnough();
    void rolesDiffer();
    void equalGamutsShowBoth_data();
    void equalGamutsShowBoth();
    void equalGamutsDoNotDependOnTheTarget();
    void manyEqualGamutsAreNoBand();
    void withoutColorsThereIsNoColor();
    void fullColorsOnlyInTheCommonArea();
    void lostAreaIsHatched();
    void ringsAreRound();
    void ringsOfOddSizeAreNone();
    void hairlinesAreSharp_data();
    void hairlinesAreSharp();
    void keyLinesAreThoseOfTheDiagram();
};

void DiagramLookTest::contrastIsEnough()
{
    for (const DiagramGround ground : {DiagramGround::Light, DiagramGround::Dark}) {
        const DiagramPalette &palette = diagramPalette(ground);
        const QColor casing = over(palette.casing, palette.ground);
        for (const QColor &color : {palette.frame, palette.text, palette.numbers, palette.locus, palette.planckian,
                 palette.hatch, palette.accent}) {
            QVERIFY2(contrast(over(color, palette.ground), palette.ground) >= 3.0, qPrintable(color.name()));
        }
        for (const GamutRole role : allRoles) {
            const QColor color = DiagramPainter::gamutPen(role).color();
            QVERIFY2(contrast(color, palette.ground) >= 3.0, qPrintable(color.name()));
            QVERIFY2(contrast(color, casing) >= 3.0, qPrintable(color.name()));
        }
        // Within the horseshoe lines and texts stand on their casing, whatever the colour below.
        for (const QColor &below : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue), QColor(Qt::yellow),
                 QColor(Qt::cyan), QColor(Qt::magenta), QColor(Qt::white)}) {
            for (const GamutRole role : allRoles) {
                const QColor color = DiagramPainter::gamutPen(role).color();
                QVERIFY2(contrast(color, over(palette.casing, below)) >= 3.0, qPrintable(color.name()));
                QColor plate = palette.ground;
                plate.setAlphaF(0.94);
                QVERIFY2(contrast(color, over(plate, below)) >= 3.0, qPrintable(color.name()));
            }
            QVERIFY(contrast(palette.planckian, over(palette.casing, below)) >= 3.0);
            QVERIFY(contrast(palette.text, over(palette.casing, below)) >= 3.0);
        }
    }
}

void DiagramLookTest::rolesDiffer()
{
    for (const GamutRole a : allRoles) {
        for (const GamutRole b : allRoles) {
            if (a != b) {
                const QPen first = DiagramPainter::gamutPen(a);
                const QPen second = DiagramPainter::gamutPen(b);
                QVERIFY(first.color() != second.color());
                // Without colours, by the line or its width.
                QVERIFY(first.dashPattern() != second.dashPattern() || first.widthF() != second.widthF());
            }
        }
    }
}

void DiagramLookTest::equalGamutsShowBoth_data()
{
    // Which corner comes first cannot be seen.
    QTest::addColumn<Model::ColorGamut>("other");
    const QPointF red(0.68, 0.32);
    const QPointF green(0.265, 0.69);
    const QPointF blue(0.15, 0.06);
    QTest::newRow("same order") << gamut("same", red, green, blue);
    QTest::newRow("red and green exchanged") << gamut("same", green, red, blue);
    QTest::newRow("green and blue exchanged") << gamut("same", red, blue, green);
    QTest::newRow("turned") << gamut("same", green, blue, red);
}

void DiagramLookTest::equalGamutsShowBoth()
{
    QFETCH(Model::ColorGamut, other);
    DiagramContent content;
    content.layers = DiagramLayer::Originals | DiagramLayer::MeasuredGamuts | DiagramLayer::Targets;
    const Model::ColorGamut same = gamut("same", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06});
    content.gamuts = {{same, GamutRole::Target}, {other, GamutRole::Original}, {same, GamutRole::Measured}};
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 450), 1.0);
    const QImage image = painted(painter);
    double length = 0.0;
    const QPolygonF corners = painter.outline(0);
    for (int i = 0; i < 3; ++i) {
        length += QLineF(corners.at(i), corners.at((i + 1) % 3)).length();
    }
    for (const GamutRole role : {GamutRole::Target, GamutRole::Original, GamutRole::Measured}) {
        const int count = countOf(image, DiagramPainter::gamutPen(role).color());
        QVERIFY2(count > length / 2.0, qPrintable(QStringLiteral("%1 of %2").arg(count).arg(length)));
    }
}

void DiagramLookTest::equalGamutsDoNotDependOnTheTarget()
{
    // A view keeps what paintGamuts() has painted while the target is dragged.
    DiagramContent content = fullContent();
    DiagramPainter painter;
    const auto kept = [&painter] {
        QImage image(500, 450, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter onto(&image);
        painter.paintScale(&onto);
        painter.paintGamuts(&onto);
        return image;
    };
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 450), 1.0);
    const QImage apart = kept();
    content.gamuts[2].gamut = content.gamuts.at(3).gamut;
    painter.setContent(content);
    QCOMPARE(kept(), apart);
}

void DiagramLookTest::manyEqualGamutsAreNoBand()
{
    DiagramContent content;
    content.layers = DiagramLayer::Standards | DiagramLayer::Targets;
    content.gamuts.append({gamut("target", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}), GamutRole::Target});
    for (int i = 0; i < 2; ++i) {
        content.gamuts.append({gamut("same", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}), GamutRole::Standard});
    }
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 450), 1.0);
    const QImage two = painted(painter);
    for (int i = 0; i < 48; ++i) {
        content.gamuts.append(content.gamuts.last());
    }
    painter.setContent(content);
    QCOMPARE(painted(painter), two);
}

void DiagramLookTest::withoutColorsThereIsNoColor()
{
    DiagramContent content;
    content.colors = HorseshoeColors::None;
    content.layers = DiagramLayer::Colors | DiagramLayer::Locus | DiagramLayer::Wavelengths
        | DiagramLayer::PlanckianLocus | DiagramLayer::Isotherms | DiagramLayer::Axes | DiagramLayer::Grid;
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(400, 400), 1.0);
    const QImage image = painted(painter);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QVERIFY(image.pixelColor(x, y).hsvSaturation() < 80 || image.pixelColor(x, y).value() < 150);
        }
    }
}

void DiagramLookTest::fullColorsOnlyInTheCommonArea()
{
    DiagramContent content = fullContent();
    content.layers = DiagramLayer::Colors | DiagramLayer::CommonArea;
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 500), 1.0);
    const auto at = [&painter](const QPointF &xy) {
        return painter.colors(1.0).pixelColor(painter.viewport().toPosition(xy).toPoint());
    };
    // In the target and in the original; in one of them only; in neither.
    QVERIFY(contrast(at({0.30, 0.60}), Qt::white) < 2.0 && at({0.30, 0.60}).hsvSaturation() > 200);
    for (const QPointF &xy : {QPointF(0.27, 0.685), QPointF(0.19, 0.60), QPointF(0.06, 0.75)}) {
        QVERIFY2(at(xy).hsvSaturation() < 150, qPrintable(at(xy).name()));
    }
    content.layers.setFlag(DiagramLayer::CommonArea, false);
    painter.setContent(content);
    QVERIFY(at({0.30, 0.60}).hsvSaturation() < 150);
    content.colors = HorseshoeColors::Full;
    painter.setContent(content);
    QVERIFY(at({0.06, 0.75}).hsvSaturation() > 200);
}

void DiagramLookTest::lostAreaIsHatched()
{
    DiagramContent content = fullContent();
    content.colors = HorseshoeColors::None;
    content.layers = DiagramLayer::LostArea;
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(600, 600), 1.0);
    const QImage image = painted(painter);
    const QColor ground = diagramPalette(content.ground).ground;
    const auto marked = [&](const QPointF &xy) {
        const QPoint at = painter.viewport().toPosition(xy).toPoint();
        const QImage part = image.copy(QRect(at - QPoint(6, 6), QSize(13, 13)));
        return 13 * 13 - countOf(part, ground, 3);
    };
    // In the original but not in the target; in both; in the target only.
    QVERIFY(marked({0.205, 0.65}) > 10);
    QCOMPARE(marked({0.31, 0.33}), 0);
    QCOMPARE(marked({0.62, 0.37}), 0);
}

void DiagramLookTest::ringsAreRound()
{
    const Model::DiagramPoint white = Model::toDiagram(Model::Diagram::Cie1976, {d65.x(), d65.y()});
    for (const Model::Diagram diagram : allDiagrams) {
        for (const double zoom : {1.0, 50.0, 2000.0}) {
            const DiagramViewport viewport = DiagramViewport(diagram, QSizeF(800, 600)).centredOn(d65, zoom);
            for (const double radius : {0.001, 0.005}) {
                const QPolygonF ring = DiagramPainter::ring(viewport, d65, radius);
                QVERIFY(ring.size() >= 360);
                for (const QPointF &at : ring) {
                    const QPointF xy = viewport.toChromaticity(at);
                    const Model::DiagramPoint uv = Model::toDiagram(Model::Diagram::Cie1976, {xy.x(), xy.y()});
                    QVERIFY(std::fabs(std::hypot(uv.x - white.x, uv.y - white.y) - radius) < 1e-12);
                }
            }
        }
    }
    // As it is painted: the distances of its pixels from the middle.
    DiagramContent content;
    content.colors = HorseshoeColors::None;
    content.layers = DiagramLayer::Rings;
    content.rings = {{d65, {0.003}}};
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1976, QSizeF(700, 700), 60.0);
    const QImage image = painted(painter);
    const QPointF centre = painter.viewport().toPosition(d65);
    const double expected = 0.003 * painter.viewport().scale();
    const QColor color = DiagramPainter::gamutPen(GamutRole::Target).color();
    QVERIFY(expected > 80.0 && expected < 340.0);
    const QVector<DiagramLabel> labels = painter.labels();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isLabel = std::any_of(labels.cbegin(), labels.cend(),
                [&](const DiagramLabel &label) { return label.place.adjusted(-3, -3, 3, 3).contains(x, y); });
            const QColor pixel = image.pixelColor(x, y);
            if (!isLabel && std::abs(pixel.red() - color.red()) + std::abs(pixel.blue() - color.blue()) < 60) {
                const double radius = std::hypot(x + 0.5 - centre.x(), y + 0.5 - centre.y());
                QVERIFY2(std::fabs(radius - expected) < 1.5, qPrintable(QString::number(radius - expected)));
                ++count;
            }
        }
    }
    QVERIFY2(count > expected, qPrintable(QString::number(count)));
}

void DiagramLookTest::ringsOfOddSizeAreNone()
{
    const DiagramViewport viewport(Model::Diagram::Cie1976, QSizeF(400, 400));
    for (const double radius : {0.0, -0.001, std::numeric_limits<double>::quiet_NaN()}) {
        QVERIFY(DiagramPainter::ring(viewport, d65, radius).isEmpty());
    }
}

void DiagramLookTest::hairlinesAreSharp_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        QTest::addRow("%g", ratio) << ratio;
    }
}

void DiagramLookTest::hairlinesAreSharp()
{
    QFETCH(double, ratio);
    DiagramContent content;
    content.colors = HorseshoeColors::None;
    content.layers = DiagramLayer::Grid;
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(333, 277), 2.3);
    const QImage image = painted(painter, ratio);
    // Every pixel is ground, or grid, or where two lines of it cross: none is in between.
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    QCOMPARE(int(colors.size()), 3);
}

void DiagramLookTest::keyLinesAreThoseOfTheDiagram()
{
    for (const GamutRole role : allRoles) {
        for (const DiagramGround ground : {DiagramGround::Light, DiagramGround::Dark}) {
            QImage image(40, 16, QImage::Format_RGB32);
            image.fill(diagramPalette(ground).ground);
            {
                QPainter onto(&image);
                DiagramPainter::paintKeyLine(&onto, QRectF(4, 2, 32, 12), role, ground);
            }
            QVERIFY(countOf(image, DiagramPainter::gamutPen(role).color(), 60) >= 10);
            // Dashes leave gaps, in which the casing or the ground shows.
            const int covered = countOf(image.copy(0, 7, 40, 2), DiagramPainter::gamutPen(role).color(), 60);
            QCOMPARE(
                covered < 60, DiagramPainter::gamutPen(role).style() != Qt::SolidLine || role == GamutRole::Standard);
        }
    }
}

QTEST_MAIN(DiagramLookTest)

#include "diagramlooktest.moc"
