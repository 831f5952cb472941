// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/tolerancesfile.h>

#include "jsonreader_p.h"
#include <gamutfiles/filebytes.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPair>
#include <QSet>

namespace gamutfiles {

namespace {

constexpr int knownVersion = 1;
// A distance in u′, v′ beyond which every colour would pass: the whole locus is 0.63 wide and 0.59 high.
constexpr double largestUv = 1.0;

struct NumberKey {
    QString name;
    std::optional<double> Model::Tolerances::*limit;
    double highest; // 0: any
};

const QVector<NumberKey> &numberKeys()
{
    static const QVector<NumberKey> keys{{QStringLiteral("whiteUv"), &Model::Tolerances::whiteUv, largestUv},
        {QStringLiteral("primariesUv"), &Model::Tolerances::primariesUv, largestUv},
        {QStringLiteral("luminance"), &Model::Tolerances::luminance, 0.0},
        {QStringLiteral("temperature"), &Model::Tolerances::temperature, 0.0},
        {QStringLiteral("coverage"), &Model::Tolerances::coverage, 1.0}};
    return keys;
}

QString diagramName(Model::Diagram diagram)
{
    return diagram == Model::Diagram::Cie1931 ? QStringLiteral("xy") : QStringLiteral("uv");
}

class TolerancesReader : public JsonReader {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::TolerancesReader)

    // A return type of another namespace would be taken for the context of the texts.
    using Diagram = Model::Diagram;

public:
    std::optional<Tolerances> read(const QByteArray &utf8)
    {
        const auto root
            = parse(utf8, maximumTolerancesBytes, tr("is too large for a file of tolerances (more than %1 KiB)"));
        if (root) {
            readTolerances(*root);
        }
        return root && !failed() ? std::make_optional(m_tolerances) : std::nullopt;
    }

private:
    void readTolerances(const Node &node)
    {
        if (!checkObject(node,
                {{QStringLiteral("version"), true}, {QStringLiteral("name"), false}, {QStringLiteral("source"), false},
                    {QStringLiteral("whiteUv"), false}, {QStringLiteral("primariesUv"), false},
                    {QStringLiteral("luminance"), false}, {QStringLiteral("temperature"), false},
                    {QStringLiteral("coverage"), false}, {QStringLiteral("coverageDiagram"), false},
                    {QStringLiteral("standards"), false}})) {
            return;
        }
        checkVersion(member(node, QStringLiteral("version")), knownVersion);
        m_tolerances.name = readString(member(node, QStringLiteral("name")));
        m_tolerances.source = readString(member(node, QStringLiteral("source")));
        bool hasLimit = false;
        for (const NumberKey &key : numberKeys()) {
            const Node number = member(node, key.name);
            if (!number.value.isUndefined()) {
                m_tolerances.limits.*key.limit = readLimit(number, key.highest);
                hasLimit = true;
            }
        }
        const Node diagram = member(node, QStringLiteral("coverageDiagram"));
        const bool hasCoverage = m_tolerances.limits.coverage.has_value();
        if (hasCoverage && diagram.value.isUndefined()) {
            fail(diagram, tr("missing: a coverage differs from diagram to diagram"));
        } else if (!hasCoverage && !diagram.value.isUndefined()) {
            fail(diagram, tr("there is no coverage"));
        } else if (hasCoverage) {
            m_tolerances.coverageDiagram = readDiagram(diagram);
        }
        for (const Node &element : elements(member(node, QStringLiteral("standards")))) {
            readStandard(element);
            hasLimit = true;
            if (failed()) {
                break;
            }
        }
        if (!hasLimit) {
            fail(node, tr("has no limit"));
        }
    }

    void readStandard(const Node &node)
    {
        if (!checkObject(node,
                {{QStringLiteral("standard"), true}, {QStringLiteral("diagram"), true},
                    {QStringLiteral("coverage"), true}})) {
            return;
        }
        StandardCoverage limit;
        limit.standard = readName(member(node, QStringLiteral("standard")));
        limit.diagram = readDiagram(member(node, QStringLiteral("diagram")));
        limit.coverage = readLimit(member(node, QStringLiteral("coverage")), 1.0);
        const QPair<QString, int> place{limit.standard, int(limit.diagram)};
        if (m_listed.contains(place)) {
            fail(node, tr("%1 in this diagram is listed twice").arg(quoted(limit.standard)));
        }
        m_listed.insert(place);
        m_tolerances.standards.append(limit);
    }

    double readLimit(const Node &node, double highest)
    {
        const double limit = readNumber(node);
        if (limit < 0.0) {
            fail(node, tr("a limit must not be negative"));
        } else if (highest > 0.0 && limit > highest) {
            fail(node, tr("must not be greater than %1").arg(highest));
        }
        return limit;
    }

    Diagram readDiagram(const Node &node)
    {
        const QString name = readString(node);
        for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976}) {
            if (name == diagramName(diagram)) {
                return diagram;
            }
        }
        fail(node,
            tr("expected %1 or %2")
                .arg(quoted(diagramName(Model::Diagram::Cie1931)), quoted(diagramName(Model::Diagram::Cie1976))));
        return Model::Diagram::Cie1976;
    }

    Tolerances m_tolerances;
    QSet<QPair<QString, int>> m_listed; // the standards with their diagrams
};

} // namespace

Outcome<Tolerances> readTolerances(const QByteArray &utf8)
{
    TolerancesReader reader;
    const auto tolerances = reader.read(utf8);
    return tolerances ? Outcome<Tolerances>(*tolerances, reader.warnings())
                      : Outcome<Tolerances>::failure(reader.problem());
}

Outcome<Tolerances> readTolerancesFile(const QString &fileName)
{
    const Outcome<QByteArray> bytes = readBytes(fileName, maximumTolerancesBytes);
    return bytes ? readTolerances(*bytes) : Outcome<Tolerances>::failure(bytes.problem());
}

QByteArray tolerancesText(const Tolerances &tolerances)
{
    QJsonObject object{{QStringLiteral("version"), knownVersion}};
    const auto insertText = [&object](const QString &key, const QString &text) {
        if (!text.isEmpty()) {
            object.insert(key, text);
        }
    };
    insertText(QStringLiteral("name"), tolerances.name);
    insertText(QStringLiteral("source"), tolerances.source);
    for (const NumberKey &key : numberKeys()) {
        if (const auto limit = tolerances.limits.*key.limit) {
            object.insert(key.name, *limit);
        }
    }
    if (tolerances.limits.coverage) {
        object.insert(QStringLiteral("coverageDiagram"), diagramName(tolerances.coverageDiagram));
    }
    QJsonArray standards;
    for (const StandardCoverage &limit : tolerances.standards) {
        standards.append(QJsonObject{{QStringLiteral("standard"), limit.standard},
            {QStringLiteral("diagram"), diagramName(limit.diagram)}, {QStringLiteral("coverage"), limit.coverage}});
    }
    if (!standards.isEmpty()) {
        object.insert(QStringLiteral("standards"), standards);
    }
    return QJsonDocument(object).toJson();
}

} // namespace gamutfiles
