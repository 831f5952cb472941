// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/accentbutton.h"

#include <QProxyStyle>
#include <QSet>
#include <QStyleOption>
#include <QtTest>

using gamutviewer::AccentButton;

namespace {

//! Notes the palettes that buttons are painted with.
class NotingStyle : public QProxyStyle {
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
        const QWidget *widget) const override
    {
        m_keys.insert(option->palette.cacheKey());
        m_button = option->palette.color(QPalette::Button);
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    mutable QSet<qint64> m_keys;
    mutable QColor m_button;
};

} // namespace

class AccentButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasTheAccentColourWhileChecked();
    void hasOnePaletteForAllPaints();
};

void AccentButtonTest::hasTheAccentColourWhileChecked()
{
    NotingStyle style;
    AccentButton button;
    button.setStyle(&style);
    button.setCheckable(true);
    button.grab();
    QCOMPARE(style.m_button, button.palette().color(QPalette::Button));
    button.setChecked(true);
    button.grab();
    QCOMPARE(style.m_button, button.palette().color(QPalette::Highlight));
    QPalette other = button.palette();
    other.setColor(QPalette::Highlight, QColor(10, 120, 30));
    button.setPalette(other);
    button.grab();
    QCOMPARE(style.m_button, QColor(10, 120, 30));
}

void AccentButtonTest::hasOnePaletteForAllPaints()
{
    NotingStyle style;
    AccentButton button;
    button.setStyle(&style);
    button.setCheckable(true);
    button.setChecked(true);
    button.grab();
    style.m_keys.clear();
    for (int i = 0; i < 10; ++i) {
        button.grab();
    }
    QCOMPARE(style.m_keys.size(), 1);
}

QTEST_MAIN(AccentButtonTest)
#include "accentbuttontest.moc"
