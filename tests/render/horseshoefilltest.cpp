// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "rendererbench.h"

#include <reference/plainrenderer.h>
#include <reference/quietmessages.h>
#include <reference/rendererstate.h>

#include <vector>

namespace {

constexpr int width = 60;
constexpr int height = 48;

const CEIAtlasValue::TColorSystem &colorSystem()
{
    return atlas().colorSystem;
}

QImage transparentPicture(int w = width, int h = height)
{
    QImage picture(w, h, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    return picture;
}

QColor expectedColor(int px, int py)
{
    static const reference::Mapping mapping = reference::mappingOf(width, height);
    return reference::horseshoeColor(colorSystem(), mapping.toChroma(px, py), 1.0);
}

// The colour that the renderer itself finds for a chromaticity.
QColor colorOf(Renderer &renderer, double x, double y)
{
    QImage picture = transparentPicture(1, 1);
    renderer.GetRGBValue(colorSystem(), x, y, 1 - x - y);
    renderer.GetPointColorRGB(0, 0, &picture);
    return picture.pixelColor(0, 0);
}

// Picture with pixels of every kind that a bound scan may meet.
QImage speckledPicture(int w, int h, QImage::Format format)
{
    QImage picture = transparentPicture(w, h);
    unsigned state = 12345;
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            state = state * 1664525U + 1013904223U;
            if (state >> 27 == 0) {
                picture.setPixel(x, y, state | 0xff000000U);
            } else if (state >> 29 == 1) {
                picture.setPixel(x, y, state & 0xff00ffffU);
            }
        }
    }
    return picture.convertToFormat(format);
}

} // namespace

class HorseshoeFillTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void redBackgroundColorsEveryPixel();
    void redInColumnZeroOnlySkipsTheRow();
    void oneRedPixelRecolorsItself();
    void onlyRedCounts();
    void gammaOfTheRenderer();
    void pictureOnePixelWideIsNeverColored();
    void noRowsWithoutHeight();
    void sizeIsTheRenderersNotTheImages();
    void everyImageFormat_data();
    void everyImageFormat();
    void sharedAndForeignPixels();

    void colorOfAChromaticity_data();
    void colorOfAChromaticity();
    void linearAmountsSumToOne();
    void largestChannelIsAlwaysFull();
    void channelsRoundHalfUp();
    void channelsScaleBeforeTheyAreDivided();
    void channelsAreOverwrittenByTheirValues();
    void onePixel();
    void pixelOutsideTheImageIsIgnored();
    void alphaFormWritesTruncatedAlpha_data();
    void alphaFormWritesTruncatedAlpha();
    void alphaOutOfRangeLeavesThePixel_data();
    void alphaOutOfRangeLeavesThePixel();
};

void HorseshoeFillTest::redBackgroundColorsEveryPixel()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    for (const QRgb fill : {qRgba(23, 23, 26, 255), qRgba(1, 0, 0, 255), qRgba(1, 0, 0, 0)}) {
        QImage picture = transparentPicture();
        picture.fill(fill);
        renderer.painterPixColor(&picture);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                QCOMPARE(picture.pixel(x, y), expectedColor(x, y).rgba());
            }
        }
    }
}

void HorseshoeFillTest::redInColumnZeroOnlySkipsTheRow()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    QImage picture = transparentPicture();
    picture.setPixel(0, 7, 0xffff0000);
    const QImage before = picture.copy();
    renderer.painterPixColor(&picture);
    QCOMPARE(reference::firstDifference(picture, before), QString());

    // Column 0 counts as the left bound as soon as there is a right one.
    picture.setPixel(1, 7, 0xffff0000);
    renderer.painterPixColor(&picture);
    QCOMPARE(picture.pixel(0, 7), expectedColor(0, 7).rgba());
    QCOMPARE(picture.pixel(1, 7), expectedColor(1, 7).rgba());
    QCOMPARE(picture.pixel(2, 7), 0U);
}

void HorseshoeFillTest::oneRedPixelRecolorsItself()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    QImage picture = transparentPicture();
    picture.setPixel(5, 20, 0xff010000);
    picture.setPixel(width - 1, 21, 0xff010000);
    QImage expected = transparentPicture();
    expected.setPixelColor(5, 20, expectedColor(5, 20));
    expected.setPixelColor(width - 1, 21, expectedColor(width - 1, 21));
    renderer.painterPixColor(&picture);
    QCOMPARE(reference::firstDifference(picture, expected), QString());
}

void HorseshoeFillTest::onlyRedCounts()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    QImage picture = transparentPicture();
    // Green, blue and alpha bound nothing ...
    picture.setPixel(3, 4, 0xff00ffff);
    picture.setPixel(40, 4, 0xff0000ff);
    picture.setPixel(10, 5, 0xff00ff00);
    // ... and red does at any alpha, however faint it is.
    picture.setPixel(10, 6, 0x00010000);
    picture.setPixel(30, 6, 0x01ff0000);
    QImage expected = picture.copy();
    for (int x = 10; x <= 30; ++x) {
        expected.setPixelColor(x, 6, expectedColor(x, 6));
    }
    renderer.painterPixColor(&picture);
    QCOMPARE(reference::firstDifference(picture, expected), QString());
}

void HorseshoeFillTest::gammaOfTheRenderer()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    for (const double gamma : {1.0, 2.2, 1.0009, 1.0011, 0.5}) {
        reference::setGamma(renderer, gamma);
        QImage actual = transparentPicture();
        actual.fill(QColor(23, 23, 26));
        QImage expected = actual;
        renderer.painterPixColor(&actual);
        reference::fillPlain(expected, width, height, reference::mappingOf(width, height), colorSystem(), gamma);
        QVERIFY2(actual == expected, qPrintable(QString::number(gamma)));
    }
}

void HorseshoeFillTest::pictureOnePixelWideIsNeverColored()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, 60, 60);
    drawOnce(renderer, 1, 60);
    QImage picture = transparentPicture(60, 60);
    picture.fill(0xffff0000);
    const QImage before = picture.copy();
    renderer.painterPixColor(&picture);
    QCOMPARE(reference::firstDifference(picture, before), QString());
}

void HorseshoeFillTest::noRowsWithoutHeight()
{
    for (const QSize &size : {QSize(60, 0), QSize(0, 60), QSize(0, 0), QSize(60, -3), QSize(-3, 60)}) {
        Renderer renderer(nullptr);
        drawOnce(renderer, size.width(), size.height());
        QImage picture = transparentPicture(60, 60);
        picture.fill(0xffff0000);
        const QImage before = picture.copy();
        renderer.painterPixColor(&picture);
        QCOMPARE(reference::firstDifference(picture, before), QString());
    }
}

void HorseshoeFillTest::sizeIsTheRenderersNotTheImages()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    const reference::Mapping mapping = reference::mappingOf(width, height);
    const reference::QuietMessages quiet;
    for (const QSize &size : {QSize(width + 9, height + 5), QSize(width - 9, height + 5), QSize(width + 9, height - 5),
             QSize(width - 9, height - 5), QSize(1, 1)}) {
        QImage picture = speckledPicture(size.width(), size.height(), QImage::Format_ARGB32);
        QImage expected = picture.copy();
        reference::fillPlain(expected, width, height, mapping, colorSystem(), 1.0);
        renderer.painterPixColor(&picture);
        QCOMPARE(reference::firstDifference(picture, expected), QString());
    }
    QImage nothing;
    renderer.painterPixColor(&nothing);
    QVERIFY(nothing.isNull());

    // Red pixels to the right of the renderer's width bound nothing.
    QImage picture = transparentPicture(width + 9, height);
    picture.setPixel(width, 3, 0xffff0000);
    const QImage before = picture.copy();
    renderer.painterPixColor(&picture);
    QCOMPARE(reference::firstDifference(picture, before), QString());
}

void HorseshoeFillTest::everyImageFormat_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("ARGB32") << static_cast<int>(QImage::Format_ARGB32);
    QTest::newRow("ARGB32 premultiplied") << static_cast<int>(QImage::Format_ARGB32_Premultiplied);
    QTest::newRow("RGB32") << static_cast<int>(QImage::Format_RGB32);
    QTest::newRow("RGBA8888") << static_cast<int>(QImage::Format_RGBA8888);
    QTest::newRow("RGB30") << static_cast<int>(QImage::Format_RGB30);
    QTest::newRow("RGB888") << static_cast<int>(QImage::Format_RGB888);
    QTest::newRow("RGB16") << static_cast<int>(QImage::Format_RGB16);
    QTest::newRow("RGBA64") << static_cast<int>(QImage::Format_RGBA64);
    QTest::newRow("grey") << static_cast<int>(QImage::Format_Grayscale8);
    QTest::newRow("indexed") << static_cast<int>(QImage::Format_Indexed8);
    QTest::newRow("mono") << static_cast<int>(QImage::Format_Mono);
}

void HorseshoeFillTest::everyImageFormat()
{
    QFETCH(int, format);
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    const reference::QuietMessages quiet;
    QImage picture = speckledPicture(width, height, static_cast<QImage::Format>(format));
    QImage expected = picture.copy();
    reference::fillPlain(expected, width, height, reference::mappingOf(width, height), colorSystem(), 1.0);
    renderer.painterPixColor(&picture);
    QCOMPARE(static_cast<int>(picture.format()), format);
    QVERIFY(picture == expected);
}

void HorseshoeFillTest::sharedAndForeignPixels()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    QImage expected = transparentPicture();
    expected.fill(0xffff0000);
    reference::fillPlain(expected, width, height, reference::mappingOf(width, height), colorSystem(), 1.0);

    // A copy of the picture keeps its own pixels.
    QImage picture = transparentPicture();
    picture.fill(0xffff0000);
    const QImage shared = picture;
    renderer.painterPixColor(&picture);
    QCOMPARE(reference::firstDifference(picture, expected), QString());
    QCOMPARE(shared.pixel(5, 5), 0xffff0000U);

    // So does a read-only buffer, here with rows longer than the picture is wide.
    constexpr int stride = width + 13;
    std::vector<quint32> buffer(static_cast<std::size_t>(stride) * height, 0xffff0000U);
    const std::vector<quint32> untouched = buffer;
    QImage readOnly(reinterpret_cast<const uchar *>(buffer.data()), width, height, stride * 4, QImage::Format_ARGB32);
    renderer.painterPixColor(&readOnly);
    QCOMPARE(reference::firstDifference(readOnly, expected), QString());
    QVERIFY(buffer == untouched);

    // A writable buffer is written in place, between its rows' ends only.
    QImage writable(reinterpret_cast<uchar *>(buffer.data()), width, height, stride * 4, QImage::Format_ARGB32);
    renderer.painterPixColor(&writable);
    QCOMPARE(reference::firstDifference(writable, expected), QString());
    QCOMPARE(buffer[0], static_cast<quint32>(expected.pixel(0, 0)));
    QCOMPARE(buffer[width], 0xffff0000U);
    QCOMPARE(buffer[stride - 1], 0xffff0000U);
    QCOMPARE(buffer[stride], static_cast<quint32>(expected.pixel(0, 1)));
}

void HorseshoeFillTest::colorOfAChromaticity_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<QColor>("color");
    QTest::newRow("red primary") << 0.625 << 0.34 << QColor(255, 0, 0);
    QTest::newRow("green primary") << 0.275 << 0.605 << QColor(0, 255, 0);
    QTest::newRow("blue primary") << 0.15 << 0.065 << QColor(0, 0, 255);
    QTest::newRow("outside the primaries") << 0.17 << 0.7 << QColor(0, 255, 0);
    QTest::newRow("white point") << 0.3127 << 0.3291 << QColor(162, 238, 255);
    QTest::newRow("equal energy") << 0.3333 << 0.3333 << QColor(210, 247, 255);
}

void HorseshoeFillTest::colorOfAChromaticity()
{
    QFETCH(double, x);
    QFETCH(double, y);
    Renderer renderer(nullptr);
    QTEST(colorOf(renderer, x, y), "color");
}

// Amounts sum to one, so mixtures in equal parts of two primaries hold both at full brightness.
void HorseshoeFillTest::linearAmountsSumToOne()
{
    Renderer renderer(nullptr);
    QCOMPARE(colorOf(renderer, (0.625 + 0.275) / 2, (0.34 + 0.605) / 2), QColor(255, 255, 0));
    QCOMPARE(colorOf(renderer, (0.625 + 0.15) / 2, (0.34 + 0.065) / 2), QColor(255, 0, 255));
    QCOMPARE(colorOf(renderer, (0.275 + 0.15) / 2, (0.605 + 0.065) / 2), QColor(0, 255, 255));
    const double third = 1.0 / 3.0;
    QCOMPARE(colorOf(renderer, (0.625 + 0.275 + 0.15) * third, (0.34 + 0.605 + 0.065) * third), QColor(255, 255, 255));
    // One part red and three parts green: a third of 255.
    QCOMPARE(colorOf(renderer, 0.25 * 0.625 + 0.75 * 0.275, 0.25 * 0.34 + 0.75 * 0.605), QColor(85, 255, 0));

    // Other primaries, and a third coordinate of its own.
    CEIAtlasValue::TColorSystem system;
    system.xRed = 1.0F;
    system.yGreen = 1.0F;
    QImage picture = transparentPicture(1, 1);
    renderer.GetRGBValue(system, 0.5, 0.25, 0.125);
    renderer.GetPointColorRGB(0, 0, &picture);
    QCOMPARE(picture.pixelColor(0, 0), QColor(255, 128, 64));
}

void HorseshoeFillTest::largestChannelIsAlwaysFull()
{
    Renderer renderer(nullptr);
    for (int i = 0; i <= 42; ++i) {
        for (int j = 0; j <= 47; ++j) {
            const double x = i * 0.02;
            const double y = j * 0.02;
            const QColor color = colorOf(renderer, x, y);
            QCOMPARE(qMax(color.red(), qMax(color.green(), color.blue())), 255);
            QCOMPARE(color.alpha(), 255);
            QCOMPARE(color, reference::horseshoeColor(colorSystem(), QPointF(x, y), 1.0));
        }
    }
}

void HorseshoeFillTest::channelsRoundHalfUp()
{
    // Primaries that make the amounts the coordinates themselves.
    CEIAtlasValue::TColorSystem system;
    system.xRed = 1.0F;
    system.yGreen = 1.0F;
    Renderer renderer(nullptr);
    QImage picture = transparentPicture(1, 1);
    renderer.GetRGBValue(system, 1.0, 0.5, 0.25); // 127.5 and 63.75
    renderer.GetPointColorRGB(0, 0, &picture);
    QCOMPARE(picture.pixelColor(0, 0), QColor(255, 128, 64));
    renderer.GetRGBValue(system, 1.0, 0.49 / 255, 0.5 / 255);
    renderer.GetPointColorRGB(0, 0, &picture);
    QCOMPARE(picture.pixelColor(0, 0), QColor(255, 0, 1));
    // Clamped before they are scaled.
    renderer.GetRGBValue(system, 2.0, 0.5, -1.0);
    renderer.GetPointColorRGB(0, 0, &picture);
    QCOMPARE(picture.pixelColor(0, 0), QColor(255, 128, 0));
}

// A tenth and three tenths of 255 lie on a half: the order of the operations decides where they round to.
void HorseshoeFillTest::channelsScaleBeforeTheyAreDivided()
{
    CEIAtlasValue::TColorSystem system;
    system.xRed = 1.0F;
    system.yGreen = 1.0F;
    Renderer renderer(nullptr);
    QImage picture = transparentPicture(1, 1);
    renderer.GetRGBValue(system, 0.005, 0.05, 0.0);
    renderer.GetPointColorRGB(0, 0, &picture);
    QCOMPARE(picture.pixelColor(0, 0), QColor(26, 255, 0));
    renderer.GetRGBValue(system, 0.015, 0.05, 0.0);
    renderer.GetPointColorRGB(0, 0, &picture);
    QCOMPARE(picture.pixelColor(0, 0), QColor(76, 255, 0));
}

void HorseshoeFillTest::channelsAreOverwrittenByTheirValues()
{
    Renderer renderer(nullptr);
    QCOMPARE(colorOf(renderer, 0.3127, 0.3291), QColor(162, 238, 255));
    // Without new amounts the values 162, 238 and 255 are taken for amounts, and clamp to one each.
    QImage picture = transparentPicture(1, 1);
    renderer.GetPointColorRGB(0, 0, &picture);
    QCOMPARE(picture.pixelColor(0, 0), QColor(255, 255, 255));
}

void HorseshoeFillTest::onePixel()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    for (const QPoint &point : {QPoint(0, 0), QPoint(20, 30), QPoint(width - 1, height - 1), QPoint(31, 7)}) {
        QImage picture = transparentPicture();
        renderer.GetPointRGB(point.x(), point.y(), &picture);
        QImage expected = transparentPicture();
        expected.setPixelColor(point, expectedColor(point.x(), point.y()));
        QCOMPARE(reference::firstDifference(picture, expected), QString());

        renderer.GetPointRGB(point.x(), point.y(), 0.25, &picture);
        QColor color = expectedColor(point.x(), point.y());
        color.setAlpha(64);
        expected.setPixelColor(point, color);
        QCOMPARE(reference::firstDifference(picture, expected), QString());
    }
}

void HorseshoeFillTest::pixelOutsideTheImageIsIgnored()
{
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    const reference::QuietMessages quiet;
    QImage picture = transparentPicture();
    const QImage before = picture.copy();
    for (const QPoint &point : {QPoint(-1, 3), QPoint(3, -1), QPoint(width, 3), QPoint(3, height)}) {
        renderer.GetPointRGB(point.x(), point.y(), &picture);
        renderer.GetPointRGB(point.x(), point.y(), 0.5, &picture);
        renderer.GetPointColorRGB(point.x(), point.y(), &picture);
        renderer.GetPointColorRGB(point.x(), point.y(), 0.5, &picture);
    }
    QCOMPARE(reference::firstDifference(picture, before), QString());
}

void HorseshoeFillTest::alphaFormWritesTruncatedAlpha_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("alpha");
    QTest::newRow("nothing") << 0.0 << 0;
    QTest::newRow("quarter") << 0.25 << 64;
    QTest::newRow("half") << 0.5 << 128;
    QTest::newRow("truncated") << 0.999 << 255;
    QTest::newRow("truncated toward zero") << -0.003 << 0;
}

void HorseshoeFillTest::alphaFormWritesTruncatedAlpha()
{
    QFETCH(double, factor);
    Renderer renderer(nullptr);
    QImage picture = transparentPicture(1, 1);
    renderer.GetRGBValue(colorSystem(), 0.3127, 0.3291, 1 - 0.3127 - 0.3291);
    renderer.GetPointColorRGB(0, 0, factor, &picture);
    QTEST(picture.pixelColor(0, 0).alpha(), "alpha");
    QCOMPARE(picture.pixelColor(0, 0).red(), 162);
    QCOMPARE(picture.pixelColor(0, 0).green(), 238);
    QCOMPARE(picture.pixelColor(0, 0).blue(), 255);
}

void HorseshoeFillTest::alphaOutOfRangeLeavesThePixel_data()
{
    QTest::addColumn<double>("factor");
    QTest::newRow("one") << 1.0;
    QTest::newRow("above one") << 1.5;
    QTest::newRow("negative") << -0.25;
}

void HorseshoeFillTest::alphaOutOfRangeLeavesThePixel()
{
    QFETCH(double, factor);
    Renderer renderer(nullptr);
    drawOnce(renderer, width, height);
    const reference::QuietMessages quiet;
    QImage picture = transparentPicture();
    picture.fill(0x80123456);
    const QImage before = picture.copy();
    renderer.GetPointRGB(20, 20, factor, &picture);
    renderer.GetRGBValue(colorSystem(), 0.3127, 0.3291, 1 - 0.3127 - 0.3291);
    renderer.GetPointColorRGB(0, 0, factor, &picture);
    QCOMPARE(reference::firstDifference(picture, before), QString());
}

CEIECHART_PICTURE_TEST_MAIN(HorseshoeFillTest)

#include "horseshoefilltest.moc"
