// SPDX-License-Identifier: MIT
#include "program/commandline.h"

#include <QtTest>

using gamutviewer::ChartFormat;
using gamutviewer::CommandLine;
using Action = CommandLine::Action;

Q_DECLARE_METATYPE(CommandLine::Action)

class CommandLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void actions_data();
    void actions();
    void sizes_data();
    void sizes();
    void ratios_data();
    void ratios();
    void pictureFormats_data();
    void pictureFormats();
    void severalFiles();
    void refusals_data();
    void refusals();
};

namespace {

QStringList withProgram(const QString &arguments)
{
    return QStringList(QStringLiteral("gamutviewer")) + arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

void CommandLineTest::defaults()
{
    const CommandLine line(withProgram(QString()));
    QCOMPARE(line.action(), Action::Show);
    QVERIFY(line.files().isEmpty());
    QCOMPARE(line.extent().size, QSize(800, 800));
    QCOMPARE(line.extent().devicePixelRatio, 1.0);
    QVERIFY(!line.hasSize());
    QVERIFY(!line.wantsReport());
    QVERIFY(line.pictureFile().isEmpty());
    QVERIFY(line.needsDisplay());
}

void CommandLineTest::actions_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<Action>("action");
    QTest::addColumn<bool>("needsDisplay");
    QTest::newRow("show") << "wall.json" << Action::Show << true;
    QTest::newRow("show in a size") << "--size 300x200 wall.json" << Action::Show << true;
    QTest::newRow("render") << "--render wall.png wall.json" << Action::Write << false;
    QTest::newRow("render after the file") << "wall.json --render=wall.png" << Action::Write << false;
    QTest::newRow("report") << "--report json wall.json" << Action::Write << false;
    QTest::newRow("report and chart") << "--report=json --render wall.png wall.json" << Action::Write << false;
    QTest::newRow("help") << "--help" << Action::Help << false;
    QTest::newRow("help before all else") << "--bogus a b -h --render x" << Action::Help << false;
    QTest::newRow("version") << "-v" << Action::Version << false;
    QTest::newRow("refused") << "--bogus" << Action::Refuse << true;
    QTest::newRow("refused rendering") << "--bogus --render wall.png" << Action::Refuse << false;
}

void CommandLineTest::actions()
{
    QFETCH(QString, arguments);
    QFETCH(Action, action);
    QFETCH(bool, needsDisplay);
    const CommandLine line(withProgram(arguments));
    QCOMPARE(line.action(), action);
    QCOMPARE(line.needsDisplay(), needsDisplay);
    if (action == Action::Show || action == Action::Write) {
        QCOMPARE(line.files(), QStringList(QStringLiteral("wall.json")));
    }
    QCOMPARE(
        line.wantsReport(), arguments.contains("json ") && action == Action::Write && arguments.contains("report"));
    if (action == Action::Write && arguments.contains("render")) {
        QCOMPARE(line.pictureFile(), QStringLiteral("wall.png"));
    }
}

void CommandLineTest::sizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");
    QTest::newRow("square") << "640x640" << QSize(640, 640);
    QTest::newRow("smallest") << "1x1" << QSize(1, 1);
    QTest::newRow("largest") << "8192x8192" << QSize(8192, 8192);
    QTest::newRow("leading zeros") << "0640x0480" << QSize(640, 480);
    for (const char *wrong :
        {"", "x", "640", "640x", "x640", "0x640", "640x0", "-1x640", "8193x1", "1x8193", "640X480", "640x480x1",
            "640 x 480", "640.0x480", "99999999999x1", "4294967297x1", "640x480\n", "\xD9\xA6x\xD9\xA6"}) {
        QTest::newRow(wrong) << QString::fromUtf8(wrong) << QSize();
    }
}

void CommandLineTest::sizes()
{
    QFETCH(QString, text);
    QFETCH(QSize, size);
    const CommandLine line({QStringLiteral("gamutviewer"), QStringLiteral("--size"), text});
    if (size.isValid()) {
        QCOMPARE(line.action(), Action::Show);
        QCOMPARE(line.extent().size, size);
        QVERIFY(line.hasSize());
    } else {
        QCOMPARE(line.action(), Action::Refuse);
        QCOMPARE(line.error(), QStringLiteral("Invalid size, expected 1x1 to 8192x8192: ") + text);
    }
}

void CommandLineTest::ratios_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("ratio");
    QTest::newRow("double") << "2" << 2.0;
    QTest::newRow("one and a half") << "1.5" << 1.5;
    QTest::newRow("least") << "0.25" << 0.25;
    QTest::newRow("greatest") << "16" << 16.0;
    for (const char *wrong : {"", "0", "-1", "0.24", "16.1", "2x", "1,5", "nan", "inf", "two", "1e99"}) {
        QTest::newRow(wrong) << QString::fromLatin1(wrong) << 0.0;
    }
}

void CommandLineTest::ratios()
{
    QFETCH(QString, text);
    QFETCH(double, ratio);
    const CommandLine line({QStringLiteral("gamutviewer"), QStringLiteral("--dpr"), text, QStringLiteral("--render"),
        QStringLiteral("chart.svg")});
    if (ratio > 0.0) {
        QCOMPARE(line.extent().devicePixelRatio, ratio);
        QCOMPARE(line.action(), Action::Write);
    } else {
        QCOMPARE(line.action(), Action::Refuse);
        QCOMPARE(line.error(), QStringLiteral("Invalid device pixel ratio, expected 0.25 to 16: ") + text);
    }
}

void CommandLineTest::pictureFormats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("format");
    QTest::newRow("png") << "wall.png" << int(ChartFormat::Png);
    QTest::newRow("svg") << "wall.svg" << int(ChartFormat::Svg);
    QTest::newRow("pdf") << "wall.PDF" << int(ChartFormat::Pdf);
    QTest::newRow("no suffix") << "wall" << int(ChartFormat::Png);
    QTest::newRow("device") << "/dev/stdout" << int(ChartFormat::Png);
}

void CommandLineTest::pictureFormats()
{
    QFETCH(QString, name);
    QFETCH(int, format);
    const CommandLine line({QStringLiteral("gamutviewer"), QStringLiteral("--render"), name});
    QCOMPARE(line.action(), Action::Write);
    QCOMPARE(int(line.pictureFormat()), format);
}

void CommandLineTest::severalFiles()
{
    const CommandLine line(withProgram("wall.json --report json monitor.icc meter.csv"));
    QCOMPARE(line.action(), Action::Write);
    QCOMPARE(line.files(), (QStringList{"wall.json", "monitor.icc", "meter.csv"}));
}

void CommandLineTest::refusals_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown option") << QStringList{"--bogus"} << "Unknown option 'bogus'.";
    QTest::newRow("no picture file") << QStringList{"--render"} << "Missing value after '--render'.";
    QTest::newRow("empty picture file") << QStringList{"--render", ""} << "The file name of --render is empty.";
    QTest::newRow("empty file name") << QStringList{"a", ""} << "An input file name is empty.";
    QTest::newRow("unknown picture") << QStringList{"--render", "a.jpg"}
                                     << "Unsupported picture format, expected png, svg or pdf: a.jpg";
    QTest::newRow("unknown report") << QStringList{"--report", "xml"}
                                    << "Unsupported report format, expected json: xml";
    QTest::newRow("no report format") << QStringList{"--report"} << "Missing value after '--report'.";
    QTest::newRow("too many pixels") << QStringList{"--render", "a.png", "--size", "4097x5", "--dpr", "2"}
                                     << "The picture would have more than 8192 pixels per side.";
    QTest::newRow("ratio of a window") << QStringList{"--dpr", "2", "a.json"} << "--dpr requires --render.";
    QTest::newRow("ratio of a report") << QStringList{"--dpr", "2", "--report", "json"} << "--dpr requires --render.";
    QTest::newRow("size of a report") << QStringList{"--size", "20x10", "--report", "json"}
                                      << "--size requires --render when used with --report.";
    QTest::newRow("first reason") << QStringList{"--dpr", "0", "--size", "0x0"}
                                  << "Invalid size, expected 1x1 to 8192x8192: 0x0";
}

void CommandLineTest::refusals()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const CommandLine line(QStringList{"gamutviewer"} + arguments);
    QCOMPARE(line.action(), Action::Refuse);
    QCOMPARE(line.error(), error);
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "commandlinetest.moc"
