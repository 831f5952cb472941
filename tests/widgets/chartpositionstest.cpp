// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "hostcharts.h"
#include <reference/picturedifference.h>

#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/scene/targetscene.h>

#include <gamutmodel/diagram.h>

#include <QMouseEvent>
#include <QTest>

#include <limits>

using namespace hostcharts;

class ChartPositionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roundTrip_data() { charts(); }
    void roundTrip();
    void nothingWithoutAPicture_data() { charts(); }
    void nothingWithoutAPicture();
    void gamutsAreWhereTheyAreSaidToBe();
    void measurementsAreWhereTheyAreSaidToBe();
    void stretchedPicture();
    void imageOfALegacyChartHasTheHandles();
    void imageChangesNothing();
    void pixelsOfTheScreen_data() { charts(); }
    void pixelsOfTheScreen();
    void moreDetailAndTheSameLook_data();
    void moreDetailAndTheSameLook();

private:
    static void charts();
};

namespace {

std::unique_ptr<ceiechart::ChartFrame> made(const QString &kind, bool withGamuts, const QSize &size)
{
    if (kind == QLatin1String("current")) {
        auto chart = currentChart();
        if (!size.isEmpty()) {
            chart->setImageSize(size);
        }
        if (withGamuts) {
            setGamuts(*chart);
        }
        return chart;
    }
    auto chart = legacyChart(kind == QLatin1String("u', v'") ? DrawCEIPicture::UvDiagram : DrawCEIPicture::XyDiagram);
    if (!size.isEmpty()) {
        chart->setImageSize(size);
    }
    if (withGamuts) {
        setGamuts(*chart);
    }
    return chart;
}

double distance(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length();
}

} // namespace

void ChartPositionsTest::charts()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"current", "x, y", "u', v'"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

void ChartPositionsTest::roundTrip()
{
    QFETCH(QString, kind);
    const auto chart = made(kind, true, QSize(500, 540));
    chart->resize(900, 900);
    chart->show();
    settle();
    for (double x = 0.05; x < 0.75; x += 0.07) {
        for (double y = 0.02; y < 0.85; y += 0.09) {
            const QPointF xy(x, y);
            QVERIFY(distance(*chart->chromaticityInPicture(*chart->picturePosition(xy)), xy) < 1e-12);
            QVERIFY(distance(*chart->chromaticityInView(*chart->viewPosition(xy)), xy) < 1e-12);
        }
    }
}

void ChartPositionsTest::nothingWithoutAPicture()
{
    QFETCH(QString, kind);
    const QPointF xy(0.3, 0.3);
    const auto chart = made(kind, false, QSize());
    const auto nothing = [&] {
        return !chart->picturePosition(xy) && !chart->chromaticityInPicture(xy) && !chart->viewPosition(xy)
            && !chart->chromaticityInView(xy);
    };
    QVERIFY(nothing());
    QVERIFY(chart->toImage().isNull());
    for (const QSize &size : {QSize(0, 100), QSize(1, 100), QSize(100, 1), QSize(-5, -5)}) {
        chart->setImageSize(size);
        QVERIFY(nothing());
    }
    chart->setImageSize(QSize(100, 100));
    QVERIFY(!nothing());
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QPointF &impossible : {QPointF(infinite, 0), QPointF(0, nan), QPointF(-infinite, infinite)}) {
        QVERIFY(!chart->picturePosition(impossible) && !chart->chromaticityInPicture(impossible));
        QVERIFY(!chart->viewPosition(impossible) && !chart->chromaticityInView(impossible));
    }
}

// The marks of the target are discs about its primaries.
void ChartPositionsTest::gamutsAreWhereTheyAreSaidToBe()
{
    const auto chart = currentChart();
    chart->setImageSize(QSize(672, 728));
    setGamuts(*chart);
    chart->resize(700, 800);
    chart->show();
    settle();
    const QImage picture = chart->toImage();
    const QImage view = chart->view()->viewport()->grab().toImage();
    const double ratio = view.devicePixelRatio();
    const Model::Targets targets = Model::rec709().getTargets();
    const QList<QPair<Model::Target, QColor>> marks
        = {{targets.red, Qt::red}, {targets.green, QColor(0, 255, 0)}, {targets.blue, Qt::blue}};
    for (const auto &[target, color] : marks) {
        const QPointF xy(target.x, target.y);
        for (const QPoint &offset : {QPoint(0, 0), QPoint(5, 0), QPoint(-5, 0), QPoint(0, 5), QPoint(0, -5)}) {
            QCOMPARE(picture.pixelColor(chart->picturePosition(xy)->toPoint() + offset), color);
            const QPointF inView = (*chart->viewPosition(xy) + offset) * ratio;
            QCOMPARE(view.pixelColor(inView.toPoint()), color);
        }
    }
}

void ChartPositionsTest::measurementsAreWhereTheyAreSaidToBe()
{
    const auto chart = legacyChart(DrawCEIPicture::UvDiagram);
    const QPointF xy(0.3127, 0.3290);
    double u = 0;
    double v = 0;
    Model::uvFromXy(xy.x(), xy.y(), u, v);
    chart->setMeasureValuePoints({QPointF(u, v)});
    chart->setImageSize(QSize(640, 600));
    // The dot is centred on a whole pixel.
    const QPointF position = *chart->picturePosition(xy);
    QCOMPARE(chart->toImage().pixelColor(int(position.x()), int(position.y())), QColor(Qt::black));
}

// The scene always has the same size and shows a picture of another one stretched.
void ChartPositionsTest::stretchedPicture()
{
    const auto chart = currentChart();
    chart->setImageSize(QSize(400, 900));
    setGamuts(*chart);
    chart->resize(1000, 1100);
    chart->show();
    settle();
    const QImage view = chart->view()->viewport()->grab().toImage();
    const Model::Target green = Model::rec709().getTargets().green;
    const QPointF at = *chart->viewPosition(QPointF(green.x, green.y)) * view.devicePixelRatio();
    QCOMPARE(view.pixelColor(at.toPoint()), QColor(0, 255, 0));
    QVERIFY(distance(at, *chart->picturePosition(QPointF(green.x, green.y)) * view.devicePixelRatio()) > 20);
}

void ChartPositionsTest::imageOfALegacyChartHasTheHandles()
{
    const auto chart = legacyChart(DrawCEIPicture::XyDiagram);
    chart->setImageSize(QSize(640, 640));
    const QImage bare = chart->toImage();
    setGamuts(*chart);
    chart->setOtherPoints({QPointF(0.2, 0.6)}, {QColor(1, 200, 3)});
    const QImage image = chart->toImage();
    QCOMPARE(image.size(), QSize(640, 640));
    for (const Model::Target &target : {Model::rec709().getTargets().red, Model::rec709().getTargets().white}) {
        const QRect area(chart->picturePosition(QPointF(target.x, target.y))->toPoint() - QPoint(8, 8), QSize(17, 17));
        QVERIFY(image.copy(area) != bare.copy(area));
    }
    QCOMPARE(image.pixelColor(chart->picturePosition(QPointF(0.2, 0.6))->toPoint()), QColor(1, 200, 3));
}

void ChartPositionsTest::imageChangesNothing()
{
    const auto chart = legacyChart(DrawCEIPicture::XyDiagram);
    chart->setImageSize(QSize(640, 640));
    setGamuts(*chart);
    chart->setDrawColorTPoint(true); // painting resets the white point
    auto *scene = static_cast<ceiechart::TargetScene *>(chart->view()->scene());
    int reports = 0;
    connect(chart.get(), &Legacy::signal_colorTempertrueValueChang, chart.get(), [&reports] { ++reports; });
    const QImage first = chart->toImage();
    QCOMPARE(chart->toImage(), first);
    QCOMPARE(reports, 0);
    QVERIFY(scene->getLsColorTriangleObject()[1].trianglePoint().whitePos() != QPointF(0, 0));
    chart->resize(700, 700);
    chart->show();
    settle();
    QVERIFY(reports > 0);
    QCOMPARE(scene->getLsColorTriangleObject()[1].trianglePoint().whitePos(), QPointF(0, 0));
}

void ChartPositionsTest::pixelsOfTheScreen()
{
    QFETCH(QString, kind);
    const auto chart = made(kind, true, QSize(300, 320));
    chart->resize(400, 400);
    chart->show();
    settle();
    const double ratio = chart->devicePixelRatioF();
    QVERIFY(!chart->isDevicePixelRatioFollowed());
    const QImage before = chart->toImage();
    QCOMPARE(before.size(), QSize(300, 320));
    QCOMPARE(before.devicePixelRatio(), 1.0);
    const QPointF position = *chart->picturePosition(QPointF(0.3, 0.4));

    chart->setDevicePixelRatioFollowed(true);
    settle();
    const QImage followed = chart->toImage();
    QCOMPARE(followed.size(), QSize(300, 320) * ratio);
    QCOMPARE(followed.devicePixelRatio(), ratio);
    QCOMPARE(followed == before, ratio == 1.0);
    QCOMPARE(*chart->picturePosition(QPointF(0.3, 0.4)), position);
    // The scene of the host has been changed by nothing but the picture.
    auto *scene = static_cast<ceiechart::TargetScene *>(chart->findChild<QGraphicsView *>()->scene());
    QCOMPARE(QSize(scene->imageWidth(), scene->imageHeight()), QSize(300, 320));

    // As if the chart were moved to another screen.
    scene->setPixelRatio(3.0);
    QCOMPARE(chart->toImage().size(), QSize(900, 960));
    chart->findChild<QGraphicsView *>()->viewport()->repaint();
    QCOMPARE(chart->toImage(), followed);

    chart->setDevicePixelRatioFollowed(false);
    QCOMPARE(chart->toImage(), before);
    scene->setPixelRatio(2.0);
    chart->findChild<QGraphicsView *>()->viewport()->repaint();
    QCOMPARE(chart->toImage().devicePixelRatio(), 2.0);
}

void ChartPositionsTest::moreDetailAndTheSameLook_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<bool>("light");
    for (const char *kind : {"current", "x, y", "u', v'"}) {
        for (const double ratio : {1.25, 1.5, 2.0, 3.0}) {
            for (const bool light : {false, true}) {
                QTest::newRow(qPrintable(QStringLiteral("%1, %2%3")
                                             .arg(QLatin1String(kind))
                                             .arg(ratio)
                                             .arg(QLatin1String(light ? ", light" : ""))))
                    << QString::fromLatin1(kind) << ratio << light;
            }
        }
    }
}

// Reduced to the size of the usual picture it looks the same: lines and text have not become thinner or smaller.
void ChartPositionsTest::moreDetailAndTheSameLook()
{
    QFETCH(QString, kind);
    QFETCH(double, ratio);
    QFETCH(bool, light);
    const QSize size(501, 523);
    const auto chart = made(kind, true, size);
    chart->setLightPicture(light);
    const QImage usual = chart->toImage().convertToFormat(QImage::Format_RGB32);
    auto *scene = static_cast<ceiechart::TargetScene *>(chart->findChild<QGraphicsView *>()->scene());
    scene->setPixelRatio(ratio);
    const QImage detailed = chart->toImage();
    QCOMPARE(detailed.size(), QSize(qRound(501 * ratio), qRound(523 * ratio)));
    // The ground reaches the last row and column, opaque.
    const QColor corner = detailed.pixelColor(detailed.width() - 1, detailed.height() - 1);
    QCOMPARE(corner.alpha(), 255);
    QVERIFY(qAbs(corner.red() - usual.pixelColor(500, 522).red()) <= 1);
    QVERIFY(qAbs(corner.blue() - usual.pixelColor(500, 522).blue()) <= 1);

    const QImage reduced
        = detailed.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
    qint64 sum = 0;
    int strong = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb a = usual.pixel(x, y);
            const QRgb b = reduced.pixel(x, y);
            const int difference = qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b));
            sum += difference;
            strong += difference > 200;
        }
    }
    const double mean = double(sum) / (size.width() * size.height());
    QVERIFY2(mean < 7.0, qPrintable(QString::number(mean)));
    QVERIFY2(strong < size.width() * size.height() / 50, qPrintable(QString::number(strong)));
}

QTEST_MAIN(ChartPositionsTest)
#include "chartpositionstest.moc"
