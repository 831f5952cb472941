// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "expectedchart.h"
#include "programrunner.h"

#include <reference/picturedifference.h>

#include <QtTest>

class ProgramPicturesTest : public QObject, private ProgramRunner {
    Q_OBJECT

private Q_SLOTS:
    void init() { renewFolder(); }
    void rendersTheSample();
    void rendersTheLibraryChart();
    void rendersWhatIsAskedFor();
    void namesTheGamuts();
    void tellsOfAKeyWithoutRoom();
    void rendersAtARatio();
    void rendersVectors();
    void rendersInTheSizeAskedFor_data();
    void rendersInTheSizeAskedFor();
    void rendersAGivenDescription();
    void rendersWhateverThePlatformIsSaidToBe();
    void replacesAPicture();
    void keepsAPictureWhenTheDescriptionIsWrong();
    void cannotWrite_data();
    void cannotWrite();
    void leavesNothingOfAPictureThatDoesNotFit();
    void writesToAPipe();
};

namespace {

QImage pictureIn(const QByteArray &png)
{
    return QImage::fromData(png, "PNG").convertToFormat(QImage::Format_ARGB32);
}

QImage pictureInFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? pictureIn(file.readAll()) : QImage();
}

} // namespace

void ProgramPicturesTest::rendersTheSample()
{
    const Result result = run({"--render", "chart.png"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(entries(), QStringList("chart.png"));
    QCOMPARE(pictureInFile(path("chart.png")).size(), QSize(800, 800));
}

void ProgramPicturesTest::rendersTheLibraryChart()
{
    const Result result = run({"--render", "chart.png", "--diagram", "chart"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(
        reference::firstDifference(pictureInFile(path("chart.png")), expectedchart::draw(QSize(800, 800))), QString());
}

void ProgramPicturesTest::rendersWhatIsAskedFor()
{
    QVector<QImage> pictures;
    for (const QStringList &asked : {QStringList(), QStringList{"--diagram", "uv"}, QStringList{"--diagram", "uv1960"},
             QStringList{"--layers", "-names"}, QStringList{"--layers", "-key"}, QStringList{"--view", "white"}}) {
        const Result result = run(QStringList{"--render", "chart.png", "--size", "600x600"} + asked);
        QCOMPARE(result.error, QByteArray());
        QCOMPARE(result.exitCode, 0);
        const QImage picture = pictureInFile(path("chart.png"));
        QVERIFY(!pictures.contains(picture));
        pictures.append(picture);
    }
}

void ProgramPicturesTest::namesTheGamuts()
{
    QCOMPARE(run({"--render", "chart.svg", "--layers", "-names"}).exitCode, 0);
    QFile file(path("chart.svg"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray svg = file.readAll();
    for (const char *text :
        {"DCI-P3(D65)", "LED wall", "LED wall, warm", "Rec.2020", "Target", "Original", "Measured"}) {
        QVERIFY2(svg.contains(text), text);
    }
}

void ProgramPicturesTest::tellsOfAKeyWithoutRoom()
{
    const Result result = run({"--render", "icon.png", "--size", "64x64"});
    QCOMPARE(result.error, QByteArray("gamutviewer: icon.png: has no room for the key\n"));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(pictureInFile(path("icon.png")).size(), QSize(64, 64));
}

void ProgramPicturesTest::rendersAtARatio()
{
    const Result result = run({"--size", "200x100", "--dpr", "1.5", "--layers", "-key", "--render", "chart.png"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(pictureInFile(path("chart.png")).size(), QSize(300, 150));
}

void ProgramPicturesTest::rendersVectors()
{
    const auto start = [this](const char *name) {
        const Result result = run({"--render", name, "--size", "9000x10"});
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(run({"--render", name}).exitCode, 0);
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.peek(100).startsWith(QByteArray(name).endsWith("svg") ? "<?xml" : "%PDF-"));
    };
    start("chart.svg");
    start("chart.pdf");
}

void ProgramPicturesTest::rendersInTheSizeAskedFor_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("wide") << QSize(640, 360);
    QTest::newRow("odd") << QSize(333, 511);
    QTest::newRow("smallest") << QSize(1, 1);
    QTest::newRow("longest") << QSize(8192, 3);
}

void ProgramPicturesTest::rendersInTheSizeAskedFor()
{
    QFETCH(QSize, size);
    const QString text = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    const Result result = run({"--size", text, SAMPLE_FILE, "--render", "chart", "--diagram", "chart"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QImage picture = pictureInFile(path("chart"));
    QCOMPARE(picture.size(), size);
    if (size != QSize(1, 1)) { // whose mapping depends on what was drawn before
        QCOMPARE(reference::firstDifference(picture, expectedchart::draw(size)), QString());
    }
}

void ProgramPicturesTest::rendersAGivenDescription()
{
    write("wall.json", minimal);
    const Result result = run({"wall.json", "--render", "chart.png", "--size", "200x200"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    const QImage picture = pictureInFile(path("chart.png"));
    QCOMPARE(picture.size(), QSize(200, 200));
    QVERIFY(run({"--render", "sample.png", "--size", "200x200"}).exitCode == 0);
    QVERIFY(picture != pictureInFile(path("sample.png")));
}

void ProgramPicturesTest::rendersWhateverThePlatformIsSaidToBe()
{
    QProcessEnvironment environment = bare();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":9999"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORMTHEME"), QStringLiteral("gtk3"));
    const Result result = run({"--render", "chart.png"}, environment);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(!pictureInFile(path("chart.png")).isNull());
}

void ProgramPicturesTest::replacesAPicture()
{
    write("chart.png", QByteArray(1000000, 'x'));
    QCOMPARE(run({"--render", "chart.png", "--size", "20x30"}).exitCode, 0);
    QCOMPARE(pictureInFile(path("chart.png")).size(), QSize(20, 30));
    QVERIFY(QFileInfo(path("chart.png")).size() < 10000);
    QCOMPARE(entries(), QStringList("chart.png"));
}

void ProgramPicturesTest::keepsAPictureWhenTheDescriptionIsWrong()
{
    write("chart.png", "as it was");
    write("wall.json", "{}");
    QCOMPARE(run({"wall.json", "--render", "chart.png"}).exitCode, 2);
    QFile file(path("chart.png"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("as it was"));
}

void ProgramPicturesTest::cannotWrite_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such folder") << "no/chart.png";
    QTest::newRow("a folder") << ".";
    QTest::newRow("below a file") << QStringLiteral(GAMUTVIEWER_PROGRAM) + QStringLiteral("/chart.png");
#ifdef Q_OS_LINUX
    QTest::newRow("full device") << "/dev/full";
#endif
}

void ProgramPicturesTest::cannotWrite()
{
    QFETCH(QString, name);
    const Result result = run({"--render", name, "--size", "50x50"});
    QVERIFY2(isOneLine(result.error), result.error);
    QVERIFY2(result.error.startsWith(("gamutviewer: " + name + ": cannot be written: ").toLocal8Bit()), result.error);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(entries().isEmpty());
}

void ProgramPicturesTest::leavesNothingOfAPictureThatDoesNotFit()
{
#ifdef Q_OS_UNIX
    // A limit on the size of files stands in for a full disk.
    const QString script = QStringLiteral("trap '' XFSZ; ulimit -f 8; exec \"$0\" --render chart.png");
    const Result result = run({"-c", script, GAMUTVIEWER_PROGRAM}, bare(), {}, QStringLiteral("/bin/sh"));
    QVERIFY2(isOneLine(result.error), result.error);
    QVERIFY2(result.error.startsWith("gamutviewer: chart.png: cannot be written: "), result.error);
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(entries().isEmpty(), qPrintable(entries().join(QLatin1Char(' '))));
#endif
}

void ProgramPicturesTest::writesToAPipe()
{
#ifdef Q_OS_UNIX
    const Result result = run({"--render", "/dev/stdout", "--size", "300x200", "--diagram", "chart"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(reference::firstDifference(pictureIn(result.output), expectedchart::draw(QSize(300, 200))), QString());
#endif
}

QTEST_MAIN(ProgramPicturesTest)
#include "programpicturestest.moc"
