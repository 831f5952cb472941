// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "correctionsfile_p.h"
#include "jsonreader_p.h"

#include <QJsonArray>
#include <QSet>

#include <cmath>
#include <limits>

namespace gamutfiles {

namespace {

struct ConventionEntry {
    QString key;
    QString value;
};

//! What every file says, word for word: one that says anything else is not to be loaded as if it did not.
const std::vector<ConventionEntry> &convention()
{
    static const std::vector<ConventionEntry> entries{{QStringLiteral("light"), QStringLiteral("linear")},
        {QStringLiteral("formula"), QStringLiteral("drive = matrix * content")},
        {QStringLiteral("rows"), QStringLiteral("drives of red, green, blue")},
        {QStringLiteral("columns"), QStringLiteral("levels of red, green, blue of the content, 0 to 1")}};
    return entries;
}

QString pointText(const Model::DiagramPoint &xy)
{
    return QStringLiteral("{ \"x\": %1, \"y\": %2 }").arg(exactText(xy.x), exactText(xy.y));
}

QString matrixText(const Model::CorrectionMatrix &matrix)
{
    QStringList rows;
    for (const auto &row : matrix.rows) {
        rows.append(QStringLiteral("[%1, %2, %3]").arg(exactText(row[0]), exactText(row[1]), exactText(row[2])));
    }
    return QLatin1Char('[') + rows.join(QStringLiteral(", ")) + QLatin1Char(']');
}

QString cabinetText(const CabinetCorrection &cabinet)
{
    QStringList members;
    const auto add = [&members](const char *key, const QString &value) {
        members.append(QStringLiteral("\"%1\": ").arg(QLatin1String(key)) + value);
    };
    if (!cabinet.name.isEmpty()) {
        add("name", jsonString(cabinet.name));
    }
    if (cabinet.row && cabinet.column) {
        add("row", QString::number(*cabinet.row));
        add("column", QString::number(*cabinet.column));
    }
    add("matrix", cabinet.matrix ? matrixText(*cabinet.matrix) : QStringLiteral("null"));
    add("largestWhite", cabinet.largestWhite ? exactText(*cabinet.largestWhite) : QStringLiteral("null"));
    if (!cabinet.fault.isEmpty()) {
        add("fault", jsonString(cabinet.fault));
    }
    return QStringLiteral("{ ") + members.join(QStringLiteral(", ")) + QStringLiteral(" }");
}

class CorrectionsReader : public JsonReader {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Corrections)

    // A return type of another namespace would be taken for the context of the texts.
    using Point = Model::DiagramPoint;
    using Matrix = Model::CorrectionMatrix;

public:
    std::optional<WallCorrections> read(const QByteArray &utf8)
    {
        const auto root
            = parse(utf8, maximumCorrectionsBytes, tr("is too large for a file of corrections (more than %1 KiB)"));
        if (root) {
            readCorrections(*root);
        }
        return root && !failed() ? std::make_optional(m_corrections) : std::nullopt;
    }

private:
    void readCorrections(const Node &node)
    {
        if (!checkObject(node,
                {{QStringLiteral("version"), true}, {QStringLiteral("convention"), true},
                    {QStringLiteral("luminanceUnit"), true}, {QStringLiteral("target"), true},
                    {QStringLiteral("cabinets"), true}})) {
            return;
        }
        checkVersion(member(node, QStringLiteral("version")), correctionsVersion);
        readConvention(member(node, QStringLiteral("convention")));
        const Node unit = member(node, QStringLiteral("luminanceUnit"));
        const auto known = correctionsUnit(readString(unit));
        if (!known) {
            fail(unit,
                tr("expected %1, %2 or %3")
                    .arg(quoted(correctionsUnitName(LuminanceUnit::CandelaPerSquareMetre)),
                        quoted(correctionsUnitName(LuminanceUnit::Relative)),
                        quoted(correctionsUnitName(LuminanceUnit::NotKnown))));
        }
        m_corrections.unit = known.value_or(LuminanceUnit::NotKnown);
        readTarget(member(node, QStringLiteral("target")));
        QSet<QString> labels;
        for (const Node &element : elements(member(node, QStringLiteral("cabinets")))) {
            CabinetCorrection cabinet = readCabinet(element);
            const QString fault = whyNotListed(cabinet, labels);
            if (!fault.isEmpty()) {
                fail(element, fault);
            }
            if (failed()) {
                return;
            }
            labels.insert(cabinet.label());
            m_corrections.cabinets.push_back(std::move(cabinet));
        }
        if (m_corrections.cabinets.empty()) {
            fail(member(node, QStringLiteral("cabinets")), tr("there is no cabinet"));
        }
    }

    void readConvention(const Node &node)
    {
        if (!checkObject(node,
                {{convention()[0].key, true}, {convention()[1].key, true}, {convention()[2].key, true},
                    {convention()[3].key, true}})) {
            return;
        }
        for (const ConventionEntry &entry : convention()) {
            const Node found = member(node, entry.key);
            if (readString(found) != entry.value) {
                fail(found, tr("expected %1").arg(quoted(entry.value)));
            }
        }
    }

    void readTarget(const Node &node)
    {
        if (!checkObject(node,
                {{QStringLiteral("name"), false}, {QStringLiteral("red"), true}, {QStringLiteral("green"), true},
                    {QStringLiteral("blue"), true}, {QStringLiteral("white"), true},
                    {QStringLiteral("luminance"), true}})) {
            return;
        }
        CorrectionTarget &target = m_corrections.target;
        target.name = readString(member(node, QStringLiteral("name")));
        target.red = readPoint(member(node, QStringLiteral("red")));
        target.green = readPoint(member(node, QStringLiteral("green")));
        target.blue = readPoint(member(node, QStringLiteral("blue")));
        target.white = readPoint(member(node, QStringLiteral("white")));
        const Node luminance = member(node, QStringLiteral("luminance"));
        target.luminance = readNumber(luminance);
        if (target.luminance <= 0.0) {
            fail(luminance, tr("the luminance of the white must be greater than 0"));
        }
    }

    Point readPoint(const Node &node)
    {
        if (!checkObject(node, {{QStringLiteral("x"), true}, {QStringLiteral("y"), true}})) {
            return {};
        }
        return {readNumber(member(node, QStringLiteral("x"))), readNumber(member(node, QStringLiteral("y")))};
    }

    CabinetCorrection readCabinet(const Node &node)
    {
        CabinetCorrection cabinet;
        if (!checkObject(node,
                {{QStringLiteral("name"), false}, {QStringLiteral("row"), false}, {QStringLiteral("column"), false},
                    {QStringLiteral("matrix"), true}, {QStringLiteral("largestWhite"), true},
                    {QStringLiteral("fault"), false}})) {
            return cabinet;
        }
        cabinet.name = readString(member(node, QStringLiteral("name")));
        cabinet.row = readPlace(member(node, QStringLiteral("row")));
        cabinet.column = readPlace(member(node, QStringLiteral("column")));
        if (cabinet.row.has_value() != cabinet.column.has_value()) {
            fail(node, tr("row and column are only known together"));
        }
        const Node matrix = member(node, QStringLiteral("matrix"));
        if (!matrix.value.isNull()) {
            cabinet.matrix = readMatrix(matrix);
        }
        const Node largest = member(node, QStringLiteral("largestWhite"));
        if (!largest.value.isNull()) {
            cabinet.largestWhite = readNumber(largest);
        }
        cabinet.fault = readString(member(node, QStringLiteral("fault")));
        return cabinet;
    }

    std::optional<int> readPlace(const Node &node)
    {
        if (node.value.isUndefined()) {
            return std::nullopt;
        }
        return readWhole(node);
    }

    Matrix readMatrix(const Node &node)
    {
        Matrix matrix;
        const std::vector<Node> rows = elements(node);
        if (rows.size() != matrix.rows.size()) {
            fail(node, tr("expected three rows of three numbers"));
            return matrix;
        }
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const std::vector<Node> entries = elements(rows[row]);
            if (entries.size() != matrix.rows[row].size()) {
                fail(rows[row], tr("expected three numbers"));
                return matrix;
            }
            for (std::size_t column = 0; column < entries.size(); ++column) {
                matrix.rows[row][column] = readNumber(entries[column]);
            }
        }
        return matrix;
    }

    WallCorrections m_corrections;
};

} // namespace

QByteArray correctionsJson(const WallCorrections &corrections)
{
    const CorrectionTarget &target = corrections.target;
    QStringList lines{QStringLiteral("{"), QStringLiteral("    \"version\": %1,").arg(correctionsVersion),
        QStringLiteral("    \"convention\": {")};
    QStringList entries;
    for (const ConventionEntry &entry : convention()) {
        entries.append(
            QStringLiteral("        ") + jsonString(entry.key) + QStringLiteral(": ") + jsonString(entry.value));
    }
    lines.append(entries.join(QStringLiteral(",\n")));
    lines.append(QStringLiteral("    },"));
    lines.append(QStringLiteral("    \"luminanceUnit\": \"%1\",").arg(correctionsUnitName(corrections.unit)));
    lines.append(QStringLiteral("    \"target\": {"));
    if (!target.name.isEmpty()) {
        lines.append(QStringLiteral("        \"name\": ") + jsonString(target.name) + QLatin1Char(','));
    }
    lines.append(QStringLiteral("        \"red\": %1,").arg(pointText(target.red)));
    lines.append(QStringLiteral("        \"green\": %1,").arg(pointText(target.green)));
    lines.append(QStringLiteral("        \"blue\": %1,").arg(pointText(target.blue)));
    lines.append(QStringLiteral("        \"white\": %1,").arg(pointText(target.white)));
    lines.append(QStringLiteral("        \"luminance\": %1").arg(exactText(target.luminance)));
    lines.append(QStringLiteral("    },"));
    lines.append(QStringLiteral("    \"cabinets\": ["));
    QStringList cabinets;
    for (const CabinetCorrection &cabinet : corrections.cabinets) {
        cabinets.append(QStringLiteral("        ") + cabinetText(cabinet));
    }
    lines.append(cabinets.join(QStringLiteral(",\n")));
    lines.append(QStringLiteral("    ]"));
    lines.append(QStringLiteral("}\n"));
    return lines.join(QLatin1Char('\n')).toUtf8();
}

Outcome<WallCorrections> readCorrectionsJson(const QByteArray &utf8)
{
    CorrectionsReader reader;
    const auto corrections = reader.read(utf8);
    return corrections ? Outcome<WallCorrections>(*corrections) : Outcome<WallCorrections>::failure(reader.problem());
}

} // namespace gamutfiles
