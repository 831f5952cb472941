// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/render/drawceipicture.h>

#include <reference/picturedifference.h>
#include <reference/picturetestmain.h>
#include <reference/plainrenderer.h>
#include <reference/quietmessages.h>
#include <reference/repeatablerandom.h>

#include <QtTest>

#include <memory>
#include <vector>

namespace {

#ifdef CEIECHART_SHORT_TESTS
constexpr int sequenceCount = 200;
#else
constexpr int sequenceCount = 4000;
#endif

const std::vector<QSize> &sizes()
{
    static const std::vector<QSize> all{{0, 0}, {0, 7}, {7, 0}, {1, 1}, {1, 2}, {2, 1}, {1, 50}, {50, 1}, {1, 199},
        {199, 1}, {2, 2}, {2, 3}, {3, 2}, {10, 10}, {11, 11}, {16, 16}, {19, 20}, {21, 22}, {49, 49}, {50, 50},
        {50, 49}, {49, 50}, {64, 64}, {97, 89}, {89, 97}, {101, 103}, {128, 64}, {60, 131}, {211, 50}, {49, 223}};
    return all;
}

class Random : public reference::RepeatableRandom {
public:
    using RepeatableRandom::RepeatableRandom;

    double coordinate(double low, double high)
    {
        const double value = real(low, high);
        return chance(50) ? std::floor(value) : value;
    }
};

QColor randomColor(Random &random)
{
    const int r = random.between(0, 255);
    const int g = random.between(0, 255);
    const int b = random.between(0, 255);
    const int a = random.between(0, 255);
    switch (random.between(0, 11)) {
    case 0:
        return QColor(r, g, b, a);
    case 1:
        return QColor(0, g, b, 255);
    case 2:
        return QColor(0, g, b, a);
    case 3:
        return QColor();
    case 4:
        return QColor(Qt::black);
    case 5:
        return QColor(Qt::transparent);
    case 6:
        return QColor::fromHsv(g, 255 - b / 2, r, a);
    case 7:
        return QColor::fromRgbF(r / 255.0, 0.25, 0.75, 1.0);
    case 8:
        return QColor(1, g, b, random.chance(50) ? 255 : 128);
    default:
        return QColor(r, g, b, 255);
    }
}

QPointF randomChromaticity(Random &random)
{
    return random.chance(80) ? QPointF{random.real(0.0, 0.8), random.real(0.0, 0.9)}
                             : QPointF{random.real(-0.4, 1.3), random.real(-0.4, 1.3)};
}

QList<QPointF> randomChromaticities(Random &random)
{
    QList<QPointF> points;
    for (int count = random.between(0, 4); count > 0; --count) {
        points.append(random.chance(15) ? QPointF(0.314, 0.324) : randomChromaticity(random));
    }
    return points;
}

ColorTriangleObject randomTriangle(Random &random)
{
    const std::vector<int> widths{0, 1, 2, 7};
    const std::vector<double> opacities{0.0, 0.07, 0.25, 0.5, 0.999, 1.0, 1.5, -0.25};
    TrianglePoint points;
    points.setRedPos(randomChromaticity(random));
    points.setGreenPos(random.chance(10) ? points.redPos() : randomChromaticity(random));
    points.setBluePos(random.chance(10) ? points.redPos() : randomChromaticity(random));
    points.setWhitePos(randomChromaticity(random));
    ColorTriangleObject triangle;
    triangle.setTrianglePoint(points);
    triangle.setForeColor(randomColor(random));
    triangle.setTrigleLineWidth(widths[static_cast<std::size_t>(random.between(0, 3))]);
    triangle.setShow(random.chance(70));
    triangle.setType(random.between(-1, 4));
    triangle.setOpacity(opacities[static_cast<std::size_t>(random.between(0, 7))]);
    triangle.setGamutName("gamut");
    return triangle;
}

QList<ColorTriangleObject> randomTriangles(Random &random)
{
    QList<ColorTriangleObject> triangles;
    for (int count = random.between(0, 4); count > 0; --count) {
        triangles.append(randomTriangle(random));
    }
    return triangles;
}

QPolygonF randomClipPolygon(Random &random, const QSize &size)
{
    const double w = size.width();
    const double h = size.height();
    QPolygonF polygon;
    int corners = 0;
    switch (random.between(0, 7)) {
    case 0:
        return polygon;
    case 1:
        return QPolygonF(QRectF(0, 0, w, h));
    case 2: // concave
        return QPolygonF(QVector<QPointF>{
            {0.1 * w, 0.1 * h}, {0.9 * w, 0.1 * h}, {0.5 * w, 0.45 * h}, {0.9 * w, 0.9 * h}, {0.1 * w, 0.9 * h}});
    case 3: // self-intersecting
        return QPolygonF(QVector<QPointF>{
            {0.1 * w, 0.9 * h}, {0.5 * w, 0.05 * h}, {0.9 * w, 0.9 * h}, {0.05 * w, 0.35 * h}, {0.95 * w, 0.35 * h}});
    case 4: // outside the picture
        return QPolygonF(QRectF(w + 5, -h - 10, w + 1, h));
    case 5:
        corners = 3;
        break;
    default:
        corners = random.between(1, 7);
        break;
    }
    for (int i = 0; i < corners; ++i) {
        polygon.append(QPointF{random.coordinate(-0.4 * w, 1.4 * w), random.coordinate(-0.4 * h, 1.4 * h)});
    }
    return polygon;
}

QList<QRectF> randomRectangles(Random &random, const QSize &size)
{
    QList<QRectF> rectangles;
    for (int count = random.between(0, 6); count > 0; --count) {
        const double x = random.coordinate(-20, size.width() + 20);
        const double y = random.coordinate(-20, size.height() + 20);
        const double w = random.chance(10) ? 0.0 : random.coordinate(-25, 30);
        const double h = random.chance(10) ? 0.0 : random.coordinate(-25, 30);
        rectangles.append(QRectF(x, y, w, h));
    }
    return rectangles;
}

QSize randomSize(Random &random)
{
    const auto last = static_cast<int>(sizes().size()) - 1;
    return random.chance(60) ? sizes()[static_cast<std::size_t>(random.between(0, last))]
                             : QSize{random.between(1, 140), random.between(1, 140)};
}

bool samePoints(const QPolygonF &a, const QPolygonF &b)
{
    if (a.size() != b.size()) {
        return false;
    }
    for (int i = 0; i < a.size(); ++i) {
        if (a.at(i).x() != b.at(i).x() || a.at(i).y() != b.at(i).y()) {
            return false;
        }
    }
    return true;
}

// The renderer and its definition, given the same orders; every drawing returns how the pictures differ.
class Both {
public:
    void setGraphColor(const QColor &line, const QColor &picture)
    {
        m_renderer.setGraphColor(line, picture);
        m_plain.setGraphColor(line, picture);
    }
    void setBackgroudColor(const QColor &color)
    {
        m_renderer.setBackgroudColor(color);
        m_plain.setBackgroudColor(color);
    }
    void setPointData(const QList<QRectF> &rectangles)
    {
        m_renderer.setPointData(rectangles);
        m_plain.setPointData(rectangles);
    }
    void setCMYPointData(const QList<QRectF> &rectangles)
    {
        m_renderer.setCMYPointData(rectangles);
        m_plain.setCMYPointData(rectangles);
    }

    QString drawSimple(
        const QSize &size, bool showCoordinate, const QList<QPointF> &points, bool second = false, bool third = false)
    {
        const reference::QuietMessages quiet;
        const std::unique_ptr<QImage> picture(
            m_renderer.drawCEIPicture(size.width(), size.height(), showCoordinate, second, third, points));
        const QImage expected = m_plain.drawCEIPicture(size.width(), size.height(), showCoordinate, points);
        return difference(picture.get(), expected);
    }

    QString drawGamuts(const QSize &size, bool showCoordinate, const QList<ColorTriangleObject> &triangles,
        const QList<ColorTriangleObject> &standards, const QPolygonF &clipPolygon, const QString &skipText,
        bool polygonFlag = false)
    {
        const reference::QuietMessages quiet;
        const std::unique_ptr<QImage> picture(m_renderer.drawCEIPicture(
            size.width(), size.height(), showCoordinate, triangles, standards, clipPolygon, polygonFlag, skipText));
        const QImage expected = m_plain.drawCEIPicture(
            size.width(), size.height(), showCoordinate, triangles, standards, clipPolygon, skipText);
        if (!samePoints(m_renderer.intersectPolygon(), clipPolygon)) {
            return QStringLiteral("intersectPolygon() is not the clip polygon");
        }
        return difference(picture.get(), expected);
    }

private:
    static QString difference(const QImage *picture, const QImage &expected)
    {
        return picture ? reference::firstDifference(*picture, expected) : QStringLiteral("no picture");
    }

    NewCEIE::DrawCEIPicture m_renderer{nullptr};
    reference::PlainRenderer m_plain;
};

ColorTriangleObject gamut(
    const QPointF &red, const QPointF &green, const QPointF &blue, const QColor &color, int type, double opacity)
{
    TrianglePoint points;
    points.setRedPos(red);
    points.setGreenPos(green);
    points.setBluePos(blue);
    points.setWhitePos(QPointF(0.3127, 0.3290));
    ColorTriangleObject triangle;
    triangle.setTrianglePoint(points);
    triangle.setForeColor(color);
    triangle.setTrigleLineWidth(2);
    triangle.setType(type);
    triangle.setOpacity(opacity);
    return triangle;
}

} // namespace

class PictureIdentityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comparisonSeesEverySingleValue();
    void everySize_data();
    void everySize();
    void redlessColors_data();
    void redlessColors();
    void randomSequences();
    void scalesOfThePreviousDrawing();
    void pointsOfTheSimpleFormInALaterGamutForm();
    void displayPicture();
    void widePictures();
};

void PictureIdentityTest::comparisonSeesEverySingleValue()
{
    QImage one(5, 4, QImage::Format_ARGB32);
    one.fill(Qt::transparent);
    QImage other = one;
    QVERIFY(reference::firstDifference(one, other).isEmpty());
    other.setPixel(4, 3, 0x00000001);
    QCOMPARE(reference::firstDifference(one, other),
        QStringLiteral("pixel (4, 3) of 5x4 is #00000000 instead of #00000001"));
    QVERIFY(!reference::firstDifference(QImage(), one).isEmpty());
    QVERIFY(!reference::firstDifference(one, QImage()).isEmpty());
    QVERIFY(!reference::firstDifference(one, one.copy(0, 0, 5, 3)).isEmpty());
    QVERIFY(!reference::firstDifference(one, one.convertToFormat(QImage::Format_ARGB32_Premultiplied)).isEmpty());
}

void PictureIdentityTest::everySize_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : sizes()) {
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
    }
}

// Default colours: everything between the edges of the picture is coloured.
void PictureIdentityTest::everySize()
{
    QFETCH(QSize, size);
    const QPolygonF clip(QRectF(1, 1, size.width() - 2, size.height() - 2));
    const QList<ColorTriangleObject> standards{
        gamut({0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}, QColor(250, 120, 10), 0, 0.25)};
    const QList<ColorTriangleObject> triangles{
        gamut({0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, QColor(10, 220, 30), 1, 1.0),
        gamut({0.700, 0.299}, {0.180, 0.730}, {0.130, 0.050}, QColor(200, 200, 230), 2, 1.0)};
    Both both;
    for (const bool showCoordinate : {false, true}) {
        QString difference = both.drawSimple(size, showCoordinate, {{0.3127, 0.3290}}, showCoordinate, true);
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("simple form: ") + difference));
        difference = both.drawGamuts(size, showCoordinate, triangles, standards, clip, QString());
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("gamut form: ") + difference));
        difference = both.drawGamuts(size, showCoordinate, triangles, standards, clip, QStringLiteral("skip"), true);
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("with skip text: ") + difference));
    }
}

void PictureIdentityTest::redlessColors_data()
{
    QTest::addColumn<QColor>("line");
    QTest::addColumn<QColor>("fill");
    QTest::newRow("white on black") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("translucent white on black") << QColor(255, 255, 255, 90) << QColor(Qt::black);
    QTest::newRow("faint red on green") << QColor(1, 0, 0, 255) << QColor(0, 120, 0);
    QTest::newRow("cyan on black") << QColor(0, 255, 255) << QColor(Qt::black);
    QTest::newRow("black on red 1") << QColor(Qt::black) << QColor(1, 90, 200);
    QTest::newRow("orange on transparent") << QColor(255, 128, 0) << QColor(Qt::transparent);
    QTest::newRow("white on translucent red") << QColor(Qt::white) << QColor(255, 0, 0, 3);
    QTest::newRow("invalid on black") << QColor() << QColor(Qt::black);
    QTest::newRow("white on invalid") << QColor(Qt::white) << QColor();
}

// Only a picture without red elsewhere shows the horseshoe's own outline: rows start and stop at the edge.
void PictureIdentityTest::redlessColors()
{
    QFETCH(QColor, line);
    QFETCH(QColor, fill);
    Both both;
    both.setGraphColor(line, fill);
    both.setBackgroudColor(fill);
    for (const QSize &size : {QSize(50, 50), QSize(128, 97), QSize(83, 140), QSize(240, 240)}) {
        for (const bool showCoordinate : {false, true}) {
            QString difference = both.drawSimple(size, showCoordinate, {});
            QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("simple form: ") + difference));
            difference = both.drawGamuts(
                size, showCoordinate, {}, {}, QPolygonF(QRectF(3.5, 2.25, size.width() / 2, 80)), QString());
            QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("gamut form: ") + difference));
        }
    }
}

void PictureIdentityTest::randomSequences()
{
    for (int seed = 1; seed <= sequenceCount; ++seed) {
        Random random(static_cast<unsigned>(seed));
        Both both;
        QList<ColorTriangleObject> triangles;
        const int drawings = random.between(1, 4);
        for (int drawing = 1; drawing <= drawings; ++drawing) {
            const QSize size = randomSize(random);
            if (random.chance(60)) {
                const QColor line = random.chance(40) ? QColor(Qt::white) : randomColor(random);
                const QColor picture = random.chance(25) ? QColor(Qt::black) : randomColor(random);
                both.setGraphColor(line, picture);
            }
            if (random.chance(40)) {
                both.setBackgroudColor(randomColor(random));
            }
            if (random.chance(50)) {
                both.setPointData(randomRectangles(random, size));
            }
            if (random.chance(50)) {
                both.setCMYPointData(randomRectangles(random, size));
            }
            const bool showCoordinate = random.chance(50);
            QString form;
            QString difference;
            if (random.chance(35)) {
                form = QStringLiteral("simple form");
                const bool second = random.chance(50);
                const bool third = random.chance(50);
                difference = both.drawSimple(size, showCoordinate, randomChromaticities(random), second, third);
            } else {
                form = QStringLiteral("gamut form");
                if (random.chance(70)) {
                    triangles = randomTriangles(random);
                }
                const QList<ColorTriangleObject> standards = randomTriangles(random);
                const QPolygonF clip = randomClipPolygon(random, size);
                const QString skipText = random.chance(20) ? QStringLiteral(" ") : QString();
                const bool polygonFlag = random.chance(50);
                difference = both.drawGamuts(size, showCoordinate, triangles, standards, clip, skipText, polygonFlag);
            }
            QVERIFY2(difference.isEmpty(),
                qPrintable(
                    QStringLiteral("seed %1, drawing %2, %3: %4").arg(seed).arg(drawing).arg(form).arg(difference)));
        }
    }
}

// A picture one pixel wide or high has no span: it is drawn with the scales of the drawing before.
void PictureIdentityTest::scalesOfThePreviousDrawing()
{
    Both both;
    both.setGraphColor(Qt::white, QColor(90, 0, 0));
    const QPolygonF everywhere(QRectF(0, 0, 500, 500));
    for (const QSize &size : {QSize(60, 1), QSize(61, 60), QSize(60, 1), QSize(1, 60), QSize(0, 0), QSize(200, 1),
             QSize(1, 1), QSize(33, 90), QSize(0, 50), QSize(190, 1)}) {
        QString difference = both.drawSimple(size, true, {{0.3, 0.3}});
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("simple form: ") + difference));
        difference = both.drawGamuts(size, true, {}, {}, everywhere, QString());
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("gamut form: ") + difference));
    }
}

void PictureIdentityTest::pointsOfTheSimpleFormInALaterGamutForm()
{
    Both both;
    const QSize size(100, 150);
    QList<QPointF> points{{0.314, 0.324}, {0.5, 0.4}, {-0.02, 0.9}};
    QString difference = both.drawGamuts(size, false, {}, {}, {}, QString());
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
    difference = both.drawSimple(size, false, points);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
    points.append(QPointF(0.1, 0.1)); // the renderer's list is its own
    for (const QString &skipText : {QString(), QStringLiteral("skip")}) {
        difference = both.drawGamuts(size, false, {}, {}, {}, skipText);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }
    difference = both.drawSimple(size, false, {});
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
    difference = both.drawGamuts(size, false, {}, {}, {}, QString());
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

// A picture as a display's owner sees it, large enough for every label to stand apart.
void PictureIdentityTest::displayPicture()
{
    const QSize size(800, 800);
    Both both;
    both.setBackgroudColor(QColor(0, 20, 26));
    both.setGraphColor(QColor(220, 220, 220), QColor(0, 0, 0));
    both.setPointData({{100, 100, 8, 8}, {300, 200, 9, 9}, {200, 650, 10, 12}, {312, 508, 7, 7}, {400, 400, 6, 6}});
    both.setCMYPointData({{250, 300, 0, 0}, {420, 380, 8, 8}, {350, 210, 40, 2}, {500, 500, 8, 8}});
    QString difference = both.drawSimple(size, true, {{0.3127, 0.3290}, {0.314, 0.324}, {0.437, 0.404}});
    QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("simple form: ") + difference));

    const QList<ColorTriangleObject> standards{
        gamut({0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}, QColor(255, 255, 0), 0, 0.25),
        gamut({0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}, QColor(0, 255, 255), 0, 0.5),
        gamut({0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, QColor(255, 0, 255), 0, 1.0)};
    const QList<ColorTriangleObject> triangles{
        gamut({0.700, 0.299}, {0.180, 0.730}, {0.130, 0.050}, QColor(200, 200, 230), 2, 1.0),
        gamut({0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, QColor(10, 220, 30), 1, 1.0),
        gamut({0.690, 0.305}, {0.190, 0.720}, {0.135, 0.055}, QColor(240, 120, 30), 3, 1.0)};
    const QPolygonF clip(QVector<QPointF>{{627, 515}, {271, 232}, {173, 714}});
    difference = both.drawGamuts(size, true, triangles, standards, clip, QString());
    QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("gamut form: ") + difference));
    both.setBackgroudColor(QColor(23, 23, 26));
    difference = both.drawGamuts(size, true, triangles, standards, clip, QString());
    QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("gamut form, coloured: ") + difference));
}

void PictureIdentityTest::widePictures()
{
    for (const QSize &size : {QSize(4099, 50), QSize(8192, 49)}) {
        Both both;
        QString difference = both.drawSimple(size, true, {{0.3127, 0.3290}});
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("simple form: ") + difference));
        difference = both.drawGamuts(size, true, {}, {}, QPolygonF(QRectF(10, 3, size.width() - 30, 40)), QString());
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("gamut form: ") + difference));
    }
}

CEIECHART_PICTURE_TEST_MAIN(PictureIdentityTest)

#include "pictureidentitytest.moc"
