// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramcolors_p.h>
#include <ceiechart/diagram/horseshoefill_p.h>
#include <ceiechart/diagram/pixelpainter_p.h>
#include <ceiechart/diagram/rowcoverage_p.h>
#include <ceiechart/diagram/spectrum_p.h>
#include <ceiechart/diagram/whitepoint.h>

#include <reference/plainrenderer.h>

#include <QPainter>
#include <QtTest>

#include <cmath>

using namespace ceiechart;

namespace {

constexpr Model::Diagram allDiagrams[] = {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960};

//! The share of a pixel that a polygon covers, by many points in it: plain, but for looking at near edges only.
class PlainShare {
public:
    explicit PlainShare(const QPolygonF &polygon)
        : m_polygon(polygon)
    {
    }

    double at(int x, int y)
    {
        if (y != m_row) {
            m_row = y;
            m_edges.clear();
            for (int i = 0; i < m_polygon.size(); ++i) {
                const QLineF edge(m_polygon.at(i), m_polygon.at((i + 1) % m_polygon.size()));
                if (std::min(edge.y1(), edge.y2()) <= y + 1 && std::max(edge.y1(), edge.y2()) >= y) {
                    m_edges.append(edge);
                }
            }
        }
        constexpr int points = 12;
        int count = 0;
        for (int i = 0; i < points * points; ++i) {
            count += contains(QPointF(x + (i % points + 0.5) / points, y + (i / points + 0.5) / points)) ? 1 : 0;
        }
        return double(count) / (points * points);
    }

private:
    //! Half-open: a point on an edge counts once.
    bool contains(const QPointF &at) const
    {
        bool inside = false;
        for (const QLineF &edge : m_edges) {
            if ((edge.y1() > at.y()) != (edge.y2() > at.y())
                && at.x() < edge.dx() * (at.y() - edge.y1()) / edge.dy() + edge.x1()) {
                inside = !inside;
            }
        }
        return inside;
    }

    QPolygonF m_polygon;
    QVector<QLineF> m_edges; // near the row
    int m_row = -1;
};

ColorsRequest requestFor(Model::Diagram diagram, HorseshoeColors colors, double zoom, double ratio = 1.0)
{
    ColorsRequest request;
    request.viewport
        = DiagramViewport(diagram, QSizeF(160, 130), QMarginsF(20, 4, 6, 10)).centredOn(QPointF(0.33, 0.34), zoom);
    if (zoom == 1.0) {
        request.viewport = request.viewport.fittedToAll();
    }
    request.devicePixelRatio = ratio;
    request.colors = colors;
    request.ground = QColor(252, 251, 40);
    if (diagram == Model::Diagram::Cie1931) {
        request.full = QPolygonF() << QPointF(0.64, 0.33) << QPointF(0.30, 0.60) << QPointF(0.15, 0.06);
    } else {
        request.full = QPolygonF() << QPointF(0.45, 0.30) << QPointF(0.12, 0.38) << QPointF(0.18, 0.16);
    }
    return request;
}

QPolygonF inPixels(const ColorsRequest &request, const QPolygonF &points)
{
    QPolygonF pixels;
    for (const QPointF &point : points) {
        pixels.append(request.viewport.fromPoint(point) * request.devicePixelRatio);
    }
    return pixels;
}

QColor mixed(const QColor &a, const QColor &b, double share)
{
    const auto channel = [share](int p, int q) { return int(std::lround(p * share + q * (1.0 - share))); };
    return QColor(channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue()));
}

int difference(const QColor &a, const QColor &b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
}

} // namespace

class DiagramColorsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pixelsAreThoseOfTheDefinition_data();
    void pixelsAreThoseOfTheDefinition();
    void scrolledIsAsFilledAnew_data();
    void scrolledIsAsFilledAnew();
    void paintedWhileScrolledIsAsFilledAnew_data();
    void paintedWhileScrolledIsAsFilledAnew();
    void writtenIsAsFilledAnew_data();
    void writtenIsAsFilledAnew();
    void picturesBetweenPixelsAreNotWritten();
    void editedIsAsFilledAnew();
    void movedAndEditedIsAsFilledAnew();
    void nothingChangedFillsNothing();
    void halfPixelsAreFilledAnew();
    void noneIsGround();
    void coverageOfAPolygon();
    void spectrumPassesItsTable();
    void planckianPointsAreOnTheLocus();
};

void DiagramColorsTest::pixelsAreThoseOfTheDefinition_data()
{
    QTest::addColumn<int>("diagram");
    QTest::addColumn<int>("colors");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("ratio");
    for (const Model::Diagram diagram : allDiagrams) {
        for (const HorseshoeColors colors : {HorseshoeColors::Full, HorseshoeColors::Dimmed}) {
            for (const auto &[zoom, ratio] : {std::pair(1.0, 1.0), std::pair(1.0, 1.5), std::pair(5.0, 2.0),
                     std::pair(300.0, 1.0), std::pair(2000.0, 1.25)}) {
                QTest::addRow("%s %d %g %g", Model::diagramTraits(diagram).xName, int(colors), zoom, ratio)
                    << int(diagram) << int(colors) << zoom << ratio;
            }
        }
    }
}

void DiagramColorsTest::pixelsAreThoseOfTheDefinition()
{
    QFETCH(int, diagram);
    QFETCH(int, colors);
    QFETCH(double, zoom);
    QFETCH(double, ratio);
    const ColorsRequest request = requestFor(Model::Diagram(diagram), HorseshoeColors(colors), zoom, ratio);
    DiagramColors kept;
    const QImage &image = kept.update(request, nullptr, nullptr);
    QCOMPARE(image.size(), request.size());
    QCOMPARE(image.devicePixelRatio(), ratio);

    static const CEIAtlasValue atlas;
    const bool isXy = Model::Diagram(diagram) == Model::Diagram::Cie1931;
    PlainShare locus(
        inPixels(request, spectralLocusIn(request.viewport.diagram(), spectrumDetail(request.viewport.scale()))));
    PlainShare full(inPixels(request, request.full));
    int exact = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (!request.plot().contains(x, y)) {
                QCOMPARE(color, request.ground);
                continue;
            }
            QPointF point = request.viewport.toPoint(QPointF(x + 0.5, y + 0.5) / ratio);
            if (Model::Diagram(diagram) == Model::Diagram::Cie1960) {
                point.setY(point.y() * 1.5);
            }
            const QColor plain = reference::horseshoeColor(isXy ? atlas.colorSystem : uvColorSystem, point, 1.0);
            const QColor half((plain.red() + request.ground.red()) / 2, (plain.green() + request.ground.green()) / 2,
                (plain.blue() + request.ground.blue()) / 2);
            const bool isDimmed = HorseshoeColors(colors) == HorseshoeColors::Dimmed;
            const double share = locus.at(x, y);
            const double bright = isDimmed ? full.at(x, y) : 1.0;
            const QColor expected = mixed(mixed(plain, half, bright), request.ground, share);
            // A share by points misses slivers of less than a 24th of a pixel, and is off by a little more where two
            // edges meet.
            const bool isWhole = (share == 0.0 || share == 1.0) && (bright == 0.0 || bright == 1.0);
            const int allowed = isWhole ? 255 / 24 : 14;
            QVERIFY2(difference(color, expected) <= allowed,
                qPrintable(QStringLiteral("%1, %2: %3 for %4").arg(x).arg(y).arg(color.name(), expected.name())));
            exact += color == expected ? 1 : 0;
        }
    }
    // Nearly everywhere there is no edge.
    QVERIFY2(exact > 0.93 * request.plot().width() * request.plot().height(), qPrintable(QString::number(exact)));
}

void DiagramColorsTest::scrolledIsAsFilledAnew_data()
{
    QTest::addColumn<int>("diagram");
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<double>("zoom");
    for (const Model::Diagram diagram : allDiagrams) {
        for (const QPoint &way : {QPoint(7, 0), QPoint(0, -5), QPoint(-11, 9), QPoint(3, 4), QPoint(500, 2)}) {
            QTest::addRow("%s %d %d", Model::diagramTraits(diagram).xName, way.x(), way.y())
                << int(diagram) << way << 4.0;
        }
    }
}

void DiagramColorsTest::scrolledIsAsFilledAnew()
{
    QFETCH(int, diagram);
    QFETCH(QPoint, way);
    QFETCH(double, zoom);
    constexpr double ratio = 1.5;
    ColorsRequest request = requestFor(Model::Diagram(diagram), HorseshoeColors::Dimmed, zoom, ratio);
    DiagramColors kept;
    kept.update(request, nullptr, nullptr);
    request.viewport = request.viewport.panned(QPointF(way) / ratio);
    QRegion changed;
    QPoint scrolled;
    const QImage image = kept.update(request, &changed, &scrolled);
    DiagramColors anew;
    QCOMPARE(image, anew.update(request, nullptr, nullptr));
    if (std::abs(way.x()) < 100) {
        QCOMPARE(scrolled, way);
        int pixels = 0;
        for (const QRect &part : changed) {
            pixels += part.width() * part.height();
        }
        QCOMPARE(pixels,
            std::abs(way.x()) * request.plot().height() + std::abs(way.y()) * request.plot().width()
                - std::abs(way.x() * way.y()));
    }
}

void DiagramColorsTest::paintedWhileScrolledIsAsFilledAnew_data()
{
    QTest::addColumn<HorseshoeColors>("colors");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("ratio");
    for (const HorseshoeColors colors : {HorseshoeColors::Dimmed, HorseshoeColors::Full, HorseshoeColors::None}) {
        for (const double zoom : {1.0, 30.0}) {
            for (const double ratio : {1.0, 1.25, 2.0}) {
                QTest::addRow("%d, %g times, ratio %g", int(colors), zoom, ratio) << colors << zoom << ratio;
            }
        }
    }
}

void DiagramColorsTest::paintedWhileScrolledIsAsFilledAnew()
{
    QFETCH(HorseshoeColors, colors);
    QFETCH(double, zoom);
    QFETCH(double, ratio);
    ColorsRequest request = requestFor(Model::Diagram::Cie1931, colors, zoom, ratio);
    DiagramColors kept;
    kept.update(request, nullptr, nullptr);
    const QPoint ways[] = {{7, 0}, {0, -5}, {-11, 9}, {0, 0}, {3, 4}, {0, 130}, {-2, -40}, {500, 2}, {1, 1}, {-16, 16}};
    for (const QPoint &way : ways) {
        request.viewport = request.viewport.panned(QPointF(way) / ratio);
        QImage painted(request.size(), QImage::Format_RGB32);
        painted.setDevicePixelRatio(ratio);
        painted.fill(Qt::red);
        QPainter painter(&painted);
        kept.paint(&painter, request);
        painter.end();
        DiagramColors anew;
        const QImage expected = anew.update(request, nullptr, nullptr);
        QVERIFY2(painted == expected, qPrintable(QStringLiteral("%1, %2").arg(way.x()).arg(way.y())));
        QCOMPARE(kept.update(request, nullptr, nullptr), expected);
    }
    // A copy, as a painter may keep one, stays as it is.
    const QImage before = kept.update(request, nullptr, nullptr).copy();
    const QImage held = kept.update(request, nullptr, nullptr);
    request.viewport = request.viewport.panned(QPointF(4, 6) / ratio);
    QImage painted(request.size(), QImage::Format_RGB32);
    QPainter painter(&painted);
    kept.paint(&painter, request);
    QCOMPARE(held, before);
}

void DiagramColorsTest::writtenIsAsFilledAnew_data()
{
    QTest::addColumn<HorseshoeColors>("colors");
    QTest::addColumn<double>("ratio");
    for (const HorseshoeColors colors : {HorseshoeColors::Dimmed, HorseshoeColors::Full, HorseshoeColors::None}) {
        for (const double ratio : {1.0, 1.3, 2.0}) {
            QTest::addRow("%d, ratio %g", int(colors), ratio) << colors << ratio;
        }
    }
}

void DiagramColorsTest::writtenIsAsFilledAnew()
{
    QFETCH(HorseshoeColors, colors);
    QFETCH(double, ratio);
    const ColorsRequest request = requestFor(Model::Diagram::Cie1931, colors, 1.0, ratio);
    const QImage whole = DiagramColors().update(request, nullptr, nullptr).copy();
    const QSize room = request.size() + QSize(20, 30);
    const QRect everywhere(QPoint(), room);
    QVector<QRect> clips{everywhere};
    if (ratio == std::floor(ratio)) { // others have clips that are rounded to something between pixels
        clips << QRect(50, 60, 70, 40) << QRect(0, 45, 300, 1);
    }
    for (const QPoint &at : {QPoint(0, 0), QPoint(11, 17), QPoint(-40, -50), QPoint(150, 120), QPoint(900, 0)}) {
        for (const QRect &clip : clips) {
            QImage written(room, QImage::Format_RGB32);
            written.fill(Qt::red);
            QImage expected = written.copy();
            {
                QPainter painter(&expected);
                painter.setClipRect(clip);
                painter.drawImage(QRect(at, whole.size()), whole);
            }
            QPainter painter(&written);
            if (clip != everywhere) {
                painter.setClipRect(clip);
            }
            painter.translate(at);
            painter.scale(ratio, ratio);
            const auto pixels = PixelPainter::on(painter);
            QVERIFY(pixels);
            QVERIFY(DiagramColors::write(*pixels, request));
            QVERIFY2(written == expected, qPrintable(QStringLiteral("%1, %2").arg(at.x()).arg(at.y())));
        }
    }
}

void DiagramColorsTest::picturesBetweenPixelsAreNotWritten()
{
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QImage before = image.copy();
    const auto isWritten = [&image](double ratio, const QPointF &at, const ColorsRequest &request) {
        QPainter painter(&image);
        painter.translate(at);
        painter.scale(ratio, ratio);
        return DiagramColors::write(*PixelPainter::on(painter), request);
    };
    const auto request
        = [](double ratio) { return requestFor(Model::Diagram::Cie1931, HorseshoeColors::Full, 1.0, ratio); };
    QVERIFY(!isWritten(1.25, QPointF(), request(1.25))); // 162.5 pixels high
    QVERIFY(!isWritten(1.0, QPointF(0.5, 0.0), request(1.0)));
    QVERIFY(!isWritten(1.0, QPointF(0.0, 0.25), request(1.0)));
    QVERIFY(!isWritten(2.0, QPointF(), request(1.0)));
    ColorsRequest large = request(1.0);
    large.viewport = large.viewport.resized(QSizeF(1e9, 1e9));
    QVERIFY(!isWritten(1.0, QPointF(), large));
    QCOMPARE(image, before);
    QVERIFY(isWritten(1.0, QPointF(), request(1.0)));
    QVERIFY(image != before);
}

void DiagramColorsTest::editedIsAsFilledAnew()
{
    ColorsRequest request = requestFor(Model::Diagram::Cie1931, HorseshoeColors::Dimmed, 1.0, 2.0);
    DiagramColors kept;
    const QImage before = kept.update(request, nullptr, nullptr);
    for (const QPointF &green : {QPointF(0.28, 0.62), QPointF(0.10, 0.80), QPointF(-0.1, 1.2), QPointF(0.4, 0.4)}) {
        request.full[1] = green;
        QRegion changed;
        const QImage image = kept.update(request, &changed, nullptr);
        DiagramColors anew;
        QCOMPARE(image, anew.update(request, nullptr, nullptr));
        QVERIFY(!changed.isEmpty());
    }
    request.full.clear();
    const QImage none = kept.update(request, nullptr, nullptr);
    DiagramColors anew;
    QCOMPARE(none, anew.update(request, nullptr, nullptr));
    QVERIFY(none != before);
}

void DiagramColorsTest::movedAndEditedIsAsFilledAnew()
{
    ColorsRequest request = requestFor(Model::Diagram::Cie1931, HorseshoeColors::Dimmed, 1.0, 1.0);
    DiagramColors kept;
    kept.update(request, nullptr, nullptr);
    // After each of these the picture is that of the next one's past.
    const QPointF greens[] = {{0.28, 0.62}, {0.28, 0.62}, {0.10, 0.80}, {0.12, 0.78}, {0.12, 0.78}, {0.2, 0.7}};
    const QPointF ways[] = {{0, 0}, {9, -4}, {0, 0}, {-6, 11}, {400, 0}, {0, 0}};
    for (int i = 0; i < 6; ++i) {
        request.full[1] = greens[i];
        request.viewport = request.viewport.panned(ways[i]);
        const QImage image = kept.update(request, nullptr, nullptr);
        DiagramColors anew;
        QVERIFY2(image == anew.update(request, nullptr, nullptr), qPrintable(QString::number(i)));
    }
    // Without its colours and back, with another edit in between.
    request.colors = HorseshoeColors::Full;
    kept.update(request, nullptr, nullptr);
    request.full[1] = QPointF(0.3, 0.6);
    request.viewport = request.viewport.panned(QPointF(3, 3));
    kept.update(request, nullptr, nullptr);
    request.colors = HorseshoeColors::Dimmed;
    kept.update(request, nullptr, nullptr);
    request.full[1] = QPointF(0.31, 0.61);
    const QImage image = kept.update(request, nullptr, nullptr);
    DiagramColors anew;
    QCOMPARE(image, anew.update(request, nullptr, nullptr));
}

void DiagramColorsTest::nothingChangedFillsNothing()
{
    const ColorsRequest request = requestFor(Model::Diagram::Cie1976, HorseshoeColors::Dimmed, 3.0);
    DiagramColors kept;
    QRegion changed;
    kept.update(request, &changed, nullptr);
    QCOMPARE(changed, QRegion(QRect(QPoint(), request.size())));
    kept.update(request, &changed, nullptr);
    QVERIFY(changed.isEmpty());
}

void DiagramColorsTest::halfPixelsAreFilledAnew()
{
    ColorsRequest request = requestFor(Model::Diagram::Cie1976, HorseshoeColors::Full, 3.0);
    DiagramColors kept;
    kept.update(request, nullptr, nullptr);
    request.viewport = request.viewport.panned(QPointF(2.5, 0.0));
    QRegion changed;
    const QImage image = kept.update(request, &changed, nullptr);
    DiagramColors anew;
    QCOMPARE(image, anew.update(request, nullptr, nullptr));
    QCOMPARE(changed, QRegion(image.rect()));
}

void DiagramColorsTest::noneIsGround()
{
    const ColorsRequest request = requestFor(Model::Diagram::Cie1931, HorseshoeColors::None, 1.0);
    DiagramColors kept;
    QImage expected(request.size(), QImage::Format_RGB32);
    expected.fill(request.ground);
    QCOMPARE(kept.update(request, nullptr, nullptr), expected);
}

void DiagramColorsTest::coverageOfAPolygon()
{
    // Parts beyond all four sides, and one within.
    for (const QVector<QPointF> &polygon :
        {QPolygonF() << QPointF(3.3, 2.1) << QPointF(17.4, 5.7) << QPointF(8.2, 13.9),
            QPolygonF() << QPointF(-9, 7) << QPointF(12, -8) << QPointF(40, 6) << QPointF(11, 30),
            QPolygonF() << QPointF(2, 3) << QPointF(2, 9) << QPointF(12, 9) << QPointF(12, 3),
            QPolygonF() << QPointF(-30, -30) << QPointF(90, -30) << QPointF(90, 90) << QPointF(-30, 90),
            // Corners so far away that no int has their columns, as those of a view that is zoomed in.
            QPolygonF() << QPointF(3, 4) << QPointF(4e10, 6) << QPointF(5, 12),
            QPolygonF() << QPointF(-4e10, 3) << QPointF(4e10, 2) << QPointF(4e10, 11) << QPointF(-4e10, 9)}) {
        RowCoverage coverage(QPolygonF(polygon), 20, 16);
        PlainShare plain{QPolygonF(polygon)};
        for (int y = 0; y < 16; ++y) {
            int column = 0;
            for (const CoveredRun &run : coverage.row(y)) {
                QCOMPARE(run.left, column);
                for (; column < run.right; ++column) {
                    const double share = plain.at(column, y);
                    QVERIFY2(std::fabs(run.alpha / 255.0 - share) < 0.06,
                        qPrintable(QStringLiteral("%1 %2: %3 for %4").arg(column).arg(y).arg(run.alpha).arg(share)));
                }
            }
            QCOMPARE(column, 20);
        }
    }
    // Corners that are not finite, and edges too long for a slope, still give shares from 0 to 255.
    for (const double odd : {qQNaN(), qInf(), -qInf(), 1e308, -1e308}) {
        for (const QVector<QPointF> &polygon : {QPolygonF() << QPointF(odd, 3) << QPointF(15, 6) << QPointF(5, 12),
                 QPolygonF() << QPointF(3, odd) << QPointF(15, 6) << QPointF(5, 12),
                 QPolygonF() << QPointF(odd, 3) << QPointF(-odd, 6) << QPointF(5, 12),
                 QPolygonF() << QPointF(odd, odd) << QPointF(-odd, -odd) << QPointF(5, 12)}) {
            RowCoverage coverage(QPolygonF(polygon), 20, 16);
            for (int y = 0; y < 16; ++y) {
                int column = 0;
                for (const CoveredRun &run : coverage.row(y)) {
                    QCOMPARE(run.left, column);
                    QVERIFY(run.alpha >= 0 && run.alpha <= 255);
                    column = run.right;
                }
                QCOMPARE(column, 20);
            }
        }
    }
    RowCoverage nothing(QPolygonF(), 5, 5);
    QCOMPARE(int(nothing.row(2).size()), 1);
    QCOMPARE(nothing.row(2)[0].alpha, 0);
}

void DiagramColorsTest::spectrumPassesItsTable()
{
    const CEIAtlasValue atlas;
    for (const CEIAtlasValue::CEIAtlasCoordinate &row : atlas.atlasCoordinates) {
        if (row.waveLength > 361 && row.waveLength < 828) {
            const double sum = row.X + row.Y + row.Z;
            const QPointF xy = spectralChromaticity(row.waveLength);
            QVERIFY(std::fabs(xy.x() - row.X / sum) < 1e-12 && std::fabs(xy.y() - row.Y / sum) < 1e-12);
        }
    }
}

void DiagramColorsTest::planckianPointsAreOnTheLocus()
{
    for (double mired = 13.0; mired < 990.0; mired += 7.3) {
        const LocusPoint point = planckianPoint(mired);
        for (const double duv : {-0.02, 0.0, 0.02}) {
            const QPointF uv = point.uv + point.normal * duv;
            const Model::DiagramPoint xy = Model::fromDiagram(Model::Diagram::Cie1960, {uv.x(), uv.y()});
            const auto temperature = colorTemperature(QPointF(xy.x, xy.y));
            QVERIFY(temperature);
            QVERIFY(std::fabs(1e6 / temperature->kelvin - mired) < 2e-4);
            QVERIFY(std::fabs(temperature->duv - duv) < 1e-7);
        }
    }
}

QTEST_APPLESS_MAIN(DiagramColorsTest)
#include "diagramcolorstest.moc"
