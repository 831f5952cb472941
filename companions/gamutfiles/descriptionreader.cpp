// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "descriptionreader_p.h"

#include <gamutfiles/filebytes.h>
#include <gamutmodel/gamutcoverage.h>

#include <QJsonArray>

#include <algorithm>

namespace gamutfiles {

namespace {

//! The most warnings of gamuts that the display is neither said nor meant to show: there can be thousands of them.
constexpr int mostOtherWarnings = 20;

} // namespace

Outcome<DisplayDescription> readDescription(const QByteArray &utf8)
{
    DescriptionReader reader;
    const auto description = reader.read(utf8);
    return description ? Outcome<DisplayDescription>(*description, reader.warnings())
                       : Outcome<DisplayDescription>::failure(reader.problem());
}

Outcome<DisplayDescription> readDescriptionFile(const QString &fileName)
{
    const Outcome<QByteArray> bytes = readBytes(fileName, maximumDescriptionBytes);
    return bytes ? readDescription(*bytes) : Outcome<DisplayDescription>::failure(bytes.problem());
}

std::optional<DisplayDescription> DescriptionReader::read(const QByteArray &utf8)
{
    m_description = DisplayDescription();
    m_places.clear();
    m_otherWarnings = 0;
    const auto root
        = parse(utf8, maximumDescriptionBytes, tr("is too large for a display description (more than %1 KiB)"));
    if (!root) {
        return std::nullopt;
    }
    readDescription(*root);
    return failed() ? std::nullopt : std::make_optional(m_description);
}

void DescriptionReader::readDescription(const Node &node)
{
    if (!checkObject(node,
            {{QStringLiteral("version"), true}, {QStringLiteral("name"), false}, {QStringLiteral("notes"), false},
                {QStringLiteral("gamuts"), true}, {QStringLiteral("original"), false},
                {QStringLiteral("declared"), false}, {QStringLiteral("measured"), false},
                {QStringLiteral("target"), false}, {QStringLiteral("standards"), false},
                {QStringLiteral("colorTemperaturePoints"), false}, {QStringLiteral("measurePoints"), false},
                {QStringLiteral("cmyPoints"), false}, {QStringLiteral("wall"), false}})) {
        return;
    }
    checkVersion(member(node, QStringLiteral("version")), descriptionVersion);
    m_description.name = readString(member(node, QStringLiteral("name")));
    m_description.notes = readString(member(node, QStringLiteral("notes")));

    const QSet<QString> shown = shownNames(node);
    const Node gamuts = member(node, QStringLiteral("gamuts"));
    if (gamuts.value.toArray().size() > maximumDescriptionGamuts) {
        fail(gamuts, tr("has more than %1 gamuts").arg(maximumDescriptionGamuts));
        return;
    }
    for (const Node &element : elements(gamuts)) {
        const QString given = member(element, QStringLiteral("name")).value.toString();
        m_description.gamuts.push_back(
            readGamut(element, shown.contains(given) ? PrimariesOf::Display : PrimariesOf::ColorSpace));
        if (m_places.contains(given)) {
            fail(member(element, QStringLiteral("name")), tr("there is already a gamut named %1").arg(quoted(given)));
        }
        m_places.insert(given, int(m_description.gamuts.size()) - 1);
    }
    warnOfTheRest(gamuts);
    m_description.original = readDisplayReference(member(node, QStringLiteral("original")));
    m_description.declared = readGamutReference(member(node, QStringLiteral("declared")));
    m_description.measured = readDisplayReference(member(node, QStringLiteral("measured")));
    m_description.target = readDisplayReference(member(node, QStringLiteral("target")));
    m_description.standards = readStandards(member(node, QStringLiteral("standards")));
    m_description.colorTemperaturePoints = readPoints(member(node, QStringLiteral("colorTemperaturePoints")));
    m_description.measurePoints = readPoints(member(node, QStringLiteral("measurePoints")));
    m_description.cmyPoints = readPoints(member(node, QStringLiteral("cmyPoints")));
    m_description.wall = readWall(member(node, QStringLiteral("wall")));
}

//! The names of the gamuts that a display shows or is meant to show.
QSet<QString> DescriptionReader::shownNames(const Node &node)
{
    QSet<QString> names;
    for (const QString &part : {QStringLiteral("original"), QStringLiteral("measured"), QStringLiteral("target")}) {
        names.insert(member(node, part).value.toString());
    }
    return names;
}

DisplayGamut DescriptionReader::readGamut(const Node &node, PrimariesOf kind)
{
    if (!checkObject(node,
            {{QStringLiteral("name"), true}, {QStringLiteral("red"), true}, {QStringLiteral("green"), true},
                {QStringLiteral("blue"), true}, {QStringLiteral("white"), true}, {QStringLiteral("black"), false},
                {luminanceUnitKey(), false}})) {
        return {};
    }
    const QString name = readName(member(node, QStringLiteral("name")));
    Model::Targets targets;
    targets.red = readTarget(member(node, QStringLiteral("red")), kind);
    targets.green = readTarget(member(node, QStringLiteral("green")), kind);
    targets.blue = readTarget(member(node, QStringLiteral("blue")), kind);
    targets.white = readTarget(member(node, QStringLiteral("white")), PrimariesOf::Display);
    if (!Model::spanTriangle(targets)) {
        fail(node, noTriangleText());
    }
    if (!hasRealPrimaries(targets)) {
        const auto xy = [](const Model::Target &color) { return QPointF(color.x, color.y); };
        const auto mixed = gamutFromPrimaries(
            name, {xy(targets.red), xy(targets.green), xy(targets.blue), xy(targets.white)}, 1.0, kind);
        if (!mixed) {
            fail(node, mixed.error());
        }
    }
    warnOfGamut(node, targets, kind);
    DisplayGamut gamut(Model::ColorGamut(name.toStdString(), targets), readUnit(member(node, luminanceUnitKey())));
    readBlack(node, gamut.black, gamut.blackLuminance);
    return gamut;
}

/*
 * One warning at most, of what only a slip makes: that a white is not quite the sum of its primaries is normal for many
 * displays.
 */
void DescriptionReader::warnOfGamut(const Node &node, const Model::Targets &gamut, PrimariesOf kind)
{
    const QVector<Problem> triangle = kind == PrimariesOf::Display ? warningsOfTheTriangle(gamut) : QVector<Problem>();
    if (!triangle.isEmpty()) {
        warn(node, triangle.first().text);
        return;
    }
    for (const Problem &warning : warningsOfTheWhite(gamut)) {
        if (kind == PrimariesOf::Display || ++m_otherWarnings <= mostOtherWarnings) {
            warn(member(node, QStringLiteral("white")), warning.text);
        }
    }
}

void DescriptionReader::warnOfTheRest(const Node &gamuts)
{
    if (m_otherWarnings > mostOtherWarnings) {
        warn(gamuts, tr("%n further warning(s)", nullptr, m_otherWarnings - mostOtherWarnings));
    }
}

LuminanceUnit DescriptionReader::readUnit(const Node &node)
{
    const QString text = readString(node);
    for (const LuminanceUnit unit : {LuminanceUnit::Relative, LuminanceUnit::CandelaPerSquareMetre}) {
        if (text == luminanceUnitName(unit)) {
            return unit;
        }
    }
    if (!node.value.isUndefined()) {
        fail(node,
            tr("expected \"%1\" or \"%2\"")
                .arg(luminanceUnitName(LuminanceUnit::CandelaPerSquareMetre),
                    luminanceUnitName(LuminanceUnit::Relative)));
    }
    return LuminanceUnit::NotKnown;
}

Model::Target DescriptionReader::readTarget(const Node &node, PrimariesOf kind, double rounding)
{
    if (!checkObject(node, {{QStringLiteral("Y"), true}, {QStringLiteral("x"), true}, {QStringLiteral("y"), true}})) {
        return {};
    }
    const Node luminance = member(node, QStringLiteral("Y"));
    const double value = readNumber(luminance);
    const QPointF xy = readChromaticity(node, kind, rounding);
    if (xy.y() > 0.0 && value < 0.0) {
        fail(luminance, tr("luminance must not be negative"));
    }
    if (xy.y() < 0.0 && value > 0.0) {
        fail(luminance, tr("luminance must not be positive where y is negative"));
    }
    return Model::Target::fromYxy(value, xy.x(), xy.y());
}

QVector<NamedPoint> DescriptionReader::readPoints(const Node &node)
{
    QVector<NamedPoint> points;
    for (const Node &element : elements(node)) {
        if (checkObject(
                element, {{QStringLiteral("name"), false}, {QStringLiteral("x"), true}, {QStringLiteral("y"), true}})) {
            points.append({readString(member(element, QStringLiteral("name"))), readChromaticity(element)});
        }
    }
    return points;
}

QString DescriptionReader::readGamutReference(const Node &node)
{
    if (node.value.isUndefined()) {
        return {};
    }
    QString name = readName(node);
    if (!failed() && !m_description.gamut(name, m_places)) {
        fail(node, tr("there is no gamut named %1").arg(quoted(name)));
    }
    return name;
}

//! The name of a gamut that a display shows or is meant to show.
QString DescriptionReader::readDisplayReference(const Node &node)
{
    QString name = readGamutReference(node);
    const auto gamut = m_description.gamut(name, m_places);
    if (gamut && !hasRealPrimaries(gamut->getTargets())) {
        fail(node, tr("no display can show %1: it has primaries with x < 0, y <= 0 or x + y > 1").arg(quoted(name)));
    }
    return name;
}

QStringList DescriptionReader::readStandards(const Node &node)
{
    QStringList standards;
    QSet<QString> listed;
    for (const Node &element : elements(node)) {
        const QString name = readGamutReference(element);
        if (listed.contains(name)) {
            fail(element, tr("%1 is listed twice").arg(quoted(name)));
        }
        listed.insert(name);
        standards.append(name);
        if (failed()) {
            break;
        }
    }
    return standards;
}

QPointF DescriptionReader::readChromaticity(const Node &node, PrimariesOf kind, double rounding)
{
    const Node x = member(node, QStringLiteral("x"));
    const Node y = member(node, QStringLiteral("y"));
    const QPointF xy(readNumber(x), readNumber(y));
    if (kind == PrimariesOf::ColorSpace) {
        if (!isPrimary(xy, kind)) {
            fail(node, tr("x and y must be from -1 to 2, y not 0 and -2x + 12y + 3 greater than 0"));
        }
        return xy;
    }
    if (xy.x() < 0.0) {
        fail(x, tr("a chromaticity coordinate must not be negative"));
    }
    if (xy.y() <= 0.0) {
        fail(y, tr("y must be greater than 0"));
    }
    if (xy.x() + xy.y() > 1.0 + rounding) {
        fail(node, tr("x + y must not exceed 1"));
    }
    return xy;
}

} // namespace gamutfiles
