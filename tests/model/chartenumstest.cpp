// SPDX-FileCopyrightText: 2026 the ceiechart authors
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

// With a further enumerator these do not compile.
#pragma GCC diagnostic push
#pragma GCC diagnostic error "-Wswitch"

static bool isPrimary(LEDColorType type)
{
    switch (type) {
    case Red:
    case Green:
    case Blue:
        return true;
    case None:
        return false;
    }
    return false;
}

static bool isHandle(NewCEIE::TabSelectedType tab)
{
    switch (tab) {
    case TabSelectedGreen:
    case TabSelectedWhite:
    case TabSelectedBlue:
    case TabSelectedRed:
        return true;
    case TabSelectedNone:
        return false;
    }
    return false;
}

static bool isHandle(::TabSelectedType tab)
{
    switch (tab) {
    case LegacyTabSelectedGreen:
    case LegacyTabSelectedWhite:
    case LegacyTabSelectedBlue:
    case LegacyTabSelectedRed:
        return true;
    case LegacyTabSelectedNone:
        return false;
    }
    return false;
}

static bool isPrimary(NewCEIE::ColorArea area)
{
    switch (area) {
    case ColorAreaRed:
    case ColorAreaGreen:
    case ColorAreaBlue:
        return true;
    case ColorAreaNone:
        return false;
    }
    return false;
}

static bool isPrimary(::ColorArea area)
{
    switch (area) {
    case LegacyColorAreaRed:
    case LegacyColorAreaGreen:
    case LegacyColorAreaBlue:
        return true;
    case LegacyColorAreaNone:
        return false;
    }
    return false;
}

#pragma GCC diagnostic pop

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
    QVERIFY(isPrimary(baseCommon::Red) && !isPrimary(baseCommon::None));
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
    QVERIFY(isHandle(TabSelectedRed) && !isHandle(TabSelectedNone));
    QVERIFY(isHandle(LegacyTabSelectedRed) && !isHandle(LegacyTabSelectedNone));
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
    QVERIFY(isPrimary(ColorAreaRed) && !isPrimary(ColorAreaNone));
    QVERIFY(isPrimary(LegacyColorAreaRed) && !isPrimary(LegacyColorAreaNone));
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
