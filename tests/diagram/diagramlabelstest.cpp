// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <diagram/fulldiagram.h>

#include <ceiechart/diagram/whitepoint.h>
#include <gamutmodel/spectrallocus.h>

#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace fulldiagram;

namespace {

//! What a wall's host shows: a display, its measurement, a target and two standards.
DiagramContent wallContent()
{
    DiagramContent content;
    content.gamuts = {{Model::rec709(), GamutRole::Standard}, {Model::rec2020(), GamutRole::Standard},
        {gamut("LED wall", {0.70, 0.299}, {0.189, 0.718}, {0.133, 0.075}, {0.2829, 0.2971}), GamutRole::Original},
        {gamut("LED wall, measured", {0.69, 0.305}, {0.195, 0.71}, {0.135, 0.078}, {0.2829, 0.2971}),
            GamutRole::Measured},
        {Model::dciP3D65(), GamutRole::Target}};
    return content;
}

} // namespace

/*! The texts of a diagram and their places. */
class DiagramLabelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void labelsStandApart_data();
    void labelsStandApart();
    void digitsFollowTheZoom();
    void isothermsGetDenser();
    void wavelengthsGetDenser();
    void namesOfGamutsAreShown();
    void namesFindPlacesInSmallViews_data();
    void namesFindPlacesInSmallViews();
    void namesKeepOffTheLoci();
    void leadersEndOnTheirOutlines();
    void isothermNumbersLeaveOutlines();
    void oddNamesAreShown();
    void numbersLeaveMarksToBeSeen();
    void textsLeaveHandles_data();
    void textsLeaveHandles();
    void numbersLeaveRings();
    void shortenedNamesSaySomething();
    void outlinesDoNotCutWavelengths();
    void negativeNumbersAreShown_data();
    void negativeNumbersAreShown();
    void axisNumbersKeepAwayFromNames();
    void ringNumbersHaveNoExponent();
    void freePlaceAvoidsWhatItIsTold();
};

void DiagramLabelsTest::labelsStandApart_data()
{
    QTest::addColumn<int>("diagram");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<double>("zoom");
    for (const Model::Diagram diagram : allDiagrams) {
        for (const QSizeF &size : {QSizeF(120, 90), QSizeF(300, 250), QSizeF(660, 660), QSizeF(1024, 768),
                 QSizeF(1600, 400), QSizeF(3840, 2160)}) {
            for (const double zoom : {1.0, 1.7, 5.0, 20.0, 90.0, 300.0, 2000.0}) {
                QTest::addRow("%s %gx%g %g", Model::diagramTraits(diagram).xName, size.width(), size.height(), zoom)
                    << int(diagram) << size << zoom;
            }
        }
    }
}

void DiagramLabelsTest::labelsStandApart()
{
    QFETCH(int, diagram);
    QFETCH(QSizeF, size);
    QFETCH(double, zoom);
    DiagramPainter painter;
    for (const auto &[at, points] :
        {std::pair(d65, 9), std::pair(QPointF(0.08, 0.83), 9), std::pair(QPointF(0.68, 0.32), 9), std::pair(d65, 15)}) {
        QFont font;
        font.setPointSize(points);
        painter.setFont(font);
        prepare(painter, fullContent(), Model::Diagram(diagram), size, zoom, at);
        const QVector<DiagramLabel> labels = painter.labels();
        const QRectF whole(QPointF(), size);
        for (int i = 0; i < labels.size(); ++i) {
            QVERIFY2(whole.contains(labels.at(i).place), qPrintable(labels.at(i).text));
            QVERIFY(labels.at(i).kind == DiagramLabel::Kind::Axis
                || painter.viewport().plot().contains(labels.at(i).place));
            for (int k = 0; k < i; ++k) {
                QVERIFY2(!labels.at(i).place.intersects(labels.at(k).place),
                    qPrintable(labels.at(i).text + QStringLiteral(" on ") + labels.at(k).text));
            }
            // Points along the leader, which no text covers.
            for (int k = 0; k < labels.size() && !labels.at(i).leader.isNull(); ++k) {
                for (double share = 0.0; share <= 1.0 && k != i; share += 0.05) {
                    QVERIFY2(!labels.at(k).place.contains(labels.at(i).leader.pointAt(share)),
                        qPrintable(labels.at(k).text + QStringLiteral(" on the leader of ") + labels.at(i).text));
                }
            }
            const double value = labels.at(i).text.toDouble();
            QVERIFY(value != 0.0 || !labels.at(i).text.startsWith(QLatin1Char('-')));
        }
        if (size.width() >= 300 && points == 9) {
            const auto count = std::count_if(labels.cbegin(), labels.cend(),
                [](const DiagramLabel &label) { return label.kind == DiagramLabel::Kind::Axis; });
            QVERIFY2(count >= 5, qPrintable(QString::number(count)));
        }
    }
}

void DiagramLabelsTest::digitsFollowTheZoom()
{
    DiagramPainter painter;
    int before = 0;
    for (const double zoom : {1.0, 12.0, 150.0, 2000.0}) {
        prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(800, 600), zoom);
        int decimals = 0;
        for (const DiagramLabel &label : painter.labels()) {
            if (label.kind == DiagramLabel::Kind::Axis && label.text.contains(QLatin1Char('.'))) {
                decimals = int(label.text.size() - label.text.indexOf(QLatin1Char('.')) - 1);
            }
        }
        QVERIFY(decimals > before);
        before = decimals;
    }
}

void DiagramLabelsTest::isothermsGetDenser()
{
    DiagramPainter painter;
    double before = HUGE_VAL;
    for (const double zoom : {1.0, 20.0, 120.0, 2000.0}) {
        prepare(painter, fullContent(), Model::Diagram::Cie1976, QSizeF(900, 700), zoom);
        QVector<double> kelvins;
        for (const DiagramLabel &label : painter.labels()) {
            if (label.kind == DiagramLabel::Kind::Isotherm) {
                QVERIFY(label.text.endsWith(QStringLiteral(" K")));
                kelvins.append(label.text.left(label.text.size() - 2).toDouble());
            }
        }
        std::sort(kelvins.begin(), kelvins.end());
        double least = HUGE_VAL;
        for (int i = 1; i < kelvins.size(); ++i) {
            least = std::min(least, kelvins.at(i) - kelvins.at(i - 1));
        }
        QVERIFY2(kelvins.size() >= 4, qPrintable(QString::number(kelvins.size())));
        QVERIFY(least < before);
        QVERIFY(zoom < 20.0 || least <= 100.0);
        before = least;
    }
    QVERIFY(before <= 10.0);
}

void DiagramLabelsTest::wavelengthsGetDenser()
{
    DiagramPainter painter;
    double before = HUGE_VAL;
    for (const double zoom : {1.0, 10.0, 100.0}) {
        prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(900, 700), zoom, QPointF(0.3734, 0.6245));
        QVector<double> nanometres;
        for (const DiagramLabel &label : painter.labels()) {
            if (label.kind == DiagramLabel::Kind::Wavelength) {
                nanometres.append(label.text.toDouble());
            }
        }
        std::sort(nanometres.begin(), nanometres.end());
        QVERIFY(nanometres.size() >= 2);
        double least = HUGE_VAL;
        for (int i = 1; i < nanometres.size(); ++i) {
            least = std::min(least, nanometres.at(i) - nanometres.at(i - 1));
        }
        QVERIFY(least < before);
        before = least;
    }
}

void DiagramLabelsTest::namesOfGamutsAreShown()
{
    DiagramPainter painter;
    const DiagramContent content = fullContent();
    for (const Model::Diagram diagram : allDiagrams) {
        prepare(painter, content, diagram, QSizeF(900, 800), 1.0);
        for (int i = 0; i < content.gamuts.size(); ++i) {
            const QRectF place = painter.namePlace(i);
            QVERIFY2(!place.isEmpty(), qPrintable(QString::number(i)));
            // Beside the outline that it names.
            const QPolygonF corners = painter.outline(i);
            double nearest = HUGE_VAL;
            for (int k = 0; k < 3; ++k) {
                const QLineF side(corners.at(k), corners.at((k + 1) % 3));
                for (double share = 0.0; share <= 1.0; share += 0.005) {
                    const QPointF at = side.pointAt(share);
                    nearest = std::min(nearest,
                        std::hypot(std::max({place.left() - at.x(), at.x() - place.right(), 0.0}),
                            std::max({place.top() - at.y(), at.y() - place.bottom(), 0.0})));
                }
            }
            const QVector<DiagramLabel> labels = painter.labels();
            const auto label = std::find_if(
                labels.cbegin(), labels.cend(), [&place](const DiagramLabel &some) { return some.place == place; });
            QVERIFY2(nearest < (label->leader.isNull() ? 14.0 : 200.0),
                qPrintable(QStringLiteral("%1: %2").arg(i).arg(nearest)));
        }
    }
    QVERIFY(painter.namePlace(99).isNull());
    QVERIFY(painter.outline(-1).isEmpty());
}

void DiagramLabelsTest::namesFindPlacesInSmallViews_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("least");
    QTest::newRow("300 x 250") << QSizeF(300, 250) << 3;
    QTest::newRow("480 x 360") << QSizeF(480, 360) << 5;
}

void DiagramLabelsTest::namesFindPlacesInSmallViews()
{
    QFETCH(QSizeF, size);
    QFETCH(int, least);
    DiagramPainter painter;
    for (const Model::Diagram diagram : allDiagrams) {
        prepare(painter, wallContent(), diagram, size, 1.0);
        int count = 0;
        for (const DiagramLabel &label : painter.labels()) {
            count += label.kind == DiagramLabel::Kind::Gamut ? 1 : 0;
        }
        QVERIFY2(count >= least,
            qPrintable(QStringLiteral("%1 %2").arg(QString::fromUtf8(Model::diagramTraits(diagram).xName)).arg(count)));
    }
}

// Where there is room elsewhere.
void DiagramLabelsTest::namesKeepOffTheLoci()
{
    DiagramContent content;
    content.gamuts = {{Model::rec2020(), GamutRole::Standard}, {Model::rec709(), GamutRole::Standard}};
    content.colorTemperaturePoints = {{*chromaticityAt(3200.0, 0.0), QStringLiteral("3200 K"), QColor()}};
    content.layers.setFlag(DiagramLayer::Isotherms, false);
    DiagramPainter painter;
    for (const QSizeF &size : {QSizeF(660, 660), QSizeF(1000, 760)}) {
        prepare(painter, content, Model::Diagram::Cie1931, size, 1.0);
        int names = 0;
        for (const DiagramLabel &label : painter.labels()) {
            if (label.kind != DiagramLabel::Kind::Gamut && label.kind != DiagramLabel::Kind::Mark) {
                continue;
            }
            ++names;
            const auto isOn
                = [&](const QPointF &xy) { return label.place.contains(painter.viewport().toPosition(xy)); };
            for (double wavelength = Model::shortestWavelength; wavelength <= Model::longestWavelength;
                 wavelength += 0.5) {
                const Model::DiagramPoint xy = Model::spectralChromaticity(wavelength);
                QVERIFY2(!isOn(QPointF(xy.x, xy.y)), qPrintable(label.text));
            }
            for (double kelvin = 1500.0; kelvin < 30000.0; kelvin *= 1.01) {
                QVERIFY2(!isOn(*chromaticityAt(kelvin, 0.0)), qPrintable(label.text));
            }
        }
        QCOMPARE(names, 3);
    }
}

void DiagramLabelsTest::leadersEndOnTheirOutlines()
{
    DiagramPainter painter;
    int leaders = 0;
    for (const Model::Diagram diagram : allDiagrams) {
        for (const QSizeF &size : {QSizeF(300, 250), QSizeF(480, 360), QSizeF(800, 600)}) {
            for (const double zoom : {1.0, 3.0, 6.0}) {
                prepare(painter, wallContent(), diagram, size, zoom);
                for (const DiagramLabel &label : painter.labels()) {
                    if (label.kind != DiagramLabel::Kind::Gamut || label.leader.isNull()) {
                        continue;
                    }
                    ++leaders;
                    QVERIFY(label.place.adjusted(-0.01, -0.01, 0.01, 0.01).contains(label.leader.p1()));
                    const QPolygonF corners = painter.outline(label.index);
                    double nearest = HUGE_VAL;
                    for (int i = 0; i < 3; ++i) {
                        const QLineF side(corners.at(i), corners.at((i + 1) % 3));
                        const QLineF normal = side.normalVector().unitVector();
                        const QPointF way = label.leader.p2() - side.p1();
                        nearest = std::min(nearest, std::fabs(way.x() * normal.dx() + way.y() * normal.dy()));
                    }
                    QVERIFY2(nearest < 0.01, qPrintable(label.text));
                }
            }
        }
    }
    QVERIFY2(leaders > 10, qPrintable(QString::number(leaders)));
}

void DiagramLabelsTest::isothermNumbersLeaveOutlines()
{
    DiagramPainter painter;
    int numbers = 0;
    for (const Model::Diagram diagram : allDiagrams) {
        for (const QSizeF &size : {QSizeF(300, 250), QSizeF(480, 360), QSizeF(800, 600)}) {
            for (const double zoom : {1.0, 2.0, 4.0, 8.0}) {
                prepare(painter, wallContent(), diagram, size, zoom);
                for (const DiagramLabel &label : painter.labels()) {
                    if (label.kind != DiagramLabel::Kind::Isotherm) {
                        continue;
                    }
                    ++numbers;
                    for (int i = 0; i < painter.content().gamuts.size(); ++i) {
                        const QPolygonF corners = painter.outline(i);
                        for (int k = 0; k < 3; ++k) {
                            for (double share = 0.0; share <= 1.0; share += 0.001) {
                                const QPointF at = QLineF(corners.at(k), corners.at((k + 1) % 3)).pointAt(share);
                                QVERIFY2(!label.place.contains(at), qPrintable(label.text));
                            }
                        }
                    }
                }
            }
        }
    }
    QVERIFY2(numbers > 60, qPrintable(QString::number(numbers)));
}

void DiagramLabelsTest::oddNamesAreShown()
{
    DiagramContent content;
    const QString longName = QStringLiteral("A very long name of a gamut that nobody would give to one but a machine ");
    const QByteArray longest = (longName + longName).toUtf8();
    content.gamuts = {{gamut(longest.constData(), {0.64, 0.33}, {0.3, 0.6}, {0.15, 0.06}), GamutRole::Standard},
        {gamut("two\nlines\x07 ", {0.708, 0.292}, {0.17, 0.797}, {0.131, 0.046}), GamutRole::Standard},
        {gamut("Point", {0.2, 0.6}, {0.2, 0.6}, {0.2, 0.6}), GamutRole::Declared}};
    content.measurePoints = {{QPointF(0.45, 0.25), QStringLiteral("mark\tone")}};
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 400), 1.0);
    QStringList names;
    for (const DiagramLabel &label : painter.labels()) {
        if (label.kind == DiagramLabel::Kind::Gamut || label.kind == DiagramLabel::Kind::Mark) {
            names.append(label.text);
        }
    }
    QVERIFY2(names.contains(QStringLiteral("Point")), qPrintable(names.join(QLatin1Char('|'))));
    QVERIFY2(names.contains(QStringLiteral("two lines")), qPrintable(names.join(QLatin1Char('|'))));
    QVERIFY2(names.contains(QStringLiteral("mark one")), qPrintable(names.join(QLatin1Char('|'))));
    const auto isShortened
        = [](const QString &name) { return name.startsWith(QStringLiteral("A very")) && name.endsWith(QChar(0x2026)); };
    QCOMPARE(int(std::count_if(names.cbegin(), names.cend(), isShortened)), 1);
}

void DiagramLabelsTest::numbersLeaveMarksToBeSeen()
{
    DiagramPainter painter;
    int numbers = 0;
    for (const double zoom : {1.0, 3.0, 8.0, 20.0, 60.0}) {
        for (const QSizeF &size : {QSizeF(300, 250), QSizeF(1024, 768)}) {
            const DiagramContent content = fullContent();
            prepare(painter, content, Model::Diagram::Cie1931, size, zoom);
            QVector<QPointF> marks;
            for (const QVector<DiagramMark> &kind :
                {content.measurePoints, content.colorTemperaturePoints, content.cmyPoints}) {
                for (const DiagramMark &mark : kind) {
                    marks.append(painter.viewport().toPosition(mark.xy));
                }
            }
            for (const DiagramGamut &shown : content.gamuts) {
                if (shown.role != GamutRole::Standard) {
                    const Model::Target white = shown.gamut.getTargets().white;
                    marks.append(painter.viewport().toPosition(QPointF(white.x, white.y)));
                }
            }
            const QPointF handle = painter.viewport().toPosition(d65);
            const QRectF plot = painter.viewport().plot().adjusted(10.0, 10.0, -10.0, -10.0);
            for (const DiagramLabel &label : painter.labels()) {
                if (label.kind == DiagramLabel::Kind::Isotherm) {
                    ++numbers;
                    for (const QPointF &mark : marks) {
                        QVERIFY2(!plot.contains(mark) || !label.place.adjusted(-4, -4, 4, 4).contains(mark),
                            qPrintable(label.text));
                    }
                }
                if (label.kind == DiagramLabel::Kind::Isotherm || label.kind == DiagramLabel::Kind::Gamut) {
                    QVERIFY2(!label.place.adjusted(-10, -10, 10, 10).contains(handle), qPrintable(label.text));
                }
            }
        }
    }
    QVERIFY2(numbers > 20, qPrintable(QString::number(numbers)));
}

void DiagramLabelsTest::textsLeaveHandles_data()
{
    labelsStandApart_data();
}

void DiagramLabelsTest::textsLeaveHandles()
{
    QFETCH(int, diagram);
    QFETCH(QSizeF, size);
    QFETCH(double, zoom);
    // With the ring round the one that is selected.
    constexpr double reach = 15.0;
    DiagramPainter painter;
    DiagramContent content = fullContent();
    // On the locus beside numbers of wavelengths, and beside marks with names.
    content.gamuts.append(
        {gamut("On the locus", {0.6915, 0.3083}, {0.0743, 0.8338}, {0.1241, 0.0578}, {0.32, 0.34}), GamutRole::Target});
    content.measurePoints.append({QPointF(0.3127, 0.3291), QStringLiteral("white")});
    for (const QPointF &at : {d65, QPointF(0.0743, 0.8338)}) {
        prepare(painter, content, Model::Diagram(diagram), size, zoom, at);
        for (int i = 0; i < content.gamuts.size(); ++i) {
            if (content.gamuts.at(i).role != GamutRole::Target) {
                continue;
            }
            const Model::Target white = content.gamuts.at(i).gamut.getTargets().white;
            QPolygonF handles = painter.outline(i);
            handles.append(painter.viewport().toPosition(QPointF(white.x, white.y)));
            for (const DiagramLabel &label : painter.labels()) {
                for (const QPointF &handle : handles) {
                    QVERIFY2(label.kind == DiagramLabel::Kind::Axis
                            || !label.place.adjusted(-reach, -reach, reach, reach).contains(handle),
                        qPrintable(label.text));
                }
            }
        }
    }
}

void DiagramLabelsTest::numbersLeaveRings()
{
    DiagramPainter painter;
    DiagramContent content = fullContent();
    content.measurePoints.clear();
    int numbers = 0;
    for (const Model::Diagram diagram : allDiagrams) {
        for (const double zoom : {10.0, 30.0, 60.0, 90.0, 140.0, 300.0}) {
            for (const QSizeF &size : {QSizeF(250, 250), QSizeF(1024, 768)}) {
                prepare(painter, content, diagram, size, zoom);
                const QVector<DiagramLabel> labels = painter.labels();
                for (const double radius : content.rings.first().radii) {
                    const QPolygonF ring = DiagramPainter::ring(painter.viewport(), d65, radius);
                    for (const DiagramLabel &label : labels) {
                        if (label.kind != DiagramLabel::Kind::Isotherm) {
                            continue;
                        }
                        ++numbers;
                        for (int i = 0; i < ring.size(); ++i) {
                            QVERIFY2(!label.place.contains(ring.at(i)), qPrintable(label.text));
                        }
                    }
                }
            }
        }
    }
    QVERIFY2(numbers > 100, qPrintable(QString::number(numbers)));
}

void DiagramLabelsTest::shortenedNamesSaySomething()
{
    DiagramPainter painter;
    int shortened = 0;
    for (int width = 60; width < 400; width += 7) {
        for (const double zoom : {1.0, 2.0, 5.0}) {
            prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(width, 0.8 * width), zoom);
            for (const DiagramLabel &label : painter.labels()) {
                if (label.text.endsWith(QChar(0x2026))) {
                    ++shortened;
                    QVERIFY2(label.text.size() > 3, qPrintable(QStringLiteral("%1 at %2").arg(label.text).arg(width)));
                }
            }
        }
    }
    QVERIFY2(shortened > 10, qPrintable(QString::number(shortened)));
}

void DiagramLabelsTest::outlinesDoNotCutWavelengths()
{
    DiagramContent content;
    content.colors = HorseshoeColors::None;
    content.layers = DiagramLayer::Wavelengths | DiagramLayer::Originals;
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(700, 600), 1.0);
    const QVector<DiagramLabel> labels = painter.labels();
    QVERIFY(!labels.isEmpty());
    const QRectF place = labels.first().place;
    const int before = countOf(painted(painter).copy(place.toRect()), diagramPalette(content.ground).numbers, 40);
    // An outline right through the number.
    const QPointF left = painter.viewport().toChromaticity(QPointF(place.left() - 60.0, place.center().y()));
    const QPointF right = painter.viewport().toChromaticity(QPointF(place.right() + 60.0, place.center().y()));
    content.gamuts = {{gamut("wide", right, left, {0.3, 0.3}), GamutRole::Original}};
    painter.setContent(content);
    const int after = countOf(painted(painter).copy(place.toRect()), diagramPalette(content.ground).numbers, 40);
    QVERIFY2(before > 5 && after > 0.9 * before, qPrintable(QStringLiteral("%1 %2").arg(before).arg(after)));
}

void DiagramLabelsTest::negativeNumbersAreShown_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {7, 9, 10, 12, 18}) {
        QTest::addRow("%d points", points) << points;
    }
}

void DiagramLabelsTest::negativeNumbersAreShown()
{
    QFETCH(int, points);
    DiagramPainter painter;
    QFont font;
    font.setPointSize(points);
    painter.setFont(font);
    prepare(painter, DiagramContent(), Model::Diagram::Cie1931, QSizeF(1000, 900), DiagramViewport::closest,
        QPointF(0.1, -0.05));
    const QRectF plot = painter.viewport().plot();
    const QVector<DiagramLabel> labels = painter.labels();
    const auto count = std::count_if(labels.cbegin(), labels.cend(), [&plot](const DiagramLabel &label) {
        return label.kind == DiagramLabel::Kind::Axis && label.place.right() < plot.left() && label.place.left() >= 3.0
            && label.text.startsWith(QLatin1Char('-'));
    });
    QVERIFY2(count >= 5, qPrintable(QString::number(count)));
}

void DiagramLabelsTest::axisNumbersKeepAwayFromNames()
{
    DiagramPainter painter;
    DiagramContent content;
    content.layers = DiagramLayer::Axes;
    for (int step = 0; step < 400; ++step) {
        prepare(painter, content, Model::Diagram::Cie1976, QSizeF(300, 250), 20.0, QPointF(0.3 + step * 1e-4, 0.33));
        const QRectF plot = painter.viewport().plot();
        QVector<QRectF> below;
        for (const DiagramLabel &label : painter.labels()) {
            if (label.place.top() > plot.bottom()) {
                below.append(label.place);
            }
        }
        std::sort(below.begin(), below.end(), [](const QRectF &a, const QRectF &b) { return a.left() < b.left(); });
        for (int i = 1; i < below.size(); ++i) {
            QVERIFY2(below.at(i).left() - below.at(i - 1).right() >= 5.0, qPrintable(QString::number(step)));
        }
    }
}

void DiagramLabelsTest::ringNumbersHaveNoExponent()
{
    DiagramContent content;
    content.layers = DiagramLayer::Rings;
    content.rings = {{d65, {0.00005, 0.0001, 0.1 / 800.0}}};
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1976, QSizeF(900, 800), DiagramViewport::closest);
    QStringList numbers;
    for (const DiagramLabel &label : painter.labels()) {
        numbers.append(label.text);
    }
    QCOMPARE(numbers, QStringList({QStringLiteral("0.00005"), QStringLiteral("0.0001"), QStringLiteral("0.000125")}));
}

void DiagramLabelsTest::freePlaceAvoidsWhatItIsTold()
{
    DiagramPainter painter;
    prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(700, 600), 1.0);
    const QRectF plot = painter.viewport().plot();
    const QSizeF size(150, 40);
    for (const QPointF &at : {plot.topLeft(), plot.topRight(), plot.bottomLeft(), plot.bottomRight(), plot.center()}) {
        const QRectF first = painter.freePlace(size, at, 24.0);
        QVERIFY(plot.contains(first));
        QCOMPARE(first.size(), size);
        QVERIFY(!first.contains(at));
        const QVector<QRectF> avoid{first};
        const QRectF second = painter.freePlace(size, at, 24.0, avoid);
        QVERIFY(second.isNull() || !second.intersects(first));
    }
}

QTEST_MAIN(DiagramLabelsTest)

#include "diagramlabelstest.moc"
