// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT

#include "rendererbench.h"

#include <QPaintDevice>
#include <QPaintEngine>

#include <vector>

namespace {

// Remembers the lines drawn, and with which pen.
class LineRecorder : public QPaintEngine {
public:
    struct Line {
        QLineF line;
        QPen pen;
        bool antialiased;
    };
    std::vector<Line> lines;

    LineRecorder()
        : QPaintEngine(QPaintEngine::AllFeatures)
    {
    }

    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void drawPixmap(const QRectF & /*to*/, const QPixmap & /*pixmap*/, const QRectF & /*from*/) override { }
    void updateState(const QPaintEngineState &state) override
    {
        if (state.state() & DirtyPen) {
            m_pen = state.pen();
        }
        if (state.state() & DirtyHints) {
            m_antialiased = state.renderHints().testFlag(QPainter::Antialiasing);
        }
    }
    using QPaintEngine::drawLines;
    void drawLines(const QLineF *drawn, int count) override
    {
        for (int i = 0; i < count; ++i) {
            lines.push_back({drawn[i], m_pen, m_antialiased});
        }
    }

private:
    QPen m_pen;
    bool m_antialiased = false;
};

// A picture that holds nothing but the lines drawn on it.
class LineDevice : public QPaintDevice {
public:
    QPaintEngine *paintEngine() const override { return &m_recorder; }
    const std::vector<LineRecorder::Line> &lines() const { return m_recorder.lines; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 800;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    mutable LineRecorder m_recorder;
};

} // namespace

class LocusEdgeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void edgeHasEverySegmentAndTheLineOfPurples();
    void edgeSegmentReturnsItsPixel();
    void edgePixels();
};

void LocusEdgeTest::edgeHasEverySegmentAndTheLineOfPurples()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(10, 200, 30, 40), Qt::black);
    simplePicture(renderer, 800, 800);
    LineDevice device;
    QPainter painter(&device);
    renderer.paintCEIEdge(painter);
    painter.end();
    QCOMPARE(device.lines().size(), std::size_t(470));
    for (int i = 0; i < 469; ++i) {
        const QLineF &line = device.lines()[static_cast<std::size_t>(i)].line;
        const QPointF from = exactPixel(renderer, 360 + i);
        const QPointF to = exactPixel(renderer, 361 + i);
        QVERIFY(line.x1() == from.x() && line.y1() == from.y() && line.x2() == to.x() && line.y2() == to.y());
    }
    const QLineF &purples = device.lines().back().line;
    QVERIFY(purples.x1() == exactPixel(renderer, 829).x() && purples.y1() == exactPixel(renderer, 829).y());
    QVERIFY(purples.x2() == exactPixel(renderer, 360).x() && purples.y2() == exactPixel(renderer, 360).y());
    for (const LineRecorder::Line &line : device.lines()) {
        QCOMPARE(line.pen, gamutPen(QColor(10, 200, 30, 40), 2.0));
        QVERIFY(line.antialiased);
    }
}

void LocusEdgeTest::edgeSegmentReturnsItsPixel()
{
    Renderer renderer(nullptr);
    simplePicture(renderer, 800, 800);
    LineDevice device;
    QPainter painter(&device);
    const QPointF end = renderer.DrawPointFToLine(painter, rowOf(555), QPointF(-3.25, 7.5));
    painter.end();
    const QPointF expected = exactPixel(renderer, 555);
    QVERIFY(end.x() == expected.x() && end.y() == expected.y());
    QCOMPARE(device.lines().size(), std::size_t(1));
    const QLineF &line = device.lines().front().line;
    QVERIFY(line.x1() == -3.25 && line.y1() == 7.5 && line.x2() == end.x() && line.y2() == end.y());
}

void LocusEdgeTest::edgePixels()
{
    Renderer renderer(nullptr);
    renderer.setGraphColor(QColor(0, 255, 0), Qt::black);
    const QImage picture = gamutPicture(renderer, 600, 600);
    for (int wavelength = 640; wavelength < 675; wavelength += 5) {
        const QRgb pixel = picture.pixel(exactPixel(renderer, wavelength).toPoint());
        QVERIFY(qGreen(pixel) > 60);
        QCOMPARE(qRed(pixel), 0);
    }
}

CEIECHART_PICTURE_TEST_MAIN(LocusEdgeTest)
#include "locusedgetest.moc"
