// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/drawceipicture.h>
#include <ceiechart/render/drawceipicture.h>

#include <reference/hasmember.h>
#include <reference/picturedifference.h>
#include <reference/picturetestmain.h>
#include <reference/plainrenderer.h>
#include <reference/quietmessages.h>
#include <reference/rendererstate.h>
#include <reference/repeatablerandom.h>

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace {

constexpr auto xyDiagram = static_cast<DrawCEIPicture::CEIEType>(0);
constexpr auto uvDiagram = static_cast<DrawCEIPicture::CEIEType>(1);

const QColor blackMargins(0, 0, 0);
const QColor greyMargins(0x32, 0x32, 0x38);

using Picture = std::unique_ptr<QImage>;

// What the legacy renderer must not have, not even by way of a base.
DEFINE_HAS_MEMBER(painterStandard)
DEFINE_HAS_MEMBER(painterOriginalTriangle)
DEFINE_HAS_MEMBER(painterTargetTriangle)
DEFINE_HAS_MEMBER(painterInputTriangle)
DEFINE_HAS_MEMBER(painterTriangle)
DEFINE_HAS_MEMBER(painterIntersectsTriangle)
DEFINE_HAS_MEMBER(intersectPolygon)
DEFINE_HAS_MEMBER(updateTriangleOffsetPoint)
DEFINE_HAS_MEMBER(drawCMYPoint)
DEFINE_HAS_MEMBER(setCMYPointData)
DEFINE_HAS_MEMBER(setPointData)
DEFINE_HAS_MEMBER(setBackgroudColor)

using Current = NewCEIE::DrawCEIPicture;
ONLY_IN_THE_CURRENT_CLASS(painterStandard, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(painterOriginalTriangle, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(painterTargetTriangle, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(painterInputTriangle, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(painterTriangle, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(painterIntersectsTriangle, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(intersectPolygon, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(updateTriangleOffsetPoint, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(drawCMYPoint, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(setCMYPointData, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(setPointData, Current, DrawCEIPicture);
ONLY_IN_THE_CURRENT_CLASS(setBackgroudColor, Current, DrawCEIPicture);

// Nor these forms of operations that it has.
template <class T>
using GamutForm = decltype(std::declval<T &>().drawCEIPicture(
    1, 1, true, QList<ColorTriangleObject>(), QList<ColorTriangleObject>(), QPolygonF(), true, QString()));
template <class T>
using AlphaOfPoint = decltype(std::declval<T &>().GetPointRGB(1, 1, 0.5, static_cast<QImage *>(nullptr)));
template <class T>
using AlphaOfColor = decltype(std::declval<T &>().GetPointColorRGB(1, 1, 0.5, static_cast<QImage *>(nullptr)));
static_assert(reference::isDetected<GamutForm, Current> && !reference::isDetected<GamutForm, DrawCEIPicture>);
static_assert(reference::isDetected<AlphaOfPoint, Current> && !reference::isDetected<AlphaOfPoint, DrawCEIPicture>);
static_assert(reference::isDetected<AlphaOfColor, Current> && !reference::isDetected<AlphaOfColor, DrawCEIPicture>);

// With a third enumerator this does not compile.
#pragma GCC diagnostic push
#pragma GCC diagnostic error "-Wswitch"
bool isUniformDiagram(DrawCEIPicture::CEIEType type)
{
    switch (type) {
    case DrawCEIPicture::XyDiagram:
        return false;
    case DrawCEIPicture::UvDiagram:
        return true;
    }
    return false;
}
#pragma GCC diagnostic pop

constexpr reference::ChromaRange xyRange{0.0F, 0.84F, 0.0F, 0.94F};
constexpr reference::ChromaRange uvRange{0.0F, 0.65F, 0.0F, 0.68F};
constexpr CEIAtlasValue::TColorSystem uvColors{0.5222F, 0.5222F, 0.0111F, 0.7888F, 0.1888F, 0.1555F, 0.2333F, 0.4777F};

// Both diagrams, one painter call at a time; axes without titles.
class PlainDiagram {
public:
    explicit PlainDiagram(bool uniform)
        : m_range(uniform ? uvRange : xyRange)
        , m_plain(m_range, uniform ? uvColors : CEIAtlasValue().colorSystem)
    {
    }

    void setGraphColor(const QColor &line, const QColor &background)
    {
        m_line = line;
        m_background = background;
        m_plain.setGraphColor(line, background);
    }

    QImage xyPicture(const QSize &size, bool axes, bool locus, bool wavelengths, const QList<QPointF> &points)
    {
        QImage picture = begin(size, blackMargins, points, 5, 95);
        QPainter painter(&picture);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        m_plain.paintCEIEdge(painter);
        m_plain.painterPixColor(picture);
        if (axes) {
            m_plain.painterCoordinate(
                painter, Qt::SolidLine, QFont(QStringLiteral("Arial"), std::max(size.height() * 2 / 100, 1)));
        }
        if (wavelengths) {
            m_plain.painterWaveLength(painter);
        }
        if (locus) {
            m_plain.painterBBRLine(painter);
        }
        painter.end();
        return picture;
    }

    QImage uvPicture(const QSize &size, bool axes, const QList<QPointF> &measurePoints)
    {
        QImage picture = begin(size, m_background, {}, 15, 85);
        QPainter painter(&picture);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);

        painter.save();
        QPolygonF locus;
        for (const QPointF &xy : CEIAtlasValue().spectrumLocus) {
            const double d = -2 * xy.x() + 12 * xy.y() + 3;
            locus << m_plain.mapping().toWholePixel(QPointF(4 * xy.x() / d, 9 * xy.y() / d));
        }
        QPainterPath path;
        path.addPolygon(locus);
        painter.setClipPath(path, Qt::ReplaceClip);
        painter.drawPath(path);
        painter.drawImage(QRect(QPoint(0, 0), size), colorImage(size));
        painter.restore();

        if (axes) {
            QFont font(QStringLiteral("Lexend Deca,Microsoft YaHei"));
            font.setWeight(QFont::DemiBold);
            font.setPixelSize(12);
            m_plain.painterCoordinate(painter, Qt::DashLine, font);
        }
        painter.setPen(Qt::NoPen);
        for (const QPointF &point : measurePoints) {
            const QPointF centre = m_plain.mapping().toWholePixel(point);
            painter.setBrush(QColor(255, 255, 255, 76));
            painter.drawEllipse(QRectF(centre.x() - 4, centre.y() - 4, 8, 8));
            painter.setBrush(Qt::black);
            painter.drawEllipse(QRectF(centre.x() - 2, centre.y() - 2, 4, 4));
        }
        painter.end();
        return picture;
    }

    // As of the last drawing.
    QImage colorImage(const QSize &size) const
    {
        QImage colors(size, QImage::Format_ARGB32);
        colors.fill(greyMargins);
        m_plain.painterPixColor(colors);
        return colors;
    }

private:
    QImage begin(
        const QSize &size, const QColor &margins, const QList<QPointF> &points, int nearPercent, int farPercent)
    {
        {
            const reference::QuietMessages quiet;
            m_plain.drawCEIPicture(0, 0, false, points); // keeps the points
        }
        m_plain.setPictureSize(size.width(), size.height(), nearPercent, farPercent);
        QImage picture(size, QImage::Format_ARGB32);
        picture.fill(margins);
        return picture;
    }

    reference::ChromaRange m_range;
    reference::PlainRenderer m_plain;
    QColor m_line{255, 255, 255};
    QColor m_background = greyMargins;
};

class Random : public reference::RepeatableRandom {
public:
    Random()
        : RepeatableRandom(20260)
    {
    }

    bool flag() { return between(0, 1) == 1; }
    QSize size()
    {
        const std::vector<QSize> odd{{1, 1}, {1, 60}, {60, 1}, {2, 3}, {19, 20}, {49, 49}, {50, 50}, {51, 99}};
        const int choice = between(0, 19);
        return choice < 8 ? odd[static_cast<std::size_t>(choice)] : QSize(between(20, 260), between(20, 260));
    }
    QList<QPointF> points()
    {
        QList<QPointF> points;
        for (int count = between(0, 4); count > 0; --count) {
            const double x = between(-100, 800) / 1000.0;
            points << QPointF(x, between(-100, 900) / 1000.0);
        }
        return points;
    }
};

void removeTitles(DrawCEIPicture &renderer)
{
    renderer.setXTitle(QString());
    renderer.setYTitle(QString());
}

Picture drawn(DrawCEIPicture &renderer, const QSize &size, bool axes = true)
{
    return Picture(renderer.type() == uvDiagram
            ? renderer.drawCEIEPicture(size.width(), size.height(), axes, false, false, {})
            : renderer.drawCEIPicture(size.width(), size.height(), axes, false, false, {}));
}

} // namespace

class LegacyDrawCEIPictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void translucentWidget();
    void xyPictureIsThePlainOne();
    void uvPictureIsThePlainOne();
    void picturesWithTitlesAreThePlainOnes();
    void titlesPerType_data();
    void titlesPerType();
    void titlesStandClearOfTheNumbers_data();
    void titlesStandClearOfTheNumbers();
    void tablesPerType();
    void smallXyPictureStillHasNumbers();
    void otherTypesAreXy();
    void d65InUv();
    void listReplacesItsOutput();
    void coordinateListsAppend();
    void singlePrecisionStaysSingle();
};

void LegacyDrawCEIPictureTest::translucentWidget()
{
    for (const auto type : {xyDiagram, uvDiagram}) {
        DrawCEIPicture renderer(type, nullptr);
        QVERIFY(renderer.testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(renderer.metaObject()->className(), "DrawCEIPicture");
        QCOMPARE(renderer.metaObject()->superClass(), &QWidget::staticMetaObject);
        QCOMPARE(renderer.type(), type);
        QCOMPARE(isUniformDiagram(type), type == uvDiagram);
    }
}

void LegacyDrawCEIPictureTest::xyPictureIsThePlainOne()
{
    Random random;
    DrawCEIPicture renderer(xyDiagram, nullptr);
    removeTitles(renderer);
    PlainDiagram plain(false);
    for (int i = 0; i < 60; ++i) {
        const QSize size = random.size();
        const bool axes = random.flag();
        const bool locus = random.flag();
        const bool wavelengths = random.flag();
        const QList<QPointF> points = random.points();
        if (i > 20) {
            const QColor line = random.opaqueColor();
            renderer.setGraphColor(line, Qt::cyan);
            plain.setGraphColor(line, Qt::cyan);
        }
        renderer.setMeasurePoints(points); // which only the other diagram shows
        const Picture picture(renderer.drawCEIPicture(size.width(), size.height(), axes, locus, wavelengths, points));
        QCOMPARE(
            reference::firstDifference(*picture, plain.xyPicture(size, axes, locus, wavelengths, points)), QString());
    }
}

void LegacyDrawCEIPictureTest::uvPictureIsThePlainOne()
{
    Random random;
    DrawCEIPicture renderer(uvDiagram, nullptr);
    QVERIFY(renderer.getColorImage().isNull());
    removeTitles(renderer);
    PlainDiagram plain(true);
    for (int i = 0; i < 60; ++i) {
        const QSize size = random.size();
        const bool axes = random.flag();
        const bool locus = random.flag();
        const bool wavelengths = random.flag();
        const QList<QPointF> points = random.points();
        if (i > 20) {
            const QColor line = random.opaqueColor();
            const QColor background = random.opaqueColor();
            renderer.setGraphColor(line, background);
            plain.setGraphColor(line, background);
        }
        renderer.setMeasurePoints(points);
        const Picture picture(
            renderer.drawCEIEPicture(size.width(), size.height(), axes, locus, wavelengths, random.points()));
        QCOMPARE(reference::firstDifference(*picture, plain.uvPicture(size, axes, points)), QString());
        QCOMPARE(reference::firstDifference(renderer.getColorImage(), plain.colorImage(size)), QString());
    }
}

// Where the titles stand only the renderer says: its axes go over a picture without any.
void LegacyDrawCEIPictureTest::picturesWithTitlesAreThePlainOnes()
{
    const QSize size(300, 280);
    {
        DrawCEIPicture renderer(xyDiagram, nullptr);
        QImage expected = PlainDiagram(false).xyPicture(size, false, false, false, {});
        const Picture picture = drawn(renderer, size);
        QPainter painter(&expected);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        renderer.painterCoordinate(Qt::SolidLine, QFont(QStringLiteral("Arial"), 5), painter);
        painter.end();
        QCOMPARE(reference::firstDifference(*picture, expected), QString());
    }
    DrawCEIPicture renderer(uvDiagram, nullptr);
    QImage expected = PlainDiagram(true).uvPicture(size, false, {});
    const Picture picture = drawn(renderer, size);
    QFont font(QStringLiteral("Lexend Deca,Microsoft YaHei"));
    font.setWeight(QFont::DemiBold);
    font.setPixelSize(12);
    QPainter painter(&expected);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    renderer.painterCoordinate(Qt::DashLine, font, painter);
    painter.end();
    QCOMPARE(reference::firstDifference(*picture, expected), QString());
}

void LegacyDrawCEIPictureTest::titlesPerType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("xTitle");
    QTest::addColumn<QString>("yTitle");
    QTest::newRow("x, y") << 0 << QStringLiteral("X") << QStringLiteral("Y");
    QTest::newRow("u', v'") << 1 << QStringLiteral("u") << QStringLiteral("v");
}

void LegacyDrawCEIPictureTest::titlesPerType()
{
    QFETCH(int, type);
    QFETCH(QString, xTitle);
    QFETCH(QString, yTitle);
    const QSize size(400, 400);
    DrawCEIPicture renderer(static_cast<DrawCEIPicture::CEIEType>(type), nullptr);
    const Picture initial = drawn(renderer, size);
    renderer.setXTitle(xTitle);
    renderer.setYTitle(yTitle);
    QCOMPARE(reference::firstDifference(*drawn(renderer, size), *initial), QString());

    renderer.setXTitle(QStringLiteral("W"));
    QVERIFY(!reference::changedPixels(*drawn(renderer, size), *initial).isEmpty());
    renderer.setXTitle(xTitle);
    renderer.setYTitle(QStringLiteral("W"));
    QVERIFY(!reference::changedPixels(*drawn(renderer, size), *initial).isEmpty());
    renderer.setYTitle(yTitle.toLower() == yTitle ? yTitle.toUpper() : yTitle.toLower());
    QVERIFY(!reference::changedPixels(*drawn(renderer, size), *initial).isEmpty());
}

void LegacyDrawCEIPictureTest::titlesStandClearOfTheNumbers_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("side");
    for (const int side : {150, 240, 512, 800}) {
        QTest::addRow("x, y of %d pixels", side) << 0 << side;
        QTest::addRow("u', v' of %d pixels", side) << 1 << side;
    }
}

// The x title above the end of its axis and the y title right of the top of its own; the numbers are on the far sides.
void LegacyDrawCEIPictureTest::titlesStandClearOfTheNumbers()
{
    QFETCH(int, type);
    QFETCH(int, side);
    const QSize size(side, side);
    DrawCEIPicture renderer(static_cast<DrawCEIPicture::CEIEType>(type), nullptr);
    removeTitles(renderer);
    const Picture without = drawn(renderer, size);
    const QPointF origin = renderer.CoordinateTransformation(QPointF(0, 0));
    renderer.setXTitle(QStringLiteral("X"));
    const QRect x = reference::changedPixels(*drawn(renderer, size), *without);
    renderer.setXTitle(QString());
    renderer.setYTitle(QStringLiteral("Y"));
    const QRect y = reference::changedPixels(*drawn(renderer, size), *without);
    QVERIFY(!x.isEmpty() && !y.isEmpty());
    QVERIFY(x.bottom() < origin.y() && x.top() > side / 2 && x.left() > 3 * side / 4);
    QVERIFY(y.left() > origin.x() && y.right() < side / 2 && y.bottom() < side / 4);
}

// Both the whole locus and all of the colour system are exchanged for what belongs to the diagram.
void LegacyDrawCEIPictureTest::tablesPerType()
{
    const CEIAtlasValue plain;
    for (const auto type : {xyDiagram, uvDiagram}) {
        const DrawCEIPicture renderer(type, nullptr);
        const CEIAtlasValue &atlas = reference::atlasOf(renderer);
        std::vector<QPointF> locus = plain.spectrumLocus;
        if (type == uvDiagram) {
            DrawCEIPicture::xy2uv(plain.spectrumLocus, locus);
        }
        QCOMPARE(atlas.spectrumLocus.size(), std::size_t(62));
        for (std::size_t i = 0; i < locus.size(); ++i) {
            QVERIFY(atlas.spectrumLocus[i].x() == locus[i].x() && atlas.spectrumLocus[i].y() == locus[i].y());
        }
        const CEIAtlasValue::TColorSystem colors = type == uvDiagram ? uvColors : plain.colorSystem;
        const CEIAtlasValue::TColorSystem &used = atlas.colorSystem;
        QVERIFY(used.xRed == colors.xRed && used.yRed == colors.yRed);
        QVERIFY(used.xGreen == colors.xGreen && used.yGreen == colors.yGreen);
        QVERIFY(used.xBlue == colors.xBlue && used.yBlue == colors.yBlue);
        QVERIFY(used.xWhite == colors.xWhite && used.yWhite == colors.yWhite);
    }
}

// 2 % of fewer than 50 rows is a font size of 0, which is none. The picture is wide enough for larger numbers to show.
void LegacyDrawCEIPictureTest::smallXyPictureStillHasNumbers()
{
    static QStringList warnings;
    warnings.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &message) { warnings << message; });
    DrawCEIPicture renderer(xyDiagram, nullptr);
    removeTitles(renderer);
    const Picture picture(renderer.drawCEIPicture(600, 49, true, false, false, {}));
    qInstallMessageHandler(previous);
    QCOMPARE(warnings, QStringList());

    PlainDiagram plain(false);
    QCOMPARE(reference::firstDifference(*picture, plain.xyPicture(QSize(600, 49), true, false, false, {})), QString());
}

void LegacyDrawCEIPictureTest::otherTypesAreXy()
{
    DrawCEIPicture renderer(static_cast<DrawCEIPicture::CEIEType>(7), nullptr);
    DrawCEIPicture xy(xyDiagram, nullptr);
    const Picture picture(renderer.drawCEIPicture(240, 230, true, true, true, {}));
    const Picture expected(xy.drawCEIPicture(240, 230, true, true, true, {}));
    QCOMPARE(reference::firstDifference(*picture, *expected), QString());
    QCOMPARE(reference::firstDifference(renderer.getColorImage(), xy.getColorImage()), QString());
}

void LegacyDrawCEIPictureTest::d65InUv()
{
    double u = 0.0;
    double v = 0.0;
    DrawCEIPicture::xyconvertuv(0.3127, 0.3290, u, v);
    QVERIFY(std::fabs(u - 0.19783000664283675) < 1e-15);
    QVERIFY(std::fabs(v - 0.46831999493879102) < 1e-15);
    DrawCEIPicture::xyconvertuv(0.3127, 0.3291, u, v);
    QVERIFY(std::fabs(u - 0.19779246655491952) < 1e-15);
    QVERIFY(std::fabs(v - 0.46837344634555178) < 1e-15);
}

void LegacyDrawCEIPictureTest::listReplacesItsOutput()
{
    std::vector<QPointF> uv{QPointF(1, 2), QPointF(3, 4)};
    DrawCEIPicture::xy2uv(std::vector<QPointF>{}, uv);
    QVERIFY(uv.empty());
    uv.assign(5, QPointF(1, 2));
    DrawCEIPicture::xy2uv(std::vector<QPointF>{QPointF(0.3127, 0.3291), QPointF(0.64, 0.33)}, uv);
    QCOMPARE(uv.size(), std::size_t(2));
    for (std::size_t i = 0; i < 2; ++i) {
        double u = 0.0;
        double v = 0.0;
        DrawCEIPicture::xyconvertuv(i == 0 ? 0.3127 : 0.64, i == 0 ? 0.3291 : 0.33, u, v);
        QVERIFY(uv[i].x() == u && uv[i].y() == v);
    }
}

void LegacyDrawCEIPictureTest::coordinateListsAppend()
{
    std::vector<float> none;
    std::vector<float> us{1.0F, 2.0F};
    std::vector<float> vs{3.0F};
    DrawCEIPicture::xy2uvList(none, none, us, vs);
    QCOMPARE(us, (std::vector<float>{1.0F, 2.0F}));
    QCOMPARE(vs, (std::vector<float>{3.0F}));

    std::vector<float> xs{0.3127F, 0.64F};
    std::vector<float> ys{0.3291F, 0.33F, 0.6F}; // longer than xs: the rest is not read
    DrawCEIPicture::xy2uvList(xs, ys, us, vs);
    float u[2];
    float v[2];
    DrawCEIPicture::xy2uv(xs[0], ys[0], u[0], v[0]);
    DrawCEIPicture::xy2uv(xs[1], ys[1], u[1], v[1]);
    QCOMPARE(us, (std::vector<float>{1.0F, 2.0F, u[0], u[1]}));
    QCOMPARE(vs, (std::vector<float>{3.0F, v[0], v[1]}));
}

// Nothing is carried out in double precision and narrowed afterwards.
void LegacyDrawCEIPictureTest::singlePrecisionStaysSingle()
{
    int otherwise = 0;
    for (int i = 0; i < 1000; ++i) {
        const float x = 0.0007F * static_cast<float>(i);
        const float y = 0.8F - 0.0005F * static_cast<float>(i);
        const float d = -2.0F * x + 12.0F * y + 3.0F;
        float u = 0.0F;
        float v = 0.0F;
        DrawCEIPicture::xy2uv(x, y, u, v);
        QVERIFY(u == 4.0F * x / d && v == 9.0F * y / d);
        std::vector<float> us;
        std::vector<float> vs;
        std::vector<float> xs{x};
        std::vector<float> ys{y};
        DrawCEIPicture::xy2uvList(xs, ys, us, vs);
        QVERIFY(us.front() == u && vs.front() == v);
        double wideU = 0.0;
        double wideV = 0.0;
        DrawCEIPicture::xyconvertuv(static_cast<double>(x), static_cast<double>(y), wideU, wideV);
        otherwise += static_cast<float>(wideU) != u || static_cast<float>(wideV) != v ? 1 : 0;
    }
    QVERIFY(otherwise > 100);
}

CEIECHART_PICTURE_TEST_MAIN(LegacyDrawCEIPictureTest)
#include "legacydrawceipicturetest.moc"
