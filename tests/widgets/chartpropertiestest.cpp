// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "hostcharts.h"

#include <ceiechart/scene/targetscene.h>

#include <QGraphicsScene>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>

using namespace hostcharts;

class ChartPropertiesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void getters_data();
    void getters();
    void pointsMessageAndStandards();
    void diagramOfALegacyChart();
    void colors();
    void threads_data() { charts(); }
    void threads();
    void gettersOfADeletedScene_data() { charts(); }
    void gettersOfADeletedScene();
    void oneRenderingPerSize();
    void propertiesAreReadAndWritten_data();
    void propertiesAreReadAndWritten();
    void styleSheet_data() { charts(); }
    void styleSheet();

private:
    static void charts();
};

namespace {

std::unique_ptr<QWidget> made(const QString &kind)
{
    if (kind == QLatin1String("current")) {
        return currentChart();
    }
    return legacyChart(kind == QLatin1String("u', v'") ? DrawCEIPicture::UvDiagram : DrawCEIPicture::XyDiagram);
}

} // namespace

void ChartPropertiesTest::charts()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"current", "x, y", "u', v'"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

void ChartPropertiesTest::getters_data()
{
    QTest::addColumn<bool>("on");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

template <class Chart>
static void verifyEditSwitches(Chart &chart, bool on)
{
    QVERIFY(!chart.isColorTempertureChecked());
    QVERIFY(chart.isRGBPointEnable());
    QVERIFY(chart.isUseMouseOpertator());
    chart.setColorTempertureChecked(on);
    chart.setRGBPointEnable(!on);
    QCOMPARE(chart.isColorTempertureChecked(), on);
    QCOMPARE(chart.isRGBPointEnable(), !on);
    QVERIFY(chart.isUseMouseOpertator());
    chart.setUseMouseOpertator(on);
    QCOMPARE(chart.isUseMouseOpertator(), on);
    QCOMPARE(chart.legendAlignament(), Qt::Alignment(Qt::AlignBottom));
    for (const Qt::Alignment alignment : {Qt::Alignment(Qt::AlignLeft), Qt::AlignLeft | Qt::AlignTop}) {
        chart.setLegendAlignament(alignment);
        QCOMPARE(chart.legendAlignament(), alignment);
        QCOMPARE(chart.getLegend()->legendAlignament(), alignment);
    }
}

void ChartPropertiesTest::getters()
{
    QFETCH(bool, on);
    const auto chart = currentChart();
    const auto legacy = legacyChart(DrawCEIPicture::XyDiagram);
    verifyEditSwitches(*chart, on);
    verifyEditSwitches(*legacy, on);
    QCOMPARE(Current(true, Qt::AlignRight, nullptr).legendAlignament(), Qt::Alignment(Qt::AlignRight));

    QVERIFY(chart->isShowStandard() && chart->isShowTarget() && chart->isShowOriginal() && chart->isShowActual()
        && chart->isShowMeasure());
    chart->setIsShowStandard(on);
    QVERIFY(chart->isShowStandard() == on && chart->isShowTarget());
    chart->setIsShowTarget(on);
    QVERIFY(chart->isShowTarget() == on && chart->isShowOriginal());
    chart->setIsShowOriginal(on);
    QVERIFY(chart->isShowOriginal() == on && chart->isShowActual());
    chart->setIsShowActual(on);
    QVERIFY(chart->isShowActual() == on && chart->isShowMeasure());
    chart->setIsShowMeasure(on);
    QCOMPARE(chart->isShowMeasure(), on);
}

void ChartPropertiesTest::pointsMessageAndStandards()
{
    const auto chart = currentChart();
    chart->setImageSize(QSize(300, 300));
    QVERIFY(chart->CMYPointData().isEmpty() && chart->message().isEmpty());
    QVERIFY(chart->lsStandardTriangleObject().isEmpty());
    const QList<QPointF> points = {QPointF(0.2, 0.3), QPointF(0.3, 0.15)};
    chart->setCMYPointData(points);
    QCOMPARE(chart->CMYPointData(), points);
    setGamuts(*chart);
    const QList<ColorTriangleObject> standards = chart->lsStandardTriangleObject();
    QCOMPARE(standards.size(), 2);
    const Model::Target green = Model::rec2020().getTargets().green;
    QCOMPARE(standards.at(0).trianglePoint().greenPos(), QPointF(green.x, green.y));
    QCOMPARE(standards.at(0).opacity(), 0.1);
    QCOMPARE(standards.at(1).opacity(), 0.05);
    chart->updateLanGamut(true, QStringLiteral("Measuring"));
    QCOMPARE(chart->message(), QStringLiteral("Measuring"));
    chart->updateLanGamut(true, QString());
    QVERIFY(chart->message().isEmpty());

    delete chart->view()->scene();
    QVERIFY(chart->CMYPointData().isEmpty());
    chart->updateLanGamut(true, QStringLiteral("Measuring"));
    QCOMPARE(chart->message(), QStringLiteral("Measuring"));
    QCOMPARE(chart->lsStandardTriangleObject().size(), 2);
}

void ChartPropertiesTest::diagramOfALegacyChart()
{
    QCOMPARE(legacyChart(DrawCEIPicture::XyDiagram)->diagramType(), DrawCEIPicture::XyDiagram);
    QCOMPARE(legacyChart(DrawCEIPicture::UvDiagram)->diagramType(), DrawCEIPicture::UvDiagram);
    QCOMPARE(legacyChart(static_cast<DrawCEIPicture::CEIEType>(2))->diagramType(), DrawCEIPicture::XyDiagram);
    QCOMPARE(Legacy(true, nullptr).diagramType(), DrawCEIPicture::XyDiagram);
}

void ChartPropertiesTest::colors()
{
    const auto chart = currentChart();
    QCOMPARE(chart->graphLineColor(), QColor(255, 255, 255));
    QCOMPARE(chart->graphPictureColor(), QColor(23, 23, 26));
    QCOMPARE(chart->backgroudColor(), QColor(23, 23, 26));
    chart->setBackgroudColor(QColor(1, 2, 3));
    QCOMPARE(chart->backgroudColor(), QColor(1, 2, 3));
    const auto legacy = legacyChart(DrawCEIPicture::UvDiagram);
    QCOMPARE(legacy->graphPictureColor(), QColor(0x32, 0x32, 0x38));
    chart->setGraphColor(Qt::red, QColor(4, 5, 6, 7));
    legacy->setGraphColor(Qt::red, QColor(4, 5, 6, 7));
    for (ceiechart::ChartFrame *frame :
        {static_cast<ceiechart::ChartFrame *>(chart.get()), static_cast<ceiechart::ChartFrame *>(legacy.get())}) {
        QCOMPARE(frame->graphLineColor(), QColor(Qt::red));
        QCOMPARE(frame->graphPictureColor(), QColor(4, 5, 6, 7));
    }

    // One colour alone is shown at once and leaves the inner view as it is.
    const auto other = currentChart();
    other->setImageSize(QSize(200, 200));
    setGamuts(*other);
    other->setGraphPictureColor(QColor(90, 0, 0));
    QCOMPARE(other->graphLineColor(), QColor(255, 255, 255));
    QCOMPARE(other->toImage().pixelColor(1, 1), QColor(90, 0, 0));
    const QImage white = other->toImage();
    other->setGraphLineColor(QColor(0, 255, 0));
    QCOMPARE(other->graphPictureColor(), QColor(90, 0, 0));
    QVERIFY(other->toImage() != white);
    QCOMPARE(other->view()->styleSheet(), QString());
}

void ChartPropertiesTest::threads()
{
    QFETCH(QString, kind);
    const std::unique_ptr<QWidget> widget = made(kind);
    auto *chart = dynamic_cast<ceiechart::ChartFrame *>(widget.get());
    const auto *scene = static_cast<ceiechart::TargetScene *>(widget->findChild<QGraphicsView *>()->scene());
    for (const auto &[set, count] : {std::pair(3, 3), std::pair(0, 1), std::pair(1000, 64)}) {
        chart->setThreadCount(set);
        QCOMPARE(chart->threadCount(), count);
        QCOMPARE(scene->threadCount(), count);
    }
    QVERIFY(chart->toImage().isNull()); // nothing has been rendered
    const QSize large(900, 700);
    chart->setImageSize(large);
    const QImage byThreads = chart->toImage();
    chart->setThreadCount(1);
    chart->setImageSize(large);
    QCOMPARE(byThreads.size(), large);
    QCOMPARE(chart->toImage(), byThreads);
}

void ChartPropertiesTest::gettersOfADeletedScene()
{
    QFETCH(QString, kind);
    const std::unique_ptr<QWidget> widget = made(kind);
    auto *chart = dynamic_cast<ceiechart::ChartFrame *>(widget.get());
    delete widget->findChild<QGraphicsView *>()->scene();
    chart->setImageSize(QSize(100, 100));
    QCOMPARE(chart->imageSize(), QSize(100, 100));
    chart->setGraphLineColor(Qt::red);
    chart->setGraphPictureColor(Qt::red);
    chart->setLightPicture(true);
    chart->setPaletteFollowed(true);
    chart->setDevicePixelRatioFollowed(true);
    chart->setThreadCount(3);
    QCOMPARE(chart->threadCount(), 1);
    QVERIFY(chart->isLightPicture() && chart->isPaletteFollowed() && chart->isDevicePixelRatioFollowed());
    QVERIFY(!chart->isColorTempertureChecked() && !chart->isRGBPointEnable() && !chart->isUseMouseOpertator());
    QVERIFY(!chart->graphLineColor().isValid() && !chart->graphPictureColor().isValid());
    QVERIFY(chart->toImage().isNull());
    QVERIFY(!chart->picturePosition(QPointF(0.3, 0.3)) && !chart->viewPosition(QPointF(0.3, 0.3)));
    QVERIFY(!chart->chromaticityInPicture(QPointF(50, 50)) && !chart->chromaticityInView(QPointF(50, 50)));
    widget->resize(300, 300);
    widget->show();
    settle();
}

// Each rendering multiplies the size by the zoom, which shows how often it has been done.
void ChartPropertiesTest::oneRenderingPerSize()
{
    const auto chart = currentChart();
    auto *scene = static_cast<ceiechart::TargetScene *>(chart->view()->scene());
    scene->setFunctionKeyMode(ceiechart::TargetScene::ZoomIn);
    scene->applyFunctionKey();
    chart->setGamutsKept(true);
    for (int turn = 0; turn < 2; ++turn) {
        chart->setImageSize(QSize(100, 200));
        QCOMPARE(QSize(scene->imageWidth(), scene->imageHeight()), QSize(110, 220));
        QCOMPARE(chart->imageSize(), QSize(100, 200));
        QCOMPARE(chart->view()->minimumSize(), QSize(102, 202));
        QCOMPARE(chart->view()->maximumSize(), QSize(102, 202));
        chart->updateLanGamut(true, QString());
        // To render again is no new size.
        chart->setLightPicture(turn == 0);
        QCOMPARE(QSize(scene->imageWidth(), scene->imageHeight()), QSize(110, 220));
    }

    const auto legacy = legacyChart(DrawCEIPicture::XyDiagram);
    QSignalSpy sizes(legacy->view()->scene(), &QGraphicsScene::sceneRectChanged);
    legacy->setImageSize(QSize(300, 200));
    QCOMPARE(sizes.count(), 1);
    QCOMPARE(legacy->view()->scene()->sceneRect(), QRectF(0, 0, 300, 200));
}

void ChartPropertiesTest::propertiesAreReadAndWritten_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("name");
    for (const char *kind : {"current", "x, y", "u', v'"}) {
        const std::unique_ptr<QWidget> chart = made(QString::fromLatin1(kind));
        const QMetaObject *meta = chart->metaObject();
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QByteArray name = meta->property(i).name();
            QTest::newRow(kind + QByteArray(" ") + name) << QString::fromLatin1(kind) << name;
        }
    }
}

void ChartPropertiesTest::propertiesAreReadAndWritten()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, name);
    const std::unique_ptr<QWidget> chart = made(kind);
    const QVariant before = chart->property(name);
    QVariant after;
    switch (int(before.userType())) {
    case QMetaType::Bool:
        after = !before.toBool();
        break;
    case QMetaType::Int:
        after = before.toInt() + 7;
        break;
    case QMetaType::QSize:
        after = QSize(321, 123);
        break;
    case QMetaType::QColor:
        after = QColor(1, 2, 3);
        break;
    default:
        QCOMPARE(name, QByteArray("legendAlignament"));
        after = QVariant::fromValue(Qt::Alignment(Qt::AlignRight));
    }
    QVERIFY(chart->setProperty(name, after));
    QCOMPARE(chart->property(name), after);
    QVERIFY(after != before);
    // Of the others nothing has changed but the two sides of the size.
    const std::unique_ptr<QWidget> untouched = made(kind);
    const QMetaObject *meta = chart->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const char *other = meta->property(i).name();
        if (name != other && !(name.startsWith("image") && QByteArray(other).startsWith("image"))) {
            QVERIFY2(chart->property(other) == untouched->property(other), other);
        }
    }
}

void ChartPropertiesTest::styleSheet()
{
    QFETCH(QString, kind);
    const std::unique_ptr<QWidget> chart = made(kind);
    const bool current = kind == QLatin1String("current");
    chart->setStyleSheet(QLatin1String(current ? "NewCEIE--CEIEGraphicsView" : "CEIEGraphicsView")
        + QStringLiteral("{ qproperty-imageSize: 240px 250px; qproperty-isDrawCoordinate: false;"
                         " qproperty-graphLineColor: #102030; qproperty-lightPicture: true;"
                         " qproperty-legendAlignament: AlignRight } ")
        + QLatin1String(current ? "NewCEIE--CEIELegend" : "CEIELegend")
        + QStringLiteral("{ qproperty-commonGamutVisible: false; qproperty-showTargetText: \"as set\" }"));
    chart->show();
    settle();
    auto *frame = dynamic_cast<ceiechart::ChartFrame *>(chart.get());
    QCOMPARE(frame->imageSize(), QSize(240, 250));
    QVERIFY(!frame->isDrawCoordinate());
    QCOMPARE(frame->graphLineColor(), QColor(0x10, 0x20, 0x30));
    QVERIFY(frame->isLightPicture());
    QCOMPARE(frame->legendAlignament(), Qt::Alignment(Qt::AlignRight));
    QCOMPARE(frame->toImage().size(), QSize(240, 250));
    const ceiechart::ChartLegend *legend = nullptr;
    if (current) {
        legend = static_cast<Current &>(*chart).getLegend();
    } else {
        legend = static_cast<Legacy &>(*chart).getLegend();
    }
    QVERIFY(!legend->isCommonGamutVisible() && legend->isTargetGamutVisible());
    QCOMPARE(legend->showTargetText(), QStringLiteral("as set"));
}

QTEST_MAIN(ChartPropertiesTest)
#include "chartpropertiestest.moc"
