// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
// Diagrams of thousands of marks and gamuts: what is looked up, drawn and named.
#include <ceiechart/diagram/diagrampainter.h>
#include <ceiechart/diagram/markgrid_p.h>
#include <ceiechart/diagram/markpicture_p.h>
#include <ceiechart/diagram/polylines_p.h>
#include <ceiechart/diagram/shownoutlines_p.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace ceiechart;

class ManyMarksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void gridFindsWhatALoopFinds();
    void pictureShowsMarksAsTheirOutlines_data();
    void pictureShowsMarksAsTheirOutlines();
    void pictureOfAPartIsThatPartOfThePicture();
    void manyMarksLookLikeFew();
    void filesOfManyMarksStaySmall();
    void namesOfManyMarksAreLeftOut();
    void outlinesAreEqualAsComparisonsSay_data();
    void outlinesAreEqualAsComparisonsSay();
    void plainStandardsThatFallTogetherAreDrawnOnce();
    void editsAreLaidOutAsAfresh_data();
    void editsAreLaidOutAsAfresh();
};

Q_DECLARE_METATYPE(ceiechart::PlacedMark::Shape)

namespace {

//! Numbers from 0 to 1, the same on every machine.
class Numbers {
public:
    double next()
    {
        m_state = m_state * 1664525U + 1013904223U;
        return double(m_state >> 8U) / double(1U << 24U);
    }
    QPointF point(const QRectF &area)
    {
        const double x = next();
        return {area.left() + x * area.width(), area.top() + next() * area.height()};
    }

private:
    quint32 m_state = 1;
};

DiagramContent content(int count)
{
    DiagramContent result;
    Numbers numbers;
    for (int i = 0; i < count; ++i) {
        result.measurePoints.append(
            {numbers.point(QRectF(0.2, 0.2, 0.3, 0.3)), QStringLiteral("P%1").arg(i), QColor()});
    }
    return result;
}

std::unique_ptr<DiagramPainter> painterOf(const DiagramContent &content)
{
    auto painter = std::make_unique<DiagramPainter>();
    painter->setContent(content);
    painter->setViewport(DiagramViewport(Model::Diagram::Cie1931, QSizeF(500, 500)));
    return painter;
}

QImage pictureOf(const DiagramContent &content)
{
    QImage image(500, 500, QImage::Format_RGB32);
    QPainter painter(&image);
    painterOf(content)->paint(&painter, QRectF(0, 0, 500, 500));
    return image;
}

//! The mean difference of the channels of \a a and \a b.
double difference(const QImage &a, const QImage &b)
{
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (3.0 * a.width() * a.height());
}

//! Standards and others that often fall on one another, to a logical pixel or so.
DiagramContent gamutsOf(int standards)
{
    DiagramContent result;
    Numbers numbers;
    const auto add = [&](GamutRole role, int i) {
        Model::Targets targets = Model::rec709().getTargets();
        for (Model::Target *colour : {&targets.red, &targets.green, &targets.blue}) {
            const QPointF at = numbers.point(QRectF(-0.003, -0.003, 0.006, 0.006));
            colour->x += at.x();
            colour->y += at.y();
        }
        result.gamuts.append({Model::ColorGamut("G" + std::to_string(i), targets), role});
    };
    for (int i = 0; i < standards; ++i) {
        add(GamutRole::Standard, i);
    }
    for (const GamutRole role : {GamutRole::Declared, GamutRole::Original, GamutRole::Measured, GamutRole::Target}) {
        for (int i = 0; i < 4; ++i) {
            add(role, standards + i);
        }
    }
    return result;
}

} // namespace

void ManyMarksTest::gridFindsWhatALoopFinds()
{
    const QRectF area(-50, -50, 700, 500);
    for (const int count : {0, 3, 5000}) {
        Numbers numbers;
        MarkGrid grid;
        QVector<QPointF> marks;
        for (int i = 0; i < count; ++i) {
            marks.append(numbers.point(area));
            grid.add(marks.last());
        }
        QCOMPARE(grid.size(), count);
        for (int i = 0; i < 300; ++i) {
            const QPointF at = numbers.point(area);
            const double from = 20.0 * numbers.next();
            const double to = from + 10.0 * numbers.next();
            const bool isBetween = std::any_of(marks.begin(), marks.end(), [&](const QPointF &mark) {
                const double distance = std::hypot(mark.x() - at.x(), mark.y() - at.y());
                return distance > from && distance < to;
            });
            QCOMPARE(grid.isBetween(at, from, to), isBetween);
            const QRectF place(at, QSizeF(80.0 * numbers.next(), 20.0 * numbers.next()));
            const auto meeting = int(std::count_if(marks.begin(), marks.end(), [&](const QPointF &mark) {
                return QRectF(mark - QPointF(4, 4), mark + QPointF(4, 4)).intersects(place);
            }));
            QCOMPARE(grid.meeting(place, 4.0, count + 1), meeting);
            QCOMPARE(grid.meets(place, 4.0), meeting > 0);
            QCOMPARE(grid.meeting(place, 4.0, 2), std::min(meeting, 2));
        }
    }
}

void ManyMarksTest::pictureShowsMarksAsTheirOutlines_data()
{
    QTest::addColumn<PlacedMark::Shape>("shape");
    QTest::addColumn<double>("ratio");
    QTest::newRow("disc") << PlacedMark::Shape::Disc << 1.0;
    QTest::newRow("diamond") << PlacedMark::Shape::Diamond << 1.0;
    QTest::newRow("square") << PlacedMark::Shape::Square << 1.0;
    QTest::newRow("large disc") << PlacedMark::Shape::Disc << 2.5;
}

// At places of quarters of a pixel they are equal but for rounding.
void ManyMarksTest::pictureShowsMarksAsTheirOutlines()
{
    QFETCH(PlacedMark::Shape, shape);
    QFETCH(double, ratio);
    const QRect area(3, 5, 80, 70);
    QVector<PlacedMark> marks;
    for (const QPointF &at : {QPointF(30.25, 31.5), QPointF(36.0, 33.75), QPointF(4.0, 30.0), QPointF(60.5, 6.25)}) {
        marks.append({at / ratio, shape, qRgb(250, 200, 20)});
    }
    const QTransform transform = QTransform::fromScale(ratio, ratio);
    const QImage picture = markPicture(marks, transform, area);
    QImage outlines(area.size(), QImage::Format_ARGB32_Premultiplied);
    outlines.fill(Qt::transparent);
    QPainter painter(&outlines);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    painter.scale(ratio, ratio);
    for (const PlacedMark &mark : marks) {
        paintMark(painter, PixelPainter::on(painter), mark);
    }
    painter.end();
    for (int y = 0; y < area.height(); ++y) {
        for (int x = 0; x < area.width(); ++x) {
            const QRgb p = picture.pixel(x, y);
            const QRgb q = outlines.pixel(x, y);
            QVERIFY2(std::abs(qRed(p) - qRed(q)) <= 4 && std::abs(qGreen(p) - qGreen(q)) <= 4
                    && std::abs(qBlue(p) - qBlue(q)) <= 4 && std::abs(qAlpha(p) - qAlpha(q)) <= 4,
                qPrintable(QStringLiteral("%1, %2: %3 %4").arg(x).arg(y).arg(p, 8, 16).arg(q, 8, 16)));
        }
    }
}

void ManyMarksTest::pictureOfAPartIsThatPartOfThePicture()
{
    QVector<PlacedMark> marks;
    Numbers numbers;
    for (int i = 0; i < 400; ++i) {
        marks.append({numbers.point(QRectF(-20, -20, 140, 140)), PlacedMark::Shape::Disc, qRgb(255, 255, 255)});
    }
    const QRect part(13, 40, 31, 27);
    QCOMPARE(
        markPicture(marks, QTransform(), part), markPicture(marks, QTransform(), QRect(0, 0, 100, 100)).copy(part));
}

// One mark more makes a picture of the marks, and no other diagram.
void ManyMarksTest::manyMarksLookLikeFew()
{
    DiagramContent many = content(2001);
    const QImage picture = pictureOf(many);
    many.measurePoints.removeLast();
    const QImage outlines = pictureOf(many);
    many.measurePoints.clear();
    const double change = difference(picture, outlines);
    const double all = difference(pictureOf(many), outlines);
    QVERIFY2(change > 0.0 && change < 0.15 * all, qPrintable(QStringLiteral("%1 of %2").arg(change).arg(all)));
}

void ManyMarksTest::filesOfManyMarksStaySmall()
{
    const auto bytes = [](int count) {
        QByteArray file;
        QBuffer buffer(&file);
        buffer.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&buffer);
            QPainter painter(&writer);
            painterOf(content(count))->paint(&painter, QRectF(0, 0, 5000, 5000));
        }
        return file.size();
    };
    const auto few = bytes(2001);
    QVERIFY2(bytes(60000) < 3 * few, qPrintable(QStringLiteral("%1, then %2").arg(few).arg(bytes(60000))));
}

void ManyMarksTest::namesOfManyMarksAreLeftOut()
{
    const auto named = [](const DiagramContent &shown) {
        const QVector<DiagramLabel> labels = painterOf(shown)->labels();
        return std::count_if(labels.begin(), labels.end(),
            [](const DiagramLabel &label) { return label.kind == DiagramLabel::Kind::Mark; });
    };
    // A mark that stands alone is named as long as there are not too many others.
    DiagramContent shown = content(499);
    shown.measurePoints.prepend({QPointF(0.05, 0.6), QStringLiteral("alone"), QColor()});
    QVERIFY(named(shown) > 0);
    shown.measurePoints.append({QPointF(0.3, 0.3), QString(), QColor()});
    QCOMPARE(int(named(shown)), 0);
    // Those out of sight do not count.
    shown.measurePoints.last().xy = QPointF(5.0, 5.0);
    QVERIFY(named(shown) > 0);
}

void ManyMarksTest::outlinesAreEqualAsComparisonsSay_data()
{
    QTest::addColumn<int>("standards");
    for (const int count : {0, 3, 60, 500, 501}) {
        QTest::addRow("%d", count) << count;
    }
}

// The plain definition: from top to bottom, each with each above it.
void ManyMarksTest::outlinesAreEqualAsComparisonsSay()
{
    QFETCH(int, standards);
    const DiagramContent shown = gamutsOf(standards);
    const DiagramViewport viewport(Model::Diagram::Cie1931, QSizeF(500, 500));
    const DiagramFonts fonts(QFont(), nullptr, 1.0);
    const DiagramSheet sheet{shown, viewport, fonts};
    const std::vector<ShownOutline> found = withTargets(shownOutlines(sheet), sheet).all;
    QCOMPARE(int(found.size()), int(shown.gamuts.size()));
    const bool isPlain = standards > 500;
    std::vector<bool> isCovered(found.size());
    std::vector<std::vector<size_t>> equals(found.size());
    int count = 0;
    for (size_t i = found.size(); i-- > 0;) {
        const auto isPlainStandard = [&](size_t k) { return isPlain && found[k].role == GamutRole::Standard; };
        if (isPlainStandard(i)) {
            isCovered[i] = found[i].isCovered; // another test looks at that
        }
        std::vector<size_t> above;
        for (size_t k = i + 1; k < found.size(); ++k) {
            if (!isCovered[k] && !(isPlainStandard(i) && isPlainStandard(k))
                && isSameTriangle(found[i].corners, found[k].corners, 1.0)) {
                above.push_back(k);
                isCovered[i] = isCovered[i] || found[i].role == found[k].role;
            }
        }
        for (const size_t k : above) {
            if (!isCovered[i]) {
                equals[i].push_back(k);
                equals[k].push_back(i);
                ++count;
            }
        }
    }
    QVERIFY(standards == 0 || count > 0);
    for (size_t i = 0; i < found.size(); ++i) {
        std::sort(equals[i].begin(), equals[i].end());
        QCOMPARE(found[i].isCovered, bool(isCovered[i]));
        QCOMPARE(found[i].equals, equals[i]);
    }
}

void ManyMarksTest::plainStandardsThatFallTogetherAreDrawnOnce()
{
    DiagramContent shown;
    for (int i = 0; i < 300; ++i) {
        Model::Targets targets = Model::rec709().getTargets();
        targets.red.x -= 0.0005 * i;
        Model::Targets turned = targets;
        std::swap(turned.red, turned.green); // a corner that comes first does not show
        for (const Model::Targets &each : {targets, turned}) {
            shown.gamuts.append(
                {Model::ColorGamut("G" + std::to_string(shown.gamuts.size()), each), GamutRole::Standard});
        }
    }
    const DiagramViewport viewport(Model::Diagram::Cie1931, QSizeF(2000, 2000));
    const DiagramFonts fonts(QFont(), nullptr, 1.0);
    const ShownOutlines found = shownOutlines({shown, viewport, fonts});
    QVERIFY(found.areStandardsPlain());
    std::vector<QPolygonF> drawn;
    for (size_t i = 0; i < found.all.size(); ++i) {
        const ShownOutline &outline = found.all[i];
        QVERIFY(outline.isCovered || i % 2 == 1); // by the one above it, at least
        if (!outline.isCovered) {
            drawn.push_back(outline.corners);
        }
    }
    QVERIFY(drawn.size() > 100);
    // What is not drawn is as good as drawn.
    for (const ShownOutline &outline : found.all) {
        QVERIFY(std::any_of(drawn.begin(), drawn.end(),
            [&](const QPolygonF &other) { return isSameTriangle(outline.corners, other, 1.5); }));
    }
}

void ManyMarksTest::editsAreLaidOutAsAfresh_data()
{
    outlinesAreEqualAsComparisonsSay_data();
}

// What no edit changes is kept over edits, also when targets come before it in the list and when they go.
void ManyMarksTest::editsAreLaidOutAsAfresh()
{
    QFETCH(int, standards);
    const DiagramContent all = gamutsOf(standards);
    DiagramContent none = all;
    none.gamuts.erase(none.gamuts.end() - 4, none.gamuts.end());
    DiagramContent first = none;
    first.gamuts.prepend(all.gamuts.last());
    DiagramContent edited = first;
    edited.gamuts.first().gamut = Model::rec709();
    const auto kept = painterOf(all);
    const auto drawn = [](DiagramPainter &painter) {
        QImage image(500, 500, QImage::Format_RGB32);
        image.fill(Qt::gray);
        QPainter onImage(&image);
        onImage.setRenderHint(QPainter::Antialiasing);
        painter.paintGamuts(&onImage);
        painter.paintEdited(&onImage);
        return image;
    };
    for (const DiagramContent &content : {all, none, first, edited, all, edited, none}) {
        kept->setContent(content);
        const auto fresh = painterOf(content);
        QCOMPARE(drawn(*kept), drawn(*fresh));
        const QVector<DiagramLabel> labels = kept->labels();
        const QVector<DiagramLabel> wanted = fresh->labels();
        QCOMPARE(labels.size(), wanted.size());
        for (int i = 0; i < labels.size(); ++i) {
            QCOMPARE(labels.at(i).text, wanted.at(i).text);
            QCOMPARE(labels.at(i).index, wanted.at(i).index);
            QCOMPARE(labels.at(i).place, wanted.at(i).place);
        }
    }
}

QTEST_MAIN(ManyMarksTest)
#include "manymarkstest.moc"
