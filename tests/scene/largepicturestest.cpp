// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/render/diagramrenderer_p.h>
#include <ceiechart/render/picture_p.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/scene/targetscene_p.h>

#include <reference/picturedifference.h>
#include <reference/samplegamuts.h>

#include <QtTest>

#include <functional>
#include <memory>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <unistd.h>
#endif

using ceiechart::TargetScene;

namespace {

constexpr int largeWidth = 3001; // with a height of 2900 more than 32 MiB

std::unique_ptr<TargetScene> sceneOf(bool isLegacy, int width = largeWidth)
{
    std::unique_ptr<TargetScene> scene;
    if (isLegacy) {
        scene = std::make_unique<CEIEGraphicsScene>(DrawCEIPicture::XyDiagram, reference::gamutPair());
    } else {
        scene = std::make_unique<NewCEIE::CEIEGraphicsScene>(reference::gamutPair());
    }
    scene->setImageHeight(2900);
    scene->setImageWidth(width);
    return scene;
}

#ifdef Q_OS_UNIX
//! How often the system has provided a page of memory.
long pageFaults()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt;
}
#endif

void showGamuts(TargetScene &scene)
{
    const QList<ColorTriangleObject> gamuts = reference::gamutPair();
    static_cast<NewCEIE::CEIEGraphicsScene &>(scene).setLsColorTriangleObject(
        gamuts, {}, gamuts[0].trianglePoint(), gamuts[1].trianglePoint(), false, QString());
}

} // namespace

using Action = std::function<void(TargetScene &scene)>;
Q_DECLARE_METATYPE(Action)

/*! The memory of a large picture, which the next one takes instead of having the system clear new one. */
class LargePicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nextPictureTakesTheMemory_data();
    void nextPictureTakesTheMemory();
    void memoryIsGivenAndTaken_data();
    void memoryIsGivenAndTaken();
    void pictureOfAHostStays();
    void otherSizesHaveMemoryOfTheirOwn();
    void smallPicturesAreNotGiven();

private:
    static const QImage &picture(const TargetScene &scene) { return scene.d->picture.m_image; }
};

void LargePicturesTest::nextPictureTakesTheMemory_data()
{
    QTest::addColumn<bool>("isLegacy");
    QTest::addColumn<Action>("action");
    const Action axes = [](TargetScene &scene) { scene.setIsDrawCoordinate(false); };
    const Action ground = [](TargetScene &scene) {
        scene.setGraphColor(Qt::white, QColor(200, 100, 50, 90));
        scene.setIsDrawCoordinate(true);
    };
    QTest::newRow("another layer") << false << axes;
    QTest::newRow("another layer, legacy") << true << axes;
    QTest::newRow("translucent ground") << false << ground;
    QTest::newRow("translucent ground, legacy") << true << ground;
    QTest::newRow("gamuts") << false << Action(showGamuts);
}

void LargePicturesTest::nextPictureTakesTheMemory()
{
    QFETCH(bool, isLegacy);
    QFETCH(Action, action);
    const auto scene = sceneOf(isLegacy);
    action(*scene);
    const QImage first = picture(*scene).copy();
#ifdef Q_OS_UNIX
    // The system provides new memory by pages, larger ones than usual if it likes.
    const long before = pageFaults();
    action(*scene);
    const long pages = long(picture(*scene).sizeInBytes() / ::sysconf(_SC_PAGESIZE));
    QVERIFY2(pageFaults() - before < pages / 4, qPrintable(QString::number(pageFaults() - before)));
    QVERIFY(picture(*scene) == first);
#endif

    // Nothing of the former picture can be seen.
    const auto fresh = sceneOf(isLegacy);
    const QImage held = fresh->d->picture.image(); // whose memory the next one cannot take
    action(*fresh);
    const QString difference = reference::firstDifference(first, picture(*fresh));
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void LargePicturesTest::memoryIsGivenAndTaken_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("1.1 MiB") << 100;
    QTest::newRow("more than 32 MiB") << largeWidth;
}

void LargePicturesTest::memoryIsGivenAndTaken()
{
    QFETCH(int, width);
    const auto scene = sceneOf(false, width);
    const uchar *memory = picture(*scene).constBits();
    const QImage &former = scene->d->diagramRenderer().d->former;
    {
        const ceiechart::GivenMemory given = scene->d->giveMemory();
        QCOMPARE(former.constBits(), memory);
        QVERIFY(picture(*scene).isNull());
    }
    QVERIFY(former.isNull());

    QImage marked(20, 10, QImage::Format_ARGB32);
    marked.fill(Qt::magenta);
    marked.setDotsPerMeterX(1234);
    const auto taken = ceiechart::newPicture(20, 10, Qt::black, std::move(marked)); // not filled yet
    QCOMPARE(taken->pixelColor(3, 4), QColor(Qt::magenta));
    QCOMPARE(taken->dotsPerMeterX(), QImage(1, 1, QImage::Format_ARGB32).dotsPerMeterX());
}

void LargePicturesTest::pictureOfAHostStays()
{
    const auto scene = sceneOf(false);
    const QImage held = scene->d->picture.image();
    const QImage before = held.copy();
    {
        const ceiechart::GivenMemory given = scene->d->giveMemory();
        QVERIFY(scene->d->diagramRenderer().d->former.isNull());
        QVERIFY(picture(*scene) == before);
    }
    scene->setIsDrawCoordinate(false);
    QVERIFY(picture(*scene).constBits() != held.constBits());
    QVERIFY(held == before);
}

void LargePicturesTest::otherSizesHaveMemoryOfTheirOwn()
{
    const auto scene = sceneOf(false);
    scene->setImageWidth(largeWidth - 1);
    QCOMPARE(picture(*scene).width(), largeWidth - 1);
    QVERIFY(scene->d->diagramRenderer().d->former.isNull());
    scene->setPixelRatio(1.5);
    QCOMPARE(picture(*scene).width(), 4500);
    QVERIFY(scene->d->diagramRenderer().d->former.isNull());
}

void LargePicturesTest::smallPicturesAreNotGiven()
{
    const auto scene = sceneOf(false, 80); // 0.9 MiB
    const QImage before = picture(*scene).copy();
    const ceiechart::GivenMemory given = scene->d->giveMemory();
    QVERIFY(picture(*scene) == before);
    QVERIFY(scene->d->diagramRenderer().d->former.isNull());
}

QTEST_MAIN(LargePicturesTest)
#include "largepicturestest.moc"
