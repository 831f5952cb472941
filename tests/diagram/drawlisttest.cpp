// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// What is painted the fast way against the same painted plainly.
#include <ceiechart/diagram/comparedcurve_p.h>
#include <ceiechart/diagram/drawlist_p.h>
#include <ceiechart/diagram/polylines_p.h>

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

using namespace ceiechart;

namespace {

const QColor ground(252, 251, 240);

class Random {
public:
    double upTo(double most) { return std::uniform_real_distribution<double>(0.0, most)(m_engine); }
    QPointF point(const QSizeF &area) { return QPointF(upTo(area.width()), upTo(area.height())); }
    QRect rectangle(const QSize &area)
    {
        return QRect(int(upTo(area.width())), int(upTo(area.height())), 1 + int(upTo(40.0)), 1 + int(upTo(40.0)));
    }
    QRegion region(const QSize &area)
    {
        QRegion result;
        for (int i = 0; i < 30; ++i) {
            result += rectangle(area);
        }
        return result & QRect(QPoint(), area);
    }

private:
    std::mt19937 m_engine{7};
};

QImage paper(const QSize &size, double ratio = 1.0)
{
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(ground);
    return image;
}

QImage painted(const DrawList &list, const QSize &size)
{
    QImage image = paper(size);
    QPainter painter(&image);
    list.paint(&painter);
    return image;
}

//! Of all channels of all pixels.
int largestDifference(const QImage &a, const QImage &b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            for (const int step : {qRed(p) - qRed(q), qGreen(p) - qGreen(q), qBlue(p) - qBlue(q)}) {
                largest = std::max(largest, std::abs(step));
            }
        }
    }
    return largest;
}

TextStyle style(double points)
{
    QFont font;
    font.setPointSizeF(points);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return TextStyle(font, nullptr, 1.0);
}

} // namespace

class DrawListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void casingsAreEightTextsAround();
    void textsAreTheSameOnPicturesOfOtherFormats();
    void linesAreAsWideAsTheirPen();
    void whatIsNotNeededIsNotMissed();
    void hairlinesCoverWholePixels();
    void neededLinesAreThoseThatMeetARegion();
    void comparedCurvesMeetWhatTheirPiecesMeet();
};

void DrawListTest::casingsAreEightTextsAround()
{
    const QSize size(160, 60);
    const QColor casing(255, 255, 255, 150);
    const QColor color(20, 40, 120);
    Random random;
    for (const QString &text : {QStringLiteral("460"), QStringLiteral("6500 K"), QStringLiteral("Wellenlänge"),
             QStringLiteral("中 mixed, of more than one font")}) {
        for (int i = 0; i < 20; ++i) {
            const TextStyle font = style(7.0 + i % 5);
            const QPointF at = QPointF(10.0, 30.0) + (i == 0 ? QPointF() : random.point(QSizeF(20.0, 20.0)));
            DrawList one;
            one.text(at, text, font, color, casing);
            DrawList many;
            for (const QPointF &way : {QPointF(2.0, 0.0), QPointF(-2.0, 0.0), QPointF(0.0, 2.0), QPointF(0.0, -2.0),
                     QPointF(1.0, 1.0), QPointF(-1.0, 1.0), QPointF(1.0, -1.0), QPointF(-1.0, -1.0)}) {
                many.text(at + way, text, font, casing);
            }
            many.text(at, text, font, color);
            const QImage expected = painted(many, size);
            QVERIFY(expected != paper(size));
            constexpr int rounding = 4; // of nine texts over one another
            QVERIFY(largestDifference(painted(one, size), expected) <= rounding);
        }
    }
}

void DrawListTest::textsAreTheSameOnPicturesOfOtherFormats()
{
    // There the paint engine paints them.
    const QSize size(160, 60);
    for (const double ratio : {1.0, 2.0}) {
        DrawList list;
        list.text(QPointF(10.0, 30.0), QStringLiteral("6500 K"), style(9.0), QColor(20, 40, 120), Qt::white);
        const auto paintOn = [&](QImage::Format format) {
            QImage image = paper(size, ratio).convertToFormat(format);
            QPainter painter(&image);
            list.paint(&painter);
            painter.end();
            return image.convertToFormat(QImage::Format_RGB32);
        };
        const QImage found = paintOn(QImage::Format_RGB32);
        QVERIFY(found != paper(size, ratio));
        constexpr int rounding = 4;
        QVERIFY(largestDifference(found, paintOn(QImage::Format_RGB888)) <= rounding);
    }
}

void DrawListTest::linesAreAsWideAsTheirPen()
{
    const QSize size(60, 60);
    const QPen pen(QColor(255, 255, 255, 240), 3.0, Qt::SolidLine, Qt::FlatCap);
    const auto lightOf = [&size](double scale, QImage::Format format, const auto &paint) {
        QImage image(size, format);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        paint(painter);
        painter.end();
        double light = 0.0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                light += qGreen(image.pixel(x, y));
            }
        }
        return light;
    };
    for (double angle = 0.0; angle < 180.0; angle += 7.0) {
        const QLineF line = QLineF::fromPolar(40.0, angle)
                                .translated(30.3 - 20.0 * std::cos(angle * M_PI / 180.0),
                                    29.6 + 20.0 * std::sin(angle * M_PI / 180.0));
        DrawList list;
        list.lines({line}, pen);
        for (const double scale : {1.0, 0.5}) {
            for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_RGB888}) {
                const double byEngine = lightOf(scale, format, [&](QPainter &painter) {
                    painter.setPen(pen);
                    painter.drawLine(line);
                });
                const double share
                    = lightOf(scale, format, [&](QPainter &painter) { list.paint(&painter); }) / byEngine;
                QVERIFY2(std::fabs(share - 1.0) < 0.03, qPrintable(QStringLiteral("%1: %2").arg(angle).arg(share)));
            }
        }
    }
}

void DrawListTest::whatIsNotNeededIsNotMissed()
{
    const QSize size(400, 300);
    Random random;
    for (int round = 0; round < 40; ++round) {
        DrawList list;
        QPen dashed(QColor(40, 118, 222), 2.0, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
        dashed.setDashPattern({5.0, 2.5});
        QVector<QLineF> hatch;
        for (int i = 0; i < 20; ++i) {
            hatch.append(QLineF(random.point(size), random.point(size)));
        }
        list.lines(hatch, QPen(QColor(90, 90, 90, 120), 1.0, Qt::SolidLine, Qt::FlatCap));
        for (int i = 0; i < 4; ++i) {
            const QPolygonF triangle({random.point(size), random.point(size), random.point(size)});
            list.line(triangle, true, QPen(QColor(255, 255, 255, 160), 4.5, Qt::SolidLine, Qt::FlatCap));
            list.line(triangle, true, i % 2 ? dashed : QPen(QColor(224, 84, 14), 2.0, Qt::SolidLine, Qt::FlatCap));
            list.hairline(QLineF(0.0, 31.3 * i, 400.0, 31.3 * i), QColor(0, 0, 0, 60));
            list.ellipse(random.point(size), 30.0, 20.0, QPen(Qt::darkGreen, 1.2), Qt::NoBrush);
            list.text(random.point(size), QStringLiteral("label"), style(9.0), Qt::black, Qt::white);
        }
        const QRegion needed = random.region(size);
        const auto paint = [&](const QRegion &onlyIn) {
            QImage image = paper(size);
            QPainter painter(&image);
            painter.paintEngine()->setSystemClip(needed);
            list.paint(&painter, onlyIn);
            painter.end();
            // The paint engine does not heed such a clip in all that it does.
            QImage within = paper(size);
            QPainter copy(&within);
            copy.setClipRegion(needed);
            copy.drawImage(0, 0, image);
            return within;
        };
        QVERIFY(paint(QRegion()) != paper(size));
        QCOMPARE(paint(needed), paint(QRegion()));
    }
}

void DrawListTest::hairlinesCoverWholePixels()
{
    const QSize size(120, 90);
    const QColor color(10, 20, 30);
    Random random;
    for (const double ratio : {1.0, 2.0, 3.0}) {
        for (int i = 0; i < 50; ++i) {
            const QPointF at = random.point(QSizeF(100.0, 70.0)) + QPointF(5.0, 5.0);
            const bool isLevel = i % 2 == 0;
            DrawList list;
            list.hairline(QLineF(at, at + (isLevel ? QPointF(12.4, 0.0) : QPointF(0.0, 12.4))), color);
            QImage image = paper(size, ratio);
            QPainter painter(&image);
            list.paint(&painter);
            painter.end();
            std::set<int> rows;
            std::set<int> columns;
            int count = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QRgb pixel = image.pixel(x, y);
                    if (pixel != ground.rgb()) {
                        QCOMPARE(pixel, color.rgb());
                        rows.insert(y);
                        columns.insert(x);
                        ++count;
                    }
                }
            }
            const int thickness = int(ratio);
            QCOMPARE(int(isLevel ? rows.size() : columns.size()), thickness);
            QCOMPARE(count, int(rows.size() * columns.size()));
            QVERIFY(std::abs(double(isLevel ? columns.size() : rows.size()) - 12.4 * ratio) <= 1.0);
        }
    }
}

void DrawListTest::neededLinesAreThoseThatMeetARegion()
{
    const QSize size(400, 300);
    Random random;
    constexpr double room = 3.0;
    int needed = 0;
    for (int round = 0; round < 50; ++round) {
        const QRegion region = random.region(size);
        for (int i = 0; i < 100; ++i) {
            const QPointF from = random.point(QSizeF(600.0, 500.0)) - QPointF(100.0, 100.0);
            const QLineF line(from, i % 2 ? random.point(size) : from + random.point(QSizeF(20.0, 20.0)));
            const bool meetsSome = std::any_of(region.begin(), region.end(),
                [&line](const QRect &part) { return meets(line, QRectF(part).adjusted(-room, -room, room, room)); });
            QCOMPARE(isLineNeeded(line, room, region), meetsSome);
            QVERIFY(isLineNeeded(line, room, QRegion()));
            needed += meetsSome ? 1 : 0;
        }
    }
    QVERIFY(needed > 500 && needed < 4500);
}

void DrawListTest::comparedCurvesMeetWhatTheirPiecesMeet()
{
    QVERIFY(!ComparedCurve().meets(QRectF(0.0, 0.0, 10.0, 10.0)));
    QVERIFY(!ComparedCurve(QPolygonF({QPointF(1.0, 1.0)})).meets(QRectF(0.0, 0.0, 10.0, 10.0)));
    Random random;
    int met = 0;
    for (const int count : {2, 3, 16, 17, 18, 33, 150}) {
        QPolygonF points({QPointF(200.0, 150.0)});
        while (points.size() < count) {
            points.append(points.constLast() + random.point(QSizeF(24.0, 24.0)) - QPointF(12.0, 12.0));
        }
        const ComparedCurve curve(points);
        for (int i = 0; i < 1000; ++i) {
            const QRectF place(points.at(i % count) + random.point(QSizeF(60.0, 60.0)) - QPointF(30.0, 30.0),
                QSizeF(1.0 + random.upTo(12.0), 1.0 + random.upTo(12.0)));
            bool isMet = false;
            for (int k = 1; k < count; ++k) {
                isMet = isMet || meets(QLineF(points.at(k - 1), points.at(k)), place);
            }
            QCOMPARE(curve.meets(place), isMet);
            met += isMet ? 1 : 0;
        }
    }
    QVERIFY(met > 500 && met < 6500);
}

QTEST_MAIN(DrawListTest)
#include "drawlisttest.moc"
