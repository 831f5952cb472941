// SPDX-License-Identifier: MIT
#include "descriptionreader_p.h"

#include "json_p.h"
#include <gamutfiles/filebytes.h>
#include <gamutmodel/gamutcoverage.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace gamutfiles {

namespace {

constexpr int knownVersion = 1;

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString memberPath(const QString &path, const QString &key)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    if (!plain.match(key).hasMatch()) {
        return path + QLatin1Char('[') + quoted(key) + QLatin1Char(']');
    }
    return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

} // namespace

Outcome<DisplayDescription> readDescription(const QByteArray &utf8)
{
    DescriptionReader reader;
    const auto description = reader.read(utf8);
    return description ? Outcome<DisplayDescription>(*description)
                       : Outcome<DisplayDescription>::failure(reader.error());
}

Outcome<DisplayDescription> readDescriptionFile(const QString &fileName)
{
    const Outcome<QByteArray> bytes = readBytes(fileName, maximumDescriptionBytes);
    return bytes ? readDescription(*bytes) : Outcome<DisplayDescription>::failure(bytes.problem());
}

std::optional<DisplayDescription> DescriptionReader::read(const QByteArray &utf8)
{
    m_description = DisplayDescription();
    m_failed = false;
    m_error = Problem();

    if (utf8.size() > maximumDescriptionBytes) {
        fail(QString(),
            tr("is too large for a display description (more than %1 KiB)").arg(maximumDescriptionBytes / 1024));
        return std::nullopt;
    }
    if (QString::fromUtf8(utf8.constData(), utf8.size()).trimmed().isEmpty()) {
        fail(QString(), tr("is empty"));
        return std::nullopt;
    }
    const ParsedJson parsed = parseJson(utf8);
    if (parsed.document.isNull()) {
        fail(QString(), parsed.error);
        m_error.line = parsed.position.line;
        m_error.column = parsed.position.column;
        return std::nullopt;
    }
    const QJsonDocument &document = parsed.document;
    readDescription({document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()), QString()});
    if (m_failed) {
        return std::nullopt;
    }
    return m_description;
}

void DescriptionReader::readDescription(const Node &node)
{
    if (!checkObject(node,
            {{QStringLiteral("version"), true}, {QStringLiteral("name"), false}, {QStringLiteral("notes"), false},
                {QStringLiteral("gamuts"), true}, {QStringLiteral("original"), false},
                {QStringLiteral("declared"), false}, {QStringLiteral("measured"), false},
                {QStringLiteral("target"), false}, {QStringLiteral("standards"), false},
                {QStringLiteral("colorTemperaturePoints"), false}, {QStringLiteral("measurePoints"), false},
                {QStringLiteral("cmyPoints"), false}})) {
        return;
    }
    const Node version = member(node, QStringLiteral("version"));
    if (readNumber(version) != knownVersion) {
        fail(version, tr("only version %1 is supported").arg(knownVersion));
    }
    m_description.name = readString(member(node, QStringLiteral("name")));
    m_description.notes = readString(member(node, QStringLiteral("notes")));

    const QSet<QString> spaces = colorSpaces(node);
    QSet<QString> names;
    for (const Node &element : elements(member(node, QStringLiteral("gamuts")))) {
        const QString given = member(element, QStringLiteral("name")).value.toString();
        m_description.gamuts.push_back(
            readGamut(element, spaces.contains(given) ? PrimariesOf::ColorSpace : PrimariesOf::Display));
        const QString name = QString::fromStdString(m_description.gamuts.back().colorGamutName());
        if (names.contains(name)) {
            fail(member(element, QStringLiteral("name")), tr("there is already a gamut named %1").arg(quoted(name)));
        }
        names.insert(name);
    }
    m_description.original = readDisplayReference(member(node, QStringLiteral("original")));
    m_description.declared = readGamutReference(member(node, QStringLiteral("declared")));
    m_description.measured = readDisplayReference(member(node, QStringLiteral("measured")));
    m_description.target = readDisplayReference(member(node, QStringLiteral("target")));
    m_description.standards = readStandards(member(node, QStringLiteral("standards")));
    m_description.colorTemperaturePoints = readPoints(member(node, QStringLiteral("colorTemperaturePoints")));
    m_description.measurePoints = readPoints(member(node, QStringLiteral("measurePoints")));
    m_description.cmyPoints = readPoints(member(node, QStringLiteral("cmyPoints")));
}

//! The names of the gamuts that are declared or standards, and nothing that a display shows.
QSet<QString> DescriptionReader::colorSpaces(const Node &node)
{
    QSet<QString> names{member(node, QStringLiteral("declared")).value.toString()};
    for (const QJsonValue &standard : member(node, QStringLiteral("standards")).value.toArray()) {
        names.insert(standard.toString());
    }
    for (const QString &part : {QStringLiteral("original"), QStringLiteral("measured"), QStringLiteral("target")}) {
        names.remove(member(node, part).value.toString());
    }
    return names;
}

DisplayGamut DescriptionReader::readGamut(const Node &node, PrimariesOf kind)
{
    if (!checkObject(node,
            {{QStringLiteral("name"), true}, {QStringLiteral("red"), true}, {QStringLiteral("green"), true},
                {QStringLiteral("blue"), true}, {QStringLiteral("white"), true}, {luminanceUnitKey(), false}})) {
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
    return {Model::ColorGamut(name.toStdString(), targets), readUnit(member(node, luminanceUnitKey()))};
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

Model::Target DescriptionReader::readTarget(const Node &node, PrimariesOf kind)
{
    if (!checkObject(node, {{QStringLiteral("Y"), true}, {QStringLiteral("x"), true}, {QStringLiteral("y"), true}})) {
        return {};
    }
    const Node luminance = member(node, QStringLiteral("Y"));
    const double value = readNumber(luminance);
    const QPointF xy = readChromaticity(node, kind);
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
    if (!m_failed && !m_description.gamut(name)) {
        fail(node, tr("there is no gamut named %1").arg(quoted(name)));
    }
    return name;
}

//! The name of a gamut that a display shows or is meant to show.
QString DescriptionReader::readDisplayReference(const Node &node)
{
    QString name = readGamutReference(node);
    const auto gamut = m_description.gamut(name);
    if (gamut && !hasRealPrimaries(gamut->getTargets())) {
        fail(node, tr("no display can show %1: it has primaries with x < 0, y <= 0 or x + y > 1").arg(quoted(name)));
    }
    return name;
}

QStringList DescriptionReader::readStandards(const Node &node)
{
    QStringList standards;
    for (const Node &element : elements(node)) {
        const QString name = readGamutReference(element);
        if (standards.contains(name)) {
            fail(element, tr("%1 is listed twice").arg(quoted(name)));
        }
        standards.append(name);
        if (m_failed) {
            break;
        }
    }
    return standards;
}

QPointF DescriptionReader::readChromaticity(const Node &node, PrimariesOf kind)
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
    if (xy.x() + xy.y() > 1.0) {
        fail(node, tr("x + y must not exceed 1"));
    }
    return xy;
}

bool DescriptionReader::checkObject(const Node &node, std::initializer_list<Key> keys)
{
    if (!checkType(node, QJsonValue::Object)) {
        return false;
    }
    const QJsonObject object = node.value.toObject();
    for (const QString &name : object.keys()) {
        if (std::none_of(keys.begin(), keys.end(), [&name](const Key &key) { return key.name == name; })) {
            fail(memberPath(node.path, name), tr("unknown key"));
            return false;
        }
    }
    for (const Key &key : keys) {
        if (key.required && !object.contains(key.name)) {
            fail(memberPath(node.path, key.name), tr("missing"));
            return false;
        }
    }
    return true;
}

bool DescriptionReader::checkType(const Node &node, QJsonValue::Type type)
{
    if (node.value.isUndefined() || m_failed) {
        return false;
    }
    if (node.value.type() == type) {
        return true;
    }
    const auto kind = [](QJsonValue::Type of) {
        switch (of) {
        case QJsonValue::Bool:
            return tr("a boolean");
        case QJsonValue::Double:
            return tr("a number");
        case QJsonValue::String:
            return tr("a string");
        case QJsonValue::Array:
            return tr("an array");
        case QJsonValue::Object:
            return tr("an object");
        case QJsonValue::Null:
        case QJsonValue::Undefined:
            break;
        }
        return tr("null");
    };
    fail(node, tr("expected %1, found %2").arg(kind(type), kind(node.value.type())));
    return false;
}

QString DescriptionReader::readString(const Node &node)
{
    return checkType(node, QJsonValue::String) ? node.value.toString() : QString();
}

QString DescriptionReader::readName(const Node &node)
{
    QString name = readString(node);
    if (name.trimmed().isEmpty()) {
        fail(node, tr("the name must not be empty"));
    }
    return name;
}

double DescriptionReader::readNumber(const Node &node)
{
    return checkType(node, QJsonValue::Double) ? node.value.toDouble() : 0.0;
}

std::vector<DescriptionReader::Node> DescriptionReader::elements(const Node &node)
{
    std::vector<Node> nodes;
    if (checkType(node, QJsonValue::Array)) {
        const QJsonArray array = node.value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            nodes.push_back({array.at(i), QStringLiteral("%1[%2]").arg(node.path).arg(i)});
        }
    }
    return nodes;
}

DescriptionReader::Node DescriptionReader::member(const Node &node, const QString &key)
{
    return {node.value.toObject().value(key), memberPath(node.path, key)};
}

//! Only the first failure counts: the ones after it may follow from it.
void DescriptionReader::fail(const QString &path, const QString &reason)
{
    if (!m_failed) {
        m_failed = true;
        m_error = {reason, path, 0, 0};
    }
}

} // namespace gamutfiles
