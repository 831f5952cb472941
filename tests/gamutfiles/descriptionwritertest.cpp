// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/descriptionfile.h>

#include <QtTest>

#include <ctime>
#include <limits>
#include <random>

using namespace gamutfiles;

class DescriptionWriterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sampleSurvives();
    void everyPartSurvives();
    void anyNumberSurvives();
    void oddTextSurvives();
    void anyDescriptionSurvives();
    void emptyPartsAreLeftOut();
    void largestWallFits();
    void longestMeasurementListFits();
    void writesAFile();
    void cannotWrite();
    void writesNothingThatCannotBeRead();
};

namespace {

bool same(const Model::Target &a, const Model::Target &b)
{
    return a.Y == b.Y && a.x == b.x && a.y == b.y && a.X == b.X && a.Z == b.Z && a.u == b.u && a.v == b.v;
}

bool same(const Model::ColorGamut &a, const Model::ColorGamut &b)
{
    const Model::Targets &first = a.getTargets();
    const Model::Targets &second = b.getTargets();
    return a.colorGamutName() == b.colorGamutName() && same(first.red, second.red) && same(first.green, second.green)
        && same(first.blue, second.blue) && same(first.white, second.white);
}

bool same(const QVector<NamedPoint> &a, const QVector<NamedPoint> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const NamedPoint &p, const NamedPoint &q) {
        return p.name == q.name && p.xy.x() == q.xy.x() && p.xy.y() == q.xy.y();
    });
}

bool same(const std::optional<Model::Target> &a, const std::optional<Model::Target> &b)
{
    return a.has_value() == b.has_value() && (!a || same(*a, *b));
}

bool same(const DisplayWall &a, const DisplayWall &b)
{
    return a.unit == b.unit
        && std::equal(a.cabinets.begin(), a.cabinets.end(), b.cabinets.begin(), b.cabinets.end(),
            [](const WallCabinet &p, const WallCabinet &q) {
                return p.name == q.name && p.row == q.row && p.column == q.column && same(p.red, q.red)
                    && same(p.green, q.green) && same(p.blue, q.blue) && same(p.white, q.white)
                    && same(p.black, q.black) && p.blackLuminance == q.blackLuminance && p.isLeftOut == q.isLeftOut;
            })
        && std::equal(a.incomplete.begin(), a.incomplete.end(), b.incomplete.begin(), b.incomplete.end(),
            [](const IncompleteCabinet &p, const IncompleteCabinet &q) {
                return p.name == q.name && p.reason == q.reason && incompleteLabel(p) == incompleteLabel(q);
            });
}

bool same(const DisplayDescription &a, const DisplayDescription &b)
{
    return a.name == b.name && a.notes == b.notes && a.original == b.original && a.declared == b.declared
        && a.measured == b.measured && a.target == b.target && a.standards == b.standards
        && std::equal(a.gamuts.begin(), a.gamuts.end(), b.gamuts.begin(), b.gamuts.end(),
            [](const DisplayGamut &p, const DisplayGamut &q) {
                return same(p, q) && p.unit == q.unit && same(p.black, q.black);
            })
        && same(a.colorTemperaturePoints, b.colorTemperaturePoints) && same(a.measurePoints, b.measurePoints)
        && same(a.cmyPoints, b.cmyPoints) && same(a.wall, b.wall);
}

void verifySurvives(const DisplayDescription &description)
{
    const QByteArray text = descriptionText(description);
    const auto read = readDescription(text);
    QVERIFY2(read, qPrintable(read.error() + "\n" + text));
    QVERIFY2(same(*read, description), text);
    QCOMPARE(descriptionText(*read), text);
}

DisplayDescription everything()
{
    DisplayDescription description;
    description.name = QStringLiteral("Wall");
    description.notes = QStringLiteral("two\nlines");
    const auto target = [](double Y, double x, double y) { return Model::Target::fromYxy(Y, x, y); };
    for (const char *name : {"a", "b", "c", "d"}) {
        const double offset = name[0] / 1e5;
        description.gamuts.emplace_back(name,
            Model::Targets{target(0.1 + offset, 0.7, 0.29), target(1e-300, 0.2, 0.7), target(12345678.9, 0.15, 0.1 / 3),
                target(100.0, 0.3127, 0.329 + offset)});
    }
    description.gamuts[0].black = target(0.1 + 0.2, 0.3, 0.31);
    description.gamuts[1].black = Model::Target(); // no light
    description.original = QStringLiteral("a");
    description.declared = QStringLiteral("b");
    description.measured = QStringLiteral("c");
    description.target = QStringLiteral("d");
    description.standards = QStringList{"Rec.2020", "a"};
    description.colorTemperaturePoints = {{QStringLiteral("warm"), {0.44, 0.4}}};
    description.measurePoints = {{QString(), {0.1 + 0.2, 0.1}}, {QStringLiteral("x"), {0.0, 1.0}}};
    description.cmyPoints = {{QStringLiteral("cyan"), {0.2, 0.33}}};
    description.wall.unit = LuminanceUnit::CandelaPerSquareMetre;
    WallCabinet cabinet;
    cabinet.red = target(0.1 + 0.2, 0.7, 0.29);
    cabinet.green = target(1000.0 / 3, 0.17, 0.7);
    cabinet.blue = target(1e-300, 0.15, 0.1 / 3);
    cabinet.row = -1;
    cabinet.column = 2;
    description.wall.cabinets.push_back(cabinet);
    cabinet.name = QStringLiteral("A");
    cabinet.column = std::numeric_limits<int>::max();
    cabinet.white = target(1000.0, 0.3127, 0.329);
    cabinet.black = target(0.01, 0.3, 0.3);
    description.wall.cabinets.push_back(cabinet);
    cabinet.row.reset();
    cabinet.column.reset();
    cabinet.black = Model::Target(); // no light
    cabinet.isLeftOut = true;
    description.wall.cabinets.push_back(cabinet);
    description.wall.incomplete = {{QStringLiteral("B"), std::nullopt, QStringLiteral("red is missing")},
        {QString(), Model::GridPosition{-7, 0}, QString::fromUtf8("two\nlines, \"é\"")},
        {QStringLiteral("A"), Model::GridPosition{3, 3}, QStringLiteral("green is there more than once")}};
    return description;
}

} // namespace

void DescriptionWriterTest::sampleSurvives()
{
    const auto sample = readDescriptionFile(QStringLiteral(SAMPLE_FILE));
    QVERIFY(sample);
    verifySurvives(*sample);
}

void DescriptionWriterTest::everyPartSurvives()
{
    verifySurvives(everything());
}

void DescriptionWriterTest::anyNumberSurvives()
{
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    std::uniform_real_distribution<double> exponent(-300.0, 300.0);
    DisplayDescription description = everything();
    const Model::Target green = Model::Target::fromYxy(1.0, 0.2, 0.7);
    const Model::Target blue = Model::Target::fromYxy(1.0, 0.15, 0.05);
    for (int i = 0; i < 2000; ++i) {
        const double x = share(random) * 0.9;
        const double y = (1.0 - x) * (0.01 + 0.98 * share(random));
        const double Y = i % 2 ? std::pow(10.0, exponent(random)) : std::floor(share(random) * 1e6);
        const Model::Target target = Model::Target::fromYxy(Y, x, y);
        description.gamuts.emplace_back("n" + std::to_string(i), Model::Targets{target, green, blue, target});
    }
    verifySurvives(description);
}

void DescriptionWriterTest::oddTextSurvives()
{
    DisplayDescription description = everything();
    description.name = QString::fromUtf8("显示 \"quoted\" \\ \t \x01 \u2028 😀");
    description.measurePoints[0].name = QString::fromUtf8("é");
    verifySurvives(description);
}

namespace {

using Random = std::mt19937_64;

double share(Random &random)
{
    return std::uniform_real_distribution<double>(0.0, 1.0)(random);
}

//! Up to 8 pieces of all kinds: a mark that is skipped at the begin of a file, quotes, controls, any script.
QString anyText(Random &random)
{
    static const QVector<QString> pieces{QString(QChar(0xFEFF)), QStringLiteral("\""), QStringLiteral("\\"),
        QStringLiteral("\\ufeff"), QString(QChar(0)), QStringLiteral("\n"), QString(QChar(0x202E)),
        QString(QChar(0x7F)), QString(QChar(0xFFFF)), QStringLiteral("/"), QStringLiteral(" "), QStringLiteral("屏"),
        QStringLiteral("😀"), QString(QChar(0x0301)), QStringLiteral("Rec.709"), QStringLiteral("{[:,")};
    QString text;
    for (auto count = random() % 8; count > 0; --count) {
        text += pieces.at(int(random() % std::size_t(pieces.size())));
    }
    return text;
}

double anyLuminance(Random &random)
{
    return random() % 4 == 0 ? 0.0 : std::pow(10.0, 600.0 * share(random) - 300.0);
}

//! The gamut of a display, or of a colour space around all colours.
Model::Targets anyTargets(Random &random, bool isSpace)
{
    const double change = 0.05 * share(random);
    const auto color = [&](double x, double y, double sign = 1.0) {
        return Model::Target::fromYxy(sign * anyLuminance(random), x, y);
    };
    const Model::Target white = color(0.3 + change, 0.3 + change);
    return isSpace
        ? Model::Targets{color(0.9 + change, 0.2 + change), color(-change, 1.0 + change),
            color(change, -0.05 - change, -1.0), white}
        : Model::Targets{color(0.7 - change, 0.3 - change), color(0.0, 1.0 - change), color(change, 5e-324), white};
}

DisplayDescription anyDescription(Random &random)
{
    DisplayDescription description;
    description.name = anyText(random);
    description.notes = anyText(random);
    QStringList shown{QString(), QStringLiteral("Rec.709"), QStringLiteral("Display P3")};
    QStringList all{QStringLiteral("ACES2065-1"), QStringLiteral("Rec.2020")};
    for (int i = 0; i < 6; ++i) {
        const bool isSpace = random() % 2 == 0;
        const QString name = anyText(random) + QString::number(i);
        description.gamuts.emplace_back(
            Model::ColorGamut(name.toStdString(), anyTargets(random, isSpace)), LuminanceUnit(int(random() % 3)));
        shown += isSpace ? QStringList() : QStringList{name};
        all += name;
    }
    const auto any
        = [&random](const QStringList &names) { return names.at(int(random() % std::size_t(names.size()))); };
    description.original = any(shown);
    description.measured = any(shown);
    description.target = any(shown);
    description.declared = any(all);
    for (const QString &name : std::as_const(all)) {
        description.standards += random() % 2 == 0 ? QStringList{name} : QStringList();
    }
    for (QVector<NamedPoint> *points :
        {&description.colorTemperaturePoints, &description.measurePoints, &description.cmyPoints}) {
        for (auto count = random() % 4; count > 0; --count) {
            const double y = 1.0 - share(random);
            points->append({anyText(random), QPointF((1.0 - y) * share(random), y)});
        }
    }
    return description;
}

} // namespace

void DescriptionWriterTest::anyDescriptionSurvives()
{
    Random random(11);
    for (int i = 0; i < 500 && !QTest::currentTestFailed(); ++i) {
        verifySurvives(anyDescription(random));
    }
}

void DescriptionWriterTest::emptyPartsAreLeftOut()
{
    DisplayDescription description;
    description.original = QStringLiteral("Rec.709");
    description.target = QStringLiteral("Rec.709");
    const QByteArray text = descriptionText(description);
    for (const char *key : {"name", "notes", "declared", "measured", "standards", "colorTemperaturePoints",
             "measurePoints", "cmyPoints", "wall"}) {
        QVERIFY2(!text.contains('"' + QByteArray(key) + '"'), key);
    }
    QVERIFY(text.endsWith("}\n"));
    verifySurvives(description);
}

// 10 000 cabinets, of which everything is known with all digits, and names of 40 characters.
void DescriptionWriterTest::largestWallFits()
{
    const auto wallOf = [](int count) {
        DisplayDescription description;
        for (int i = 0; i < count; ++i) {
            const double offset = (i + 1) / 3e6;
            const Model::Target color = Model::Target::fromYxy(1234.0 + offset, 0.3 + offset, 0.3 - offset);
            WallCabinet cabinet;
            cabinet.name = QString::number(i).rightJustified(40, QLatin1Char('0'));
            cabinet.row = 1000000000 + i / 100;
            cabinet.column = 1000000000 + i % 100;
            cabinet.red = cabinet.green = cabinet.blue = color;
            cabinet.white = cabinet.black = color;
            description.wall.cabinets.push_back(cabinet);
        }
        return description;
    };
    const auto survives = [](const DisplayDescription &description) {
        const QByteArray text = descriptionText(description);
        const auto read = readDescription(text);
        return text.size() <= maximumDescriptionBytes && read && same(*read, description);
    };
    const auto timeOf = [&survives](const DisplayDescription &description) {
        const std::clock_t start = std::clock(); // which other programs do not move
        return survives(description) ? qint64(std::clock() - start) : qint64(-1);
    };
    const qint64 small = timeOf(wallOf(1000));
    const qint64 large = timeOf(wallOf(10000));
    QVERIFY(small > 0 && large > 0);
    // 10 times the cabinets take about 10 times as long; with each compared with all others it would be 100.
    QVERIFY2(large < 50 * small, qPrintable(QStringLiteral("%1 and %2 ticks").arg(small).arg(large)));
}

// Indented, the points of a measurement list of the largest size would be longer than what is read.
void DescriptionWriterTest::longestMeasurementListFits()
{
    const auto textOf = [](int points) {
        DisplayDescription description;
        for (int i = 0; i < points; ++i) {
            description.measurePoints.append({QStringLiteral("P%1").arg(i), QPointF(0.1 + i / 1e6, 0.6 - i / 1e6)});
        }
        const QByteArray text = descriptionText(description);
        const auto read = readDescription(text);
        return read && same(*read, description) ? text : QByteArray();
    };
    QVERIFY(textOf(10).contains("\n    "));
    const QByteArray large = textOf(200000);
    QVERIFY(!large.isEmpty());
    QVERIFY(large.size() <= maximumDescriptionBytes);
}

void DescriptionWriterTest::writesAFile()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("wall.json"));
    QCOMPARE(writeDescription(everything(), name), QString());
    const auto read = readDescriptionFile(name);
    QVERIFY(read);
    QVERIFY(same(*read, everything()));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("wall.json"));
}

void DescriptionWriterTest::cannotWrite()
{
    const QTemporaryDir folder;
    QVERIFY(!writeDescription(everything(), folder.filePath(QStringLiteral("no/wall.json"))).isEmpty());
    QVERIFY(!writeDescription(everything(), folder.path()).isEmpty());
    QVERIFY(QDir(folder.path()).isEmpty());
}

void DescriptionWriterTest::writesNothingThatCannotBeRead()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("display.json"));
    DisplayDescription description;
    description.notes = QString(maximumDescriptionBytes, QLatin1Char('n'));
    QCOMPARE(writeDescription(description, file),
        QStringLiteral("would be larger than 16384 KiB, and could not be read again"));
    description.notes.clear();
    for (int i = 0; i < maximumDescriptionGamuts; ++i) {
        description.gamuts.emplace_back(Model::ColorGamut(std::to_string(i), Model::rec709().getTargets()));
    }
    QCOMPARE(writeDescription(description, file), QString());
    const auto largest = readDescriptionFile(file);
    QVERIFY(largest && largest->gamuts.size() == description.gamuts.size());
    QVERIFY(QFile::remove(file));
    description.gamuts.emplace_back(Model::ColorGamut("one more", Model::rec709().getTargets()));
    QCOMPARE(
        writeDescription(description, file), QStringLiteral("has more than 20000 gamuts, and could not be read again"));
    QVERIFY(!QFile::exists(file));
    const auto read = readDescription(descriptionText(description));
    QVERIFY(!read);
    QCOMPARE(read.error(), QStringLiteral("gamuts: has more than 20000 gamuts"));
}

QTEST_GUILESS_MAIN(DescriptionWriterTest)
#include "descriptionwritertest.moc"
