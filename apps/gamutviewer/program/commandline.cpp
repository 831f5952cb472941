// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "program/commandline.h"

#include "drawing/documentcontent.h"
#include "drawing/wallpainter.h"
#include "editing/wallcorrections.h"

#include <QFileInfo>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QVector>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr double leastRatio = 0.25;
constexpr double greatestRatio = 16.0;
const QString keyName = QStringLiteral("key");

struct NamedLayer {
    QString name;
    ceiechart::DiagramLayer layer;
};

//! The layers of a display description, by the library's names for them: "common-area".
QVector<NamedLayer> namedLayers()
{
    QVector<NamedLayer> layers;
    const auto names = QMetaEnum::fromType<ceiechart::ShownLayers>();
    for (int i = 0; i < names.keyCount(); ++i) {
        const auto layer = ceiechart::DiagramLayer(names.value(i));
        if (layer == ceiechart::DiagramLayer::Trail) {
            continue; // which is left by editing
        }
        QString name;
        for (const QChar c : QString::fromLatin1(names.key(i))) {
            if (c.isUpper() && !name.isEmpty()) {
                name += QLatin1Char('-');
            }
            name += c.toLower();
        }
        layers.append({name, layer});
    }
    return layers;
}

QString layerNames()
{
    QStringList names;
    for (const NamedLayer &layer : namedLayers()) {
        names.append(layer.name);
    }
    return names.join(QStringLiteral(", "));
}

} // namespace

CommandLine::CommandLine(const QStringList &arguments)
{
    const QCommandLineOption render(QStringLiteral("render"),
        tr("Write a picture to <file> without opening a window. The suffix selects PNG, SVG or PDF; without one it is "
           "a PNG."),
        tr("file"));
    const QCommandLineOption size(QStringLiteral("size"),
        tr("Size of the picture in pixels, %1x%2 by default, at most %3 per side. The limit applies to a PNG after "
           "multiplication by the device pixel ratio. Without --render, the size of the window.")
            .arg(m_extent.size.width())
            .arg(m_extent.size.height())
            .arg(maximumPictureSide),
        tr("width>x<height"));
    const QCommandLineOption ratio(QStringLiteral("dpr"),
        tr("Device pixel ratio of the written picture, %1 to %2, 1 by default. A PNG has this many times the pixels in "
           "each direction. Requires --render.")
            .arg(leastRatio)
            .arg(greatestRatio),
        tr("ratio"));
    const QCommandLineOption diagram(QStringLiteral("diagram"),
        tr("What the picture shows: the diagram xy (the default), uv (CIE 1976 u', v'), uv1960 (CIE 1960 u, v), wall, "
           "the map of the wall, or chart, the library's own chart, as PNG. Requires --render."),
        tr("diagram"));
    const QCommandLineOption part(QStringLiteral("view"),
        tr("Part of the diagram: all (the default), target, or white, the surroundings of the target's white. Requires "
           "--render."),
        tr("part"));
    const QCommandLineOption layers(QStringLiteral("layers"),
        tr("Layers of the diagram, separated by commas; a - before a name leaves that layer out, and a name can be "
           "shortened: all, none, key, %1. Requires --render.")
            .arg(layerNames()),
        tr("list"));
    const QCommandLineOption report(QStringLiteral("report"),
        tr("Print coverage, colour temperatures, the verdict, what the cabinets of a wall show, and what is known of "
           "the files, without opening a window. The format is json, or text for people. Requires a file."),
        tr("format"));
    const QCommandLineOption check(QStringLiteral("check"),
        tr("Judge whether the display in the files can show the target, without opening a window: the exit status "
           "tells the verdict, and its grounds are printed unless the report is. Requires a file."));
    const QCommandLineOption wall(QStringLiteral("wall"),
        tr("The cabinets of the display's LED wall: a measurement list with a column for the cabinet, or a display "
           "description with a wall."),
        tr("file"));
    const QCommandLineOption target(
        QStringLiteral("target"), tr("The gamut of the files, or the published one, that is the target."), tr("gamut"));
    const QCommandLineOption fit(QStringLiteral("fit"),
        tr("Fit the target to the wall: move its primaries towards its white, and lower its luminance, as far as all "
           "cabinets need."));
    const QCommandLineOption corrections(QStringLiteral("corrections"),
        tr("Write the matrices with which the cabinets of the wall show the target, or the one of a single display, to "
           "<file> without opening a window. The suffix selects csv, json or, for one display or --cabinet, cube: a "
           "pair of tables."),
        tr("file"));
    const QCommandLineOption tolerances(QStringLiteral("tolerances"),
        tr("Judge what was measured by the limits in <file> (JSON), and draw them."), tr("file"));
    const QCommandLineOption follow(QStringLiteral("follow"),
        tr("Follow the measurement list <file> in the window while lines are appended to it: a file, which need not be "
           "there yet, a named pipe, a device, or - for standard input."),
        tr("file"));
    const auto colorOption = [](const QString &name) {
        return QCommandLineOption(name,
            tr("The measurement that is %1 in a measurement list: its name, or its line as line:<number>.").arg(name),
            tr("measurement"));
    };
    const QCommandLineOption red = colorOption(QStringLiteral("red"));
    const QCommandLineOption green = colorOption(QStringLiteral("green"));
    const QCommandLineOption blue = colorOption(QStringLiteral("blue"));
    const QCommandLineOption white(QStringLiteral("white"),
        tr("The same for white; or sum, for the sum of red, green and blue where the list has no white."),
        tr("measurement"));
    const QCommandLineOption cabinet(QStringLiteral("cabinet"),
        tr("The cabinet of a measurement list that has several, or the only one that --corrections is for: its name, "
           "or "
           "<row>/<column>."),
        tr("cabinet"));
    const QCommandLineOption unit(
        QStringLiteral("unit"), tr("Unit of the luminances in a measurement list: cd/m2, fL or relative."), tr("unit"));
    const QCommandLineOption decimal(
        QStringLiteral("decimal"), tr("Decimal sign in a measurement list: point or comma."), tr("sign"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, tr("Print this help text."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, tr("Print the version."));

    m_parser.setApplicationDescription(tr(
        "Shows and edits the colour gamuts of a display on CIE chromaticity diagrams.\n\n"
        "Exit status: 0 success, 1 the picture, the corrections, the report or the verdict could not be written, or "
        "there is no display for the window, 2 invalid arguments or files, 5 a measurement list needs a choice; with "
        "--check also 3 the display fails, 4 the verdict is not known, unless a list needs a choice.\n"
        "Each error is one line on standard error."));
    m_parser.addPositionalArgument(tr("file"),
        tr("Display description (JSON), measurement list (CSV), ICC profile or EDID: at most one description and any "
           "number of the others, which are added to it. Without files, a sample is opened, unless there is --wall or "
           "--follow."),
        tr("[file...]"));
    m_parser.addOptions({render, diagram, part, layers, size, ratio, report, check, wall, target, fit, corrections,
        tolerances, follow, red, green, blue, white, cabinet, unit, decimal, help, version});

    // Or else -have.icc, the name of a file, would ask for help by its first letter.
    m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const bool understood = m_parser.parse(arguments);
    m_needsDisplay = !m_parser.isSet(render) && !m_parser.isSet(report) && !m_parser.isSet(check)
        && !m_parser.isSet(corrections) && !m_parser.isSet(help) && !m_parser.isSet(version);
    if (!m_parser.unknownOptionNames().isEmpty()) {
        refuse(m_parser.errorText()); // whatever else is asked for: it may be a slip in the rest
        return;
    }
    if (m_parser.isSet(help)) {
        m_action = Action::Help;
        return;
    }
    if (m_parser.isSet(version)) {
        m_action = Action::Version;
        return;
    }
    if (!understood) {
        refuse(m_parser.errorText());
        return;
    }
    if (!m_needsDisplay) {
        m_action = Action::Write;
    }
    readFiles();
    readMeasurementOptions();
    if (m_parser.isSet(size)) {
        readSize(m_parser.value(size));
    }
    if (m_parser.isSet(ratio)) {
        readRatio(m_parser.value(ratio));
    }
    if (m_parser.isSet(diagram)) {
        readDiagram(m_parser.value(diagram));
    }
    if (m_parser.isSet(part)) {
        readPart(m_parser.value(part));
    }
    if (m_parser.isSet(layers)) {
        readLayers(m_parser.value(layers));
    }
    for (const QCommandLineOption *option : {&ratio, &diagram, &part, &layers}) {
        const QString name = option->names().first();
        if (m_parser.isSet(*option) && !m_parser.isSet(render)) {
            refuse(tr("--%1 requires --render.").arg(name));
        }
        if (m_isLibraryChart && option != &diagram && m_parser.isSet(*option)) {
            refuse(tr("--%1 does not apply to --diagram chart.").arg(name));
        }
        if (m_isWall && option != &diagram && option != &ratio && m_parser.isSet(*option)) {
            refuse(tr("--%1 does not apply to --diagram wall.").arg(name));
        }
    }
    if (m_parser.isSet(size) && m_parser.isSet(report) && !m_parser.isSet(render)) {
        refuse(tr("--size requires --render when used with --report."));
    }
    if (m_parser.isSet(size) && m_parser.isSet(check) && !m_parser.isSet(render)) {
        refuse(tr("--size requires --render when used with --check."));
    }
    m_wantsCheck = m_parser.isSet(check);
    if (m_wantsCheck && m_files.isEmpty() && !m_parser.isSet(wall)) {
        // The verdict on the sample would be mistaken for one on a display.
        refuse(tr("No file to check: --check requires one."));
    }
    const auto value = [this](const QCommandLineOption &option) {
        const QString text = m_parser.value(option);
        if (m_parser.isSet(option) && text.isEmpty()) {
            refuse(tr("The value of --%1 is empty.").arg(option.names().first()));
        }
        return text;
    };
    m_wallFile = value(wall);
    m_targetName = value(target);
    m_wantsFit = m_parser.isSet(fit);
    if (m_parser.isSet(corrections)) {
        readCorrections(value(corrections));
    }
    if (m_parser.isSet(tolerances)) {
        m_tolerancesFile = m_parser.value(tolerances);
        if (m_tolerancesFile.isEmpty()) {
            refuse(tr("The file name of --tolerances is empty."));
        }
    }
    if (m_parser.isSet(follow)) {
        readFollowed(m_parser.values(follow));
    }
    if (m_parser.isSet(render)) {
        readPicture(m_parser.value(render));
    }
    checkStandardInput();
    for (const QCommandLineOption *option : {&wall, &target, &corrections, &tolerances, &render, &report}) {
        if (m_parser.values(*option).size() > 1) {
            refuse(tr("--%1 can be used only once.").arg(option->names().first()));
        }
    }
    if (m_parser.isSet(report)) {
        readReport(m_parser.value(report));
        if (m_files.isEmpty() && m_wallFile.isEmpty()) {
            refuse(tr("No file to report on: --report requires one."));
        }
    }
}

//! Only the first reason counts.
void CommandLine::refuse(const QString &error)
{
    if (m_action != Action::Refuse) {
        m_action = Action::Refuse;
        m_error = error;
    }
}

void CommandLine::readFiles()
{
    m_files = m_parser.positionalArguments();
    if (m_files.contains(QString())) {
        refuse(tr("An input file name is empty."));
    }
}

void CommandLine::readMeasurementOptions()
{
    const auto value = [this](const char *name) {
        const QString option = QString::fromLatin1(name);
        m_hasMeasurementOptions = m_hasMeasurementOptions || m_parser.isSet(option);
        return m_parser.isSet(option) ? std::make_optional(m_parser.value(option)) : std::nullopt;
    };
    const std::pair<const char *, MeasurementChoice *> choices[]
        = {{"red", &m_measurementOptions.red}, {"green", &m_measurementOptions.green},
            {"blue", &m_measurementOptions.blue}, {"white", &m_measurementOptions.white}};
    for (const auto &choice : choices) {
        const auto text = value(choice.first);
        static const QRegularExpression line(QStringLiteral("\\Aline:([0-9]{1,9})\\z"));
        const QRegularExpressionMatch match = line.match(text.value_or(QString()));
        if (!text) {
            continue;
        }
        if (choice.second == &m_measurementOptions.white && *text == QLatin1String("sum")) {
            m_measurementOptions.whiteIsSum = true;
        } else if (match.hasMatch() && match.captured(1).toInt() > 0) {
            choice.second->line = match.captured(1).toInt();
        } else if (text->isEmpty() || match.hasMatch()) {
            refuse(tr("Invalid measurement, expected a name or line:<number>: --%1 %2")
                       .arg(QString::fromLatin1(choice.first), *text));
        } else {
            choice.second->name = *text;
        }
    }
    if (const auto text = value("cabinet")) {
        m_measurementOptions.cabinet = text->trimmed();
        if (m_measurementOptions.cabinet.isEmpty()) {
            refuse(tr("The name of --cabinet is empty."));
        }
    }
    if (const auto text = value("unit")) {
        const std::pair<const char *, MeasuredUnit> units[] = {{"cd/m2", MeasuredUnit::CandelaPerSquareMetre},
            {"fL", MeasuredUnit::FootLambert}, {"relative", MeasuredUnit::Relative}};
        for (const auto &unit : units) {
            if (*text == QLatin1String(unit.first)) {
                m_measurementOptions.unit = unit.second;
            }
        }
        if (!m_measurementOptions.unit) {
            refuse(tr("Unknown unit, expected cd/m2, fL or relative: %1").arg(*text));
        }
    }
    if (const auto text = value("decimal")) {
        if (*text != QLatin1String("point") && *text != QLatin1String("comma")) {
            refuse(tr("Unknown decimal sign, expected point or comma: %1").arg(*text));
        }
        m_measurementOptions.decimalSign = QLatin1Char(*text == QLatin1String("comma") ? ',' : '.');
    }
}

void CommandLine::readPicture(const QString &fileName)
{
    m_pictureFile = fileName;
    if (fileName.isEmpty()) {
        refuse(tr("The file name of --render is empty."));
        return;
    }
    const auto format = gamutviewer::pictureFormat(fileName);
    if (!format && !QFileInfo(fileName).suffix().isEmpty()) {
        refuse(tr("Unsupported picture format, expected png, svg or pdf: %1").arg(fileName));
        return;
    }
    m_pictureFormat = format.value_or(PictureFormat::Png);
    if (m_isLibraryChart && m_pictureFormat != PictureFormat::Png) {
        refuse(tr("--diagram chart is written as png only: %1").arg(fileName));
    }
    const double side = std::max(m_extent.size.width(), m_extent.size.height()) * m_extent.devicePixelRatio;
    if (m_pictureFormat == PictureFormat::Png && side >= maximumPictureSide + 0.5) {
        refuse(tr("The picture would have more than %1 pixels per side.").arg(maximumPictureSide));
    }
}

void CommandLine::readSize(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A([0-9]{1,6})x([0-9]{1,6})\\z"));
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto isSide = [](int side) { return side >= 1 && side <= maximumPictureSide; };
    if (!match.hasMatch() || !isSide(size.width()) || !isSide(size.height())) {
        refuse(tr("Invalid size, expected 1x1 to %1x%1: %2").arg(maximumPictureSide).arg(text));
        return;
    }
    m_extent.size = size;
    m_hasSize = true;
}

void CommandLine::readRatio(const QString &text)
{
    bool ok = false;
    const double ratio = text.toDouble(&ok);
    if (!ok || !(ratio >= leastRatio && ratio <= greatestRatio)) {
        refuse(tr("Invalid device pixel ratio, expected %1 to %2: %3").arg(leastRatio).arg(greatestRatio).arg(text));
        return;
    }
    m_extent.devicePixelRatio = ratio;
}

void CommandLine::readDiagram(const QString &name)
{
    m_isLibraryChart = name == QLatin1String("chart");
    m_isWall = name == QLatin1String("wall");
    if (name == QLatin1String("uv")) {
        m_diagram = Model::Diagram::Cie1976;
    } else if (name == QLatin1String("uv1960")) {
        m_diagram = Model::Diagram::Cie1960;
    } else if (name != QLatin1String("xy") && !m_isLibraryChart && !m_isWall) {
        refuse(tr("Unknown diagram, expected xy, uv, uv1960, chart or wall: %1").arg(name));
    }
}

void CommandLine::readPart(const QString &name)
{
    if (name == QLatin1String("target")) {
        m_part = Part::Target;
    } else if (name == QLatin1String("white")) {
        m_part = Part::White;
    } else if (name != QLatin1String("all")) {
        refuse(tr("Unknown view, expected all, target or white: %1").arg(name));
    }
}

void CommandLine::readLayers(const QString &list)
{
    using ceiechart::ShownLayers;
    const QVector<NamedLayer> known = namedLayers();
    // A list of what to leave out leaves the rest as it is.
    m_layers = list.startsWith(QLatin1Char('-')) ? ceiechart::allDiagramLayers : ShownLayers();
    for (const QString &item : list.split(QLatin1Char(','))) {
        const bool isShown = !item.startsWith(QLatin1Char('-'));
        const QString name = isShown ? item : item.mid(1);
        if (item == QLatin1String("all") || item == QLatin1String("none")) {
            m_layers = item == QLatin1String("all") ? ceiechart::allDiagramLayers : ShownLayers();
            continue;
        }
        if (name == keyName) {
            m_hasKey = isShown;
            continue;
        }
        QVector<NamedLayer> meant;
        std::copy_if(known.begin(), known.end(), std::back_inserter(meant),
            [&name](const NamedLayer &layer) { return !name.isEmpty() && layer.name.startsWith(name); });
        const auto exact
            = std::find_if(meant.begin(), meant.end(), [&name](const NamedLayer &layer) { return layer.name == name; });
        if (exact == meant.end() && meant.size() > 1) {
            QStringList names;
            for (const NamedLayer &layer : qAsConst(meant)) {
                names.append(layer.name);
            }
            refuse(tr("Ambiguous layer, expected one of %1: %2").arg(names.join(QStringLiteral(", ")), item));
            return;
        }
        if (name.isEmpty()) {
            refuse(tr("Empty name of a layer: --layers %1").arg(list));
            return;
        }
        if (exact == meant.end() && meant.isEmpty()) {
            refuse(tr("Unknown layer, expected all, none, key, %1: %2").arg(layerNames(), item));
            return;
        }
        m_layers.setFlag(exact == meant.end() ? meant.first().layer : exact->layer, isShown);
    }
}

void CommandLine::readReport(const QString &format)
{
    m_wantsTextReport = format == QLatin1String("text");
    m_wantsReport = m_wantsTextReport || format == QLatin1String("json");
    if (!m_wantsReport) {
        refuse(tr("Unsupported report format, expected json or text: %1").arg(format));
    }
}

void CommandLine::readCorrections(const QString &fileName)
{
    m_correctionsFile = fileName;
    if (!fileName.isEmpty() && !correctionsFormat(fileName)) {
        refuse(tr("Unsupported format of corrections, expected csv, json or cube: %1").arg(fileName));
    }
    if (m_files.isEmpty() && m_wallFile.isEmpty()) {
        // Those of the sample would be loaded into another display.
        refuse(tr("No file to correct by: --corrections requires one, or --wall."));
    }
}

void CommandLine::readFollowed(const QStringList &fileNames)
{
    m_followedFile = fileNames.first();
    if (fileNames.size() > 1) {
        refuse(tr("--follow can be used only once."));
    } else if (m_followedFile.isEmpty()) {
        refuse(tr("The file name of --follow is empty."));
    }
    for (const char *writing : {"render", "report", "check", "corrections"}) {
        const QString name = QString::fromLatin1(writing);
        if (m_parser.isSet(name)) {
            refuse(tr("--follow cannot be used with --%1: it requires the window.").arg(name));
        }
    }
}

//! Each file is read from the beginning and as a whole, which standard input gives once.
void CommandLine::checkStandardInput()
{
    const QString opened = tr("a file");
    QStringList users;
    for (const QString &file : qAsConst(m_files)) {
        if (isStandardInput(file)) {
            users.append(opened);
        }
    }
    const std::pair<const char *, const QString *> options[]
        = {{"--wall", &m_wallFile}, {"--tolerances", &m_tolerancesFile}, {"--follow", &m_followedFile}};
    for (const auto &option : options) {
        if (isStandardInput(*option.second)) {
            users.append(QString::fromLatin1(option.first));
        }
    }
    if (users.size() > 1) {
        refuse(tr("Standard input can be read only once, not as %1 and as %2.").arg(users.at(0), users.at(1)));
    }
}

QString CommandLine::whyNoView(const DisplayDescription &description) const
{
    if (m_isWall && !m_pictureFile.isEmpty() && description.wall.cabinets.empty()) {
        return tr("--diagram wall: there is no wall.");
    }
    if (m_pictureFile.isEmpty() || m_part == Part::All || description.gamut(description.target)) {
        return QString();
    }
    return m_part == Part::Target ? tr("--view target requires a target, which the files do not have.")
                                  : tr("--view white requires a target with its white, which the files do not have.");
}

CommandLine::Toolkit CommandLine::toolkit() const
{
    switch (m_action) {
    case Action::Help:
    case Action::Version:
        return Toolkit::Core;
    case Action::Write:
        return m_isLibraryChart       ? Toolkit::Widgets // whose renderer is one
            : m_pictureFile.isEmpty() ? Toolkit::Core
                                      : Toolkit::Painting;
    case Action::Show:
    case Action::Refuse:
        break;
    }
    return Toolkit::Widgets;
}

Picture CommandLine::picture(const DisplayDescription &description, const std::optional<Tolerances> &tolerances) const
{
    Picture picture;
    picture.content = documentContent(description);
    picture.content.layers = m_layers;
    picture.hasKey = m_hasKey;
    picture.isLibraryChart = m_isLibraryChart;
    picture.view = ceiechart::DiagramViewport(m_diagram, m_extent.size);
    if (m_isWall) {
        const auto wall = assess(description).wall;
        picture.wall
            = std::make_shared<const WallPicture>(WallPicture{description.wall, wall, usualQuantity(wall.get())});
    }
    if (const ceiechart::DiagramGamut *target = picture.content.find(ceiechart::GamutRole::Target)) {
        const Model::Targets &targets = target->gamut.getTargets();
        picture.content.rings = targetRings(targets, tolerances);
        if (m_part == Part::Target) {
            picture.view = picture.view.fittedTo(targets);
        } else if (m_part == Part::White) {
            picture.view = picture.view.fittedToWhite(QPointF(targets.white.x, targets.white.y));
        }
    }
    return picture;
}

} // namespace gamutviewer
