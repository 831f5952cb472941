// SPDX-License-Identifier: MIT
#include "commandline.h"

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
        tr("Write the chart to <file> and show nothing: PNG, SVG or PDF by its suffix, PNG without one."), tr("file"));
    const QCommandLineOption size(QStringLiteral("size"),
        tr("Size of the chart in pixels, %1x%2 unless given; at most %3 a side, which goes for a PNG after "
           "multiplication by the device pixel ratio. Without --render, size of the window.")
            .arg(m_extent.size.width())
            .arg(m_extent.size.height())
            .arg(maximumPictureSide),
        tr("width>x<height"));
    const QCommandLineOption ratio(QStringLiteral("dpr"),
        tr("Device pixel ratio of the written chart, %1 to %2, 1 unless given: a PNG has this many times the pixels. "
           "Only with --render.")
            .arg(leastRatio)
            .arg(greatestRatio),
        tr("ratio"));
    const QCommandLineOption report(QStringLiteral("report"),
        tr("Print coverage, colour temperatures and validity, and show nothing. The format is json."), tr("format"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, tr("Print this text."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, tr("Print the version."));

    m_parser.setApplicationDescription(
        tr("Shows and edits the colour gamuts of a display on CIE chromaticity diagrams.\n\n"
           "Exit status: 0 done, 1 the chart or the report could not be shown or written, 2 wrong arguments or files.\n"
           "Errors are one line on the standard error stream."));
    m_parser.addPositionalArgument(tr("file"),
        tr("Display description (JSON), measurement list (CSV), ICC profile or EDID; one description and any number "
           "of the others, which add to it. A sample unless given."),
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
            refuse(tr("There is no chart for --dpr: it goes with --render."));
        }
    }
    if (m_parser.isSet(size) && m_parser.isSet(report) && !m_parser.isSet(render)) {
        refuse(tr("There is no chart for --size: a report has none."));
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
        refuse(tr("The name of a file to open is empty."));
    }
}

void CommandLine::readPicture(const QString &fileName)
{
    m_pictureFile = fileName;
    if (fileName.isEmpty()) {
        refuse(tr("The name of the picture file is empty."));
        return;
    }
    const auto format = chartFormat(fileName);
    if (!format && !QFileInfo(fileName).suffix().isEmpty()) {
        refuse(tr("Not a picture format (png, svg, pdf): %1").arg(fileName));
        return;
    }
    m_pictureFormat = format.value_or(ChartFormat::Png);
    const double side = std::max(m_extent.size.width(), m_extent.size.height()) * m_extent.devicePixelRatio;
    if (m_pictureFormat == ChartFormat::Png && side >= maximumPictureSide + 0.5) {
        refuse(tr("The picture would have more than %1 pixels a side.").arg(maximumPictureSide));
    }
}

void CommandLine::readSize(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A([0-9]{1,6})x([0-9]{1,6})\\z"));
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto isSide = [](int side) { return side >= 1 && side <= maximumPictureSide; };
    if (!match.hasMatch() || !isSide(size.width()) || !isSide(size.height())) {
        refuse(tr("Not a size from 1x1 to %1x%1: %2").arg(maximumPictureSide).arg(text));
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
        refuse(tr("Not a device pixel ratio from %1 to %2: %3").arg(leastRatio).arg(greatestRatio).arg(text));
        return;
    }
    m_extent.devicePixelRatio = ratio;
}

void CommandLine::readReport(const QString &format)
{
    m_wantsReport = format == QLatin1String("json");
    if (!m_wantsReport) {
        refuse(tr("Not a report format (json): %1").arg(format));
    }
}

} // namespace gamutviewer
