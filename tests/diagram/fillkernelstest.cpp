// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/horseshoefill_p.h>
#include <reference/plainrenderer.h>
#include <supportedfillkernels.h>

#include <QColor>
#include <QImage>
#include <QtTest>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

/*! The fast fill against the plain one: the same bytes, by every kernel, for every size. */
class FillKernelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sameBytesForEverySize();
    void sameBytesBetweenRowBounds();
    void sameBytesInOtherFormats();
    void sameBytesForOtherColorSystems_data();
    void sameBytesForOtherColorSystems();
    void errorsStayWithinTheMargin();
    void mostPixelsAreDecidedAtOnce();
    void nothingToFill();

private:
    static std::vector<QSize> sizes();
};

namespace {

const CEIAtlasValue::TColorSystem atlasColors = CEIAtlasValue().colorSystem;

struct Diagram {
    reference::Mapping mapping;
    ceiechart::DiagramGeometry geometry;
};

Diagram diagramOf(int width, int height)
{
    Diagram diagram;
    diagram.mapping.setPicture(width, height);
    diagram.geometry.set(diagram.mapping.plot, diagram.mapping.chroma);
    return diagram;
}

// Fills copies of a picture plainly and by every kernel; says where they differ.
QString compare(const QImage &picture, const CEIAtlasValue::TColorSystem &colors, double gamma)
{
    const Diagram diagram = diagramOf(picture.width(), picture.height());
    QImage expected = picture;
    reference::fillPlain(expected, picture.width(), picture.height(), diagram.mapping, colors, gamma);
    for (const ceiechart::FillKernel *kernel : supportedFillKernels()) {
        QImage actual = picture;
        ceiechart::fillHorseshoe(actual, picture.width(), picture.height(), {diagram.geometry, colors, gamma}, *kernel);
        for (int y = 0; y < picture.height(); ++y) {
            if (std::memcmp(actual.constScanLine(y), expected.constScanLine(y), std::size_t(picture.width()) * 4)) {
                return QStringLiteral("%1, row %2 of %3 x %4")
                    .arg(QLatin1String(kernel->name))
                    .arg(y)
                    .arg(picture.width())
                    .arg(picture.height());
            }
        }
    }
    return QString();
}

QImage filled(const QSize &size, const QColor &color, QImage::Format format = QImage::Format_ARGB32)
{
    QImage picture(size, format);
    picture.fill(color);
    return picture;
}

} // namespace

std::vector<QSize> FillKernelsTest::sizes()
{
    std::vector<QSize> sizes;
    for (int w = 1; w <= 40; ++w) {
        sizes.emplace_back(w, 7);
        sizes.emplace_back(5, w);
    }
    for (const int prime : {53, 61, 67, 71, 97, 101, 127, 131, 191, 193, 251, 257, 383, 389, 509, 521}) {
        sizes.emplace_back(prime, 31);
        sizes.emplace_back(17, prime);
        sizes.emplace_back(prime, prime);
    }
    for (const int power : {64, 128, 256, 512, 1024, 2048, 4096, 8192}) {
        sizes.emplace_back(power, 5);
        sizes.emplace_back(power - 1, 3);
        sizes.emplace_back(power + 1, 3);
        sizes.emplace_back(2, power);
        sizes.emplace_back(1, power);
    }
    for (int n = 100; n < 140; ++n) {
        sizes.emplace_back(n, n / 2);
    }
    sizes.emplace_back(800, 800);
    sizes.emplace_back(8192, 64);
    return sizes;
}

void FillKernelsTest::sameBytesForEverySize()
{
    QVERIFY(sizes().size() >= 200);
    for (const QSize &size : sizes()) {
        const QString difference = compare(filled(size, QColor(23, 23, 26)), atlasColors, 1.0);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }
}

void FillKernelsTest::sameBytesBetweenRowBounds()
{
    std::mt19937 random(20);
    for (int i = 0; i < 60; ++i) {
        const QSize size(1 + int(random() % 300), 1 + int(random() % 60));
        QImage picture = filled(size, QColor(0, 200, 77));
        for (int y = 0; y < size.height(); ++y) {
            // Red at up to three places of the row, some of them translucent.
            for (unsigned n = random() % 4; n > 0; --n) {
                const QRgb mark = random() % 3 == 0 ? qRgba(1, 0, 0, 40) : qRgba(255, 9, 9, 255);
                picture.setPixel(int(random() % unsigned(size.width())), y, mark);
            }
        }
        const QString difference = compare(picture, atlasColors, 1.0);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }
}

void FillKernelsTest::sameBytesInOtherFormats()
{
    for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied,
             QImage::Format_RGBA8888, QImage::Format_RGBX8888, QImage::Format_BGR30}) {
        const QString difference = compare(filled(QSize(130, 40), QColor(90, 1, 2), format), atlasColors, 1.0);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }
}

void FillKernelsTest::sameBytesForOtherColorSystems_data()
{
    QTest::addColumn<QVector<float>>("primaries");
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    QTest::newRow("u'v'") << QVector<float>{0.5222F, 0.5222F, 0.0111F, 0.7888F, 0.1888F, 0.1555F};
    QTest::newRow("narrow") << QVector<float>{0.33F, 0.33F, 0.34F, 0.33F, 0.33F, 0.34F};
    QTest::newRow("nearly a line") << QVector<float>{0.1F, 0.1F, 0.5F, 0.5F, 0.3F, 0.300001F};
    QTest::newRow("a line") << QVector<float>{0.25F, 0.25F, 0.5F, 0.5F, 0.375F, 0.375F};
    QTest::newRow("one point") << QVector<float>{0.3F, 0.3F, 0.3F, 0.3F, 0.3F, 0.3F};
    QTest::newRow("all zero") << QVector<float>{0, 0, 0, 0, 0, 0};
    QTest::newRow("inverted") << QVector<float>{0.15F, 0.065F, 0.275F, 0.605F, 0.625F, 0.34F};
    QTest::newRow("huge") << QVector<float>{1e6F, 1e6F, -1e6F, 1e6F, 0, -1e6F};
    QTest::newRow("NaN") << QVector<float>{nan, 0.34F, 0.275F, 0.605F, 0.15F, 0.065F};
    QTest::newRow("infinite") << QVector<float>{infinity, 0.34F, 0.275F, 0.605F, 0.15F, 0.065F};
}

void FillKernelsTest::sameBytesForOtherColorSystems()
{
    QFETCH(QVector<float>, primaries);
    const CEIAtlasValue::TColorSystem colors{
        primaries[0], primaries[1], primaries[2], primaries[3], primaries[4], primaries[5], 0, 0};
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QString difference = compare(filled(QSize(211, 173), QColor(23, 23, 26)), colors, 1.0)
        + compare(filled(QSize(64, 64), QColor(23, 23, 26)), colors, 2.2);
    qInstallMessageHandler(nullptr);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void FillKernelsTest::errorsStayWithinTheMargin()
{
    // Without a margin a kernel errs; wherever it does, the exact channel lies within the margin of a boundary.
    constexpr int length = 64;
    std::mt19937 random(7);
    std::uniform_real_distribution<double> amount(0.0, 1.0);
    const auto share = [&] {
        const double a = amount(random);
        const double b = amount(random);
        const double c = amount(random);
        return std::array<double, 3>{a / (a + b + c), b / (a + b + c), c / (a + b + c)};
    };
    long errors = 0;
    double worst = 0.0;
    for (int i = 0; i < 40000; ++i) {
        const std::array<double, 3> from = share();
        const std::array<double, 3> to = share();
        const auto largest = std::max_element(from.begin(), from.end());
        if (std::max_element(to.begin(), to.end()) - to.begin() != largest - from.begin()) {
            continue;
        }
        ceiechart::PixelRun run{};
        double steps[3];
        for (std::size_t c = 0; c < 3; ++c) {
            steps[c] = (to[c] - from[c]) / (length - 1);
            run.amounts[c] = float(from[c]);
            run.steps[c] = float(steps[c]);
        }
        run.largest = int(largest - from.begin());
        const auto [least, most] = std::minmax(*largest, to[std::size_t(run.largest)]);
        const double margin = std::ldexp(ceiechart::decisionMargin(most / least), -ceiechart::PixelRun::fractionBits);
        for (const ceiechart::FillKernel *kernel : supportedFillKernels()) {
            QRgb colors[length];
            int undecided[length];
            QCOMPARE(kernel->decide(run, length, colors, undecided), 0);
            for (int k = 0; k < length; ++k) {
                const ceiechart::Channels exact = ceiechart::fullBrightness(
                    {from[0] + k * steps[0], from[1] + k * steps[1], from[2] + k * steps[2]}, 1.0);
                const std::pair<double, int> channels[]
                    = {{exact.red, qRed(colors[k])}, {exact.green, qGreen(colors[k])}, {exact.blue, qBlue(colors[k])}};
                for (const auto &[channel, found] : channels) {
                    if (ceiechart::rounded(channel) != found) {
                        const double distance = std::fabs(channel + 0.5 - std::round(channel + 0.5));
                        worst = std::max(worst, distance / margin);
                        ++errors;
                    }
                }
            }
        }
    }
    QVERIFY(errors > 0);
    QVERIFY2(worst < 1.0, qPrintable(QString::number(worst)));
}

void FillKernelsTest::mostPixelsAreDecidedAtOnce()
{
    // Counted by a kernel that hands on to another.
    static const ceiechart::FillKernel *kernel;
    static long undecidedPixels;
    kernel = supportedFillKernels().front();
    undecidedPixels = 0;
    const ceiechart::FillKernel counting{
        "counting", kernel->supported, [](const ceiechart::PixelRun &run, int count, unsigned *colors, int *undecided) {
            const int found = kernel->decide(run, count, colors, undecided);
            undecidedPixels += found;
            return found;
        }};
    QImage picture = filled(QSize(800, 800), QColor(23, 23, 26));
    ceiechart::fillHorseshoe(picture, 800, 800, {diagramOf(800, 800).geometry, atlasColors, 1.0}, counting);
    QVERIFY(undecidedPixels > 0);
    QVERIFY2(undecidedPixels < 800 * 800 / 400, qPrintable(QString::number(undecidedPixels)));
}

void FillKernelsTest::nothingToFill()
{
    const Diagram diagram = diagramOf(10, 10);
    QImage none;
    ceiechart::fillHorseshoe(none, 10, 10, {diagram.geometry, atlasColors, 1.0});
    QVERIFY(none.isNull());

    QImage picture = filled(QSize(10, 10), QColor(23, 23, 26));
    const QImage before = picture;
    ceiechart::fillHorseshoe(picture, 0, 10, {diagram.geometry, atlasColors, 1.0});
    ceiechart::fillHorseshoe(picture, 10, -1, {diagram.geometry, atlasColors, 1.0});
    QVERIFY(picture == before);
}

QTEST_APPLESS_MAIN(FillKernelsTest)

#include "fillkernelstest.moc"
