// SPDX-License-Identifier: MIT
#include <ceiechart/render/drawceipicture.h>

#include <reference/picturedifference.h>
#include <reference/picturetestmain.h>
#include <reference/quietmessages.h>
#include <reference/rendererstate.h>

#include <QFontMetrics>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QTextOption>
#include <QtTest>

#include <cmath>
#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

// Lets an allocation fail under the address sanitizer as it fails without it.
extern "C" Q_DECL_EXPORT const char *__asan_default_options(); // NOLINT(bugprone-reserved-identifier)
extern "C" Q_DECL_EXPORT const char *__asan_default_options() // NOLINT(bugprone-reserved-identifier)
{
    return "allocator_may_return_null=1";
}

namespace {

using Renderer = NewCEIE::DrawCEIPicture;
using Triangles = QList<ColorTriangleObject>;
using Row = CEIAtlasValue::CEIAtlasCoordinate;

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

// A line one pixel wide between whole coordinates is spread over two pixels.
constexpr int thinLine = 60;

const QString skip = QStringLiteral("skip");

QImage simplePicture(Renderer &renderer, int w, int h, const QList<QPointF> &points = {}, bool showCoordinate = false,
    bool second = false, bool third = false)
{
    const std::unique_ptr<QImage> picture(renderer.drawCEIPicture(w, h, showCoordinate, second, third, points));
    return picture ? *picture : QImage();
}

QImage gamutPicture(Renderer &renderer, int w, int h, const Triangles &triangles = {}, const Triangles &standards = {},
    const QPolygonF &clip = {}, const QString &skipText = {}, bool showCoordinate = false, bool polygonFlag = false)
{
    const std::unique_ptr<QImage> picture(
        renderer.drawCEIPicture(w, h, showCoordinate, triangles, standards, clip, polygonFlag, skipText));
    return picture ? *picture : QImage();
}

// Fill, wavelengths, Planckian locus and marks only.
QImage skippedPicture(Renderer &renderer, int w, int h, bool showCoordinate = false)
{
    return gamutPicture(renderer, w, h, {}, {}, {}, skip, showCoordinate);
}

// The picture with more painted on it, in the way in which the gamut form paints.
QImage painted(const QImage &picture, const std::function<void(QPainter &)> &paint)
{
    QImage result = picture.copy();
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    painter.end();
    return result;
}

ColorTriangleObject gamut(const QPointF &red, const QPointF &green, const QPointF &blue, const QColor &color, int type,
    double opacity = 1.0, int lineWidth = 1)
{
    TrianglePoint points;
    points.setRedPos(red);
    points.setGreenPos(green);
    points.setBluePos(blue);
    ColorTriangleObject triangle;
    triangle.setTrianglePoint(points);
    triangle.setForeColor(color);
    triangle.setType(type);
    triangle.setOpacity(opacity);
    triangle.setTrigleLineWidth(lineWidth);
    return triangle;
}

// A gamut in the green corner, clear of the Planckian locus and of the locus' edge.
ColorTriangleObject greenGamut(const QColor &color, int type, double opacity = 1.0, int lineWidth = 1)
{
    return gamut({0.30, 0.45}, {0.15, 0.75}, {0.12, 0.45}, color, type, opacity, lineWidth);
}

QPen gamutPen(const QColor &color, double lineWidth)
{
    return QPen(QBrush(color), lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

QPolygonF polygonOf(Renderer &renderer, const ColorTriangleObject &triangle)
{
    const TrianglePoint &points = triangle.trianglePoint();
    return QPolygonF(QVector<QPointF>{renderer.CoordinateTransformation(points.redPos()),
        renderer.CoordinateTransformation(points.greenPos()), renderer.CoordinateTransformation(points.bluePos())});
}

const CEIAtlasValue &atlas()
{
    static const CEIAtlasValue tables;
    return tables;
}

Row rowOf(int wavelength)
{
    return atlas().atlasCoordinates.at(wavelength - 360);
}

QPointF chromaticityOf(int wavelength)
{
    const Row row = rowOf(wavelength);
    const double sum = row.X + row.Y + row.Z;
    return QPointF(row.X / sum, row.Y / sum);
}

QPointF exactPixel(Renderer &renderer, int wavelength)
{
    renderer.GetPointF(rowOf(wavelength));
    return renderer.CoordinateTransformation();
}

// The brightest grey level within a pixel of a point: antialiasing may spread a line over its neighbours.
int brightestNear(const QImage &picture, const QPointF &point)
{
    int brightest = 0;
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            brightest = qMax(
                brightest, qGray(picture.pixel(static_cast<int>(point.x()) + dx, static_cast<int>(point.y()) + dy)));
        }
    }
    return brightest;
}

QRect changedPixels(const QImage &a, const QImage &b)
{
    QRect changed;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                changed |= QRect(x, y, 1, 1);
            }
        }
    }
    return changed;
}

// Remembers the lines drawn, and with which pen.
class LineRecorder : public QPaintEngine {
public:
    struct Line {
        QLineF line;
        QPen pen;
        bool antialiased;
    };
    std::vector<Line> lines;

    LineRecorder()
        : QPaintEngine(QPaintEngine::AllFeatures)
    {
    }

    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void drawPixmap(const QRectF & /*to*/, const QPixmap & /*pixmap*/, const QRectF & /*from*/) override { }
    void updateState(const QPaintEngineState &state) override
    {
        if (state.state() & DirtyPen) {
            m_pen = state.pen();
        }
        if (state.state() & DirtyHints) {
            m_antialiased = state.renderHints().testFlag(QPainter::Antialiasing);
        }
    }
    using QPaintEngine::drawLines;
    void drawLines(const QLineF *drawn, int count) override
    {
        for (int i = 0; i < count; ++i) {
            lines.push_back({drawn[i], m_pen, m_antialiased});
        }
    }

private:
    QPen m_pen;
    bool m_antialiased = false;
};

// A picture that holds nothing but the lines drawn on it.
class LineDevice : public QPaintDevice {
public:
    QPaintEngine *paintEngine() const override { return &m_recorder; }
    const std::vector<LineRecorder::Line> &lines() const { return m_recorder.lines; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 800;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    mutable LineRecorder m_recorder;
};

} // namespace

class DrawCEIPictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void widget();
    void parentOwnsTheRenderer();

    void defaultColors();
    void defaultListsAreEmpty();
    void intersectPolygonIsTheClipPolygonOfTheLastGamutForm();

    void sizeAndFormat();
    void emptyAndNegativeSizes_data();
    void emptyAndNegativeSizes();
    void failedAllocation();
    void picturesBelongToTheCaller();
    void pictureSharesNothingWithTheRenderer();

    void simpleFormIgnoresItsSecondAndThirdFlag();
    void simpleFormDrawsNoColorTemperaturePoints();
    void simpleFormColorsTheWholePictureByDefault();
    void simpleFormOnARedlessPictureColorsTheHorseshoe();
    void settersWaitForTheNextDrawing();
    void polygonFlagChangesNothing();

    void skipTextLeavesOutTheGamutBlock();
    void emptyClipPolygonHidesTheHorseshoe();
    void clipPolygonConfinesTheHorseshoe();
    void redlessBackgroundLeavesTheClipUncolored();
    void horseshoeCoversEdgeAndStandardsButNotTriangles();

    void edgeHasEverySegmentAndTheLineOfPurples();
    void edgeSegmentReturnsItsPixel();
    void edgePixels();
    void ticks_data();
    void ticks();
    void halfLengthTicks();
    void tickAt420UsesThePointBefore();
    void wavelengthsAreInEveryGamutForm();
    void annotation_data();
    void annotation();
    void axes();
    void gridIsDashedAndFaint();

    void planckianLocusTakesThePaintersPen();
    void colorTemperatureDots_data();
    void colorTemperatureDots();
    void colorTemperaturePointOnTheLocus();

    void standardTintAndOutline_data();
    void standardTintAndOutline();
    void trianglesAreOutlinedInListOrder();
    void kindsOfTriangles();
    void hiddenTrianglesAreDrawn();
    void onePainterPerKind();
    void intersectionOutline();
    void measurePoints();
    void measurePointsAreNormalized();
    void pointsLeaveThePainterAsItWas();
    void cmyPoints();
    void cmyPointUsesTheCornerOnly();
    void cmyPointsCoverMeasurePoints();
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

void DrawCEIPictureTest::defaultListsAreEmpty()
{
    Renderer fresh(nullptr);
    Renderer set(nullptr);
    set.setPointData({});
    set.setCMYPointData({});
    simplePicture(set, 100, 100, {});
    QCOMPARE(reference::firstDifference(skippedPicture(fresh, 100, 100), skippedPicture(set, 100, 100)), QString());
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

void DrawCEIPictureTest::sizeAndFormat()
{
    Renderer renderer(nullptr);
    for (const QSize &size : {QSize(1, 1), QSize(1, 7), QSize(9, 1), QSize(50, 49), QSize(123, 77)}) {
        for (const QImage &picture :
            {simplePicture(renderer, size.width(), size.height()), gamutPicture(renderer, size.width(), size.height()),
                skippedPicture(renderer, size.width(), size.height())}) {
            QCOMPARE(picture.size(), size);
            QCOMPARE(picture.format(), QImage::Format_ARGB32);
        }
    }
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

void DrawCEIPictureTest::simpleFormIgnoresItsSecondAndThirdFlag()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage picture = simplePicture(renderer, 120, 110, {}, true, false, false);
    for (int flags = 1; flags < 4; ++flags) {
        QCOMPARE(reference::firstDifference(
                     simplePicture(renderer, 120, 110, {}, true, (flags & 1) != 0, (flags & 2) != 0), picture),
            QString());
    }
    QVERIFY(!reference::firstDifference(simplePicture(renderer, 120, 110, {}, false), picture).isEmpty());
}

void DrawCEIPictureTest::simpleFormDrawsNoColorTemperaturePoints()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage without = simplePicture(renderer, 200, 200);
    QCOMPARE(
        reference::firstDifference(simplePicture(renderer, 200, 200, {{0.3, 0.3}, {0.9, 0.9}}), without), QString());
}

void DrawCEIPictureTest::simpleFormColorsTheWholePictureByDefault()
{
    Renderer renderer(nullptr);
    const QImage picture = simplePicture(renderer, 90, 70, {}, true);
    for (int y = 0; y < 70; ++y) {
        for (int x = 0; x < 90; ++x) {
            const QRgb pixel = picture.pixel(x, y);
            QCOMPARE(qMax(qRed(pixel), qMax(qGreen(pixel), qBlue(pixel))), 255);
        }
    }
    // ... over axes and edge: they leave no trace.
    QCOMPARE(reference::firstDifference(simplePicture(renderer, 90, 70, {}, false), picture), QString());
    const QImage thin = simplePicture(renderer, 1, 70, {}, false);
    QCOMPARE(thin.pixel(0, 0), qRgba(23, 23, 26, 255));
    QCOMPARE(thin.pixel(0, 69), qRgba(23, 23, 26, 255));
}

void DrawCEIPictureTest::simpleFormOnARedlessPictureColorsTheHorseshoe()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage picture = simplePicture(renderer, 400, 400);
    QCOMPARE(picture.pixel(0, 0), qRgba(0, 0, 0, 255));
    QCOMPARE(picture.pixel(399, 399), qRgba(0, 0, 0, 255));
    // Inside, four pixels to the left of where the forward mapping has the white point.
    const QPointF white = renderer.CoordinateTransformation(QPointF(0.3127, 0.3291)) - QPointF(4, 0);
    const QRgb pixel = picture.pixel(static_cast<int>(white.x()), static_cast<int>(white.y()));
    QCOMPARE(qBlue(pixel), 255);
    QVERIFY(std::abs(qRed(pixel) - 162) < 6);
    QVERIFY(std::abs(qGreen(pixel) - 238) < 6);
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

void DrawCEIPictureTest::polygonFlagChangesNothing()
{
    Renderer renderer(nullptr);
    const QPolygonF clip(QRectF(5, 5, 50, 50));
    QCOMPARE(reference::firstDifference(gamutPicture(renderer, 60, 60, {}, {}, clip, {}, true, true),
                 gamutPicture(renderer, 60, 60, {}, {}, clip, {}, true, false)),
        QString());
}

void DrawCEIPictureTest::skipTextLeavesOutTheGamutBlock()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::black);
    const QPolygonF clip(QRectF(0, 0, 400, 400));
    const Triangles triangles{greenGamut(Qt::red, 1)};
    const Triangles standards{greenGamut(Qt::yellow, 0, 0.5)};
    const QImage skipped = gamutPicture(renderer, 400, 400, triangles, standards, clip, QStringLiteral(" "));
    QCOMPARE(reference::firstDifference(gamutPicture(renderer, 400, 400, {}, {}, {}, skip), skipped), QString());
    QVERIFY(!reference::firstDifference(gamutPicture(renderer, 400, 400), skipped).isEmpty());

    // No edge: between 640 and 680 nm nothing else is near the locus.
    const QPointF edge = exactPixel(renderer, 645);
    QCOMPARE(brightestNear(skipped, edge), 0);
    QVERIFY(brightestNear(gamutPicture(renderer, 400, 400), edge) > 0);

    // What belongs to every picture is there: wavelengths, Planckian points, measure points and CMY points.
    QVERIFY(brightestNear(skipped, exactPixel(renderer, 520)) > thinLine);
    simplePicture(renderer, 400, 400, {{0.45, 0.45}});
    QCOMPARE(brightestNear(skippedPicture(renderer, 400, 400), renderer.CoordinateTransformation(QPointF(0.45, 0.45))),
        qGray(0, 255, 0));
    renderer.setPointData({QRectF(300, 50, 9, 9)});
    renderer.setCMYPointData({QRectF(350, 50, 9, 9)});
    const QImage marked = skippedPicture(renderer, 400, 400);
    QCOMPARE(marked.pixel(304, 54), qRgb(255, 0, 0));
    QCOMPARE(marked.pixel(358, 58), qRgb(0, 255, 255));
}

void DrawCEIPictureTest::emptyClipPolygonHidesTheHorseshoe()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::black);
    const Triangles triangles{greenGamut(Qt::red, 1, 1.0, 7)};
    const Triangles standards{gamut({0.7, 0.5}, {0.6, 0.9}, {0.5, 0.7}, Qt::blue, 0, 0.999)};
    const QImage picture = gamutPicture(renderer, 400, 400, triangles, standards);
    for (const QColor &background : {QColor(Qt::white), QColor(1, 2, 3), QColor(0, 9, 9), QColor()}) {
        renderer.setBackgroudColor(background);
        QCOMPARE(
            reference::firstDifference(gamutPicture(renderer, 400, 400, triangles, standards), picture), QString());
    }
    QCOMPARE(picture.pixel(3, 3), qRgb(0, 0, 0));
    const QPointF purples = (exactPixel(renderer, 360) + exactPixel(renderer, 829)) / 2;
    QVERIFY(brightestNear(picture, purples) > 100);
    const QPoint inside = renderer.CoordinateTransformation(QPointF(0.6, 0.7)).toPoint();
    QCOMPARE(picture.pixel(inside), qRgb(0, 0, 255));
    const QPoint onOutline = renderer.CoordinateTransformation(QPointF(0.2, 0.45)).toPoint();
    QCOMPARE(picture.pixel(onOutline), qRgb(255, 0, 0));
}

void DrawCEIPictureTest::clipPolygonConfinesTheHorseshoe()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage without = gamutPicture(renderer, 300, 300);
    const QRect clip(100, 80, 90, 110);
    const QImage picture = gamutPicture(renderer, 300, 300, {}, {}, QPolygonF(QRectF(clip)));
    Renderer planar(nullptr); // its simple form shows the same colours everywhere
    const QImage colors = simplePicture(planar, 300, 300);
    Renderer marks(nullptr); // and this one what lies over them
    marks.setGraphColor(Qt::white, Qt::black);
    const QImage over = gamutPicture(marks, 300, 300);
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 300; ++x) {
            if (!clip.contains(x, y)) {
                QCOMPARE(picture.pixel(x, y), without.pixel(x, y));
            } else if (over.pixel(x, y) == qRgb(0, 0, 0) && picture.pixel(x, y) != colors.pixel(x, y)) {
                // Only the Planckian locus is drawn later, in black.
                QVERIFY(qGray(picture.pixel(x, y)) < qGray(colors.pixel(x, y)));
            }
        }
    }
    QCOMPARE(picture.pixel(102, 82), colors.pixel(102, 82));
    QCOMPARE(picture.pixel(188, 188), colors.pixel(188, 188));
}

void DrawCEIPictureTest::redlessBackgroundLeavesTheClipUncolored()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    renderer.setBackgroudColor(QColor(0, 90, 60));
    const QImage picture = gamutPicture(renderer, 200, 200, {}, {}, QPolygonF(QRectF(50, 120, 40, 20)));
    QCOMPARE(picture.pixel(51, 121), qRgb(0, 90, 60));
    QCOMPARE(picture.pixel(88, 138), qRgb(0, 90, 60));
    // A translucent background lets the picture colour through.
    renderer.setBackgroudColor(QColor(0, 255, 0, 51));
    QCOMPARE(
        gamutPicture(renderer, 200, 200, {}, {}, QPolygonF(QRectF(50, 120, 40, 20))).pixel(51, 121), qRgb(0, 51, 0));
}

void DrawCEIPictureTest::horseshoeCoversEdgeAndStandardsButNotTriangles()
{
    Renderer renderer(nullptr);
    const QPolygonF everywhere(QRectF(-1, -1, 302, 302));
    const Triangles gamuts{greenGamut(Qt::black, 1, 0.999, 7)};
    const QImage bare = gamutPicture(renderer, 300, 300, {}, {}, everywhere);
    QCOMPARE(reference::firstDifference(gamutPicture(renderer, 300, 300, {}, gamuts, everywhere), bare), QString());
    // Neither edge nor axes nor wavelengths show, so that their colour makes no difference.
    renderer.setGraphColor(Qt::red, QColor(23, 23, 26));
    QCOMPARE(
        reference::firstDifference(gamutPicture(renderer, 300, 300, {}, {}, everywhere, {}, true), bare), QString());
    const QImage outlined = gamutPicture(renderer, 300, 300, gamuts, {}, everywhere);
    const QPoint onOutline = renderer.CoordinateTransformation(QPointF(0.2, 0.45)).toPoint();
    QCOMPARE(outlined.pixel(onOutline), qRgb(0, 0, 0));
    QVERIFY(bare.pixel(onOutline) != qRgb(0, 0, 0));
}

void DrawCEIPictureTest::edgeHasEverySegmentAndTheLineOfPurples()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(10, 200, 30, 40), Qt::black);
    simplePicture(renderer, 800, 800);
    LineDevice device;
    QPainter painter(&device);
    renderer.paintCEIEdge(painter);
    painter.end();
    QCOMPARE(device.lines().size(), std::size_t(470));
    for (int i = 0; i < 469; ++i) {
        const QLineF &line = device.lines()[static_cast<std::size_t>(i)].line;
        const QPointF from = exactPixel(renderer, 360 + i);
        const QPointF to = exactPixel(renderer, 361 + i);
        QVERIFY(line.x1() == from.x() && line.y1() == from.y() && line.x2() == to.x() && line.y2() == to.y());
    }
    const QLineF &purples = device.lines().back().line;
    QVERIFY(purples.x1() == exactPixel(renderer, 829).x() && purples.y1() == exactPixel(renderer, 829).y());
    QVERIFY(purples.x2() == exactPixel(renderer, 360).x() && purples.y2() == exactPixel(renderer, 360).y());
    for (const LineRecorder::Line &line : device.lines()) {
        QCOMPARE(line.pen, gamutPen(QColor(10, 200, 30, 40), 2.0));
        QVERIFY(line.antialiased);
    }
}

void DrawCEIPictureTest::edgeSegmentReturnsItsPixel()
{
    Renderer renderer(nullptr);
    simplePicture(renderer, 800, 800);
    LineDevice device;
    QPainter painter(&device);
    const QPointF end = renderer.DrawPointFToLine(painter, rowOf(555), QPointF(-3.25, 7.5));
    painter.end();
    const QPointF expected = exactPixel(renderer, 555);
    QVERIFY(end.x() == expected.x() && end.y() == expected.y());
    QCOMPARE(device.lines().size(), std::size_t(1));
    const QLineF &line = device.lines().front().line;
    QVERIFY(line.x1() == -3.25 && line.y1() == 7.5 && line.x2() == end.x() && line.y2() == end.y());
}

void DrawCEIPictureTest::edgePixels()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::black);
    const QImage picture = gamutPicture(renderer, 600, 600);
    for (int wavelength = 640; wavelength < 675; wavelength += 5) {
        const QRgb pixel = picture.pixel(exactPixel(renderer, wavelength).toPoint());
        QVERIFY(qGreen(pixel) > 60);
        QCOMPARE(qRed(pixel), 0);
    }
}

void DrawCEIPictureTest::ticks_data()
{
    QTest::addColumn<int>("wavelength");
    QTest::addColumn<bool>("ticked");
    for (const int bare :
        {415, 419, 425, 430, 435, 440, 445, 451, 454, 456, 632, 635, 640, 650, 660, 670, 675, 685, 690}) {
        QTest::addRow("%d nm", bare) << bare << false;
    }
    QTest::newRow("420 nm") << 420 << true;
    for (int wavelength = 450; wavelength <= 630; wavelength += 5) {
        QTest::addRow("%d nm", wavelength) << wavelength << true;
    }
    QTest::newRow("680 nm") << 680 << true;
}

// Large, so that neighbouring wavelengths are pixels apart, and without the edge.
void DrawCEIPictureTest::ticks()
{
    QFETCH(int, wavelength);
    QFETCH(bool, ticked);
    static QImage picture;
    static Renderer renderer(nullptr);
    if (picture.isNull()) {
        renderer.setGraphColor(Qt::white, Qt::black);
        picture = skippedPicture(renderer, 4000, 4000);
    }
    const int level = qGray(picture.pixel(exactPixel(renderer, wavelength).toPoint()));
    if (ticked) {
        QVERIFY2(brightestNear(picture, exactPixel(renderer, wavelength)) > thinLine, "no tick");
    } else {
        QCOMPARE(level, 0);
    }
}

void DrawCEIPictureTest::halfLengthTicks()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage picture = skippedPicture(renderer, 4000, 4000);
    for (int wavelength = 455; wavelength < 630; wavelength += 5) {
        const QPointF here = chromaticityOf(wavelength);
        const QPointF chord = here - chromaticityOf(wavelength - 1);
        const double length = std::hypot(chord.x(), chord.y());
        const QPointF outward(-chord.y() / length, chord.x() / length);
        const auto along
            = [&](double fraction) { return renderer.CoordinateTransformation(here + fraction * 0.0168 * outward); };
        QVERIFY(brightestNear(picture, along(0.25)) > thinLine);
        QVERIFY(brightestNear(picture, along(0.45)) > thinLine);
        if (wavelength % 10 == 0) {
            QVERIFY(brightestNear(picture, along(0.75)) > thinLine);
        } else {
            QCOMPARE(brightestNear(picture, along(0.75)), 0);
            // 8.5 pixels wide at this height
            const QPointF side = QPointF(chord.x(), -chord.y()) / length;
            QCOMPARE(brightestNear(picture, along(0.25) + 2.5 * side), 255);
            QCOMPARE(brightestNear(picture, along(0.25) - 2.5 * side), 255);
            QCOMPARE(brightestNear(picture, along(0.25) + 7.5 * side), 0);
            QCOMPARE(brightestNear(picture, along(0.25) - 7.5 * side), 0);
        }
        QCOMPARE(brightestNear(picture, along(-0.25)), 0);
    }
}

void DrawCEIPictureTest::tickAt420UsesThePointBefore()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage picture = skippedPicture(renderer, 4000, 4000);
    const QPointF here = chromaticityOf(420);
    const QPointF chord = here - chromaticityOf(419);
    const double length = std::hypot(chord.x(), chord.y());
    const QPointF outward(-chord.y() / length, chord.x() / length);
    for (const double fraction : {0.2, 0.4, 0.6, 0.8}) {
        QVERIFY(
            brightestNear(picture, renderer.CoordinateTransformation(here + fraction * 0.0168 * outward)) > thinLine);
    }
}

void DrawCEIPictureTest::wavelengthsAreInEveryGamutForm()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 60, 0), Qt::black);
    const QImage skipped = skippedPicture(renderer, 1000, 1000);
    const QImage gamuts = gamutPicture(renderer, 1000, 1000);
    const QImage simple = simplePicture(renderer, 1000, 1000);
    // White, whatever the line colour is, and absent from the simple form. The tick's outer end is clear of the edge.
    const QPointF tick = exactPixel(renderer, 560);
    const QPointF outer = renderer.CoordinateTransformation(chromaticityOf(560) + QPointF(0.012, 0.012));
    QVERIFY(brightestNear(skipped, tick) > thinLine);
    QVERIFY(brightestNear(skipped, outer) > thinLine);
    QVERIFY(brightestNear(gamuts, outer) > thinLine);
    QCOMPARE(brightestNear(simple, outer), 0);
    QVERIFY(brightestNear(simple, tick) < thinLine);
    QCOMPARE(brightestNear(skipped, exactPixel(renderer, 565)), 255);
}

void DrawCEIPictureTest::annotation_data()
{
    QTest::addColumn<QPoint>("direction");
    QTest::addColumn<double>("widths");
    QTest::addColumn<double>("heights");
    QTest::newRow("right") << QPoint(20, 0) << 0.0 << 0.5;
    QTest::newRow("right, a little down") << QPoint(20, 3) << 0.0 << 0.5;
    QTest::newRow("right, a little up") << QPoint(20, -3) << 0.0 << 0.5;
    QTest::newRow("right up") << QPoint(20, -20) << 0.0 << 1.0;
    QTest::newRow("up") << QPoint(0, -20) << 0.5 << 1.0;
    QTest::newRow("left up") << QPoint(-20, -20) << 1.0 << 1.0;
    QTest::newRow("left") << QPoint(-20, 0) << 1.0 << 0.5;
    QTest::newRow("left down") << QPoint(-20, 20) << 1.0 << 0.0;
    QTest::newRow("down") << QPoint(0, 20) << 0.5 << 0.0;
    QTest::newRow("right down") << QPoint(20, 20) << 0.0 << 0.0;
    // On either side of each half octant: the tangent of 22.5 degrees lies between 12/29 and 17/41.
    QTest::newRow("22.48 degrees") << QPoint(29, -12) << 0.0 << 0.5;
    QTest::newRow("22.52 degrees") << QPoint(41, -17) << 0.0 << 1.0;
    QTest::newRow("67.48 degrees") << QPoint(17, -41) << 0.0 << 1.0;
    QTest::newRow("67.52 degrees") << QPoint(12, -29) << 0.5 << 1.0;
    QTest::newRow("112.48 degrees") << QPoint(-12, -29) << 0.5 << 1.0;
    QTest::newRow("112.52 degrees") << QPoint(-17, -41) << 1.0 << 1.0;
    QTest::newRow("157.48 degrees") << QPoint(-41, -17) << 1.0 << 1.0;
    QTest::newRow("157.52 degrees") << QPoint(-29, -12) << 1.0 << 0.5;
    QTest::newRow("202.48 degrees") << QPoint(-29, 12) << 1.0 << 0.5;
    QTest::newRow("202.52 degrees") << QPoint(-41, 17) << 1.0 << 0.0;
    QTest::newRow("247.48 degrees") << QPoint(-17, 41) << 1.0 << 0.0;
    QTest::newRow("247.52 degrees") << QPoint(-12, 29) << 0.5 << 0.0;
    QTest::newRow("292.48 degrees") << QPoint(12, 29) << 0.5 << 0.0;
    QTest::newRow("292.52 degrees") << QPoint(17, 41) << 0.0 << 0.0;
    QTest::newRow("337.48 degrees") << QPoint(41, 17) << 0.0 << 0.0;
    QTest::newRow("337.52 degrees") << QPoint(29, 12) << 0.0 << 0.5;
    QTest::newRow("no length") << QPoint(0, 0) << 1.0 << 0.5;
}

void DrawCEIPictureTest::annotation()
{
    QFETCH(QPoint, direction);
    QFETCH(double, widths);
    QFETCH(double, heights);
    const QPoint base(100, 90);
    const QPoint tip = base + direction;
    const QString text = QStringLiteral("520");
    QImage canvas(200, 180, QImage::Format_ARGB32);
    canvas.fill(Qt::black);

    Renderer renderer(nullptr);
    simplePicture(renderer, 800, 800);
    QImage picture = canvas.copy();
    QPainter painter(&picture);
    const QPen pen(Qt::red, 5.0, Qt::DotLine);
    painter.setPen(pen);
    const QFont font = painter.font();
    renderer.ShowAnnotation(painter, tip.x(), tip.y(), base.x(), base.y(), text);
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.font(), font);
    QVERIFY(!painter.renderHints().testFlag(QPainter::Antialiasing));
    painter.end();

    const QFont labelFont(QStringLiteral("Arial"), 8);
    const QFontMetrics metrics(labelFont);
    const int w = metrics.horizontalAdvance(text);
    const int h = metrics.height();
    // Whole widths and heights, or halves truncated.
    const QPoint corner(tip.x() - (widths == 0.5 ? w / 2 : static_cast<int>(widths) * w),
        tip.y() - (heights == 0.5 ? h / 2 : static_cast<int>(heights) * h));
    const QImage expected = painted(canvas, [&](QPainter &plain) {
        plain.setPen(QColor(255, 255, 255));
        plain.setFont(labelFont);
        plain.drawLine(tip, base);
        plain.drawText(QRectF(QRect(corner, QSize(w, h))), text, QTextOption());
    });
    QCOMPARE(reference::firstDifference(picture, expected), QString());
}

void DrawCEIPictureTest::axes()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::black);
    const QImage without = skippedPicture(renderer, 300, 280);
    const QImage with = skippedPicture(renderer, 300, 280, true);
    const QPoint origin = renderer.CoordinateTransformation(QPointF(0, 0)).toPoint();
    // The y axis from ten pixels below the top, the x axis to the right edge, both in the line colour.
    for (int y = 11; y < origin.y(); ++y) {
        QVERIFY(qGreen(with.pixel(origin.x(), y)) > 100);
    }
    QCOMPARE(with.pixel(origin.x(), 8), without.pixel(origin.x(), 8));
    for (int x = origin.x() + 1; x < 300; ++x) {
        QVERIFY(qGreen(with.pixel(x, origin.y())) > 100);
    }
    QCOMPARE(with.pixel(origin.x() - 3, origin.y()), without.pixel(origin.x() - 3, origin.y()));

    // Numbers below the x axis for 0 to 0.8, left of the y axis for 0 to 0.9.
    const auto changed
        = [&](const QRect &area) { return !changedPixels(with.copy(area), without.copy(area)).isEmpty(); };
    QFont font(QStringLiteral("Lexend Deca,Microsoft YaHei"));
    font.setPixelSize(16);
    const QFontMetrics metrics(font);
    Renderer tall(nullptr);
    tall.setGraphColor(QColor(0, 255, 0), Qt::black);
    const QImage tallWithout = skippedPicture(tall, 1000, 1000);
    const QImage tallWith = skippedPicture(tall, 1000, 1000, true);
    for (int k = 0; k < 9; ++k) {
        const QPoint tick = tall.CoordinateTransformation(QPointF(k * 0.1, 0)).toPoint();
        const QRect below(tick.x() - 10, tick.y() + 15, 30, metrics.height());
        QVERIFY(!changedPixels(tallWith.copy(below), tallWithout.copy(below)).isEmpty());
        const QRect gap(tick.x() - 10, tick.y() + 2, 30, 12);
        QVERIFY(changedPixels(tallWith.copy(gap), tallWithout.copy(gap)).isEmpty());
    }
    for (int j = 1; j < 10; ++j) {
        const QPoint tick = tall.CoordinateTransformation(QPointF(0, j * 0.1)).toPoint();
        const int width = metrics.horizontalAdvance(QStringLiteral("0.0"));
        const QRect left(tick.x() - 10 - width, tick.y() - 6, width, 12);
        QVERIFY(!changedPixels(tallWith.copy(left), tallWithout.copy(left)).isEmpty());
    }
    // There are no titles: nothing beyond the numbers.
    QVERIFY(!changed(QRect(0, 0, 300, 9)));
}

void DrawCEIPictureTest::gridIsDashedAndFaint()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(255, 255, 255), Qt::black);
    const QImage without = skippedPicture(renderer, 600, 600);
    const QImage with = skippedPicture(renderer, 600, 600, true);
    const QPoint from = renderer.CoordinateTransformation(QPointF(0.61, 0.8)).toPoint();
    const QPoint to = renderer.CoordinateTransformation(QPointF(0.69, 0.8)).toPoint();
    int dashes = 0;
    int gaps = 0;
    int brightest = 0;
    for (int x = from.x(); x < to.x(); ++x) {
        const int level = brightestNear(with, QPointF(x, from.y()));
        brightest = qMax(brightest, level);
        const bool isGap = with.pixel(x, from.y()) == without.pixel(x, from.y());
        dashes += isGap ? 0 : 1;
        gaps += isGap ? 1 : 0;
    }
    QVERIFY(dashes > 10);
    QVERIFY(gaps > 5);
    // 30 % of alpha 80 makes 24 at most.
    QVERIFY(brightest > 8);
    QVERIFY(brightest <= 24);
}

void DrawCEIPictureTest::planckianLocusTakesThePaintersPen()
{
    Renderer renderer(nullptr);
    simplePicture(renderer, 500, 500);
    QImage canvas(500, 500, QImage::Format_ARGB32);
    canvas.fill(Qt::black);
    const QPen pen(QColor(250, 10, 90), 3.5, Qt::DashLine);
    const QImage picture = painted(canvas, [&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(pen);
        renderer.painterBBRLine(painter);
        QCOMPARE(painter.pen(), pen);
        QVERIFY(!painter.renderHints().testFlag(QPainter::Antialiasing));
    });
    QPolygonF locus;
    for (const CEIAtlasValue::CEITemperatureCoordinate &row : atlas().temperatureCoordinates) {
        const double scale = (500 * 95 / 100 - 500 * 5 / 100);
        locus.append(QPointF(4 + 25.5 + row.x * (scale / static_cast<double>(0.84F)),
            25.5 - (row.y - static_cast<double>(0.94F)) * (scale / static_cast<double>(0.94F))));
    }
    QCOMPARE(locus.size(), 54);
    const QImage expected = painted(canvas, [&](QPainter &painter) {
        painter.setPen(pen);
        painter.drawPolyline(locus);
    });
    QCOMPARE(reference::firstDifference(picture, expected), QString());

    // In a picture the pen is the painter's first one: black.
    Renderer white(nullptr);
    white.setGraphColor(Qt::white, Qt::white);
    const QImage whole = skippedPicture(white, 500, 500);
    for (int i = 5; i < 54; i += 6) {
        const QPointF vertex = locus.at(i);
        int darkest = 255;
        for (int dx = -1; dx <= 1; ++dx) {
            for (int dy = -1; dy <= 1; ++dy) {
                darkest = qMin(
                    darkest, qGray(whole.pixel(static_cast<int>(vertex.x()) + dx, static_cast<int>(vertex.y()) + dy)));
            }
        }
        QVERIFY(darkest < 128);
    }
}

void DrawCEIPictureTest::colorTemperatureDots_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("diameter");
    QTest::addColumn<int>("half");
    QTest::newRow("49, no dots") << 49 << 0 << 0;
    QTest::newRow("50") << 50 << 1 << 0;
    QTest::newRow("99") << 99 << 1 << 0;
    QTest::newRow("100") << 100 << 2 << 1;
    QTest::newRow("799") << 799 << 15 << 7;
    QTest::newRow("800") << 800 << 16 << 8;
}

void DrawCEIPictureTest::colorTemperatureDots()
{
    QFETCH(int, height);
    QFETCH(int, diameter);
    QFETCH(int, half);
    const QList<QPointF> points{{0.3127, 0.3290}, {0.6, 0.6}, {-0.01, 0.9}};
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(250, 240, 10), QColor(90, 100, 110));
    const QImage without = skippedPicture(renderer, 300, height);
    simplePicture(renderer, 20, 20, points);
    const QImage with = skippedPicture(renderer, 300, height);
    const double spanX = 300 * 95 / 100 - 300 * 5 / 100;
    const double spanY = height * 95 / 100 - height * 5 / 100;
    const QImage expected = painted(without, [&](QPainter &painter) {
        painter.setBrush(QColor(250, 240, 10));
        for (const QPointF &xy : points) {
            const double x = 4 + (300 * 5 / 100 + 0.5) + xy.x() * (spanX / static_cast<double>(0.84F));
            const double y = (height * 5 / 100 + 0.5)
                - (xy.y() - static_cast<double>(0.94F)) * (spanY / static_cast<double>(0.94F));
            painter.drawEllipse(QRectF(x - half, y - half, diameter, diameter));
        }
    });
    QCOMPARE(reference::firstDifference(with, without).isEmpty(), diameter == 0);
    QCOMPARE(reference::firstDifference(with, expected), QString());
}

void DrawCEIPictureTest::colorTemperaturePointOnTheLocus()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::white);
    simplePicture(renderer, 20, 20, {{0.314, 0.324}});
    const QImage picture = skippedPicture(renderer, 800, 800);
    // The dot is centred on the locus' vertex of 6500 K: filled for less than its radius all around.
    const QPointF vertex(44.5 + 0.314 * (720 / static_cast<double>(0.84F)),
        40.5 + (static_cast<double>(0.94F) - 0.324) * (720 / static_cast<double>(0.94F)));
    for (const QPointF &step : {QPointF(0, 0), QPointF(6, 0), QPointF(-6, 0), QPointF(0, 6), QPointF(0, -6)}) {
        const QPointF point = vertex + step;
        QCOMPARE(picture.pixel(static_cast<int>(point.x()), static_cast<int>(point.y())), qRgb(0, 255, 0));
    }
    for (const QPointF &step : {QPointF(0, 10), QPointF(0, -10)}) {
        const QPointF point = vertex + step;
        QVERIFY(picture.pixel(static_cast<int>(point.x()), static_cast<int>(point.y())) != qRgb(0, 255, 0));
    }
}

void DrawCEIPictureTest::standardTintAndOutline_data()
{
    QTest::addColumn<double>("opacity");
    QTest::addColumn<int>("alpha");
    QTest::newRow("none") << 0.0 << 0;
    QTest::newRow("quarter") << 0.25 << 64;
    QTest::newRow("half") << 0.5 << 128;
    QTest::newRow("truncated") << 0.07 << 17;
    QTest::newRow("nearly full") << 0.999 << 255;
    // Above 255 and below 0 there is no such colour, and nothing is filled.
    QTest::newRow("full") << 1.0 << 0;
    QTest::newRow("more than full") << 1.5 << 0;
    QTest::newRow("negative") << -0.25 << 0;
}

void DrawCEIPictureTest::standardTintAndOutline()
{
    QFETCH(double, opacity);
    QFETCH(int, alpha);
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const ColorTriangleObject standard = greenGamut(QColor(255, 0, 0), 0, opacity, 7);
    const QImage picture = gamutPicture(renderer, 400, 400, {}, {standard});
    const QPoint inside = renderer.CoordinateTransformation(QPointF(0.18, 0.55)).toPoint();
    QCOMPARE(picture.pixel(inside), qRgb(alpha, 0, 0));
    const QPoint onOutline = renderer.CoordinateTransformation(QPointF(0.2, 0.45)).toPoint();
    QCOMPARE(picture.pixel(onOutline), qRgb(255, 0, 0));

    // The layer alone, painted on a canvas: outline, then tint, with the brush of the painter inside the outline.
    QImage canvas(400, 400, QImage::Format_ARGB32);
    canvas.fill(QColor(10, 60, 20));
    const Triangles standards{
        standard, gamut({0.7, 0.2}, {0.3, 0.7}, {0.2, 0.1}, QColor(0, 200, 250, 90), 7, opacity, 2)};
    const QImage layer = painted(canvas, [&](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setBrush(QColor(0, 0, 90));
        renderer.painterStandard(painter, standards);
        QCOMPARE(painter.brush(), QBrush(QColor(0, 0, 90)));
        QVERIFY(!painter.renderHints().testFlag(QPainter::Antialiasing));
    });
    const QImage expected = painted(canvas, [&](QPainter &painter) {
        painter.setBrush(QColor(0, 0, 90));
        for (ColorTriangleObject element : standards) {
            painter.setPen(gamutPen(element.foreColor(), element.trigleLineWidth()));
            const QPolygonF polygon = polygonOf(renderer, element);
            painter.drawPolygon(polygon, Qt::OddEvenFill);
            QPainterPath path;
            path.addPolygon(polygon);
            QColor tint = element.foreColor();
            tint.setAlpha(alpha);
            painter.fillPath(path, tint);
        }
    });
    QCOMPARE(reference::firstDifference(layer, expected), QString());
}

void DrawCEIPictureTest::trianglesAreOutlinedInListOrder()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const ColorTriangleObject red = greenGamut(Qt::red, 1, 0.5, 7);
    const ColorTriangleObject green = greenGamut(Qt::green, 2, 0.5, 7);
    const ColorTriangleObject blue = greenGamut(Qt::blue, 3, 0.5, 7);
    const QImage picture = gamutPicture(renderer, 400, 400, {red, green, blue});
    const QPoint onOutline = renderer.CoordinateTransformation(QPointF(0.2, 0.45)).toPoint();
    const QPoint inside = renderer.CoordinateTransformation(QPointF(0.18, 0.55)).toPoint();
    QCOMPARE(picture.pixel(onOutline), qRgb(0, 0, 255));
    QCOMPARE(picture.pixel(inside), qRgb(0, 0, 0));
    QCOMPARE(gamutPicture(renderer, 400, 400, {blue, red, green}).pixel(onOutline), qRgb(0, 255, 0));
    QCOMPARE(gamutPicture(renderer, 400, 400, {green, blue, red}).pixel(onOutline), qRgb(255, 0, 0));
}

void DrawCEIPictureTest::kindsOfTriangles()
{
    Renderer renderer(nullptr);
    const ColorTriangleObject standard = gamut({0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}, Qt::white, 0);
    const ColorTriangleObject target = gamut({0.68, 0.32}, {0.27, 0.69}, {0.15, 0.06}, Qt::red, 1);
    const ColorTriangleObject unknown = gamut({0.6, 0.3}, {0.2, 0.5}, {0.2, 0.1}, Qt::green, 4);
    const ColorTriangleObject measured = gamut({0.69, 0.30}, {0.19, 0.72}, {0.13, 0.05}, Qt::blue, 3);
    const QImage none = gamutPicture(renderer, 300, 300);
    const QImage all = gamutPicture(renderer, 300, 300, {standard, target, unknown, measured});
    QCOMPARE(reference::firstDifference(all, gamutPicture(renderer, 300, 300, {target, measured})), QString());
    QVERIFY(!reference::firstDifference(all, gamutPicture(renderer, 300, 300, {target})).isEmpty());
    QVERIFY(!reference::firstDifference(all, gamutPicture(renderer, 300, 300, {measured})).isEmpty());
    QCOMPARE(reference::firstDifference(gamutPicture(renderer, 300, 300, {standard, unknown}), none), QString());
    ColorTriangleObject negative = target;
    negative.setType(-1);
    QCOMPARE(reference::firstDifference(gamutPicture(renderer, 300, 300, {negative}), none), QString());
    // The list of standards does not ask for the kind.
    const QImage standards = gamutPicture(renderer, 300, 300, {}, {standard});
    ColorTriangleObject other = standard;
    other.setType(9);
    QCOMPARE(reference::firstDifference(gamutPicture(renderer, 300, 300, {}, {other}), standards), QString());
}

void DrawCEIPictureTest::hiddenTrianglesAreDrawn()
{
    Renderer renderer(nullptr);
    ColorTriangleObject triangle = greenGamut(Qt::red, 1);
    const QImage shown = gamutPicture(renderer, 300, 300, {triangle}, {triangle});
    triangle.setShow(false);
    triangle.setGamutName("hidden");
    QCOMPARE(reference::firstDifference(gamutPicture(renderer, 300, 300, {triangle}, {triangle}), shown), QString());
}

void DrawCEIPictureTest::onePainterPerKind()
{
    Renderer renderer(nullptr);
    simplePicture(renderer, 300, 300);
    QImage canvas(300, 300, QImage::Format_ARGB32);
    canvas.fill(Qt::black);
    // Each paints what it is given, whatever its kind.
    const ColorTriangleObject triangle = greenGamut(QColor(250, 160, 10, 180), 0, 0.5, 3);
    const QImage expected = painted(canvas, [&](QPainter &painter) {
        painter.setBrush(Qt::blue);
        painter.setPen(gamutPen(QColor(250, 160, 10, 180), 3.0));
        painter.drawPolygon(polygonOf(renderer, triangle), Qt::OddEvenFill);
    });
    for (const auto paint :
        {&Renderer::painterTargetTriangle, &Renderer::painterOriginalTriangle, &Renderer::painterInputTriangle}) {
        const QImage picture = painted(canvas, [&](QPainter &painter) {
            painter.setRenderHint(QPainter::Antialiasing, false);
            painter.setBrush(Qt::blue);
            painter.setPen(Qt::DotLine);
            (renderer.*paint)(painter, triangle);
            QCOMPARE(painter.pen(), QPen(Qt::DotLine));
            QVERIFY(!painter.renderHints().testFlag(QPainter::Antialiasing));
        });
        QCOMPARE(reference::firstDifference(picture, expected), QString());
    }
}

void DrawCEIPictureTest::intersectionOutline()
{
    Renderer renderer(nullptr);
    QImage canvas(120, 120, QImage::Format_ARGB32);
    canvas.fill(Qt::black);
    const auto outline = [&renderer](QPainter &painter) { renderer.painterIntersectsTriangle(painter); };
    QCOMPARE(reference::firstDifference(painted(canvas, outline), canvas), QString());

    const QPolygonF clip(QVector<QPointF>{{20, 100}, {60, 10}, {100, 100}, {10, 40}, {110, 40.5}});
    gamutPicture(renderer, 50, 50, {}, {}, clip);
    const QImage expected = painted(canvas, [&](QPainter &painter) {
        painter.setPen(gamutPen(QColor(255, 255, 255, 128), 1.0));
        painter.drawPolygon(clip, Qt::OddEvenFill);
    });
    QCOMPARE(reference::firstDifference(painted(canvas, outline), expected), QString());
}

void DrawCEIPictureTest::measurePoints()
{
    const std::vector<QColor> colors{Qt::red, Qt::green, Qt::blue, Qt::white, Qt::black, Qt::black};
    QList<QRectF> rectangles;
    for (int i = 0; i < static_cast<int>(colors.size()); ++i) {
        rectangles.append(QRectF(180 + 19.25 * i, 20 + 7.5 * i, 12 + i, 15 - i));
    }
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 90, 200), QColor(23, 23, 26)); // the outline is white all the same
    const QImage without = skippedPicture(renderer, 320, 320);
    renderer.setPointData(rectangles);
    const QImage with = skippedPicture(renderer, 320, 320);
    const QImage expected = painted(without, [&](QPainter &painter) {
        for (int i = 0; i < rectangles.size(); ++i) {
            painter.setPen(QColor(255, 255, 255));
            painter.setBrush(colors[static_cast<std::size_t>(i)]);
            painter.drawEllipse(rectangles.at(i));
        }
    });
    QCOMPARE(reference::firstDifference(with, expected), QString());
    for (int i = 0; i < rectangles.size(); ++i) {
        QCOMPARE(with.pixelColor(rectangles.at(i).center().toPoint()), colors[static_cast<std::size_t>(i)]);
    }
}

void DrawCEIPictureTest::measurePointsAreNormalized()
{
    Renderer renderer(nullptr);
    renderer.setPointData({QRectF(200, 60, -20, -30)});
    const QImage negative = skippedPicture(renderer, 320, 320);
    renderer.setPointData({QRectF(180, 30, 20, 30)});
    QCOMPARE(reference::firstDifference(skippedPicture(renderer, 320, 320), negative), QString());
    QCOMPARE(negative.pixel(190, 45), qRgb(255, 0, 0));
}

void DrawCEIPictureTest::pointsLeaveThePainterAsItWas()
{
    Renderer renderer(nullptr);
    renderer.setPointData({QRectF(20, 20, 9, 9), QRectF(40, 20, 9, 9)});
    renderer.setCMYPointData({QRectF(20, 60, 9, 9), QRectF(40, 60, 9, 9)});
    QImage canvas(100, 100, QImage::Format_ARGB32);
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    const QPen pen(Qt::darkYellow, 3, Qt::DashLine);
    painter.setPen(pen);
    painter.setBrush(Qt::darkBlue);
    reference::drawMeasurePoints(renderer, painter);
    QCOMPARE(canvas.pixel(24, 24), qRgb(255, 0, 0));
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), QBrush(Qt::darkBlue));
    renderer.drawCMYPoint(painter);
    QCOMPARE(canvas.pixel(28, 68), qRgb(0, 255, 255));
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), QBrush(Qt::darkBlue));
}

void DrawCEIPictureTest::cmyPoints()
{
    const QList<QRectF> rectangles{
        {180, 30, 8, 8}, {200.5, 40.25, 1, 1}, {230, 60, 0, 0}, {250, 80, -5, 90}, {270, 100, 9, 9}};
    const std::vector<QColor> colors{Qt::cyan, Qt::magenta, Qt::yellow, Qt::black, Qt::black};
    Renderer renderer(nullptr);
    const QImage without = skippedPicture(renderer, 320, 320);
    renderer.setCMYPointData(rectangles);
    const QImage with = skippedPicture(renderer, 320, 320);
    const QImage expected = painted(without, [&](QPainter &painter) {
        for (int i = 0; i < rectangles.size(); ++i) {
            painter.setPen(QColor(255, 0, 255));
            painter.setBrush(colors[static_cast<std::size_t>(i)]);
            painter.drawEllipse(QRectF(rectangles.at(i).x(), rectangles.at(i).y(), 16, 16));
        }
    });
    QCOMPARE(reference::firstDifference(with, expected), QString());
    for (int i = 0; i < rectangles.size(); ++i) {
        const QPoint centre = (rectangles.at(i).topLeft() + QPointF(8, 8)).toPoint();
        QCOMPARE(with.pixelColor(centre), colors[static_cast<std::size_t>(i)]);
    }
}

void DrawCEIPictureTest::cmyPointUsesTheCornerOnly()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(Qt::white, Qt::black);
    const QImage without = skippedPicture(renderer, 400, 400);
    renderer.setCMYPointData({QRectF(100, 50, 8, 8)});
    const QImage with = skippedPicture(renderer, 400, 400);
    // The outline is one pixel wide and centred on the circle.
    const QRect changed = changedPixels(with, without);
    QCOMPARE(changed, QRect(QPoint(99, 49), QPoint(116, 66)));
    for (const QSizeF &size : {QSizeF(0, 0), QSizeF(16, 16), QSizeF(-30, 200)}) {
        renderer.setCMYPointData({QRectF(QPointF(100, 50), size)});
        QCOMPARE(reference::firstDifference(skippedPicture(renderer, 400, 400), with), QString());
    }
}

void DrawCEIPictureTest::cmyPointsCoverMeasurePoints()
{
    Renderer renderer(nullptr);
    renderer.setPointData({QRectF(200, 60, 16, 16)});
    QCOMPARE(skippedPicture(renderer, 320, 320).pixel(208, 68), qRgb(255, 0, 0));
    renderer.setCMYPointData({QRectF(200, 60, 16, 16)});
    QCOMPARE(skippedPicture(renderer, 320, 320).pixel(208, 68), qRgb(0, 255, 255));
    renderer.setPointData({});
    renderer.setCMYPointData({});
    QCOMPARE(skippedPicture(renderer, 320, 320).pixel(208, 68), qRgb(23, 23, 26));
}

CEIECHART_PICTURE_TEST_MAIN(DrawCEIPictureTest)

#include "drawceipicturetest.moc"
