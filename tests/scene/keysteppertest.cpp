// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/keystepper_p.h>

#include <QTest>

using ceiechart::KeyStepper;

namespace {

// How often the step is taken at a press of an arrow.
float pressed(KeyStepper &stepper, Qt::Key key)
{
    float step = 1.0F;
    stepper.speedUp(step, key);
    stepper.setLastKey(key);
    stepper.countPress();
    return step;
}

void press(KeyStepper &stepper, Qt::Key key, int times)
{
    for (int i = 0; i < times; ++i) {
        pressed(stepper, key);
    }
}

} // namespace

class KeyStepperTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void heldKeyReachesElevenSteps();
    void stepIsMultipliedInSinglePrecision();
    void otherKeyStartsOver();
    void firstKeyOfAllStartsOver();
    void otherPressesOnlyCount();
    void tenPressesAreNotMoreThanTen();
    void clearKeepsTheLastKey();
};

void KeyStepperTest::heldKeyReachesElevenSteps()
{
    KeyStepper stepper;
    for (int press = 1; press <= 40; ++press) {
        const float expected = press < 12 ? 1.0F : static_cast<float>(qMin(press - 11, 11));
        QVERIFY2(pressed(stepper, Qt::Key_Left) == expected, qPrintable(QString::number(press)));
    }
}

void KeyStepperTest::stepIsMultipliedInSinglePrecision()
{
    KeyStepper stepper;
    press(stepper, Qt::Key_Up, 13);
    float step = 0.1F;
    stepper.speedUp(step, Qt::Key_Up);
    QVERIFY(step == 0.1F * 3.0F);
}

void KeyStepperTest::otherKeyStartsOver()
{
    KeyStepper stepper;
    press(stepper, Qt::Key_Left, 15);
    for (int press = 1; press <= 12; ++press) {
        QVERIFY2(pressed(stepper, Qt::Key_Right) == 1.0F, qPrintable(QString::number(press)));
    }
    QVERIFY(pressed(stepper, Qt::Key_Right) == 2.0F);
    QVERIFY(pressed(stepper, Qt::Key_Up) == 1.0F);
}

// Before it the last key is none that can be pressed.
void KeyStepperTest::firstKeyOfAllStartsOver()
{
    KeyStepper counted;
    for (int i = 0; i < 20; ++i) {
        counted.countPress();
    }
    KeyStepper unpressed = counted;
    float step = 1.0F;
    unpressed.speedUp(step, Qt::Key_unknown);
    unpressed.speedUp(step, Qt::Key_unknown);
    QVERIFY(step == 2.0F);
    for (int press = 1; press <= 12; ++press) {
        QVERIFY2(pressed(counted, Qt::Key_Up) == 1.0F, qPrintable(QString::number(press)));
    }
    QVERIFY(pressed(counted, Qt::Key_Up) == 2.0F);
}

// The same arrow before and after them goes on.
void KeyStepperTest::otherPressesOnlyCount()
{
    KeyStepper stepper;
    pressed(stepper, Qt::Key_Up);
    for (int i = 0; i < 20; ++i) {
        stepper.countPress();
    }
    QVERIFY(pressed(stepper, Qt::Key_Up) == 1.0F);
    QVERIFY(pressed(stepper, Qt::Key_Up) == 2.0F);
}

void KeyStepperTest::tenPressesAreNotMoreThanTen()
{
    KeyStepper stepper;
    press(stepper, Qt::Key_Up, 10);
    float step = 1.0F;
    for (int i = 0; i < 5; ++i) {
        stepper.speedUp(step, Qt::Key_Up);
    }
    QVERIFY(step == 1.0F);
    stepper.countPress();
    stepper.speedUp(step, Qt::Key_Up);
    QVERIFY(step == 1.0F);
    stepper.speedUp(step, Qt::Key_Up);
    QVERIFY(step == 2.0F);
}

// Ten presses are counted then, and the eleventh takes the first step of one.
void KeyStepperTest::clearKeepsTheLastKey()
{
    KeyStepper stepper;
    press(stepper, Qt::Key_Left, 20);
    stepper.clear();
    for (int press = 1; press <= 12; ++press) {
        QVERIFY2(pressed(stepper, Qt::Key_Left) == 1.0F, qPrintable(QString::number(press)));
    }
    QVERIFY(pressed(stepper, Qt::Key_Left) == 2.0F);
}

QTEST_APPLESS_MAIN(KeyStepperTest)
#include "keysteppertest.moc"
