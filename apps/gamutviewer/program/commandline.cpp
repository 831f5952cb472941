// SPDX-License-Identifier: MIT
#include "program/commandline.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr double leastRatio = 0.25;
constexpr double greatestRatio = 16.0;

} // namespace

CommandLine::CommandLine(const QStringList &arguments)
{
    const QCommandLineOption render(QStringLiteral("render"),
        tr("Write the chart to <file> without opening a window. The suffix selects PNG, SVG or PDF; without one it is "
           "a PNG."),
        tr("file"));
    const QCommandLineOption size(QStringLiteral("size"),
        tr("Size of the chart in pixels, %1x%2 by default, at most %3 per side. The limit applies to a PNG after "
           "multiplication by the device pixel ratio. Without --render, the size of the window.")
            .arg(m_extent.size.width())
            .arg(m_extent.size.height())
            .arg(maximumPictureSide),
        tr("width>x<height"));
    const QCommandLineOption ratio(QStringLiteral("dpr"),
        tr("Device pixel ratio of the written chart, %1 to %2, 1 by default. A PNG has this many times the pixels in "
           "each direction. Requires --render.")
            .arg(leastRatio)
            .arg(greatestRatio),
        tr("ratio"));
    const QCommandLineOption report(QStringLiteral("report"),
        tr("Print coverage, colour temperatures and validity without opening a window. The only format is json."),
        tr("format"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, tr("Print this help text."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, tr("Print the version."));

    m_parser.setApplicationDescription(
        tr("Shows and edits the colour gamuts of a display on CIE chromaticity diagrams.\n\n"
           "Exit status: 0 success, 1 the chart or the report could not be shown or written, 2 invalid arguments or "
           "files.\n"
           "Each error is one line on standard error."));
    m_parser.addPositionalArgument(tr("file"),
        tr("Display description (JSON), measurement list (CSV), ICC profile or EDID: at most one description and any "
           "number of the others, which are added to it. Without files, a sample is opened."),
        tr("[file...]"));
    m_parser.addOptions({render, size, ratio, report, help, version});

    const bool understood = m_parser.parse(arguments);
    m_needsDisplay
        = !m_parser.isSet(render) && !m_parser.isSet(report) && !m_parser.isSet(help) && !m_parser.isSet(version);
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
    if (m_parser.isSet(size)) {
        readSize(m_parser.value(size));
    }
    if (m_parser.isSet(ratio)) {
        readRatio(m_parser.value(ratio));
        if (!m_parser.isSet(render)) {
            refuse(tr("--dpr requires --render."));
        }
    }
    if (m_parser.isSet(size) && m_parser.isSet(report) && !m_parser.isSet(render)) {
        refuse(tr("--size requires --render when used with --report."));
    }
    if (m_parser.isSet(render)) {
        readPicture(m_parser.value(render));
    }
    if (m_parser.isSet(report)) {
        readReport(m_parser.value(report));
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

void CommandLine::readPicture(const QString &fileName)
{
    m_pictureFile = fileName;
    if (fileName.isEmpty()) {
        refuse(tr("The file name of --render is empty."));
        return;
    }
    const auto format = chartFormat(fileName);
    if (!format && !QFileInfo(fileName).suffix().isEmpty()) {
        refuse(tr("Unsupported picture format, expected png, svg or pdf: %1").arg(fileName));
        return;
    }
    m_pictureFormat = format.value_or(ChartFormat::Png);
    const double side = std::max(m_extent.size.width(), m_extent.size.height()) * m_extent.devicePixelRatio;
    if (m_pictureFormat == ChartFormat::Png && side >= maximumPictureSide + 0.5) {
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

void CommandLine::readReport(const QString &format)
{
    m_wantsReport = format == QLatin1String("json");
    if (!m_wantsReport) {
        refuse(tr("Unsupported report format, expected json: %1").arg(format));
    }
}

} // namespace gamutviewer
