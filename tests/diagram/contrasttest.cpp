// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/contrast_p.h>

#include <QTest>

using namespace ceiechart;

class ContrastTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ratios();
    void compositing();
    void textOnEveryGrey();
    void legibleColorsAreKept();
    void othersAreDarkenedOrLightened_data();
    void othersAreDarkenedOrLightened();
};

// Examples of WCAG 2.1 and of its understanding documents: black on white, #767676 as the lightest grey for text.
void ContrastTest::ratios()
{
    QCOMPARE(contrastRatio(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrastRatio(Qt::white, Qt::black), 21.0);
    QCOMPARE(contrastRatio(Qt::red, Qt::red), 1.0);
    QVERIFY(contrastRatio(QColor(0x76, 0x76, 0x76), Qt::white) >= 4.5);
    QVERIFY(contrastRatio(QColor(0x77, 0x77, 0x77), Qt::white) < 4.5);
    QVERIFY(qAbs(contrastRatio(QColor(255, 0, 0), Qt::white) - 4.0) < 0.005);
}

void ContrastTest::compositing()
{
    QCOMPARE(composited(QColor(1, 2, 3), Qt::white), QColor(1, 2, 3));
    QCOMPARE(composited(QColor(1, 2, 3, 0), QColor(7, 8, 9)), QColor(7, 8, 9));
    QCOMPARE(composited(QColor(255, 0, 0, 51), QColor(0, 0, 100)), QColor(51, 0, 80));
}

void ContrastTest::textOnEveryGrey()
{
    for (int grey = 0; grey < 256; ++grey) {
        const QColor ground(grey, grey, grey);
        QVERIFY2(contrastRatio(textColorOn(ground), ground) >= 4.58, qPrintable(ground.name()));
        QCOMPARE(isLight(ground), textColorOn(ground) == QColor(Qt::black));
    }
    QVERIFY(isLight(Qt::white) && !isLight(Qt::black));
}

void ContrastTest::legibleColorsAreKept()
{
    for (const QColor &color : {QColor(Qt::black), QColor(0, 0, 0, 200), QColor(10, 20, 150)}) {
        QCOMPARE(legibleOn(color, Qt::white, 3.0), color);
    }
    QCOMPARE(legibleOn(Qt::white, Qt::black, 7.0), QColor(Qt::white));
}

void ContrastTest::othersAreDarkenedOrLightened_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("ground");
    QTest::newRow("white on white") << QColor(Qt::white) << QColor(Qt::white);
    QTest::newRow("translucent white on near-white") << QColor(255, 255, 255, 17) << QColor(252, 252, 253);
    QTest::newRow("cyan on white") << QColor(22, 241, 255) << QColor(Qt::white);
    QTest::newRow("orange on near-white") << QColor(255, 163, 56) << QColor(252, 252, 253);
    QTest::newRow("black on black") << QColor(Qt::black) << QColor(Qt::black);
    QTest::newRow("blue on near-black") << QColor(0, 0, 90) << QColor(23, 23, 26);
    QTest::newRow("grey on grey") << QColor(120, 120, 120) << QColor(117, 117, 117);
}

void ContrastTest::othersAreDarkenedOrLightened()
{
    QFETCH(QColor, color);
    QFETCH(QColor, ground);
    for (const double ratio : {3.0, 4.5}) {
        QVERIFY(contrastRatio(composited(color, ground), ground) < ratio);
        const QColor legible = legibleOn(color, ground, ratio);
        const double reached = contrastRatio(legible, ground);
        QCOMPARE(legible.alpha(), 255);
        QVERIFY2(reached >= ratio, qPrintable(legible.name()));
        // Just enough, so that different colours remain different.
        QVERIFY2(reached < ratio * 1.2, qPrintable(legible.name()));
        if (color.saturation() > 0 && isLight(ground)) {
            QVERIFY(qAbs(legible.hsvHue() - color.hsvHue()) <= 2);
        }
    }
}

QTEST_APPLESS_MAIN(ContrastTest)
#include "contrasttest.moc"
