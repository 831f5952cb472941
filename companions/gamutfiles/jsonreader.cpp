// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "jsonreader_p.h"

#include "excerpt_p.h"
#include "json_p.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace gamutfiles {

namespace {

QString memberPath(const QString &path, const QString &key)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    if (!plain.match(key).hasMatch()) {
        return path + QLatin1Char('[') + quoted(key) + QLatin1Char(']');
    }
    return path.isEmpty() ? excerpt(key) : path + QLatin1Char('.') + excerpt(key);
}

} // namespace

QString quoted(const QString &text)
{
    return QLatin1Char('"') + excerpt(text) + QLatin1Char('"');
}

std::optional<JsonReader::Node> JsonReader::parse(const QByteArray &utf8, int maximum, const QString &tooLarge)
{
    m_failed = false;
    m_error = Problem();
    m_warnings.clear();
    if (utf8.size() > maximum) {
        fail(QString(), tooLarge.arg(maximum / 1024));
        return std::nullopt;
    }
    if (QString::fromUtf8(utf8.constData(), utf8.size()).trimmed().isEmpty()) {
        fail(QString(), tr("is empty"));
        return std::nullopt;
    }
    const ParsedJson parsed = parseJson(utf8);
    const QJsonDocument &document = parsed.document;
    if (document.isNull()) {
        fail(QString(), parsed.error);
        m_error.line = parsed.position.line;
        m_error.column = parsed.position.column;
        return std::nullopt;
    }
    constexpr int mostWarnings = 5;
    for (const RepeatedKey &repeated : repeatedKeys(utf8, mostWarnings)) {
        m_warnings.append(
            {tr("the key %1 is there twice in this object: the last one counts").arg(quoted(repeated.key)), {},
                repeated.position.line, repeated.position.column});
    }
    return Node{document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()), QString()};
}

void JsonReader::checkVersion(const Node &node, int known)
{
    if (readNumber(node) != known) {
        fail(node, tr("only version %1 is supported").arg(known));
    }
}

bool JsonReader::checkObject(const Node &node, std::initializer_list<Key> keys)
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

bool JsonReader::checkType(const Node &node, QJsonValue::Type type)
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

QString JsonReader::readString(const Node &node)
{
    return checkType(node, QJsonValue::String) ? node.value.toString() : QString();
}

QString JsonReader::readName(const Node &node)
{
    QString name = readString(node);
    if (name.trimmed().isEmpty()) {
        fail(node, tr("the name must not be empty"));
    }
    return name;
}

double JsonReader::readNumber(const Node &node)
{
    return checkType(node, QJsonValue::Double) ? node.value.toDouble() : 0.0;
}

int JsonReader::readWhole(const Node &node)
{
    const double number = readNumber(node);
    const bool isWhole = number == std::floor(number) && number >= double(std::numeric_limits<int>::min())
        && number <= double(std::numeric_limits<int>::max());
    if (!isWhole) {
        fail(node, tr("expected a whole number"));
    }
    return isWhole ? int(number) : 0;
}

std::vector<JsonReader::Node> JsonReader::elements(const Node &node)
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

JsonReader::Node JsonReader::member(const Node &node, const QString &key)
{
    return {node.value.toObject().value(key), memberPath(node.path, key)};
}

//! Only the first failure counts: the ones after it may follow from it.
void JsonReader::fail(const QString &path, const QString &reason)
{
    if (!m_failed) {
        m_failed = true;
        m_error = {reason, path, 0, 0};
    }
}

} // namespace gamutfiles
