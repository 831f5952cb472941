// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "picturefixture.h"

#include <ceiechart/diagram/diagrampainter.h>
#include <reference/picturedifference.h>

#include <QtTest>

using namespace gamutviewer;
using namespace picturefixture;

class PictureKeyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keyStandsOnFreeGround_data();
    void keyStandsOnFreeGround();
    void keyMayCoverTheGrid_data();
    void keyMayCoverTheGrid();
    void keyStandsBesideAFullDiagram();
    void keyOnDarkGround();
    void keyIsLeftOutWhereThereIsNoRoom();
    void keyNamesWhatIsShown();
    void longNamesFitIntoTheKey();
};

void PictureKeyTest::keyStandsOnFreeGround_data()
{
    addDiagrams({QSize(1600, 1600), QSize(800, 800), QSize(1200, 500), QSize(400, 900)});
}

void PictureKeyTest::keyStandsOnFreeGround()
{
    QFETCH(Model::Diagram, diagram);
    QFETCH(QSize, size);
    Picture picture = sample(diagram);
    QVERIFY(!lacksRoomForKey(picture, size));
    picture.content.layers.setFlag(DiagramLayer::Grid, false);
    const QImage without = pixels(picture, size, false);
    const QImage with = pixels(picture, size, true);
    const QRect key = reference::changedPixels(with, without);
    QVERIFY(key.width() > 100 && key.height() > 60);
    QVERIFY(QRect(QPoint(), size).adjusted(4, 4, -4, -4).contains(key));
    for (int y = key.top(); y <= key.bottom(); ++y) {
        for (int x = key.left(); x <= key.right(); ++x) {
            QCOMPARE(without.pixel(x, y), lightGround);
        }
    }
}

void PictureKeyTest::keyMayCoverTheGrid_data()
{
    QTest::addColumn<ceiechart::HorseshoeColors>("colors");
    QTest::addColumn<ceiechart::DiagramGround>("ground");
    QTest::addColumn<QSize>("size");
    using ceiechart::DiagramGround;
    using ceiechart::HorseshoeColors;
    // On the small ones, the place is looked for in the picture itself, if it has colours.
    for (const QSize &size : {QSize(1300, 1200), QSize(800, 800), QSize(801, 997), QSize(900, 500)}) {
        for (const HorseshoeColors colors : {HorseshoeColors::None, HorseshoeColors::Dimmed, HorseshoeColors::Full}) {
            for (const DiagramGround ground : {DiagramGround::Light, DiagramGround::Dark}) {
                QTest::addRow("%d x %d, %d, %d", size.width(), size.height(), int(colors), int(ground))
                    << colors << ground << size;
            }
        }
    }
}

void PictureKeyTest::keyMayCoverTheGrid()
{
    QFETCH(ceiechart::HorseshoeColors, colors);
    QFETCH(ceiechart::DiagramGround, ground);
    QFETCH(QSize, size);
    Picture picture = sample();
    picture.content.colors = colors;
    picture.content.ground = ground;
    const QRect key = reference::changedPixels(pixels(picture, size, true), pixels(picture, size, false));
    QVERIFY(key.width() > 100 && key.height() > 60);
    QVERIFY2(key.width() < size.width() / 2 && key.height() < size.height() / 2, // the rest is the same
        qPrintable(
            QStringLiteral("%1 x %2 at %3, %4").arg(key.width()).arg(key.height()).arg(key.left()).arg(key.top())));

    // Where the horseshoe is the key is not, whether it has colours or not.
    picture.content.colors = ceiechart::HorseshoeColors::Full;
    picture.content.layers.setFlag(DiagramLayer::Grid, false);
    const QImage others = pixels(picture, size, false);
    const QRgb expected = ceiechart::diagramPalette(ground).ground.rgb();
    for (int y = key.top(); y <= key.bottom(); ++y) {
        for (int x = key.left(); x <= key.right(); ++x) {
            QCOMPARE(others.pixel(x, y), expected);
        }
    }
}

void PictureKeyTest::keyStandsBesideAFullDiagram()
{
    // The colours fill the plot.
    Picture picture = sample();
    picture.view = DiagramViewport(Model::Diagram::Cie1931, QSizeF(800, 800)).fittedToWhite(QPointF(0.3127, 0.329));
    for (const QSize &size : {QSize(800, 800), QSize(1400, 500), QSize(500, 1000)}) {
        QVERIFY(!lacksRoomForKey(picture, size));
        const QImage image = pixels(picture, size, true);
        // Target, original and measured gamut have their colours in the key only; the target has its rings too.
        QRect key;
        for (const ceiechart::GamutRole role : {ceiechart::GamutRole::Original, ceiechart::GamutRole::Measured}) {
            const QRgb color = ceiechart::gamutStyle(role).color.rgb();
            for (int y = 0; y < size.height(); ++y) {
                for (int x = 0; x < size.width(); ++x) {
                    if (image.pixel(x, y) == color) {
                        key |= QRect(x, y, 1, 1);
                    }
                }
            }
        }
        QVERIFY(key.isValid());
        const bool isBelow = key.top() > 0.7 * size.height();
        const bool isRight = key.left() > 0.7 * size.width();
        QVERIFY(isBelow || isRight);
        // And no colours behind it.
        const QPoint beside = key.topLeft() - QPoint(3, 3);
        QCOMPARE(image.pixel(beside), lightGround);
    }
}

void PictureKeyTest::keyOnDarkGround()
{
    const QSize size(800, 800);
    Picture picture = sample();
    picture.content.ground = ceiechart::DiagramGround::Dark;
    const QImage with = pixels(picture, size, true);
    const QRect key = reference::changedPixels(with, pixels(picture, size, false));
    QVERIFY(key.isValid());
    int light = 0;
    for (int y = key.top(); y <= key.bottom(); ++y) {
        for (int x = key.left(); x <= key.right(); ++x) {
            light += qGray(with.pixel(x, y)) > 160;
        }
    }
    QVERIFY2(light > 100, qPrintable(QString::number(light))); // letters
    QVERIFY(light < key.width() * key.height() / 4); // on their ground
}

void PictureKeyTest::keyIsLeftOutWhereThereIsNoRoom()
{
    for (const QSize &size : {QSize(60, 60), QSize(150, 150), QSize(2000, 40)}) {
        QVERIFY(lacksRoomForKey(sample(), size));
        QCOMPARE(reference::firstDifference(pixels(sample(), size, true), pixels(sample(), size, false)), QString());
    }
    // Who wants no key, or has nothing to name, lacks nothing.
    Picture picture = sample();
    picture.hasKey = false;
    QVERIFY(!lacksRoomForKey(picture, QSize(60, 60)));
    picture = sample();
    picture.content.gamuts.clear();
    QVERIFY(!lacksRoomForKey(picture, QSize(60, 60)));
    picture = sample();
    picture.isLibraryChart = true;
    QVERIFY(!lacksRoomForKey(picture, QSize(60, 60)));
}

void PictureKeyTest::keyNamesWhatIsShown()
{
    Picture picture = sample();
    picture.content.layers.setFlag(DiagramLayer::Names, false);
    picture.content.layers.setFlag(DiagramLayer::Standards, false);
    picture.content.gamuts.append({Model::rec709(), ceiechart::GamutRole::Declared});
    QStringList texts = textsOf(exported(picture, PictureFormat::Svg));
    for (const char *text :
        {"DCI-P3(D65)", "LED wall", "LED wall, warm", "Rec.709", "Target", "Original", "Measured", "Declared"}) {
        QVERIFY2(texts.count(QString::fromLatin1(text)) == 1, text);
    }
    QVERIFY(!texts.contains("Rec.2020") && !texts.contains("Standard"));

    picture.content.layers.setFlag(DiagramLayer::Standards);
    picture.content.gamuts.last().visible = false;
    texts = textsOf(exported(picture, PictureFormat::Svg));
    QCOMPARE(texts.count("Rec.2020"), 1);
    QCOMPARE(texts.count("Standard"), 3);
    QVERIFY(!texts.contains("Declared"));

    picture.hasKey = false;
    texts = textsOf(exported(picture, PictureFormat::Svg));
    QVERIFY(!texts.contains("Target") && !texts.contains("LED wall"));
}

void PictureKeyTest::longNamesFitIntoTheKey()
{
    Picture picture = sample();
    const QString name = QStringLiteral("The wall ") + QString(500, QLatin1Char('m')) + QStringLiteral(" of the stage");
    picture.content.gamuts
        = {{Model::ColorGamut(name.toStdString(), Model::rec709().getTargets()), ceiechart::GamutRole::Target}};
    picture.content.layers.setFlag(DiagramLayer::Names, false);
    const QSize size(800, 800);
    QVERIFY(!lacksRoomForKey(picture, size));
    const QRect key = reference::changedPixels(pixels(picture, size, true), pixels(picture, size, false));
    QVERIFY(QRect(QPoint(), size).adjusted(4, 4, -4, -4).contains(key));
    const QStringList texts = textsOf(exported(picture, PictureFormat::Svg, {size, 1.0}));
    QVERIFY(!texts.filter(QRegularExpression(QStringLiteral("^The wall m+…m+ of the stage$"))).isEmpty());
}

QTEST_MAIN(PictureKeyTest)
#include "picturekeytest.moc"
