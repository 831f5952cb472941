// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What is painted straight into the pixels against plain definitions.
#include <ceiechart/diagram/fourpixels_p.h>
#include <ceiechart/diagram/pixelpainter_p.h>

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <random>
#include <vector>

using namespace ceiechart;

namespace {

class Random {
public:
    double between(double least, double most) { return std::uniform_real_distribution<double>(least, most)(m_engine); }
    QPointF point(const QRectF &area)
    {
        return QPointF(between(area.left(), area.right()), between(area.top(), area.bottom()));
    }
    QColor color()
    {
        const auto channel = [this] { return int(between(0.0, 255.99)); };
        return QColor(channel(), channel(), channel(), between(0.0, 1.0) < 0.5 ? 255 : channel());
    }
    QRegion region(const QSize &size)
    {
        QRegion result;
        for (int i = 0; i < 12; ++i) {
            result += QRect(point(QRectF(QPointF(), size)).toPoint(), QSize(int(between(1, 9)), int(between(1, 40))));
        }
        return result;
    }

private:
    std::mt19937 m_engine{11};
};

const QSize paperSize(90, 70);

QImage paper(QImage::Format format = QImage::Format_RGB32, const QSize &size = paperSize)
{
    QImage image(size, format);
    image.fill(QColor(90, 120, 30));
    return image;
}

using Painting = std::function<void(QPainter &)>;

QImage painted(const Painting &paint, double scale, QImage image = paper())
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    paint(painter);
    return image;
}

//! Paints straight into the pixels.
Painting straight(const std::function<void(const PixelPainter &)> &paint)
{
    return [paint](QPainter &painter) {
        const auto pixels = PixelPainter::on(painter);
        QVERIFY(pixels);
        paint(*pixels);
    };
}

struct Difference {
    int largest = 0; //!< of all channels
    double mean = 0.0; //!< of a channel of the pixels that either picture has changed, with its sign
};

Difference difference(const QImage &a, const QImage &b)
{
    const QImage former = paper();
    Difference result;
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            for (const int step : {qRed(p) - qRed(q), qGreen(p) - qGreen(q), qBlue(p) - qBlue(q)}) {
                result.largest = std::max(result.largest, std::abs(step));
                result.mean += step;
            }
            count += p != former.pixel(x, y) || q != former.pixel(x, y) ? 3 : 0;
        }
    }
    result.mean /= std::max(1, count);
    return result;
}

//! Whether a point, in pixels, lies in a shape.
using Shape = std::function<bool(const QPointF &)>;

//! \a shape in \a color, by the share of many points of each pixel that lie in it.
QImage sampled(const Shape &shape, const QColor &color)
{
    constexpr int points = 8; // along each side of a pixel
    QImage image = paper();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            int count = 0;
            for (int i = 0; i < points * points; ++i) {
                const QPointF within((i % points + 0.5) / points, double(i / points) / points + 0.5 / points);
                count += shape(QPointF(x, y) + within) ? 1 : 0;
            }
            const double share = color.alphaF() * count / (points * points);
            const QColor former = image.pixel(x, y);
            const auto mixed = [share](int from, int to) { return int(std::lround(from + share * (to - from))); };
            image.setPixel(x, y,
                qRgb(mixed(former.red(), color.red()), mixed(former.green(), color.green()),
                    mixed(former.blue(), color.blue())));
        }
    }
    return image;
}

void compare(const QImage &found, const QImage &expected, const QString &what)
{
    constexpr int softest = 40; // of 255: where an end meets an edge, or an edge passes a pixel aslant
    constexpr double even = 8.0; // half of what one of the points more or less makes of an edge
    const Difference away = difference(found, expected);
    QVERIFY2(away.largest <= softest && std::fabs(away.mean) <= even,
        qPrintable(QStringLiteral("%1: %2, %3").arg(what).arg(away.largest).arg(away.mean)));
}

} // namespace

class PixelPainterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linesCoverTheirShareOfPixels();
    void circlesCoverTheirShareOfPixels();
    void roundedRectanglesCoverTheirShareOfPixels();
    void picturesAreThoseOfTheEngine();
    void nothingIsPaintedBeyondTheClip();
    void narrowPicturesAreNotLeft();
    void tilesOfPicturesAreNotLeft();
    void whatCannotBeWrittenIsLeftToTheEngine();
    void vectorsAreThePlainDefinition();
};

void PixelPainterTest::linesCoverTheirShareOfPixels()
{
    Random random;
    for (int i = 0; i < 30; ++i) {
        const double scale = std::array{1.0, 1.5, 2.0}[size_t(i % 3)];
        const QRectF area(-10.0, -10.0, paperSize.width() / scale + 20.0, paperSize.height() / scale + 20.0);
        QLineF line(random.point(area), random.point(area));
        if (i % 5 == 0) {
            line.setP2(i % 2 ? QPointF(line.p1().x(), line.p2().y()) : QPointF(line.p2().x(), line.p1().y()));
        }
        if (i % 7 == 0) {
            line.setLength(random.between(1.0, 6.0));
        }
        const double width = random.between(1.0, 5.0);
        const QColor color(255, 240, 230, i % 2 ? 255 : 170);
        const auto isInLine = [&](const QPointF &at) {
            const QPointF from = at / scale - line.p1();
            const double along = QPointF::dotProduct(from, line.p2() - line.p1()) / line.length();
            const double aside = (from.x() * line.dy() - from.y() * line.dx()) / line.length();
            return along >= 0.0 && along <= line.length() && std::fabs(aside) <= width / 2.0;
        };
        compare(painted(straight([&](const PixelPainter &pixels) { pixels.line(line, width, color); }), scale),
            sampled(isInLine, color),
            QStringLiteral("line %1,%2 to %3,%4, width %5, scale %6")
                .arg(line.x1())
                .arg(line.y1())
                .arg(line.x2())
                .arg(line.y2())
                .arg(width)
                .arg(scale));
    }
    const QImage none = painted(straight([&](const PixelPainter &pixels) {
        pixels.line(QLineF(20.0, 20.0, 20.0, 20.0), 3.0, Qt::red);
        pixels.line(QLineF(20.0, 20.0, qQNaN(), 40.0), 3.0, Qt::red);
        pixels.line(QLineF(-400.0, 20.0, -100.0, 40.0), 3.0, Qt::red);
        pixels.line(QLineF(20.0, 1e9, 30.0, 2e9), 3.0, Qt::red);
    }),
        1.0);
    QCOMPARE(none, paper());
}

void PixelPainterTest::circlesCoverTheirShareOfPixels()
{
    Random random;
    for (int i = 0; i < 30; ++i) {
        const double scale = std::array{1.0, 1.5, 2.0}[size_t(i % 3)];
        const QPointF centre = random.point(QRectF(-4.0, -4.0, 98.0, 78.0)) / scale;
        const double radius = random.between(2.0, 20.0);
        const double width = random.between(1.0, 3.0);
        const QColor color(255, 240, 230, i % 4 < 2 ? 255 : 170);
        const auto away
            = [&](const QPointF &at) { return std::hypot(at.x() / scale - centre.x(), at.y() / scale - centre.y()); };
        const QString what = QStringLiteral(" at %1,%2, radius %3, width %4, scale %5")
                                 .arg(centre.x())
                                 .arg(centre.y())
                                 .arg(radius)
                                 .arg(width)
                                 .arg(scale);
        compare(
            painted(straight([&](const PixelPainter &pixels) { pixels.ring(centre, radius, width, color); }), scale),
            sampled([&](const QPointF &at) { return std::fabs(away(at) - radius) <= width / 2.0; }, color),
            QStringLiteral("ring") + what);
        compare(painted(straight([&](const PixelPainter &pixels) { pixels.disc(centre, radius, color); }), scale),
            sampled([&](const QPointF &at) { return away(at) <= radius; }, color), QStringLiteral("disc") + what);
    }
}

void PixelPainterTest::roundedRectanglesCoverTheirShareOfPixels()
{
    Random random;
    for (int i = 0; i < 30; ++i) {
        const double scale = std::array{1.0, 1.5, 2.0}[size_t(i % 3)];
        const double radius = random.between(1.0, 5.0);
        const QRectF rectangle(random.point(QRectF(-10.0, -10.0, 60.0, 50.0)) / scale,
            QSizeF(random.between(10.0, 50.0), random.between(10.0, 30.0)) / scale);
        const QColor color(255, 240, 230, i % 2 ? 255 : 170);
        const QRectF core = rectangle.adjusted(radius, radius, -radius, -radius);
        const auto isWithin = [&](const QPointF &pixel) {
            const QPointF at = pixel / scale;
            const double dx = std::max({core.left() - at.x(), at.x() - core.right(), 0.0});
            const double dy = std::max({core.top() - at.y(), at.y() - core.bottom(), 0.0});
            return std::hypot(dx, dy) <= radius;
        };
        if (core.isValid()) {
            compare(painted(straight(
                                [&](const PixelPainter &pixels) { pixels.roundedRectangle(rectangle, radius, color); }),
                        scale),
                sampled(isWithin, color), QStringLiteral("rectangle %1").arg(i));
        }
    }
}

void PixelPainterTest::picturesAreThoseOfTheEngine()
{
    Random random;
    for (int i = 0; i < 200; ++i) {
        const double scale = i % 2 ? 2.0 : 1.0;
        const auto format = i % 4 < 2 ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
        QImage picture(int(random.between(1.0, 30.0)), int(random.between(1.0, 20.0)), format);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const bool isClear = x / 8 % 2 == 1 && format != QImage::Format_RGB32;
                const QRgb color = x / 6 % 3 == 1 ? random.color().rgb() : random.color().rgba();
                picture.setPixel(x, y, isClear ? 0 : qPremultiply(color));
            }
        }
        const QPointF at = random.point(QRectF(-20.0, -20.0, 130.0, 110.0)) / scale;
        const QPoint origin(int(random.between(0.0, 9.0)), int(random.between(0.0, 9.0)));
        const QImage found
            = painted(straight([&](const PixelPainter &pixels) { pixels.picture(at, picture, origin); }), scale);
        const QImage expected = painted(
            [&](QPainter &painter) {
                painter.setWorldTransform(QTransform());
                const QPointF place = at * scale;
                painter.drawImage(
                    QPoint(int(std::floor(place.x() + 0.5)), int(std::floor(place.y() + 0.5))) - origin, picture);
            },
            scale);
        QVERIFY(difference(found, expected).largest <= 1); // for rounding
    }
}

void PixelPainterTest::nothingIsPaintedBeyondTheClip()
{
    Random random;
    QImage picture(40, 30, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor(200, 10, 10, 120));
    for (int i = 0; i < 300; ++i) {
        const QRegion clip = random.region(paperSize) & QRect(QPoint(), paperSize);
        const QLineF line(random.point(QRectF(-10.0, -10.0, 110.0, 90.0)), random.point(QRectF(0.0, 0.0, 90.0, 70.0)));
        const QPointF centre = random.point(QRectF(0.0, 0.0, 90.0, 70.0));
        const double width = random.between(0.5, 6.0);
        const QColor color = random.color();
        const auto paint = [&](const QRegion &onlyIn) {
            return painted(
                [&](QPainter &painter) {
                    painter.paintEngine()->setSystemClip(onlyIn);
                    straight([&](const PixelPainter &pixels) {
                        pixels.line(line, width, color);
                        pixels.ring(centre, 14.3, width, color);
                        pixels.disc(centre, 5.2, color);
                        pixels.ring(centre + QPointF(11.0, 9.0), 2.5, 1.0, color);
                        pixels.roundedRectangle(QRectF(centre, QSizeF(20.0, 12.0)), 3.0, color);
                        pixels.picture(centre, picture, QPoint(3, 4));
                    })(painter);
                },
                1.0);
        };
        const QImage all = paint(QRect(QPoint(), paperSize));
        const QImage part = paint(clip);
        for (int y = 0; y < paperSize.height(); ++y) {
            for (int x = 0; x < paperSize.width(); ++x) {
                QCOMPARE(part.pixel(x, y), clip.contains(QPoint(x, y)) ? all.pixel(x, y) : paper().pixel(x, y));
            }
        }
    }
}

void PixelPainterTest::narrowPicturesAreNotLeft()
{
    // The sanitizers see what is written beside them.
    for (int width = 4; width < 9; ++width) {
        for (const QLineF &line : {QLineF(-5.0, 3.0, 20.0, 3.2), QLineF(width - 0.4, -5.0, width - 0.4, 40.0)}) {
            QImage image = paper(QImage::Format_RGB32, QSize(width, 9));
            const QImage before = image;
            QPainter painter(&image);
            PixelPainter::on(painter)->line(line, 1.0, Qt::red);
            painter.end();
            QVERIFY(image != before);
        }
    }
}

void PixelPainterTest::tilesOfPicturesAreNotLeft()
{
    // The right half of a picture. The sanitizers see what is written behind it.
    constexpr int width = 100;
    constexpr int height = 40;
    std::vector<QRgb> pixels(size_t(width * height), qRgb(0, 0, 0));
    QImage tile(reinterpret_cast<uchar *>(pixels.data() + width / 2), width / 2, height, width * int(sizeof(QRgb)),
        QImage::Format_RGB32);
    QPainter painter(&tile);
    PixelPainter::on(painter)->line(QLineF(48.5, 0.0, 48.5, 60.0), 1.5, Qt::white);
    painter.end();
    QVERIFY(pixels[size_t(width - 2)] != qRgb(0, 0, 0));
    QCOMPARE(pixels[size_t(width)], qRgb(0, 0, 0));
}

void PixelPainterTest::whatCannotBeWrittenIsLeftToTheEngine()
{
    const auto isOn = [](const Painting &prepare, QImage image) {
        QPainter painter(&image);
        prepare(painter);
        return PixelPainter::on(painter).has_value();
    };
    const auto nothing = [](QPainter &) {};
    QVERIFY(isOn(nothing, paper()));
    QVERIFY(isOn(nothing, paper(QImage::Format_ARGB32_Premultiplied)));
    QVERIFY(isOn([](QPainter &painter) { painter.scale(1.5, 1.5); }, paper()));
    QImage none; // what a picture is when there is not enough memory for it
    QTest::ignoreMessage(QtWarningMsg, "QPainter::begin: Paint device returned engine == 0, type: 3");
    QPainter idle(&none);
    QVERIFY(!PixelPainter::on(idle));
    QVERIFY(!isOn(nothing, paper(QImage::Format_ARGB32)));
    QVERIFY(!isOn(nothing, paper(QImage::Format_RGB16)));
    QVERIFY(!isOn(nothing, paper(QImage::Format_RGB32, QSize(3, 9))));
    QVERIFY(!isOn([](QPainter &painter) { painter.rotate(20.0); }, paper()));
    QVERIFY(!isOn([](QPainter &painter) { painter.scale(1.0, 2.0); }, paper()));
    QVERIFY(!isOn([](QPainter &painter) { painter.scale(-1.0, -1.0); }, paper()));
    QVERIFY(!isOn([](QPainter &painter) { painter.setOpacity(0.5); }, paper()));
    QVERIFY(!isOn([](QPainter &painter) { painter.setCompositionMode(QPainter::CompositionMode_Multiply); }, paper()));
    QVERIFY(isOn([](QPainter &painter) { painter.setClipRect(2, 2, 6, 6); }, paper()));
    QVERIFY(!isOn([](QPainter &painter) { painter.setClipRect(QRectF(10.75, 10.75, 6.5, 6.0)); }, paper()));
    QVERIFY(!isOn(
        [](QPainter &painter) {
            painter.scale(1.5, 1.5);
            painter.setClipRect(1, 1, 5, 5);
        },
        paper()));
    QVERIFY(!isOn(
        [](QPainter &painter) {
            QPainterPath circle;
            circle.addEllipse(10.0, 10.0, 30.0, 30.0);
            painter.setClipPath(circle);
        },
        paper()));
}

void PixelPainterTest::vectorsAreThePlainDefinition()
{
#ifdef CEIECHART_FOUR_SSE2
    Random random;
    const auto same = [](const FourPlain::Floats &plain, FourBySse2::Floats vector) {
        FourPlain::Floats values;
        _mm_storeu_ps(values.data(), vector);
        return plain == values;
    };
    for (int i = 0; i < 20000; ++i) {
        FourPlain::Floats a;
        FourPlain::Floats b;
        FourPlain::Floats shares;
        std::uint32_t pixels[4];
        std::uint32_t pictured[4];
        const std::uint32_t clear[4] = {};
        for (size_t k = 0; k < 4; ++k) {
            a[k] = float(random.between(-300.0, 300.0));
            b[k] = float(random.between(-300.0, 300.0));
            shares[k] = float(std::clamp(random.between(-20.0, 280.0), 0.0, 256.5));
            pixels[k] = qPremultiply(random.color().rgba());
            pictured[k] = qPremultiply(random.color().rgba());
        }
        const __m128 va = _mm_loadu_ps(a.data());
        const __m128 vb = _mm_loadu_ps(b.data());
        QVERIFY(same(FourPlain::add(a, b), FourBySse2::add(va, vb)));
        QVERIFY(same(FourPlain::subtract(a, b), FourBySse2::subtract(va, vb)));
        QVERIFY(same(FourPlain::multiply(a, b), FourBySse2::multiply(va, vb)));
        QVERIFY(same(FourPlain::least(a, b), FourBySse2::least(va, vb)));
        QVERIFY(same(FourPlain::most(a, b), FourBySse2::most(va, vb)));
        QVERIFY(same(FourPlain::absolute(a), FourBySse2::absolute(va)));
        QVERIFY(same(FourPlain::root(FourPlain::absolute(a)), FourBySse2::root(FourBySse2::absolute(va))));
        QVERIFY(same(FourPlain::all(a[0]), FourBySse2::all(a[0])));
        QVERIFY(same(FourPlain::from(a[0]), FourBySse2::from(a[0])));
        QVERIFY(same(FourPlain::only(a, i % 4, i % 5), FourBySse2::only(va, i % 4, i % 5)));
        std::uint32_t others[4];
        std::copy(std::begin(pixels), std::end(pixels), std::begin(others));
        const std::uint32_t color = random.color().rgb();
        FourPlain::blend(pixels, color, shares);
        FourBySse2::blend(others, color, _mm_loadu_ps(shares.data()));
        QVERIFY(std::equal(std::begin(pixels), std::end(pixels), std::begin(others)));
        QCOMPARE(FourBySse2::areClear(pictured), FourPlain::areClear(pictured));
        if (i % 2) {
            std::for_each(std::begin(pictured), std::end(pictured), [](std::uint32_t &pixel) { pixel |= 0xff000000U; });
        }
        QCOMPARE(FourBySse2::areOpaque(pictured), FourPlain::areOpaque(pictured));
        QVERIFY(i % 2 == 0 || FourPlain::areOpaque(pictured));
        QVERIFY(FourBySse2::areClear(clear));
        QVERIFY(FourPlain::areClear(clear));
        FourPlain::putOver(pixels, pictured);
        FourBySse2::putOver(others, pictured);
        QVERIFY(std::equal(std::begin(pixels), std::end(pixels), std::begin(others)));
    }
#else
    QSKIP("There are no vectors for this processor: the plain definition is what paints.");
#endif
}

QTEST_MAIN(PixelPainterTest)
#include "pixelpaintertest.moc"
