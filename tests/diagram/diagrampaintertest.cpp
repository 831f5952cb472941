// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagrampainter.h>

#include <gamutmodel/publishedgamuts.h>

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QSvgRenderer>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace ceiechart;

namespace {

constexpr Model::Diagram allDiagrams[] = {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960};
constexpr GamutRole allRoles[]
    = {GamutRole::Standard, GamutRole::Target, GamutRole::Original, GamutRole::Measured, GamutRole::Declared};
const QPointF d65(0.3127, 0.3290);

Model::ColorGamut gamut(
    const char *name, const QPointF &red, const QPointF &green, const QPointF &blue, const QPointF &white = d65)
{
    const auto target = [](const QPointF &xy) { return Model::Target::fromYxy(1.0, xy.x(), xy.y()); };
    return Model::ColorGamut(name, {target(red), target(green), target(blue), target(white)});
}

//! Everything that a diagram can show.
DiagramContent fullContent()
{
    DiagramContent content;
    content.gamuts = {{Model::rec709(), GamutRole::Standard}, {Model::rec2020(), GamutRole::Standard},
        {gamut("DCI-P3(D65) (edited)", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}), GamutRole::Target},
        {gamut("LED wall", {0.70, 0.295}, {0.19, 0.715}, {0.13, 0.08}, {0.31, 0.32}), GamutRole::Original},
        {gamut("LED wall, warm", {0.69, 0.30}, {0.20, 0.71}, {0.135, 0.085}, {0.33, 0.335}), GamutRole::Measured},
        {gamut("\xE5\xB1\x8F", {0.67, 0.31}, {0.26, 0.68}, {0.149, 0.056}), GamutRole::Declared}};
    for (int i = 0; i < 12; ++i) {
        content.measurePoints.append({QPointF(0.25 + 0.03 * (i % 4), 0.3 + 0.05 * (i / 4)), QString::number(i)});
    }
    content.colorTemperaturePoints = {{QPointF(0.4234, 0.3990), QStringLiteral("3200")}};
    content.cmyPoints = {{QPointF(0.2246, 0.3287), QStringLiteral("C")}, {QPointF(0.3209, 0.1542), QStringLiteral("M")},
        {QPointF(0.4193, 0.5053), QStringLiteral("Y")}};
    content.rings = {{d65}};
    content.trail = {QPointF(0.31, 0.32), QPointF(0.311, 0.322), d65};
    return content;
}

void prepare(DiagramPainter &painter, const DiagramContent &content, Model::Diagram diagram, const QSizeF &size,
    double zoom, const QPointF &at = d65)
{
    painter.setContent(content);
    DiagramViewport viewport(diagram, size, painter.margins());
    painter.setViewport(zoom == 1.0 ? viewport : viewport.centredOn(at, zoom));
}

//! Whether no coordinate of \a svg is infinite or not a number. The letters of an image's data may be anything.
bool hasNumbersOnly(const QByteArray &svg)
{
    const QString text = QString::fromUtf8(svg).remove(QRegularExpression(QStringLiteral("data:image/[^\"]*")));
    return !text.contains(QStringLiteral("nan")) && !text.contains(QStringLiteral("inf"));
}

QImage painted(DiagramPainter &painter, qreal ratio = 1.0)
{
    QImage image = painter.colors(ratio);
    QPainter onto(&image);
    painter.paintScale(&onto);
    painter.paintGamuts(&onto);
    painter.paintEdited(&onto);
    return image;
}

// WCAG 2.1, relative luminance and contrast ratio.
double luminance(const QColor &color)
{
    const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

QColor over(const QColor &color, const QColor &ground)
{
    const double share = color.alphaF();
    return QColor::fromRgbF(color.redF() * share + ground.redF() * (1.0 - share),
        color.greenF() * share + ground.greenF() * (1.0 - share),
        color.blueF() * share + ground.blueF() * (1.0 - share));
}

//! The pixels of \a image that are nearer to \a color than \a within.
int countOf(const QImage &image, const QColor &color, int within = 24)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += std::abs(pixel.red() - color.red()) < within && std::abs(pixel.green() - color.green()) < within
                    && std::abs(pixel.blue() - color.blue()) < within
                ? 1
                : 0;
        }
    }
    return count;
}

QByteArray svgOf(const DiagramPainter &painter, const QSize &size)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator file;
    file.setOutputDevice(&buffer);
    file.setSize(size);
    file.setViewBox(QRect(QPoint(), size));
    file.setResolution(96);
    QPainter onto(&file);
    painter.paint(&onto, QRectF(QPointF(), size));
    onto.end();
    return bytes;
}

} // namespace

class DiagramPainterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void labelsStandApart_data();
    void labelsStandApart();
    void digitsFollowTheZoom();
    void isothermsGetDenser();
    void wavelengthsGetDenser();
    void contrastIsEnough();
    void rolesDiffer();
    void namesOfGamutsAreShown();
    void layersCanBeSwitchedOff_data();
    void layersCanBeSwitchedOff();
    void equalGamutsShowBoth();
    void equalGamutsDoNotDependOnTheTarget();
    void manyEqualGamutsAreNoBand();
    void oddNamesAreShown();
    void numbersLeaveMarksToBeSeen();
    void outlinesDoNotCutWavelengths();
    void targetsWithoutWhiteAreNotShown();
    void negativeNumbersAreShown_data();
    void negativeNumbersAreShown();
    void axisNumbersKeepAwayFromNames();
    void ringNumbersHaveNoExponent();
    void coarseDevicesAreNoFault();
    void withoutColorsThereIsNoColor();
    void fullColorsOnlyInTheCommonArea();
    void lostAreaIsHatched();
    void ringsAreRound();
    void ringsOfOddSizeAreNone();
    void hairlinesAreSharp_data();
    void hairlinesAreSharp();
    void svgLooksTheSame_data();
    void svgLooksTheSame();
    void svgHasNothingThatFilesDoNotTake();
    void paintStaysInItsPlace();
    void oddContentIsLeftOut();
    void colorSpacesAreClippedAtThePlot_data();
    void colorSpacesAreClippedAtThePlot();
    void freePlaceAvoidsWhatItIsTold();
    void devicesOfHighResolution();
    void keyLinesAreThoseOfTheDiagram();
    void changedContentIsAsPaintedAnew();
};

void DiagramPainterTest::labelsStandApart_data()
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

void DiagramPainterTest::labelsStandApart()
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

void DiagramPainterTest::digitsFollowTheZoom()
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

void DiagramPainterTest::isothermsGetDenser()
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

void DiagramPainterTest::wavelengthsGetDenser()
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

void DiagramPainterTest::contrastIsEnough()
{
    for (const DiagramGround ground : {DiagramGround::Light, DiagramGround::Dark}) {
        const DiagramPalette &palette = diagramPalette(ground);
        const QColor casing = over(palette.casing, palette.ground);
        for (const QColor &color : {palette.frame, palette.text, palette.numbers, palette.locus, palette.planckian,
                 palette.hatch, palette.accent}) {
            QVERIFY2(contrast(over(color, palette.ground), palette.ground) >= 3.0, qPrintable(color.name()));
        }
        for (const GamutRole role : allRoles) {
            const QColor color = DiagramPainter::gamutPen(role).color();
            QVERIFY2(contrast(color, palette.ground) >= 3.0, qPrintable(color.name()));
            QVERIFY2(contrast(color, casing) >= 3.0, qPrintable(color.name()));
        }
        // Within the horseshoe lines and texts stand on their casing, whatever the colour below.
        for (const QColor &below : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue), QColor(Qt::yellow),
                 QColor(Qt::cyan), QColor(Qt::magenta), QColor(Qt::white)}) {
            for (const GamutRole role : allRoles) {
                const QColor color = DiagramPainter::gamutPen(role).color();
                QVERIFY2(contrast(color, over(palette.casing, below)) >= 3.0, qPrintable(color.name()));
                QColor plate = palette.ground;
                plate.setAlphaF(0.94);
                QVERIFY2(contrast(color, over(plate, below)) >= 3.0, qPrintable(color.name()));
            }
            QVERIFY(contrast(palette.planckian, over(palette.casing, below)) >= 3.0);
            QVERIFY(contrast(palette.text, over(palette.casing, below)) >= 3.0);
        }
    }
}

void DiagramPainterTest::rolesDiffer()
{
    for (const GamutRole a : allRoles) {
        for (const GamutRole b : allRoles) {
            if (a != b) {
                const QPen first = DiagramPainter::gamutPen(a);
                const QPen second = DiagramPainter::gamutPen(b);
                QVERIFY(first.color() != second.color());
                // Without colours, by the line or its width.
                QVERIFY(first.dashPattern() != second.dashPattern() || first.widthF() != second.widthF());
            }
        }
    }
}

void DiagramPainterTest::namesOfGamutsAreShown()
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
            QVERIFY2(nearest < 14.0, qPrintable(QStringLiteral("%1: %2").arg(i).arg(nearest)));
        }
    }
    QVERIFY(painter.namePlace(99).isNull());
    QVERIFY(painter.outline(-1).isEmpty());
}

void DiagramPainterTest::layersCanBeSwitchedOff_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<double>("zoom");
    for (int bit = 0; bit < 21; ++bit) {
        const int layer = 1 << bit;
        const bool isClose = ShownLayers(layer) & (DiagramLayer::Rings | DiagramLayer::Trail | DiagramLayer::Whites);
        QTest::addRow("%x", layer) << layer << (isClose ? 20.0 : 1.0);
    }
}

void DiagramPainterTest::layersCanBeSwitchedOff()
{
    QFETCH(int, layer);
    QFETCH(double, zoom);
    DiagramContent content = fullContent();
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 450), zoom);
    const QImage with = painted(painter);
    content.layers.setFlag(DiagramLayer(layer), false);
    painter.setContent(content);
    const QImage without = painted(painter);
    QVERIFY(with != without);
    content.layers.setFlag(DiagramLayer(layer), true);
    painter.setContent(content);
    QCOMPARE(painted(painter), with);
}

void DiagramPainterTest::equalGamutsShowBoth()
{
    DiagramContent content;
    content.layers = DiagramLayer::Originals | DiagramLayer::MeasuredGamuts | DiagramLayer::Targets;
    const Model::ColorGamut same = gamut("same", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06});
    content.gamuts = {{same, GamutRole::Target}, {same, GamutRole::Original}, {same, GamutRole::Measured}};
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 450), 1.0);
    const QImage image = painted(painter);
    double length = 0.0;
    const QPolygonF corners = painter.outline(0);
    for (int i = 0; i < 3; ++i) {
        length += QLineF(corners.at(i), corners.at((i + 1) % 3)).length();
    }
    for (const GamutRole role : {GamutRole::Target, GamutRole::Original, GamutRole::Measured}) {
        const int count = countOf(image, DiagramPainter::gamutPen(role).color());
        QVERIFY2(count > length / 2.0, qPrintable(QStringLiteral("%1 of %2").arg(count).arg(length)));
    }
}

void DiagramPainterTest::equalGamutsDoNotDependOnTheTarget()
{
    // A view keeps what paintGamuts() has painted while the target is dragged.
    DiagramContent content = fullContent();
    DiagramPainter painter;
    const auto kept = [&painter] {
        QImage image(500, 450, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter onto(&image);
        painter.paintScale(&onto);
        painter.paintGamuts(&onto);
        return image;
    };
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 450), 1.0);
    const QImage apart = kept();
    content.gamuts[2].gamut = content.gamuts.at(3).gamut;
    painter.setContent(content);
    QCOMPARE(kept(), apart);
}

void DiagramPainterTest::oddNamesAreShown()
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

void DiagramPainterTest::numbersLeaveMarksToBeSeen()
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

void DiagramPainterTest::outlinesDoNotCutWavelengths()
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

void DiagramPainterTest::manyEqualGamutsAreNoBand()
{
    DiagramContent content;
    content.layers = DiagramLayer::Standards | DiagramLayer::Targets;
    content.gamuts.append({gamut("target", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}), GamutRole::Target});
    for (int i = 0; i < 2; ++i) {
        content.gamuts.append({gamut("same", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}), GamutRole::Standard});
    }
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 450), 1.0);
    const QImage two = painted(painter);
    for (int i = 0; i < 48; ++i) {
        content.gamuts.append(content.gamuts.last());
    }
    painter.setContent(content);
    QCOMPARE(painted(painter), two);
}

void DiagramPainterTest::targetsWithoutWhiteAreNotShown()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const GamutRole role : allRoles) {
        for (const QPointF &white : {QPointF(nan, 0.3), QPointF(0.3, nan), QPointF(HUGE_VAL, 0.3)}) {
            DiagramContent content;
            content.layers &= ~(DiagramLayer::CommonArea | DiagramLayer::LostArea);
            const DiagramGamut odd{gamut("odd", {0.68, 0.32}, {0.265, 0.69}, {0.15, 0.06}, white), role};
            QCOMPARE(content.shows(odd), role != GamutRole::Target);
            DiagramPainter painter;
            prepare(painter, content, Model::Diagram::Cie1931, QSizeF(400, 350), 1.0);
            const QImage before = painted(painter);
            content.gamuts.append(odd);
            painter.setContent(content);
            QCOMPARE(painted(painter) == before, role == GamutRole::Target);
        }
    }
}

void DiagramPainterTest::negativeNumbersAreShown_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {7, 9, 10, 12, 18}) {
        QTest::addRow("%d points", points) << points;
    }
}

void DiagramPainterTest::negativeNumbersAreShown()
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

void DiagramPainterTest::axisNumbersKeepAwayFromNames()
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

void DiagramPainterTest::ringNumbersHaveNoExponent()
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

void DiagramPainterTest::coarseDevicesAreNoFault()
{
    // A pixel is as wide as many logical ones.
    for (const double ratio : {1e-3, 1e-9}) {
        DiagramPainter painter;
        prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(400, 350), 1.0);
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(QColor(1, 2, 3));
        {
            QPainter onto(&image);
            onto.scale(ratio, ratio);
            painter.paint(&onto, QRectF(0, 0, image.width() / ratio, image.height() / ratio));
        }
        QVERIFY(countOf(image, QColor(1, 2, 3), 1) == 0);
        int colored = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                colored += image.pixelColor(x, y).saturation() > 60 ? 1 : 0;
            }
        }
        QVERIFY2(colored > 1000, qPrintable(QString::number(colored)));
    }
    // Most of the place is beyond the picture.
    for (const double ratio : {1e-9, 1e-300}) {
        DiagramPainter painter;
        prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(400, 350), 1.0);
        QImage image(100, 100, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        QPainter onto(&image);
        painter.paint(&onto, QRectF(0, 0, image.width() / ratio, image.height() / ratio));
    }
}

void DiagramPainterTest::withoutColorsThereIsNoColor()
{
    DiagramContent content;
    content.colors = HorseshoeColors::None;
    content.layers = DiagramLayer::Colors | DiagramLayer::Locus | DiagramLayer::Wavelengths
        | DiagramLayer::PlanckianLocus | DiagramLayer::Isotherms | DiagramLayer::Axes | DiagramLayer::Grid;
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(400, 400), 1.0);
    const QImage image = painted(painter);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QVERIFY(image.pixelColor(x, y).hsvSaturation() < 80 || image.pixelColor(x, y).value() < 150);
        }
    }
}

void DiagramPainterTest::fullColorsOnlyInTheCommonArea()
{
    DiagramContent content = fullContent();
    content.layers = DiagramLayer::Colors | DiagramLayer::CommonArea;
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(500, 500), 1.0);
    const auto at = [&painter](const QPointF &xy) {
        return painter.colors(1.0).pixelColor(painter.viewport().toPosition(xy).toPoint());
    };
    // In the target and in the original; in one of them only; in neither.
    QVERIFY(contrast(at({0.30, 0.60}), Qt::white) < 2.0 && at({0.30, 0.60}).hsvSaturation() > 200);
    for (const QPointF &xy : {QPointF(0.27, 0.685), QPointF(0.19, 0.60), QPointF(0.06, 0.75)}) {
        QVERIFY2(at(xy).hsvSaturation() < 150, qPrintable(at(xy).name()));
    }
    content.layers.setFlag(DiagramLayer::CommonArea, false);
    painter.setContent(content);
    QVERIFY(at({0.30, 0.60}).hsvSaturation() < 150);
    content.colors = HorseshoeColors::Full;
    painter.setContent(content);
    QVERIFY(at({0.06, 0.75}).hsvSaturation() > 200);
}

void DiagramPainterTest::lostAreaIsHatched()
{
    DiagramContent content = fullContent();
    content.colors = HorseshoeColors::None;
    content.layers = DiagramLayer::LostArea;
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(600, 600), 1.0);
    const QImage image = painted(painter);
    const QColor ground = diagramPalette(content.ground).ground;
    const auto marked = [&](const QPointF &xy) {
        const QPoint at = painter.viewport().toPosition(xy).toPoint();
        const QImage part = image.copy(QRect(at - QPoint(6, 6), QSize(13, 13)));
        return 13 * 13 - countOf(part, ground, 3);
    };
    // In the original but not in the target; in both; in the target only.
    QVERIFY(marked({0.205, 0.65}) > 10);
    QCOMPARE(marked({0.31, 0.33}), 0);
    QCOMPARE(marked({0.62, 0.37}), 0);
}

void DiagramPainterTest::ringsAreRound()
{
    const Model::DiagramPoint white = Model::toDiagram(Model::Diagram::Cie1976, {d65.x(), d65.y()});
    for (const Model::Diagram diagram : allDiagrams) {
        for (const double zoom : {1.0, 50.0, 2000.0}) {
            const DiagramViewport viewport = DiagramViewport(diagram, QSizeF(800, 600)).centredOn(d65, zoom);
            for (const double radius : {0.001, 0.005}) {
                const QPolygonF ring = DiagramPainter::ring(viewport, d65, radius);
                QVERIFY(ring.size() >= 360);
                for (const QPointF &at : ring) {
                    const QPointF xy = viewport.toChromaticity(at);
                    const Model::DiagramPoint uv = Model::toDiagram(Model::Diagram::Cie1976, {xy.x(), xy.y()});
                    QVERIFY(std::fabs(std::hypot(uv.x - white.x, uv.y - white.y) - radius) < 1e-12);
                }
            }
        }
    }
    // As it is painted: the distances of its pixels from the middle.
    DiagramContent content;
    content.colors = HorseshoeColors::None;
    content.layers = DiagramLayer::Rings;
    content.rings = {{d65, {0.003}}};
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1976, QSizeF(700, 700), 60.0);
    const QImage image = painted(painter);
    const QPointF centre = painter.viewport().toPosition(d65);
    const double expected = 0.003 * painter.viewport().scale();
    const QColor color = DiagramPainter::gamutPen(GamutRole::Target).color();
    QVERIFY(expected > 80.0 && expected < 340.0);
    const QVector<DiagramLabel> labels = painter.labels();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isLabel = std::any_of(labels.cbegin(), labels.cend(),
                [&](const DiagramLabel &label) { return label.place.adjusted(-3, -3, 3, 3).contains(x, y); });
            const QColor pixel = image.pixelColor(x, y);
            if (!isLabel && std::abs(pixel.red() - color.red()) + std::abs(pixel.blue() - color.blue()) < 60) {
                const double radius = std::hypot(x + 0.5 - centre.x(), y + 0.5 - centre.y());
                QVERIFY2(std::fabs(radius - expected) < 1.5, qPrintable(QString::number(radius - expected)));
                ++count;
            }
        }
    }
    QVERIFY2(count > expected, qPrintable(QString::number(count)));
}

void DiagramPainterTest::ringsOfOddSizeAreNone()
{
    const DiagramViewport viewport(Model::Diagram::Cie1976, QSizeF(400, 400));
    for (const double radius : {0.0, -0.001, std::numeric_limits<double>::quiet_NaN()}) {
        QVERIFY(DiagramPainter::ring(viewport, d65, radius).isEmpty());
    }
}

void DiagramPainterTest::hairlinesAreSharp_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        QTest::addRow("%g", ratio) << ratio;
    }
}

void DiagramPainterTest::hairlinesAreSharp()
{
    QFETCH(double, ratio);
    DiagramContent content;
    content.colors = HorseshoeColors::None;
    content.layers = DiagramLayer::Grid;
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(333, 277), 2.3);
    const QImage image = painted(painter, ratio);
    // Every pixel is ground, or grid, or where two lines of it cross: none is in between.
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    QCOMPARE(int(colors.size()), 3);
}

void DiagramPainterTest::svgLooksTheSame_data()
{
    QTest::addColumn<int>("diagram");
    QTest::addColumn<double>("zoom");
    for (const Model::Diagram diagram : allDiagrams) {
        for (const double zoom : {1.0, 20.0, 300.0}) {
            QTest::addRow("%s %g", Model::diagramTraits(diagram).xName, zoom) << int(diagram) << zoom;
        }
    }
}

void DiagramPainterTest::svgLooksTheSame()
{
    QFETCH(int, diagram);
    QFETCH(double, zoom);
    const QSize size(600, 500);
    DiagramContent content = fullContent();
    // Texts differ by the hinting of their glyphs, and so may their places.
    content.layers &= ~(DiagramLayer::Axes | DiagramLayer::Names | DiagramLayer::Wavelengths | DiagramLayer::Isotherms
        | DiagramLayer::Rings);
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram(diagram), size, zoom);
    QSvgRenderer renderer(svgOf(painter, size));
    QVERIFY(renderer.isValid());
    QImage svg(size, QImage::Format_RGB32);
    QImage raster(size, QImage::Format_RGB32);
    {
        QPainter onto(&svg);
        renderer.render(&onto);
    }
    {
        QPainter onto(&raster);
        painter.paint(&onto, QRectF(QPointF(), size));
    }
    int differing = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QColor a = svg.pixelColor(x, y);
            const QColor b = raster.pixelColor(x, y);
            differing
                += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) > 90
                ? 1
                : 0;
        }
    }
    const double share = double(differing) / (size.width() * size.height());
    QVERIFY2(share < 0.012, qPrintable(QString::number(share)));
}

void DiagramPainterTest::svgHasNothingThatFilesDoNotTake()
{
    DiagramPainter painter;
    prepare(painter, fullContent(), Model::Diagram::Cie1976, QSizeF(700, 600), 60.0);
    const QByteArray svg = svgOf(painter, QSize(700, 600));
    QCOMPARE(svg.count("<image"), 1);
    QVERIFY(!svg.contains("clip-path") && !svg.contains("<mask") && !svg.contains("pattern"));
    // Rings whole in view are circles, with equal radii.
    QVERIFY(svg.contains("<circle") || svg.contains("<ellipse"));
    QVERIFY(svg.contains("<text"));
    QVERIFY(hasNumbersOnly(svg));

    DiagramContent content = fullContent();
    content.colors = HorseshoeColors::None;
    painter.setContent(content);
    QVERIFY(!svgOf(painter, QSize(700, 600)).contains("<image"));
}

void DiagramPainterTest::paintStaysInItsPlace()
{
    const QRect place(60, 40, 300, 260);
    DiagramPainter painter;
    for (const double zoom : {1.0, 30.0, 2000.0}) {
        prepare(painter, fullContent(), Model::Diagram::Cie1931, QSizeF(800, 800), zoom);
        QImage image(420, 340, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        {
            QPainter onto(&image);
            painter.paint(&onto, place);
        }
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (!place.adjusted(-3, -3, 3, 3).contains(x, y)) {
                    QCOMPARE(image.pixelColor(x, y), QColor(Qt::magenta));
                }
            }
        }
        QVERIFY(image.pixelColor(place.topLeft() + QPoint(3, 3)) != QColor(Qt::magenta));
        QVERIFY(image.pixelColor(place.bottomRight() - QPoint(3, 3)) != QColor(Qt::magenta));
    }
}

void DiagramPainterTest::colorSpacesAreClippedAtThePlot_data()
{
    QTest::addColumn<int>("diagram");
    QTest::addColumn<double>("zoom");
    for (const Model::Diagram diagram : allDiagrams) {
        for (const double zoom : {1.0, 20.0}) {
            QTest::addRow("%s, %g", Model::diagramTraits(diagram).name, zoom) << int(diagram) << zoom;
        }
    }
}

// The blue primary of ACES2065-1 lies below the axis, and its green one at the top.
void DiagramPainterTest::colorSpacesAreClippedAtThePlot()
{
    QFETCH(int, diagram);
    QFETCH(double, zoom);
    const Model::ColorGamut space = Model::publishedGamut("ACES2065-1")->gamut;
    DiagramContent content = fullContent();
    content.layers.setFlag(DiagramLayer::Names, false);
    DiagramPainter painter;
    const QPointF blueEnd(0.17, 0.01);
    prepare(painter, content, Model::Diagram(diagram), QSizeF(500, 500), zoom, blueEnd);
    const QImage without = painted(painter);
    content.gamuts.append({space, GamutRole::Standard});
    content.gamuts.append({space, GamutRole::Declared});
    prepare(painter, content, Model::Diagram(diagram), QSizeF(500, 500), zoom, blueEnd);
    const QImage with = painted(painter);
    QVERIFY(with.size() == without.size());
    // Lines are cut at the plot; their width and their casing stand out of it.
    constexpr int lineWidth = 4;
    const QRect plot = painter.viewport().plot().toAlignedRect().adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth);
    int inside = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                QVERIFY2(plot.contains(x, y), qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
                ++inside;
            }
        }
    }
    QVERIFY(inside > 0 || zoom > 1.0);
    content.layers.setFlag(DiagramLayer::Names, true);
    painter.setContent(content);
    QVERIFY(!painted(painter).isNull());
    QVERIFY(hasNumbersOnly(svgOf(painter, QSize(500, 500))));
}

void DiagramPainterTest::oddContentIsLeftOut()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QPointF odd(nan, 0.3);
    DiagramContent content = fullContent();
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1976, QSizeF(400, 400), 1.0);
    const QImage before = painted(painter);
    content.gamuts.append({gamut("odd", odd, {0.2, 0.7}, {0.1, 0.1}), GamutRole::Standard});
    content.measurePoints.append({odd, QStringLiteral("odd")});
    content.rings.append({odd});
    content.rings.append({d65, {-1.0, 0.0, nan}});
    painter.setContent(content);
    QCOMPARE(painted(painter), before);
    QVERIFY(painter.outline(int(content.gamuts.size()) - 1).isEmpty());

    // Corners on a line, all in one point, and far beyond.
    content.gamuts = {{gamut("line", {0.1, 0.1}, {0.2, 0.2}, {0.3, 0.3}), GamutRole::Target},
        {gamut("point", d65, d65, d65), GamutRole::Original},
        {gamut("far", {1e9, 0.1}, {0.2, 1e9}, {-1e9, 0.3}), GamutRole::Measured},
        {gamut("pole", {1.5, 0.0}, {0.2, 0.7}, {0.1, 0.1}), GamutRole::Declared}};
    content.trail = {odd, d65};
    painter.setContent(content);
    QVERIFY(!painted(painter).isNull());
    QVERIFY(hasNumbersOnly(svgOf(painter, QSize(400, 400))));
}

void DiagramPainterTest::freePlaceAvoidsWhatItIsTold()
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

void DiagramPainterTest::devicesOfHighResolution()
{
    // As paper at three times the resolution: the same picture, three times as fine.
    QImage screen(400, 360, QImage::Format_RGB32);
    screen.setDotsPerMeterX(3780);
    screen.setDotsPerMeterY(3780);
    QImage paper(1200, 1080, QImage::Format_RGB32);
    paper.setDotsPerMeterX(3 * 3780);
    paper.setDotsPerMeterY(3 * 3780);
    DiagramContent content = fullContent();
    content.layers &= ~(DiagramLayer::Names | DiagramLayer::Wavelengths | DiagramLayer::Isotherms | DiagramLayer::Axes);
    DiagramPainter painter;
    prepare(painter, content, Model::Diagram::Cie1931, QSizeF(400, 360), 1.0);
    for (QImage *image : {&screen, &paper}) {
        QPainter onto(image);
        painter.paint(&onto, image->rect());
    }
    const QImage reduced = paper.scaled(screen.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int differing = 0;
    for (int y = 0; y < screen.height(); ++y) {
        for (int x = 0; x < screen.width(); ++x) {
            const QColor a = screen.pixelColor(x, y);
            const QColor b = reduced.pixelColor(x, y);
            differing
                += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) > 150
                ? 1
                : 0;
        }
    }
    QVERIFY2(differing < 0.02 * screen.width() * screen.height(), qPrintable(QString::number(differing)));
}

void DiagramPainterTest::keyLinesAreThoseOfTheDiagram()
{
    for (const GamutRole role : allRoles) {
        for (const DiagramGround ground : {DiagramGround::Light, DiagramGround::Dark}) {
            QImage image(40, 16, QImage::Format_RGB32);
            image.fill(diagramPalette(ground).ground);
            {
                QPainter onto(&image);
                DiagramPainter::paintKeyLine(&onto, QRectF(4, 2, 32, 12), role, ground);
            }
            QVERIFY(countOf(image, DiagramPainter::gamutPen(role).color(), 60) >= 10);
            // Dashes leave gaps, in which the casing or the ground shows.
            const int covered = countOf(image.copy(0, 7, 40, 2), DiagramPainter::gamutPen(role).color(), 60);
            QCOMPARE(
                covered < 60, DiagramPainter::gamutPen(role).style() != Qt::SolidLine || role == GamutRole::Standard);
        }
    }
}

void DiagramPainterTest::changedContentIsAsPaintedAnew()
{
    DiagramPainter kept;
    QVector<DiagramContent> contents(6, fullContent());
    contents[1].ground = DiagramGround::Dark;
    contents[2].ground = DiagramGround::Dark;
    contents[2].colors = HorseshoeColors::None;
    contents[3].layers.setFlag(DiagramLayer::Colors, false);
    contents[4].gamuts.removeLast();
    contents[5].rings.clear();
    for (const double zoom : {1.0, 30.0}) {
        for (const DiagramContent &content : contents) {
            prepare(kept, content, Model::Diagram::Cie1931, QSizeF(420, 380), zoom);
            DiagramPainter anew;
            prepare(anew, content, Model::Diagram::Cie1931, QSizeF(420, 380), zoom);
            QCOMPARE(painted(kept, 1.5), painted(anew, 1.5));
        }
    }
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    DiagramPainterTest test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "diagrampaintertest.moc"
