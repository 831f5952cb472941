// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/accentbutton.h"

#include <contrast.h>

#include <QStyle>
#include <QStyleFactory>
#include <QtTest>

#include <memory>

using gamutviewer::AccentButton;

namespace {

//! How many pixels of \a picture stand out by at least 3:1 against \a ground.
int countReadable(const QImage &picture, const QColor &ground)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            count += contrast(picture.pixelColor(x, y), ground) >= 3.0 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class AccentButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasTheAccentColourWhileChecked_data();
    void hasTheAccentColourWhileChecked();
    void focusShows();
};

void AccentButtonTest::hasTheAccentColourWhileChecked_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QColor>("accent");
    QTest::addColumn<QColor>("text");
    for (const char *style : {"Fusion", "Windows"}) {
        QTest::addRow("%s, light", style) << style << QColor(48, 140, 198) << QColor(Qt::white);
        QTest::addRow("%s, dark", style) << style << QColor(18, 96, 138) << QColor(Qt::white);
        QTest::addRow("%s, pale", style) << style << QColor(160, 220, 120) << QColor(Qt::black);
    }
}

void AccentButtonTest::hasTheAccentColourWhileChecked()
{
    QFETCH(QString, style);
    QFETCH(QColor, accent);
    QFETCH(QColor, text);
    const std::unique_ptr<QStyle> own(QStyleFactory::create(style));
    AccentButton button;
    button.setStyle(own.get());
    button.setText(QStringLiteral("H H"));
    button.setCheckable(true);
    QPalette palette = button.palette();
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, text);
    button.setPalette(palette);
    button.resize(60, 24);
    const QPoint beside(6, 12);
    QVERIFY(button.grab().toImage().pixelColor(beside) != accent);
    button.setChecked(true);
    const QImage checked = button.grab().toImage();
    QCOMPARE(checked.pixelColor(beside), accent);
    QVERIFY(countReadable(checked, accent) > 20); // the letters
    button.setText(QString());
    QCOMPARE(countReadable(button.grab().toImage().copy(4, 4, 52, 16), accent), 0);
}

void AccentButtonTest::focusShows()
{
    AccentButton button;
    button.setText(QStringLiteral("x, y"));
    button.setCheckable(true);
    button.setChecked(true);
    button.setFocusPolicy(Qt::TabFocus);
    button.resize(60, 24);
    button.show();
    button.clearFocus();
    const QColor accent = button.palette().color(QPalette::Highlight);
    const int without = countReadable(button.grab().toImage(), accent);
    button.activateWindow();
    button.setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(button.hasFocus());
    QVERIFY(countReadable(button.grab().toImage(), accent) > without + 60); // most of a frame
}

QTEST_MAIN(AccentButtonTest)
#include "accentbuttontest.moc"
