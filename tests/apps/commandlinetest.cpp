// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "program/commandline.h"

#include <QtTest>

using ceiechart::DiagramLayer;
using ceiechart::ShownLayers;
using gamutviewer::CommandLine;
using gamutviewer::DisplayDescription;
using gamutviewer::Picture;
using gamutviewer::PictureFormat;
using Action = CommandLine::Action;

Q_DECLARE_METATYPE(CommandLine::Action)
Q_DECLARE_METATYPE(CommandLine::Toolkit)

class CommandLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void actions_data();
    void actions();
    void toolkits_data();
    void toolkits();
    void sizes_data();
    void sizes();
    void ratios_data();
    void ratios();
    void pictureFormats_data();
    void pictureFormats();
    void pictureOfADescription();
    void tolerancesAreDrawn();
    void diagrams_data();
    void diagrams();
    void parts();
    void partThatIsNotThere();
    void layerLists_data();
    void layerLists();
    void unknownLayersNameTheKnownOnes();
    void ambiguousLayersNameWhatTheyCanMean();
    void emptyLayersAreRefused();
    void layersAreDocumented();
    void severalFiles();
    void measurementOptions();
    void followedFile();
    void refusals_data();
    void refusals();
    void combinations();
};

namespace {

QStringList withProgram(const QString &arguments)
{
    return QStringList(QStringLiteral("gamutviewer")) + arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

DisplayDescription wall()
{
    DisplayDescription description;
    description.original = QStringLiteral("Rec.2020");
    description.target = QStringLiteral("Rec.709");
    return description;
}

Picture picture(const QString &arguments)
{
    const CommandLine line(withProgram(QStringLiteral("--render a.png ") + arguments));
    if (line.action() != Action::Write) {
        qFatal("%s", qPrintable(line.error()));
    }
    return line.picture(wall(), std::nullopt);
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
    QTest::newRow("check") << "--check wall.json" << Action::Write << false;
    QTest::newRow("check by tolerances") << "--check --tolerances stage.json wall.json" << Action::Write << false;
    QTest::newRow("window with tolerances") << "--tolerances stage.json wall.json" << Action::Show << true;
    QTest::newRow("help") << "--help" << Action::Help << false;
    QTest::newRow("help before what is known") << "a b -h --render x" << Action::Help << false;
    QTest::newRow("nothing before what is unknown") << "a b -h --version --bogus" << Action::Refuse << false;
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
    QCOMPARE(line.wantsCheck(), arguments.contains("check"));
    QCOMPARE(line.tolerancesFile(), arguments.contains("stage") ? QStringLiteral("stage.json") : QString());
    if (action == Action::Write && arguments.contains("render")) {
        QCOMPARE(line.pictureFile(), QStringLiteral("wall.png"));
    }
}

void CommandLineTest::toolkits_data()
{
    using Toolkit = CommandLine::Toolkit;
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<Toolkit>("toolkit");
    QTest::newRow("show") << "wall.json" << Toolkit::Widgets;
    QTest::newRow("report") << "--report json wall.json" << Toolkit::Core;
    QTest::newRow("check") << "--check wall.json" << Toolkit::Core;
    QTest::newRow("corrections") << "--corrections wall.csv wall.json" << Toolkit::Core;
    QTest::newRow("picture") << "--render wall.png wall.json" << Toolkit::Painting;
    QTest::newRow("picture and report") << "--report json --render wall.svg wall.json" << Toolkit::Painting;
    QTest::newRow("library's chart") << "--diagram chart --render wall.png wall.json" << Toolkit::Widgets;
    QTest::newRow("help") << "--help" << Toolkit::Core;
    QTest::newRow("version") << "--version" << Toolkit::Core;
    QTest::newRow("refused") << "--report wrong wall.json" << Toolkit::Widgets;
    QTest::newRow("arguments of Qt") << "--report json wall.json -style fusion" << Toolkit::Widgets;
}

void CommandLineTest::toolkits()
{
    QFETCH(QString, arguments);
    QTEST(CommandLine(withProgram(arguments)).toolkit(), "toolkit");
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
    QTest::newRow("png") << "wall.png" << int(PictureFormat::Png);
    QTest::newRow("svg") << "wall.svg" << int(PictureFormat::Svg);
    QTest::newRow("pdf") << "wall.PDF" << int(PictureFormat::Pdf);
    QTest::newRow("no suffix") << "wall" << int(PictureFormat::Png);
    QTest::newRow("device") << "/dev/stdout" << int(PictureFormat::Png);
}

void CommandLineTest::pictureFormats()
{
    QFETCH(QString, name);
    QFETCH(int, format);
    const CommandLine line({QStringLiteral("gamutviewer"), QStringLiteral("--render"), name});
    QCOMPARE(line.action(), Action::Write);
    QCOMPARE(int(line.pictureFormat()), format);
}

void CommandLineTest::pictureOfADescription()
{
    const Picture all = picture(QString());
    QCOMPARE(all.content.gamuts.size(), 2);
    QCOMPARE(all.content.layers, ceiechart::allDiagramLayers);
    QCOMPARE(all.view.diagram(), Model::Diagram::Cie1931);
    QVERIFY(all.view.showsAll());
    QVERIFY(all.hasKey && !all.isLibraryChart);
}

void CommandLineTest::tolerancesAreDrawn()
{
    const CommandLine line(withProgram(QStringLiteral("--render a.png")));
    QCOMPARE(line.picture(wall(), std::nullopt).content.rings.size(), 1);
    gamutviewer::Tolerances tolerances;
    tolerances.limits.whiteUv = 0.004;
    tolerances.limits.primariesUv = 0.006;
    const auto rings = line.picture(wall(), tolerances).content.rings;
    QCOMPARE(rings.size(), 4);
    const Model::Targets target = Model::rec709().getTargets();
    const Model::Target *colors[] = {&target.white, &target.red, &target.green, &target.blue};
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(rings.at(i).xy, QPointF(colors[i]->x, colors[i]->y));
        QCOMPARE(rings.at(i).radii, QVector<double>{i == 0 ? 0.004 : 0.006});
    }
}

void CommandLineTest::diagrams_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("diagram");
    QTest::newRow("xy") << "xy" << int(Model::Diagram::Cie1931);
    QTest::newRow("uv") << "uv" << int(Model::Diagram::Cie1976);
    QTest::newRow("uv1960") << "uv1960" << int(Model::Diagram::Cie1960);
}

void CommandLineTest::diagrams()
{
    QFETCH(QString, name);
    QFETCH(int, diagram);
    QCOMPARE(int(picture(QStringLiteral("--diagram ") + name).view.diagram()), diagram);
    QVERIFY(!picture(QStringLiteral("--diagram ") + name).isLibraryChart);
    QVERIFY(picture(QStringLiteral("--diagram chart")).isLibraryChart);
}

void CommandLineTest::parts()
{
    QVERIFY(picture(QStringLiteral("--view all")).view.showsAll());
    const Model::Targets targets = Model::rec709().getTargets();
    const ceiechart::DiagramViewport whole(Model::Diagram::Cie1976, QSizeF(300, 200));
    const QString uv = QStringLiteral("--diagram uv --size 300x200 --view ");
    QCOMPARE(picture(uv + "target").view, whole.fittedTo(targets));
    QCOMPARE(picture(uv + "white").view, whole.fittedToWhite(QPointF(targets.white.x, targets.white.y)));
    const CommandLine line(withProgram("--render a.png --view white"));
    QVERIFY(line.picture(DisplayDescription(), std::nullopt).view.showsAll());
}

void CommandLineTest::partThatIsNotThere()
{
    const auto reason = [](const char *arguments, const DisplayDescription &description) {
        return CommandLine(withProgram(QString::fromLatin1(arguments))).whyNoView(description);
    };
    const DisplayDescription empty;
    QCOMPARE(reason("--render a.png --view target", empty),
        QStringLiteral("--view target requires a target, which the files do not have."));
    QCOMPARE(reason("--render a.png --view white", empty),
        QStringLiteral("--view white requires a target with its white, which the files do not have."));
    QVERIFY(reason("--render a.png --view all", empty).isEmpty());
    QVERIFY(reason("--render a.png", empty).isEmpty());
    QVERIFY(reason("--render a.png --view target", wall()).isEmpty());
    QVERIFY(reason("--render a.png --view white", wall()).isEmpty());
}

void CommandLineTest::layerLists_data()
{
    const ShownLayers all = ceiechart::allDiagramLayers;
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("layers");
    QTest::addColumn<bool>("hasKey");
    const auto row = [](const char *list, ShownLayers layers, bool hasKey = true) {
        QTest::newRow(list) << QString::fromLatin1(list) << int(layers) << hasKey;
    };
    row("all", all);
    row("none", ShownLayers());
    row("targets", DiagramLayer::Targets);
    row("target,grid", DiagramLayer::Targets | DiagramLayer::Grid);
    row("-grid", all & ~ShownLayers(DiagramLayer::Grid));
    row("-grid,-cmy", all & ~(DiagramLayer::Grid | DiagramLayer::CmyPoints));
    row("all,-planckian-locus", all & ~ShownLayers(DiagramLayer::PlanckianLocus));
    row("none,lost", DiagramLayer::LostArea);
    row("grid,-grid,axes", DiagramLayer::Axes);
    row("color-temp,measure-points,measured",
        DiagramLayer::ColorTemperaturePoints | DiagramLayer::MeasurePoints | DiagramLayer::MeasuredGamuts);
    row("-key", all, false);
    row("original,-key", DiagramLayer::Originals, false);
    row("-key,-axes,key", all & ~ShownLayers(DiagramLayer::Axes));
}

void CommandLineTest::layerLists()
{
    QFETCH(QString, list);
    QFETCH(int, layers);
    QFETCH(bool, hasKey);
    for (const QString &arguments : {QStringLiteral("--layers ") + list, QStringLiteral("--layers=") + list}) {
        const Picture found = picture(arguments);
        QCOMPARE(int(found.content.layers), layers);
        QCOMPARE(found.hasKey, hasKey);
    }
}

void CommandLineTest::unknownLayersNameTheKnownOnes()
{
    for (const char *wrong : {"bogus", "--grid", "Grid", " grid", "all,bogus,grid", "targetss", "trail"}) {
        const CommandLine line({"gamutviewer", "--render", "a.png", "--layers", QString::fromLatin1(wrong)});
        QCOMPARE(line.action(), Action::Refuse);
        const QString item = QString::fromLatin1(wrong).section(QLatin1Char(','), 1, 1);
        QCOMPARE(line.error(),
            QStringLiteral("Unknown layer, expected all, none, key, colors, locus, wavelengths, planckian-locus, "
                           "isotherms, axes, grid, common-area, lost-area, standards, originals, measured-gamuts, "
                           "declared-gamuts, targets, names, whites, measure-points, color-temperature-points, "
                           "cmy-points, rings: ")
                + (QByteArray(wrong).contains(',') ? item : QString::fromLatin1(wrong)));
    }
}

void CommandLineTest::ambiguousLayersNameWhatTheyCanMean()
{
    const CommandLine line(withProgram("--render a.png --layers grid,-m"));
    QCOMPARE(line.action(), Action::Refuse);
    QCOMPARE(line.error(), QStringLiteral("Ambiguous layer, expected one of measured-gamuts, measure-points: -m"));
}

void CommandLineTest::emptyLayersAreRefused()
{
    for (const char *wrong : {"", "-", "iso,,axes", "iso,-", "iso,"}) {
        const CommandLine line({"gamutviewer", "--render", "a.png", "--layers", QString::fromLatin1(wrong)});
        QCOMPARE(line.action(), Action::Refuse);
        QCOMPARE(line.error(), QStringLiteral("Empty name of a layer: --layers ") + QLatin1String(wrong));
    }
}

void CommandLineTest::layersAreDocumented()
{
    const CommandLine line(withProgram("--render a.png --layers bogus"));
    const QString names = line.error().section(QLatin1String("expected "), 1).section(QLatin1Char(':'), 0, 0);
    QFile guide(QStringLiteral(VIEWER_DOCUMENTATION));
    QFile manual(QStringLiteral(VIEWER_MANUAL));
    QVERIFY(guide.open(QIODevice::ReadOnly) && manual.open(QIODevice::ReadOnly));
    const QByteArray guideText = guide.readAll();
    const QByteArray manualText = manual.readAll();
    const QStringList list = names.split(QStringLiteral(", "));
    QVERIFY(list.size() > 20);
    for (const QString &name : list) {
        QVERIFY2(guideText.contains('`' + name.toUtf8() + '`'), qPrintable(name));
        QVERIFY2(manualText.contains(".BR " + name.toUtf8().replace('-', "\\-") + ' '), qPrintable(name));
    }
}

void CommandLineTest::severalFiles()
{
    const CommandLine line(withProgram("wall.json --report json monitor.icc meter.csv"));
    QCOMPARE(line.action(), Action::Write);
    QCOMPARE(line.files(), (QStringList{"wall.json", "monitor.icc", "meter.csv"}));
}

void CommandLineTest::measurementOptions()
{
    QVERIFY(!CommandLine(withProgram("meter.csv")).hasMeasurementOptions());
    const CommandLine line(
        withProgram("meter.csv --red Rot --green line:12 --white sum --unit fL --decimal comma --cabinet A1"));
    QCOMPARE(line.action(), Action::Show);
    QVERIFY(line.hasMeasurementOptions());
    const gamutfiles::MeasurementOptions &options = line.measurementOptions();
    QCOMPARE(options.red.name, QStringLiteral("Rot"));
    QCOMPARE(options.red.line, 0);
    QCOMPARE(options.green.line, 12);
    QVERIFY(options.green.name.isEmpty());
    QVERIFY(options.blue.isEmpty());
    QVERIFY(options.white.isEmpty());
    QVERIFY(options.whiteIsSum);
    QVERIFY(options.unit == gamutfiles::MeasuredUnit::FootLambert);
    QVERIFY(options.decimalSign == QLatin1Char(','));
    QCOMPARE(options.cabinet, QStringLiteral("A1"));
    QVERIFY(CommandLine(withProgram("meter.csv --cabinet A1")).hasMeasurementOptions());
    QCOMPARE(CommandLine({"gamutviewer", "meter.csv", "--cabinet", " "}).error(),
        QStringLiteral("The name of --cabinet is empty."));
}

void CommandLineTest::followedFile()
{
    QVERIFY(CommandLine(withProgram("wall.json")).followedFile().isEmpty());
    const CommandLine line(withProgram("wall.json --follow meter.csv --unit fL"));
    QCOMPARE(line.action(), Action::Show);
    QCOMPARE(line.followedFile(), QStringLiteral("meter.csv"));
    QCOMPARE(line.files(), QStringList("wall.json"));
    QCOMPARE(CommandLine(withProgram("--follow -")).followedFile(), QStringLiteral("-"));
}

void CommandLineTest::refusals_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown option") << QStringList{"--bogus"} << "Unknown option 'bogus'.";
    // Not a word for help, and a file besides.
    QTest::newRow("file with a hyphen") << QStringList{"--report", "json", "-have.icc"} << "Unknown option 'have.icc'.";
    QTest::newRow("file with a hyphen and v") << QStringList{"-view.icc"} << "Unknown option 'view.icc'.";
    QTest::newRow("report of no file") << QStringList{"--report", "json"}
                                       << "No file to report on: --report requires one.";
    QTest::newRow("no picture file") << QStringList{"--render"} << "Missing value after '--render'.";
    QTest::newRow("unknown unit") << QStringList{"--unit", "lux"}
                                  << "Unknown unit, expected cd/m2, fL or relative: lux";
    QTest::newRow("unknown sign") << QStringList{"--decimal", ","}
                                  << "Unknown decimal sign, expected point or comma: ,";
    QTest::newRow("no line") << QStringList{"--red", "line:0"}
                             << "Invalid measurement, expected a name or line:<number>: --red line:0";
    QTest::newRow("no name") << QStringList{"--white", ""}
                             << "Invalid measurement, expected a name or line:<number>: --white ";
    QTest::newRow("empty picture file") << QStringList{"--render", ""} << "The file name of --render is empty.";
    QTest::newRow("empty file name") << QStringList{"a", ""} << "An input file name is empty.";
    QTest::newRow("unknown picture") << QStringList{"--render", "a.jpg"}
                                     << "Unsupported picture format, expected png, svg or pdf: a.jpg";
    QTest::newRow("unknown report") << QStringList{"--report", "xml"}
                                    << "Unsupported report format, expected json or text: xml";
    QTest::newRow("no report format") << QStringList{"--report"} << "Missing value after '--report'.";
    QTest::newRow("too many pixels") << QStringList{"--render", "a.png", "--size", "4097x5", "--dpr", "2"}
                                     << "The picture would have more than 8192 pixels per side.";
    QTest::newRow("ratio of a window") << QStringList{"--dpr", "2", "a.json"} << "--dpr requires --render.";
    QTest::newRow("ratio of a report") << QStringList{"--dpr", "2", "--report", "json"} << "--dpr requires --render.";
    QTest::newRow("diagram of a window") << QStringList{"--diagram", "uv"} << "--diagram requires --render.";
    QTest::newRow("view of a window") << QStringList{"--view", "white"} << "--view requires --render.";
    QTest::newRow("layers of a report") << QStringList{"--layers", "none", "--report", "json"}
                                        << "--layers requires --render.";
    QTest::newRow("unknown diagram") << QStringList{"--render", "a.png", "--diagram", "XY"}
                                     << "Unknown diagram, expected xy, uv, uv1960, chart or wall: XY";
    QTest::newRow("unknown view") << QStringList{"--render", "a.png", "--view", "red"}
                                  << "Unknown view, expected all, target or white: red";
    QTest::newRow("layers of the chart") << QStringList{"--render", "a.png", "--diagram", "chart", "--layers", "all"}
                                         << "--layers does not apply to --diagram chart.";
    QTest::newRow("view of the chart") << QStringList{"--render", "a.png", "--diagram", "chart", "--view", "all"}
                                       << "--view does not apply to --diagram chart.";
    QTest::newRow("ratio of the chart") << QStringList{"--render", "a.png", "--diagram", "chart", "--dpr", "2"}
                                        << "--dpr does not apply to --diagram chart.";
    QTest::newRow("chart as svg") << QStringList{"--render", "a.svg", "--diagram", "chart"}
                                  << "--diagram chart is written as png only: a.svg";
    QTest::newRow("size of a report") << QStringList{"--size", "20x10", "--report", "json"}
                                      << "--size requires --render when used with --report.";
    QTest::newRow("size of a check") << QStringList{"--size", "20x10", "--check"}
                                     << "--size requires --render when used with --check.";
    QTest::newRow("check of nothing") << QStringList{"--check"} << "No file to check: --check requires one.";
    QTest::newRow("check and report of nothing")
        << QStringList{"--check", "--report", "json"} << "No file to check: --check requires one.";
    QTest::newRow("empty tolerances") << QStringList{"--tolerances", ""} << "The file name of --tolerances is empty.";
    QTest::newRow("empty followed file") << QStringList{"--follow", ""} << "The file name of --follow is empty.";
    QTest::newRow("two followed files") << QStringList{"--follow", "a.csv", "--follow", "b.csv"}
                                        << "--follow can be used only once.";
    QTest::newRow("standard input twice")
        << QStringList{"--follow", "-", "-"} << "Standard input can be read only once, not as a file and as --follow.";
    QTest::newRow("two files of standard input")
        << QStringList{"-", "-"} << "Standard input can be read only once, not as a file and as a file.";
    QTest::newRow("wall that is followed") << QStringList{"--follow", "-", "--wall", "-"}
                                           << "Standard input can be read only once, not as --wall and as --follow.";
    QTest::newRow("wall and tolerances") << QStringList{"--tolerances", "-", "--check", "--wall", "-"}
                                         << "Standard input can be read only once, not as --wall and as --tolerances.";
    for (const char *option : {"--wall", "--target", "--tolerances"}) {
        QTest::newRow(option) << QStringList{option, "a", option, "b"}
                              << QStringLiteral("%1 can be used only once.").arg(option);
    }
    QTest::newRow("two corrections") << QStringList{"a.json", "--corrections", "a.csv", "--corrections", "a.json"}
                                     << "--corrections can be used only once.";
    QTest::newRow("two reports") << QStringList{"a.json", "--report", "text", "--report", "json"}
                                 << "--report can be used only once.";
    QTest::newRow("two pictures") << QStringList{"--render", "a.png", "--render", "b.png"}
                                  << "--render can be used only once.";
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

// Each set of the options that say what is done: it works, or the refusal names what cannot be.
void CommandLineTest::combinations()
{
    const QStringList options[] = {{"--wall", "w.csv"}, {"--target", "Rec.709"}, {"--fit"}, {"--render", "p.png"},
        {"--report", "text"}, {"--check"}, {"--corrections", "c.csv"}, {"--follow", "f.csv"}, {"display.json"}};
    constexpr int count = int(std::size(options));
    enum { Wall, Target, Fit, Render, Report, Check, Corrections, Follow, File };
    for (int set = 0; set < 1 << count; ++set) {
        const auto has = [set](int option) { return (set >> option & 1) != 0; };
        QStringList arguments{"gamutviewer"};
        for (int option = 0; option < count; ++option) {
            arguments += has(option) ? options[option] : QStringList();
        }
        const CommandLine line(arguments);
        const QByteArray context = (arguments.join(' ') + ": " + line.error()).toUtf8();
        const bool writes = has(Render) || has(Report) || has(Check) || has(Corrections);
        const bool readsNothing = !has(Wall) && !has(File);
        const bool needsFile = has(Report) || has(Check) || has(Corrections);
        if (needsFile && readsNothing) {
            QVERIFY2(line.action() == Action::Refuse, context);
            QVERIFY2(
                line.error().contains(" requires one") || line.error().startsWith("--follow cannot be used with --"),
                context);
        } else if (has(Follow) && writes) {
            QVERIFY2(line.action() == Action::Refuse, context);
            const QString other = has(Render) ? "--render"
                : has(Report)                 ? "--report"
                : has(Check)                  ? "--check"
                                              : "--corrections";
            QCOMPARE(
                line.error(), QStringLiteral("--follow cannot be used with %1: it requires the window.").arg(other));
        } else {
            QVERIFY2(line.action() == (writes ? Action::Write : Action::Show), context);
            QCOMPARE(line.wallFile(), has(Wall) ? QStringLiteral("w.csv") : QString());
            QCOMPARE(line.targetName(), has(Target) ? QStringLiteral("Rec.709") : QString());
            QCOMPARE(line.wantsFit(), has(Fit));
            QCOMPARE(line.pictureFile(), has(Render) ? QStringLiteral("p.png") : QString());
            QCOMPARE(line.wantsTextReport(), has(Report));
            QCOMPARE(line.wantsCheck(), has(Check));
            QCOMPARE(line.correctionsFile(), has(Corrections) ? QStringLiteral("c.csv") : QString());
            QCOMPARE(line.followedFile(), has(Follow) ? QStringLiteral("f.csv") : QString());
        }
    }
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "commandlinetest.moc"
