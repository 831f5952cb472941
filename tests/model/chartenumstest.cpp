// SPDX-License-Identifier: MIT
#include <ceiechart/model/chartenums.h>
#include <ceiechart/model/ledcolortype.h>

#include <QTest>
#include <QtWidgets>

#include <type_traits>

// All of Qt Widgets is included, and a host may open every namespace: no name is ambiguous.
using namespace NewCEIE;
using namespace baseCommon;

// Unscoped enums convert to int; the two generations have types of their own.
template <typename T>
constexpr bool isPlainEnum = std::is_enum_v<T> &&std::is_convertible_v<T, int>;

static_assert(isPlainEnum<baseCommon::LEDColorType>);
static_assert(isPlainEnum<NewCEIE::TabSelectedType> && isPlainEnum<::TabSelectedType>);
static_assert(isPlainEnum<NewCEIE::ColorArea> && isPlainEnum<::ColorArea>);
static_assert(isPlainEnum<NewCEIE::MouseCursorStyle> && isPlainEnum<::MouseCursorStyle>);
static_assert(!std::is_same_v<NewCEIE::TabSelectedType, ::TabSelectedType>);
static_assert(!std::is_same_v<NewCEIE::ColorArea, ::ColorArea>);
static_assert(!std::is_same_v<NewCEIE::MouseCursorStyle, ::MouseCursorStyle>);

class ChartEnumsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ledColorType();
    void tabSelectedType();
    void colorArea();
    void mouseCursorStyle();
};

void ChartEnumsTest::ledColorType()
{
    QCOMPARE(int(baseCommon::Red), 0);
    QCOMPARE(int(baseCommon::Green), 1);
    QCOMPARE(int(baseCommon::Blue), 2);
    QCOMPARE(int(baseCommon::None), 3);

    // A fifth enumerator would not be handled, which the compiler reports.
    int primaries = 0;
    for (int value = 0; value < 4; ++value) {
        switch (static_cast<LEDColorType>(value)) {
        case Red:
        case Green:
        case Blue:
            ++primaries;
            break;
        case None:
            break;
        }
    }
    QCOMPARE(primaries, 3);
}

void ChartEnumsTest::tabSelectedType()
{
    QCOMPARE(int(TabSelectedNone), 0);
    QCOMPARE(int(TabSelectedGreen), 1);
    QCOMPARE(int(TabSelectedWhite), 2);
    QCOMPARE(int(TabSelectedBlue), 3);
    QCOMPARE(int(TabSelectedRed), 4);
    QCOMPARE(int(LegacyTabSelectedNone), 0);
    QCOMPARE(int(LegacyTabSelectedGreen), 1);
    QCOMPARE(int(LegacyTabSelectedWhite), 2);
    QCOMPARE(int(LegacyTabSelectedBlue), 3);
    QCOMPARE(int(LegacyTabSelectedRed), 4);
}

void ChartEnumsTest::colorArea()
{
    QCOMPARE(int(ColorAreaNone), 0);
    QCOMPARE(int(ColorAreaRed), 1);
    QCOMPARE(int(ColorAreaGreen), 2);
    QCOMPARE(int(ColorAreaBlue), 3);
    QCOMPARE(int(LegacyColorAreaNone), 0);
    QCOMPARE(int(LegacyColorAreaRed), 1);
    QCOMPARE(int(LegacyColorAreaGreen), 2);
    QCOMPARE(int(LegacyColorAreaBlue), 3);
}

void ChartEnumsTest::mouseCursorStyle()
{
    QCOMPARE(int(LegacyMouseCursorArrow), int(MouseCursorArrow));
    QCOMPARE(int(LegacyMouseCursorCross), int(MouseCursorCross));
    QCOMPARE(int(LegacyMouseCursorPointingHand), int(MouseCursorPointingHand));
    QCOMPARE(int(LegacyMouseCursorOpenHand), int(MouseCursorOpenHand));
    QCOMPARE(int(LegacyMouseCursorClosedHand), int(MouseCursorClosedHand));
    QCOMPARE(int(LegacyMouseCursorBlank), int(MouseCursorBlank));
}

QTEST_GUILESS_MAIN(ChartEnumsTest)
#include "chartenumstest.moc"
