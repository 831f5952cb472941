// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/ceiegraphicsscene.h>
#include <ceiechart/render/diagramrenderer_p.h>
#include <ceiechart/scene/ceiegraphicsscene.h>
#include <ceiechart/scene/targetscene_p.h>

#include <reference/picturedifference.h>
#include <reference/samplegamuts.h>

#include <QtTest>

#include <functional>
#include <memory>
#include <sys/resource.h>

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

//! How often the system has provided a page of memory. A picture in new memory needs one for each page, of 4 KiB
//! mostly.
long pageFaults()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt;
}

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
    action(*scene); // the first time makes what stays, too
    const QImage first = picture(*scene).copy();
    const long before = pageFaults();
    action(*scene);
    const long pages = long(picture(*scene).sizeInBytes() / 4096);
    QVERIFY2(pageFaults() - before < pages / 4, qPrintable(QString::number(pageFaults() - before)));

    // Nothing of the former picture can be seen.
    const auto fresh = sceneOf(isLegacy, largeWidth + 1);
    fresh->setImageWidth(largeWidth);
    action(*fresh);
    const QString difference = reference::firstDifference(first, picture(*fresh));
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
    QVERIFY(picture(*scene) == first);
}

void LargePicturesTest::pictureOfAHostStays()
{
    const auto scene = sceneOf(false);
    const QImage held = scene->d->picture.image();
    const QImage before = held.copy();
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
    const auto scene = sceneOf(false, 600);
    const QImage before = picture(*scene).copy();
    scene->d->giveMemory();
    QVERIFY(picture(*scene) == before);
    QVERIFY(scene->d->diagramRenderer().d->former.isNull());
}

QTEST_MAIN(LargePicturesTest)
#include "largepicturestest.moc"
