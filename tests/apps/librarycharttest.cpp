// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/librarychart.h"
#include "drawing/documentcontent.h"
#include "expectedchart.h"
#include <gamutfiles/descriptionfile.h>

#include <ceiechart/diagram/chartstyle.h>
#include <reference/picturedifference.h>

#include <QtTest>

using namespace gamutviewer;
using ceiechart::DiagramContent;
using ceiechart::DiagramMark;
using ceiechart::GamutRole;

class LibraryChartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isWhatTheLibraryDraws_data();
    void isWhatTheLibraryDraws();
    void everyPartShows();
    void layersDoNotCount();
    void rolesHaveTheColoursOfTheChart();
    void measurePointsAreColouredByName();
    void commonAreaNeedsBothGamuts();
    void smallestPictures();

private:
    DiagramContent m_sample;
};

void LibraryChartTest::initTestCase()
{
    const auto description = readDescriptionFile(QStringLiteral(SAMPLE_FILE));
    QVERIFY2(description, qPrintable(description.problem().message(QStringLiteral(SAMPLE_FILE))));
    m_sample = documentContent(*description);
}

void LibraryChartTest::isWhatTheLibraryDraws_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(800, 800), QSize(801, 799), QSize(640, 360), QSize(101, 300), QSize(49, 50)}) {
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
    }
}

void LibraryChartTest::isWhatTheLibraryDraws()
{
    QFETCH(QSize, size);
    QCOMPARE(reference::firstDifference(libraryChart(m_sample, size), expectedchart::draw(size)), QString());
}

void LibraryChartTest::everyPartShows()
{
    const QSize size(400, 400);
    const QImage whole = libraryChart(m_sample, size);
    for (int i = 0; i < m_sample.gamuts.size(); ++i) {
        DiagramContent content = m_sample;
        content.gamuts.removeAt(i);
        QVERIFY2(libraryChart(content, size) != whole, qPrintable(QString::number(i)));
    }
    for (auto list :
        {&DiagramContent::measurePoints, &DiagramContent::colorTemperaturePoints, &DiagramContent::cmyPoints}) {
        DiagramContent content = m_sample;
        (content.*list).removeLast();
        QVERIFY(libraryChart(content, size) != whole);
    }
    DiagramContent declared = m_sample;
    declared.gamuts.append({Model::rec709(), GamutRole::Declared});
    QVERIFY(libraryChart(declared, size) != whole);
}

void LibraryChartTest::layersDoNotCount()
{
    const QSize size(300, 300);
    DiagramContent content = m_sample;
    content.layers = {};
    content.gamuts[0].visible = false;
    QCOMPARE(reference::firstDifference(libraryChart(content, size), libraryChart(m_sample, size)), QString());
}

void LibraryChartTest::rolesHaveTheColoursOfTheChart()
{
    const auto count = [](const QVector<GamutRole> &roles, const QColor &color) {
        DiagramContent content;
        for (const GamutRole role : roles) {
            content.gamuts.append({role == roles.first() ? Model::rec709() : Model::rec2020(), role});
        }
        const QImage picture = libraryChart(content, QSize(800, 800));
        int found = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                found += picture.pixelColor(x, y) == color;
            }
        }
        return found;
    };
    constexpr int aLine = 100; // pixels, at least, of an outline's middle
    QVERIFY(count({GamutRole::Target}, QColor(255, 163, 56)) > aLine);
    QVERIFY(count({GamutRole::Original}, QColor(22, 241, 255)) > aLine);
    QCOMPARE(count({GamutRole::Original}, QColor(13, 189, 73)), 0);
    QVERIFY(count({GamutRole::Original, GamutRole::Measured}, QColor(13, 189, 73)) > aLine);
    QCOMPARE(count({GamutRole::Original, GamutRole::Measured}, QColor(22, 241, 255)), 0);
    QVERIFY(count({GamutRole::Measured}, QColor(27, 241, 255)) > aLine);
    QVERIFY(count({GamutRole::Declared}, ceiechart::gamutStyle(GamutRole::Declared).color) > aLine);
}

void LibraryChartTest::measurePointsAreColouredByName()
{
    const QVector<QPair<QString, QColor>> points{{"skin", Qt::black}, {"B", Qt::blue}, {"Green", Qt::green},
        {" red ", Qt::red}, {"white", Qt::white}, {"", Qt::black}, {"green", Qt::black}, {"W", Qt::black}};
    DiagramContent content;
    for (int i = 0; i < points.size(); ++i) {
        content.measurePoints.append({QPointF(0.05 + 0.08 * i, 0.85), points.at(i).first});
    }
    const QSize size(800, 800);
    const QImage picture = libraryChart(content, size);
    const auto geometry = ceiechart::chartGeometry(ceiechart::ChartKind::CurrentXy, size.width(), size.height());
    for (int i = 0; i < points.size(); ++i) {
        const QPoint pixel = geometry.toPixel(content.measurePoints.at(i).xy).toPoint();
        QCOMPARE(picture.pixelColor(pixel), points.at(i).second);
    }
    // And there are no others.
    content.measurePoints.clear();
    QCOMPARE(picture.pixelColor(0, 0), libraryChart(content, size).pixelColor(0, 0));
}

void LibraryChartTest::commonAreaNeedsBothGamuts()
{
    const auto brightPixels = [this](const QVector<GamutRole> &roles) {
        DiagramContent content;
        for (const GamutRole role : roles) {
            content.gamuts.append(*m_sample.find(role));
        }
        const QImage picture = libraryChart(content, QSize(400, 400));
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                count += color.hsvSaturation() > 60 && color.value() > 100;
            }
        }
        return count;
    };
    // The common area takes up some 0.10 square units of chromaticity, 0.84 x 0.94 of which are 360 x 360 pixels;
    // outlines are at most 2 x 3 x 360 pixels each.
    QVERIFY(brightPixels({GamutRole::Target, GamutRole::Original}) > 10000);
    QVERIFY(brightPixels({GamutRole::Target}) < 2200);
    QVERIFY(brightPixels({GamutRole::Original}) < 2200);
}

void LibraryChartTest::smallestPictures()
{
    for (const QSize &size : {QSize(1, 1), QSize(1, 200), QSize(200, 1), QSize(2, 2)}) {
        const QImage picture = libraryChart(m_sample, size);
        QCOMPARE(picture.size(), size);
        QCOMPARE(picture.format(), QImage::Format_ARGB32);
    }
}

QTEST_MAIN(LibraryChartTest)
#include "librarycharttest.moc"
