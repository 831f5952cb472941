// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT

#include "rendererbench.h"

#include <reference/quietmessages.h>

#include <QPointer>

#include <type_traits>

// Lets an allocation fail under the address sanitizer as it fails without it.
extern "C" Q_DECL_EXPORT const char *__asan_default_options(); // NOLINT(bugprone-reserved-identifier)
extern "C" Q_DECL_EXPORT const char *__asan_default_options() // NOLINT(bugprone-reserved-identifier)
{
    return "allocator_may_return_null=1";
}

namespace {

static_assert(std::is_base_of_v<QWidget, Renderer>);
static_assert(std::is_constructible_v<Renderer, QWidget *>);
static_assert(std::has_virtual_destructor_v<Renderer>);
static_assert(!std::is_copy_constructible_v<Renderer>);

// An operation with exactly this signature, the renderer's own or inherited, picked from its overloads.
template <typename Signature>
struct Operation;
template <typename Result, typename... Arguments>
struct Operation<Result(Arguments...)> {
    template <typename Class>
    static constexpr bool is(Result (Class::* /*operation*/)(Arguments...))
    {
        return std::is_base_of_v<Class, Renderer>;
    }
    template <typename Class>
    static constexpr bool isConst(Result (Class::* /*operation*/)(Arguments...) const)
    {
        return std::is_base_of_v<Class, Renderer>;
    }
};

static_assert(Operation<QImage *(int, int, bool, bool, bool, QList<QPointF>)>::is(&Renderer::drawCEIPicture));
static_assert(Operation<QImage *(int, int, bool, const Triangles &, const Triangles &, const QPolygonF &, bool,
        const QString &)>::is(&Renderer::drawCEIPicture));
static_assert(Operation<QPolygonF()>::isConst(&Renderer::intersectPolygon));
static_assert(Operation<QPointF(const QPointF &)>::is(&Renderer::CoordinateTransformation));
static_assert(Operation<void(QColor, QColor)>::is(&Renderer::setGraphColor));
static_assert(Operation<void(const QColor &)>::is(&Renderer::setBackgroudColor));
static_assert(Operation<void(const QList<QRectF> &)>::is(&Renderer::setPointData));
static_assert(Operation<void(const QList<QRectF> &)>::is(&Renderer::setCMYPointData));

static_assert(Operation<double(int, int, int)>::is(&Renderer::mulDiv));
static_assert(Operation<double(double, double, double)>::is(&Renderer::Clamp));
static_assert(Operation<bool(const QRectF &, const QRectF &)>::is(&Renderer::GetCoordinateTransformationData));
static_assert(Operation<QPointF()>::is(&Renderer::CoordinateTransformation));
static_assert(Operation<void(int, int)>::is(&Renderer::MapPixelToReal));
static_assert(Operation<void(const Row &)>::is(&Renderer::GetPointF));
static_assert(Operation<void(QVector<QPointF> &)>::is(&Renderer::updateTriangleOffsetPoint));
static_assert(Operation<void(QImage *)>::is(&Renderer::painterPixColor));
static_assert(Operation<void(int, int, QImage *)>::is(&Renderer::GetPointRGB));
static_assert(Operation<void(int, int, double, QImage *)>::is(&Renderer::GetPointRGB));
static_assert(Operation<void(const CEIAtlasValue::TColorSystem &, double, double, double)>::is(&Renderer::GetRGBValue));
static_assert(Operation<void(int, int, QImage *)>::is(&Renderer::GetPointColorRGB));
static_assert(Operation<void(int, int, double, QImage *)>::is(&Renderer::GetPointColorRGB));
static_assert(Operation<void(QPainter &)>::is(&Renderer::paintCEIEdge));
static_assert(Operation<QPointF(QPainter &, const Row &, const QPointF &)>::is(&Renderer::DrawPointFToLine));
static_assert(Operation<void(QPainter &)>::is(&Renderer::painterWaveLength));
static_assert(Operation<void(QPainter &, const Row &)>::is(&Renderer::DrawEdgeCoordinates));
static_assert(Operation<void(QPainter &, int, int, int, int, QString)>::is(&Renderer::ShowAnnotation));
static_assert(Operation<void(QPainter &)>::is(&Renderer::painterCoordinate));
static_assert(Operation<void(QPainter &)>::is(&Renderer::painterBBRLine));
static_assert(Operation<void(QPainter &, QList<QPointF>, int)>::is(&Renderer::DrawColorTempreturePoint));
static_assert(Operation<void(QPainter &, const Triangles &)>::is(&Renderer::painterStandard));
static_assert(Operation<void(QPainter &, const Triangles &)>::is(&Renderer::painterTriangle));
static_assert(Operation<void(QPainter &, const ColorTriangleObject &)>::is(&Renderer::painterTargetTriangle));
static_assert(Operation<void(QPainter &, const ColorTriangleObject &)>::is(&Renderer::painterOriginalTriangle));
static_assert(Operation<void(QPainter &, const ColorTriangleObject &)>::is(&Renderer::painterInputTriangle));
static_assert(Operation<void(QPainter &)>::is(&Renderer::painterIntersectsTriangle));
static_assert(Operation<void(QPainter &)>::is(&Renderer::drawCMYPoint));

} // namespace

class DrawCEIPictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void widget();
    void parentOwnsTheRenderer();
    void defaultColors();
    void intersectPolygonIsTheClipPolygonOfTheLastGamutForm();
    void emptyAndNegativeSizes_data();
    void emptyAndNegativeSizes();
    void failedAllocation();
    void picturesBelongToTheCaller();
    void pictureSharesNothingWithTheRenderer();
    void settersWaitForTheNextDrawing();
};

void DrawCEIPictureTest::metaObject()
{
    const QMetaObject &meta = Renderer::staticMetaObject;
    QCOMPARE(meta.className(), "NewCEIE::DrawCEIPicture");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    Renderer renderer(nullptr);
    QCOMPARE(renderer.metaObject(), &meta);
    QVERIFY(renderer.qt_metacast("NewCEIE::DrawCEIPicture") == &renderer);
}

void DrawCEIPictureTest::widget()
{
    Renderer renderer(nullptr);
    QVERIFY(renderer.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!renderer.isVisible());
    QVERIFY(!renderer.parent());
}

void DrawCEIPictureTest::parentOwnsTheRenderer()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<Renderer> renderer(new Renderer(parent.get()));
    QCOMPARE(renderer->parentWidget(), parent.get());
    parent.reset();
    QVERIFY(renderer.isNull());
}

void DrawCEIPictureTest::defaultColors()
{
    Renderer fresh(nullptr);
    Renderer set(nullptr);
    set.setGraphColor(QColor(255, 255, 255, 255), QColor(23, 23, 26, 255));
    set.setBackgroudColor(QColor(23, 23, 26, 255));
    const QPolygonF clip(QRectF(20, 20, 60, 60));
    QCOMPARE(reference::firstDifference(gamutPicture(fresh, 100, 100, {}, {}, clip, {}, true),
                 gamutPicture(set, 100, 100, {}, {}, clip, {}, true)),
        QString());
    QCOMPARE(
        reference::firstDifference(simplePicture(fresh, 100, 100, {}, true), simplePicture(set, 100, 100, {}, true)),
        QString());

    QCOMPARE(skippedPicture(fresh, 100, 100).pixel(0, 0), qRgba(23, 23, 26, 255));
    // The line of purples in the line colour, clear of everything else.
    const QImage edge = gamutPicture(fresh, 400, 400);
    const QPointF middle = (exactPixel(fresh, 360) + exactPixel(fresh, 829)) / 2;
    QCOMPARE(brightestNear(edge, middle), 255);
    // The horseshoe's own background has red in it: it is coloured from edge to edge.
    const QPolygonF everywhere(QRectF(-1, -1, 102, 102));
    const QImage colored = gamutPicture(fresh, 100, 100, {}, {}, everywhere);
    QCOMPARE(qMax(qRed(colored.pixel(0, 0)), qMax(qGreen(colored.pixel(0, 0)), qBlue(colored.pixel(0, 0)))), 255);
}

void DrawCEIPictureTest::intersectPolygonIsTheClipPolygonOfTheLastGamutForm()
{
    Renderer renderer(nullptr);
    QVERIFY(renderer.intersectPolygon().isEmpty());
    QPolygonF clip(QVector<QPointF>{{1.25, 2.5}, {60, 3}, {30, 70.125}});
    gamutPicture(renderer, 80, 80, {}, {}, clip);
    const auto isClip = [&renderer](const QPolygonF &expected) {
        const QPolygonF polygon = renderer.intersectPolygon();
        bool equal = polygon.size() == expected.size();
        for (int i = 0; equal && i < polygon.size(); ++i) {
            equal = polygon.at(i).x() == expected.at(i).x() && polygon.at(i).y() == expected.at(i).y();
        }
        return equal;
    };
    QVERIFY(isClip(clip));
    simplePicture(renderer, 50, 50);
    QVERIFY(isClip(clip));
    const QPolygonF before = clip;
    clip.append(QPointF(0, 0)); // a copy was kept
    QVERIFY(isClip(before));
    gamutPicture(renderer, 80, 80, {}, {}, clip, skip);
    QVERIFY(isClip(clip));
    gamutPicture(renderer, 80, 80);
    QVERIFY(isClip(QPolygonF()));
}

void DrawCEIPictureTest::emptyAndNegativeSizes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("nothing") << QSize(0, 0);
    QTest::newRow("no width") << QSize(0, 50);
    QTest::newRow("no height") << QSize(50, 0);
    QTest::newRow("negative width") << QSize(-50, 50);
    QTest::newRow("negative height") << QSize(50, -50);
    QTest::newRow("negative") << QSize(-50, -50);
}

void DrawCEIPictureTest::emptyAndNegativeSizes()
{
    QFETCH(QSize, size);
    const reference::QuietMessages quiet;
    Renderer renderer(nullptr);
    renderer.setPointData({QRectF(1, 1, 5, 5)});
    renderer.setCMYPointData({QRectF(1, 1, 5, 5)});
    const QPolygonF clip(QRectF(0, 0, 10, 10));
    const std::unique_ptr<QImage> simple(
        renderer.drawCEIPicture(size.width(), size.height(), true, false, false, {QPointF(0.3, 0.3)}));
    QVERIFY(simple);
    QVERIFY(simple->isNull());
    const std::unique_ptr<QImage> gamuts(renderer.drawCEIPicture(
        size.width(), size.height(), true, {greenGamut(Qt::red, 1)}, {greenGamut(Qt::red, 0)}, clip, true, QString()));
    QVERIFY(gamuts);
    QVERIFY(gamuts->isNull());
    // The renderer goes on to draw as if nothing had happened.
    Renderer other(nullptr);
    other.setPointData({QRectF(1, 1, 5, 5)});
    other.setCMYPointData({QRectF(1, 1, 5, 5)});
    simplePicture(other, 20, 20, {QPointF(0.3, 0.3)});
    QCOMPARE(reference::firstDifference(
                 gamutPicture(renderer, 60, 60, {}, {}, clip), gamutPicture(other, 60, 60, {}, {}, clip)),
        QString());
}

void DrawCEIPictureTest::failedAllocation()
{
    constexpr int side = 20000000; // more than a petabyte
    QVERIFY(QImage(side, side, QImage::Format_ARGB32).isNull());
    const reference::QuietMessages quiet;
    Renderer renderer(nullptr);
    const std::unique_ptr<QImage> simple(renderer.drawCEIPicture(side, side, true, false, false, {QPointF(0.3, 0.3)}));
    QVERIFY(!simple || simple->isNull());
    const std::unique_ptr<QImage> gamuts(renderer.drawCEIPicture(side, side, true, {greenGamut(Qt::red, 1)},
        {greenGamut(Qt::red, 0)}, QPolygonF(QRectF(0, 0, 10, 10)), true, QString()));
    QVERIFY(!gamuts || gamuts->isNull());
}

void DrawCEIPictureTest::picturesBelongToTheCaller()
{
    auto renderer = std::make_unique<Renderer>(nullptr);
    const QPolygonF clip(QRectF(5, 5, 50, 50));
    std::unique_ptr<QImage> first(renderer->drawCEIPicture(60, 60, true, {}, {}, clip, false, QString()));
    const std::unique_ptr<QImage> second(renderer->drawCEIPicture(60, 60, true, {}, {}, clip, false, QString()));
    QVERIFY(first.get() != second.get());
    QVERIFY(first->constBits() != second->constBits());
    QCOMPARE(reference::firstDifference(*first, *second), QString());

    first->fill(Qt::red);
    const QImage third = gamutPicture(*renderer, 60, 60, {}, {}, clip, {}, true);
    QCOMPARE(reference::firstDifference(third, *second), QString());
    first.reset();
    QCOMPARE(reference::firstDifference(gamutPicture(*renderer, 60, 60, {}, {}, clip, {}, true), third), QString());

    const QImage kept = second->copy();
    renderer.reset();
    QCOMPARE(reference::firstDifference(*second, kept), QString());
}

void DrawCEIPictureTest::pictureSharesNothingWithTheRenderer()
{
    Renderer renderer(nullptr);
    const QPolygonF clip(QRectF(5, 5, 50, 50));
    for (int i = 0; i < 3; ++i) {
        const std::unique_ptr<QImage> simple(renderer.drawCEIPicture(60, 60, true, false, false, {}));
        QVERIFY(simple->isDetached());
        const std::unique_ptr<QImage> gamuts(renderer.drawCEIPicture(60, 60, true, {}, {}, clip, false, QString()));
        QVERIFY(gamuts->isDetached());
        const std::unique_ptr<QImage> skipped(renderer.drawCEIPicture(60, 60, true, {}, {}, clip, false, skip));
        QVERIFY(skipped->isDetached());
    }
}

void DrawCEIPictureTest::settersWaitForTheNextDrawing()
{
    Renderer renderer(nullptr);
    const std::unique_ptr<QImage> before(renderer.drawCEIPicture(200, 200, false, {}, {}, {}, false, skip));
    const QImage copy = before->copy();
    renderer.setGraphColor(QColor(10, 20, 30), QColor(40, 50, 60, 255));
    QCOMPARE(reference::firstDifference(*before, copy), QString());
    QCOMPARE(skippedPicture(renderer, 200, 200).pixel(0, 0), qRgba(40, 50, 60, 255));
    // The colours stay until they are set again.
    QCOMPARE(skippedPicture(renderer, 200, 200).pixel(0, 0), qRgba(40, 50, 60, 255));
    // A translucent picture colour lies on nothing else.
    renderer.setGraphColor(Qt::white, QColor(255, 0, 0, 128));
    QCOMPARE(skippedPicture(renderer, 200, 200).pixel(0, 0), qRgba(255, 0, 0, 128));
    renderer.setGraphColor(Qt::white, Qt::transparent);
    QCOMPARE(skippedPicture(renderer, 200, 200).pixel(0, 0), 0U);
}

CEIECHART_PICTURE_TEST_MAIN(DrawCEIPictureTest)
#include "drawceipicturetest.moc"
