// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/render/dashedlines_p.h>

#include <reference/picturedifference.h>
#include <reference/picturetestmain.h>
#include <reference/repeatablerandom.h>

#include <QPen>
#include <QtTest>

namespace {

#ifdef CEIECHART_SHORT_TESTS
constexpr int lineCount = 800;
#else
constexpr int lineCount = 4000;
#endif

} // namespace

/*! Dashed lines that are drawn from a sample, against the paint engine. */
class DashedLinesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void samePixels_data();
    void samePixels();
};

void DashedLinesTest::samePixels_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<Qt::PenStyle>("style");
    QTest::addColumn<double>("width");
    QTest::addColumn<bool>("antialiased");
    constexpr auto usual = QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("dashes") << usual << Qt::DashLine << 1.0 << true;
    QTest::newRow("dots") << usual << Qt::DotLine << 1.0 << true;
    QTest::newRow("dashes and dots") << usual << Qt::DashDotDotLine << 1.0 << true;
    QTest::newRow("thin dashes") << usual << Qt::DashLine << 0.0 << true;
    QTest::newRow("wide dashes") << usual << Qt::DashLine << 1.5 << true;
    QTest::newRow("solid line") << usual << Qt::SolidLine << 1.0 << true;
    QTest::newRow("not antialiased") << usual << Qt::DashLine << 1.0 << false;
    QTest::newRow("straight format") << QImage::Format_ARGB32 << Qt::DashLine << 1.0 << true;
}

void DashedLinesTest::samePixels()
{
    QFETCH(QImage::Format, format);
    QFETCH(Qt::PenStyle, style);
    QFETCH(double, width);
    QFETCH(bool, antialiased);
    reference::RepeatableRandom random(5);
    QImage expected;
    QImage actual;
    ceiechart::DashedLines lines;
    for (int i = 0; i < lineCount; ++i) {
        if (i % 25 == 0) {
            const QSize size(random.between(1, 400), random.between(1, 400));
            expected = QImage(size, format);
            expected.fill(random.opaqueColor());
            actual = expected.copy();
        }
        const auto coordinate = [&random](int extent) {
            const double low = random.chance(20) ? -0.3 * extent : 0.05 * extent;
            const double high = random.chance(30) ? 1.2 * extent : 0.95 * extent;
            const double value = random.real(low, high);
            return random.chance(30) ? std::floor(value) + 0.25 * random.between(0, 3) : value;
        };
        const QPointF from(coordinate(expected.width()), coordinate(expected.height()));
        QPointF to(coordinate(expected.width()), coordinate(expected.height()));
        if (random.chance(50)) {
            to.setX(from.x());
        } else if (random.chance(95)) {
            to.setY(from.y());
        }
        QColor color = random.opaqueColor();
        color.setAlpha(random.between(0, 255));
        QPen pen(color);
        pen.setStyle(style);
        pen.setWidthF(width);
        const double opacity = random.chance(60) ? 0.3 : random.real(0.0, 1.0);
        const auto prepare = [&](QPainter &painter) {
            painter.setRenderHint(QPainter::Antialiasing, antialiased);
            painter.setOpacity(opacity);
            painter.setPen(pen);
        };
        {
            QPainter painter(&expected);
            prepare(painter);
            painter.drawLine(from, to);
        }
        {
            QPainter painter(&actual);
            prepare(painter);
            lines.draw(painter, from, to);
        }
        const QString difference = reference::firstDifference(actual, expected);
        QVERIFY2(difference.isEmpty(),
            qPrintable(QStringLiteral("line %1 from (%2, %3) to (%4, %5): %6")
                           .arg(i)
                           .arg(from.x())
                           .arg(from.y())
                           .arg(to.x())
                           .arg(to.y())
                           .arg(difference)));
    }
}

CEIECHART_PICTURE_TEST_MAIN(DashedLinesTest)

#include "dashedlinestest.moc"
