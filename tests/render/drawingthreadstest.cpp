// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/model/gamutkind.h>
#include <ceiechart/model/gamutrecords.h>
#include <ceiechart/render/diagramrenderer_p.h>
#include <ceiechart/render/drawceipicture.h>
#include <gamutmodel/colorgamut.h>

#include <reference/picturedifference.h>
#include <reference/picturetestmain.h>
#include <reference/repeatablerandom.h>

#include <QtTest>

#include <functional>
#include <memory>
#include <vector>

namespace {

#ifdef __SANITIZE_THREAD__ // with which drawing takes thirty times as long
constexpr int counts[] = {3};
constexpr int randomCount = 15;
#else
constexpr int counts[] = {2, 3, 7, 64};
constexpr int randomCount = 60;
#endif

using Random = reference::RepeatableRandom;
using Renderer = ceiechart::DiagramRenderer;
using Draw = std::function<QImage(const QSize &size)>;

} // namespace

Q_DECLARE_METATYPE(Draw)

namespace {

//! What a renderer draws with \a count threads, also where a picture is small.
QImage drawn(Renderer &renderer, const Draw &draw, const QSize &size, int count)
{
    renderer.d->fewestPixelsForThreads = 0;
    renderer.setThreadCount(count);
    return draw(size);
}

QImage taken(QImage *picture)
{
    return *std::unique_ptr<QImage>(picture);
}

ColorTriangleObject gamut(const Model::ColorGamut &record, ceiechart::GamutKind kind, int width, double opacity)
{
    ColorTriangleObject object = ceiechart::gamutObject(record, kind);
    object.setTrigleLineWidth(width);
    object.setOpacity(opacity);
    return object;
}

//! Outlines that the engine draws, and such that it does not; tints; as many as there are gamuts.
QList<ColorTriangleObject> standards()
{
    return {gamut(Model::rec2020(), ceiechart::StandardGamut, 2, 0.3),
        gamut(Model::rec709(), ceiechart::StandardGamut, 1, 0.2),
        gamut(Model::dciP3D65(), ceiechart::StandardGamut, 5, 1.0)};
}

QList<ColorTriangleObject> triangles()
{
    return {gamut(Model::rec2020(), ceiechart::OriginalGamut, 2, 1.0),
        gamut(Model::dciP3D65(), ceiechart::TargetGamut, 3, 1.0)};
}

QPolygonF clipIn(const QSize &size)
{
    const double w = size.width();
    const double h = size.height();
    return QPolygonF(QVector<QPointF>{{0.7 * w, 0.7 * h}, {0.2 * w, 0.1 * h}, {0.2 * w, 0.9 * h}});
}

} // namespace

/*! Pictures that several threads draw, against those of one. */
class DrawingThreadsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void samePixels_data();
    void samePixels();
    void randomGamuts();
    void countsOfTheRenderer();

private:
    NewCEIE::DrawCEIPicture m_current{nullptr};
    DrawCEIPicture m_xy{DrawCEIPicture::XyDiagram, nullptr};
    DrawCEIPicture m_uv{DrawCEIPicture::UvDiagram, nullptr};
};

void DrawingThreadsTest::samePixels_data()
{
    QTest::addColumn<Renderer *>("renderer");
    QTest::addColumn<Draw>("draw");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<bool>("isLight");
    QTest::addColumn<double>("ratio");

    const Draw gamuts = [this](const QSize &size) {
        return taken(m_current.drawCEIPicture(
            size.width(), size.height(), true, triangles(), standards(), clipIn(size), false, QString()));
    };
    const Draw wideLines = [this](const QSize &size) { // which are all drawn row by row
        QList<ColorTriangleObject> wide = standards();
        wide[1].setTrigleLineWidth(3);
        return taken(m_current.drawCEIPicture(
            size.width(), size.height(), true, triangles(), wide, clipIn(size), false, QString()));
    };
    const Draw simple = [this](const QSize &size) {
        return taken(m_current.drawCEIPicture(size.width(), size.height(), true, false, false, {}));
    };
    const Draw filled = [this](const QSize &size) {
        QImage picture = taken(m_current.drawCEIPicture(
            size.width(), size.height(), true, triangles(), standards(), QPolygonF(), false, QString()));
        picture.fill(QColor(23, 23, 26));
        m_current.painterPixColor(&picture);
        return picture;
    };
    const Draw legacyXy = [this](const QSize &size) {
        return taken(m_xy.drawCEIPicture(size.width(), size.height(), true, true, true, {{0.3, 0.3}}));
    };
    const Draw legacyUv = [this](const QSize &size) {
        return taken(m_uv.drawCEIEPicture(size.width(), size.height(), true, false, false, {}));
    };
    const Draw colors = [this](const QSize &size) {
        const std::unique_ptr<QImage> picture(
            m_uv.drawCEIEPicture(size.width(), size.height(), true, false, false, {}));
        return m_uv.getColorImage();
    };
    struct Subject {
        const char *name;
        Renderer *renderer;
        Draw draw;
    };
    for (const Subject &subject : {Subject{"gamut form", &m_current, gamuts}, {"wide lines", &m_current, wideLines},
             {"simple form", &m_current, simple}, {"colours", &m_current, filled}, {"legacy x, y", &m_xy, legacyXy},
             {"legacy u', v'", &m_uv, legacyUv}, {"legacy colours", &m_uv, colors}}) {
        const auto add = [&subject](const char *kind, const QColor &ground, bool isLight, double ratio) {
            QTest::addRow("%s, %s", subject.name, kind)
                << subject.renderer << subject.draw << ground << isLight << ratio;
        };
        add("usual", QColor(23, 23, 26), false, 1.0);
        add("red ground", QColor(200, 3, 4), false, 1.0);
        add("no red", QColor(0, 30, 40), false, 1.0);
        add("translucent", QColor(100, 30, 40, 77), false, 1.0);
        add("light", QColor(250, 250, 250), true, 1.0);
        add("screen of high density", QColor(23, 23, 26), false, 1.75);
    }
}

void DrawingThreadsTest::samePixels()
{
    QFETCH(Renderer *, renderer);
    QFETCH(Draw, draw);
    QFETCH(QColor, ground);
    QFETCH(bool, isLight);
    QFETCH(double, ratio);
    m_current.setGraphColor(Qt::white, ground);
    m_uv.setGraphColor(Qt::white, ground);
    renderer->setLightGround(isLight);
    renderer->setPixelRatio(ratio);
    // The mapping to a picture without extent is that to the one before.
    const std::vector<QSize> sizes{{64, 70}, {0, 0}, {1, 1}, {2, 300}, {300, 2}, {17, 33}, {160, 64}, {160, 65},
        {320, 321}, {333, 1001}, {700, 90}, {800, 600}};
    std::vector<QImage> expected;
    for (const QSize &size : sizes) {
        expected.push_back(drawn(*renderer, draw, size, 1));
    }
    for (const int count : counts) {
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            const QString difference = reference::firstDifference(drawn(*renderer, draw, sizes[i], count), expected[i]);
            QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("%1 threads: %2").arg(count).arg(difference)));
        }
    }
    renderer->setLightGround(false);
    renderer->setPixelRatio(1.0);
}

void DrawingThreadsTest::randomGamuts()
{
    Random random(2);
    for (int i = 0; i < randomCount; ++i) {
        const QSize size(random.between(100, 500), random.between(100, 500));
        const auto gamuts = [&random, i] {
            QList<ColorTriangleObject> objects;
            for (int k = random.between(0, 4); k > 0; --k) {
                TrianglePoint points;
                points.setRedPos({random.real(-0.2, 1.0), random.real(-0.2, 1.0)});
                points.setGreenPos({random.real(-0.2, 1.0), random.real(-0.2, 1.0)});
                points.setBluePos({random.real(-0.2, 1.0), random.real(-0.2, 1.0)});
                ColorTriangleObject object;
                object.setTrianglePoint(points);
                object.setForeColor(random.opaqueColor());
                object.setType(random.between(1, 3));
                object.setTrigleLineWidth(random.between(i % 3 == 0 ? 1 : 2, 6));
                object.setOpacity(random.real(0.0, 1.0));
                objects.append(object);
            }
            return objects;
        };
        const QList<ColorTriangleObject> over = gamuts();
        const QList<ColorTriangleObject> under = gamuts();
        QPolygonF clip;
        for (int k = random.between(0, 6); k > 0; --k) {
            clip.append({random.real(-0.1, 1.1) * size.width(), random.real(-0.1, 1.1) * size.height()});
        }
        const Draw draw = [&](const QSize &) {
            return taken(
                m_current.drawCEIPicture(size.width(), size.height(), i % 2 == 0, over, under, clip, false, QString()));
        };
        const QImage expected = drawn(m_current, draw, size, 1);
        const QString difference
            = reference::firstDifference(drawn(m_current, draw, size, random.between(2, 5)), expected);
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("picture %1: %2").arg(i).arg(difference)));
    }
}

void DrawingThreadsTest::countsOfTheRenderer()
{
    NewCEIE::DrawCEIPicture renderer(nullptr);
    QCOMPARE(renderer.threadCount(), 1);
    renderer.setThreadCount(-1);
    QCOMPARE(renderer.threadCount(), 1);
    renderer.setThreadCount(1000);
    QCOMPARE(renderer.threadCount(), 64);

    QVERIFY(renderer.d->threadsFor(QImage(3840, 2160, QImage::Format_ARGB32)) != nullptr);
    QVERIFY(renderer.d->threadsFor(QImage(300, 300, QImage::Format_ARGB32)) == nullptr);
    renderer.setThreadCount(1);
    QVERIFY(renderer.d->threadsFor(QImage(3840, 2160, QImage::Format_ARGB32)) == nullptr);
}

CEIECHART_PICTURE_TEST_MAIN(DrawingThreadsTest)

#include "drawingthreadstest.moc"
