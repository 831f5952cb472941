// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/cubepair.h>

#include <QtTest>

#include <cmath>
#include <random>

using namespace gamutfiles;

class CubePairTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void survives();
    void tablesAreTheMatrix();
    void gainsAreTheDrivesForWhite();
    void roundingIsTaken();
    void refusedMatrices_data();
    void refusedMatrices();
    void refusedTables_data();
    void refusedTables();
    void titleIsOneLine();
    void documentedExampleIsRead();
};

namespace {

using Triplet = std::array<double, 3>;

Model::CorrectionMatrix matrixOf(const std::array<Triplet, 3> &rows)
{
    Model::CorrectionMatrix matrix;
    matrix.rows = rows;
    return matrix;
}

const std::array<Triplet, 3> plain{{{0.9, 0.05, 0.01}, {0.02, 0.8, 0.03}, {0.0, 0.1, 0.7}}};

Model::CorrectionMatrix randomMatrix(std::mt19937_64 &random)
{
    std::uniform_real_distribution<double> share(0.0, 1.0);
    Model::CorrectionMatrix matrix;
    for (auto &row : matrix.rows) {
        for (double &entry : row) {
            entry = share(random) / 3.0;
        }
    }
    return matrix;
}

//! The numbers of a .cube file, as any program reads them: what follows the keywords.
std::vector<Triplet> valuesOf(const QByteArray &text)
{
    std::vector<Triplet> values;
    for (const QByteArray &line : text.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() == 3 && (line.at(0) == '-' || (line.at(0) >= '0' && line.at(0) <= '9'))) {
            values.push_back({words.at(0).toDouble(), words.at(1).toDouble(), words.at(2).toDouble()});
        }
    }
    return values;
}

Triplet mixed(const Triplet &a, double shareOfA, const Triplet &b)
{
    Triplet result;
    for (std::size_t i = 0; i < 3; ++i) {
        result[i] = shareOfA * a[i] + (1.0 - shareOfA) * b[i];
    }
    return result;
}

//! Trilinear: along blue, green and red.
Triplet trilinear(const std::vector<Triplet> &corners, const Triplet &content)
{
    const auto along
        = [&](int first) { return mixed(corners[std::size_t(first) + 1], content[0], corners[std::size_t(first)]); };
    return mixed(mixed(along(6), content[1], along(4)), content[2], mixed(along(2), content[1], along(0)));
}

//! Tetrahedral: from black to white by the corners in the order of the content's levels.
Triplet tetrahedral(const std::vector<Triplet> &corners, const Triplet &content)
{
    std::array<std::size_t, 3> order{0, 1, 2};
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return content[a] > content[b]; });
    Triplet result = corners[0];
    std::size_t corner = 0;
    for (const std::size_t primary : order) {
        const std::size_t next = corner | std::size_t(1) << primary;
        for (std::size_t i = 0; i < 3; ++i) {
            result[i] += content[primary] * (corners[next][i] - corners[corner][i]);
        }
        corner = next;
    }
    return result;
}

bool same(const CubePair &a, const CubePair &b)
{
    return a.matrix.rows == b.matrix.rows && a.gains == b.gains;
}

} // namespace

void CubePairTest::survives()
{
    std::mt19937_64 random(5);
    for (int i = 0; i < 2000; ++i) {
        const auto pair = cubePair(randomMatrix(random));
        QVERIFY2(pair, qPrintable(pair.error()));
        const auto read = readCubePair(matrixCube(*pair, "wall"), gainsCube(*pair, "wall"));
        QVERIFY2(read, qPrintable(read.error()));
        QVERIFY(same(*read, *pair));
    }
}

// By two interpolations that share nothing with the writer.
void CubePairTest::tablesAreTheMatrix()
{
    std::mt19937_64 random(6);
    std::uniform_real_distribution<double> level(0.0, 1.0);
    for (int i = 0; i < 200; ++i) {
        const Model::CorrectionMatrix matrix = randomMatrix(random);
        const auto pair = cubePair(matrix);
        QVERIFY(pair);
        const std::vector<Triplet> corners = valuesOf(matrixCube(*pair, "wall"));
        const std::vector<Triplet> line = valuesOf(gainsCube(*pair, "wall"));
        QCOMPARE(corners.size(), std::size_t(8));
        QCOMPARE(line.size(), std::size_t(2));
        for (const std::vector<Triplet> &values : {corners, line}) {
            for (const Triplet &value : values) {
                for (const double number : value) {
                    QVERIFY(number >= 0.0 && number <= 1.0);
                }
            }
        }
        for (int k = 0; k < 50; ++k) {
            const Triplet content{level(random), level(random), level(random)};
            for (const Triplet &between : {trilinear(corners, content), tetrahedral(corners, content)}) {
                for (std::size_t row = 0; row < 3; ++row) {
                    const double drive = line[0][row] + between[row] * (line[1][row] - line[0][row]);
                    const auto &entries = matrix.rows[row];
                    const double expected = entries[0] * content[0] + entries[1] * content[1] + entries[2] * content[2];
                    QVERIFY(std::fabs(drive - expected) < 1e-15);
                }
            }
        }
    }
}

void CubePairTest::gainsAreTheDrivesForWhite()
{
    const auto pair = cubePair(matrixOf(plain));
    QVERIFY(pair);
    QVERIFY(std::fabs(pair->gains[0] - 0.96) < 1e-15);
    QVERIFY(std::fabs(pair->gains[1] - 0.85) < 1e-15);
    QVERIFY(std::fabs(pair->gains[2] - 0.8) < 1e-15);
    QVERIFY(std::fabs(pair->matrix.rows[0][0] - 0.9 / 0.96) < 1e-15);
    const auto identity = cubePair(matrixOf({{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}}));
    QVERIFY(identity);
    const std::vector<Triplet> expected{{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {1.0, 1.0, 0.0},
        {0.0, 0.0, 1.0}, {1.0, 0.0, 1.0}, {0.0, 1.0, 1.0}, {1.0, 1.0, 1.0}};
    QVERIFY(valuesOf(matrixCube(*identity, "x")) == expected); // red changes fastest
    const auto unused = cubePair(matrixOf({{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 0.0}}}));
    QVERIFY(unused);
    QVERIFY(unused->gains[2] == 0.0);
    const auto read = readCubePair(matrixCube(*unused, "x"), gainsCube(*unused, "x"));
    QVERIFY(read && same(*read, *unused));
}

void CubePairTest::roundingIsTaken()
{
    const auto pair = cubePair(matrixOf({{{1.0, -1e-17, 1e-12}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}}));
    QVERIFY2(pair, qPrintable(pair.error()));
    QVERIFY(pair->gains[0] == 1.0);
    QVERIFY(pair->matrix.rows[0][1] == 0.0);
}

void CubePairTest::refusedMatrices_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("error");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("negative") << 1 << -0.0123 << "the drive of red for green is -0.0123: a table is not exact below 0";
    QTest::newRow("negative blue") << 6 << -1e-8 << "the drive of blue for red is -1e-08: a table is not exact below 0";
    QTest::newRow("white") << 5 << 0.2 << "the drive of green for white is 1.02: a table is not exact above 1";
    QTest::newRow("not a number") << 8 << nan << "the drive of blue for blue is nan: a table is not exact below 0";
    QTest::newRow("infinite") << 8 << std::numeric_limits<double>::infinity()
                              << "the drive of blue for white is inf: a table is not exact above 1";
}

void CubePairTest::refusedMatrices()
{
    QFETCH(int, entry);
    QFETCH(double, value);
    Model::CorrectionMatrix matrix = matrixOf(plain);
    matrix.rows[std::size_t(entry) / 3][std::size_t(entry) % 3] = value;
    const auto pair = cubePair(matrix);
    QVERIFY(!pair);
    QTEST(pair.error(), "error");
}

void CubePairTest::refusedTables_data()
{
    QTest::addColumn<QByteArray>("what");
    QTest::addColumn<QByteArray>("by");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *what, const char *by, const char *error) {
        QTest::newRow(error) << QByteArray(what) << QByteArray(by) << QString::fromUtf8(error);
    };
    row("LUT_3D_SIZE 2", "LUT_3D_SIZE 33", "line 5: is not that of a table of size 2 from 0 to 1: \"LUT_3D_SIZE 33\"");
    row("LUT_3D_SIZE 2", "LUT_3D_SIZE 2\nLUT_3D_SIZE 2",
        "line 6: is not that of a table of size 2 from 0 to 1: \"LUT_3D_SIZE 2\"");
    row("LUT_3D_SIZE 2\n", "", "line 7: is not that of a table of size 2 from 0 to 1: \"0 0 0\"");
    row("DOMAIN_MAX 1 1 1", "DOMAIN_MAX 2 2 2",
        "line 7: is not that of a table of size 2 from 0 to 1: \"DOMAIN_MAX 2 2 2\"");
    row("0 0 0\n0.5", "0 0\n0.5", "line 8: not three numbers, nor a keyword with its numbers: \"0 0\"");
    row("0 0 0\n0.5", "0 0 nan\n0.5", "line 8: not three numbers, nor a keyword with its numbers: \"0 0 nan\"");
    row("0 0 0\n0.5", "0.5", "expected 8 lines of numbers, found 7");
    row("0.5 0 0", "0.5 0.25 0", "the table of three dimensions is not that of a matrix");
}

void CubePairTest::refusedTables()
{
    QFETCH(QByteArray, what);
    QFETCH(QByteArray, by);
    QFETCH(QString, error);
    const auto pair = cubePair(matrixOf({{{0.5, 0.5, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}}));
    QVERIFY(pair);
    QByteArray text = matrixCube(*pair, "x");
    QVERIFY2(text.contains(what), text);
    text.replace(what, by);
    QCOMPARE(readCubePair(text, gainsCube(*pair, "x")).error(), error);
    QVERIFY(!readCubePair(gainsCube(*pair, "x"), matrixCube(*pair, "x")));
    QCOMPARE(readCubePair(matrixCube(*pair, "x") + "1 1 1\n", gainsCube(*pair, "x")).error(),
        QStringLiteral("line 16: is not that of a table of size 2 from 0 to 1: \"1 1 1\""));
    QVERIFY(!readCubePair(matrixCube(*pair, "x"), gainsCube(*pair, "x").replace("0 0 0\n1", "0 0 0.1\n1")));
    QVERIFY(!readCubePair(matrixCube(*pair, "x") + QByteArray(maximumCubeBytes, '\n'), gainsCube(*pair, "x")));
}

void CubePairTest::titleIsOneLine()
{
    const auto pair = cubePair(matrixOf(plain));
    QVERIFY(pair);
    const QByteArray text = matrixCube(*pair, QStringLiteral("a \"b\"\nLUT_3D_SIZE 9"));
    QVERIFY2(text.contains("TITLE \"a 'b'\\u000aLUT_3D_SIZE 9\"\n"), text);
    QVERIFY(readCubePair(text, gainsCube(*pair, QString())));
}

void CubePairTest::documentedExampleIsRead()
{
    QFile file(QStringLiteral(CORRECTIONS_DOCUMENTATION));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray documentation = file.readAll();
    const auto example = [&documentation](int number) {
        int begin = 0;
        for (int i = 0; i < number; ++i) {
            begin = documentation.indexOf("```text\n", begin) + 8;
        }
        return documentation.mid(begin, documentation.indexOf("```\n", begin) - begin);
    };
    const auto read = readCubePair(example(1), example(2));
    QVERIFY2(read, qPrintable(read.error()));
    WallCorrections corrections;
    corrections.unit = LuminanceUnit::CandelaPerSquareMetre;
    corrections.target = {QStringLiteral("Rec.709"), {0.64, 0.33}, {0.3, 0.6}, {0.15, 0.06}, {0.3127, 0.329}, 500.0};
    const QStringList comments = cubeComments(corrections);
    QCOMPARE(QString::fromUtf8(matrixCube(*read, "Stage left", comments)), QString::fromUtf8(example(1)));
    QCOMPARE(QString::fromUtf8(gainsCube(*read, "Stage left", comments)), QString::fromUtf8(example(2)));
}

QTEST_GUILESS_MAIN(CubePairTest)
#include "cubepairtest.moc"
