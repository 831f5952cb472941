// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "correctionsfile_p.h"
#include "csv_p.h"
#include "jsonreader_p.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace gamutfiles {

namespace {

struct CsvText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Corrections)
};

using Point = Model::DiagramPoint; // in the class below, lupdate of Qt 6 would take Model:: for the context of texts

//! The first lines, word for word: a file that says anything else is not to be loaded as if it did not.
QStringList conventionLines()
{
    return {QStringLiteral("# wall corrections, version %1").arg(correctionsVersion),
        QStringLiteral(
            "# linear light: levels of the content and drives of the cabinet without transfer functions, 0 to 1"),
        QStringLiteral("# drive of red = m00 red + m01 green + m02 blue of the content"),
        QStringLiteral("# drive of green = m10 red + m11 green + m12 blue of the content"),
        QStringLiteral("# drive of blue = m20 red + m21 green + m22 blue of the content")};
}

QStringList columnNames()
{
    return {QStringLiteral("cabinet"), QStringLiteral("row"), QStringLiteral("column"), QStringLiteral("m00"),
        QStringLiteral("m01"), QStringLiteral("m02"), QStringLiteral("m10"), QStringLiteral("m11"),
        QStringLiteral("m12"), QStringLiteral("m20"), QStringLiteral("m21"), QStringLiteral("m22"),
        QStringLiteral("largest white"), QStringLiteral("fault")};
}

constexpr int firstEntry = 3;
constexpr int entryCount = 9;
constexpr int largestWhiteColumn = firstEntry + entryCount;
constexpr int faultColumn = largestWhiteColumn + 1;

QString field(const QString &text)
{
    static const QString special = QStringLiteral("\",\r\n\t;");
    const bool isPlain = text.trimmed() == text && !text.startsWith(QLatin1Char('#'))
        && std::none_of(text.begin(), text.end(), [](QChar c) { return special.contains(c); });
    return isPlain
        ? text
        : QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
}

QString pointLine(const char *name, const Model::DiagramPoint &xy)
{
    return QStringLiteral("%1: %2 %3").arg(QLatin1String(name), exactText(xy.x), exactText(xy.y));
}

//! Reads the text from its beginning; the first thing that is wrong ends it.
class CorrectionsCsvReader {
public:
    explicit CorrectionsCsvReader(const QString &text)
        : m_text(text)
    {
    }

    Outcome<WallCorrections> read()
    {
        readConvention();
        readTarget();
        if (m_problem.text.isEmpty()) {
            readTable();
        }
        return m_problem.text.isEmpty() ? Outcome<WallCorrections>(m_corrections)
                                        : Outcome<WallCorrections>::failure(m_problem);
    }

private:
    void fail(const QString &text, const QString &column = QString())
    {
        if (m_problem.text.isEmpty()) {
            const QString line = CsvText::tr("line %1").arg(m_line);
            m_problem = {text,
                column.isEmpty() ? line : CsvText::tr("%1, column %2", "line and column").arg(line, column), 0, 0};
        }
    }

    QString nextLine()
    {
        const int end = int(m_text.indexOf(QLatin1Char('\n'), m_begin));
        QString line = m_text.mid(m_begin, end < 0 ? -1 : end - m_begin);
        m_begin = end < 0 ? int(m_text.size()) : end + 1;
        ++m_line;
        if (line.endsWith(QLatin1Char('\r'))) {
            line.chop(1);
        }
        return line;
    }

    void readConvention()
    {
        for (const QString &expected : conventionLines()) {
            if (nextLine() != expected) {
                fail(CsvText::tr("expected %1").arg(quoted(expected)));
                return;
            }
        }
    }

    //! What follows "# name: " in the next line.
    QString value(const char *name)
    {
        if (!m_problem.text.isEmpty()) {
            return {};
        }
        const QString begin = QStringLiteral("# %1: ").arg(QLatin1String(name));
        const QString line = nextLine();
        if (!line.startsWith(begin)) {
            fail(CsvText::tr("expected %1").arg(quoted(begin + QStringLiteral("…"))));
        }
        return line.mid(begin.size());
    }

    double number(const QString &text, const QString &column = QString())
    {
        bool ok = false;
        const double result = text.toDouble(&ok);
        if (!ok || !std::isfinite(result)) {
            fail(CsvText::tr("not a number: %1").arg(quoted(text)), column);
            return 0.0;
        }
        return result;
    }

    Point point(const char *name)
    {
        const QStringList parts = value(name).split(QLatin1Char(' '));
        if (parts.size() != 2) {
            fail(CsvText::tr("expected x and y"));
            return {};
        }
        return {number(parts.at(0)), number(parts.at(1))};
    }

    void readTarget()
    {
        CorrectionTarget &target = m_corrections.target;
        const QString name = value("target");
        const auto parsed = QJsonDocument::fromJson((QLatin1Char('[') + name + QLatin1Char(']')).toUtf8()).array();
        if (m_problem.text.isEmpty() && (parsed.size() != 1 || !parsed.at(0).isString())) {
            fail(CsvText::tr("expected the name of the target in quotes"));
        }
        target.name = parsed.at(0).toString();
        target.red = point("target red x, y");
        target.green = point("target green x, y");
        target.blue = point("target blue x, y");
        target.white = point("target white x, y");
        target.luminance = number(value("luminance of the white"));
        if (target.luminance <= 0.0) {
            fail(CsvText::tr("the luminance of the white must be greater than 0"));
        }
        const auto unit = correctionsUnit(value("unit of luminances"));
        if (!unit) {
            fail(CsvText::tr("expected %1, %2 or %3")
                     .arg(quoted(correctionsUnitName(LuminanceUnit::CandelaPerSquareMetre)),
                         quoted(correctionsUnitName(LuminanceUnit::Relative)),
                         quoted(correctionsUnitName(LuminanceUnit::NotKnown))));
        }
        m_corrections.unit = unit.value_or(LuminanceUnit::NotKnown);
    }

    void readTable()
    {
        const int linesBefore = m_line;
        const CsvTable table = readCsv(m_text.mid(m_begin), QLatin1Char(','));
        QSet<QString> labels;
        bool hasHeader = false;
        for (const CsvRow &row : table.rows) {
            m_line = linesBefore + row.line;
            if (!hasHeader) {
                hasHeader = row.fields == columnNames();
                if (!hasHeader) {
                    fail(CsvText::tr("expected the columns %1").arg(columnNames().join(QLatin1Char(','))));
                    return;
                }
                continue;
            }
            CabinetCorrection cabinet = readCabinet(row.fields);
            const QString fault = whyNotListed(cabinet, labels);
            if (!fault.isEmpty()) {
                fail(fault);
            }
            if (!m_problem.text.isEmpty()) {
                return;
            }
            labels.insert(cabinet.label());
            m_corrections.cabinets.push_back(std::move(cabinet));
        }
        if (table.unterminatedLine > 0) {
            m_line = linesBefore + table.unterminatedLine;
            fail(CsvText::tr("a quote is never closed"));
        } else if (m_corrections.cabinets.empty()) {
            ++m_line;
            fail(CsvText::tr("there is no cabinet"));
        }
    }

    CabinetCorrection readCabinet(const QStringList &fields)
    {
        CabinetCorrection cabinet;
        if (fields.size() != columnNames().size()) {
            fail(CsvText::tr("expected %1 fields, found %2").arg(columnNames().size()).arg(fields.size()));
            return cabinet;
        }
        const auto columnName = [](int column) { return columnNames().at(column); };
        cabinet.name = fields.at(0);
        cabinet.row = place(fields.at(1), columnName(1));
        cabinet.column = place(fields.at(2), columnName(2));
        if (cabinet.row.has_value() != cabinet.column.has_value()) {
            fail(CsvText::tr("row and column are only known together"));
        }
        Model::CorrectionMatrix matrix;
        int given = 0;
        for (int entry = 0; entry < entryCount; ++entry) {
            const int column = firstEntry + entry;
            given += fields.at(column).isEmpty() ? 0 : 1;
        }
        for (int entry = 0; entry < entryCount && given > 0; ++entry) {
            const int column = firstEntry + entry;
            matrix.rows[std::size_t(entry) / 3][std::size_t(entry) % 3] = number(fields.at(column), columnName(column));
        }
        cabinet.matrix = given > 0 ? std::make_optional(matrix) : std::nullopt;
        const QString &largest = fields.at(largestWhiteColumn);
        if (!largest.isEmpty()) {
            cabinet.largestWhite = number(largest, columnName(largestWhiteColumn));
        }
        cabinet.fault = fields.at(faultColumn);
        return cabinet;
    }

    std::optional<int> place(const QString &text, const QString &column)
    {
        if (text.isEmpty()) {
            return std::nullopt;
        }
        bool ok = false;
        const int result = text.toInt(&ok);
        if (!ok) {
            fail(CsvText::tr("expected a whole number"), column);
        }
        return result;
    }

    QString m_text;
    int m_begin = 0;
    int m_line = 0;
    WallCorrections m_corrections;
    Problem m_problem;
};

} // namespace

QStringList targetLines(const WallCorrections &corrections)
{
    const CorrectionTarget &target = corrections.target;
    return {QStringLiteral("target: ") + jsonString(target.name), pointLine("target red x, y", target.red),
        pointLine("target green x, y", target.green), pointLine("target blue x, y", target.blue),
        pointLine("target white x, y", target.white),
        QStringLiteral("luminance of the white: ") + exactText(target.luminance),
        QStringLiteral("unit of luminances: ") + correctionsUnitName(corrections.unit)};
}

QByteArray correctionsCsv(const WallCorrections &corrections)
{
    QStringList lines = conventionLines();
    for (const QString &line : targetLines(corrections)) {
        lines.append(QStringLiteral("# ") + line);
    }
    lines.append(columnNames().join(QLatin1Char(',')));
    const auto placeText = [](const std::optional<int> &place) { return place ? QString::number(*place) : QString(); };
    for (const CabinetCorrection &cabinet : corrections.cabinets) {
        const bool hasPlace = cabinet.row && cabinet.column;
        QStringList fields{field(cabinet.name), hasPlace ? placeText(cabinet.row) : QString(),
            hasPlace ? placeText(cabinet.column) : QString()};
        for (std::size_t entry = 0; entry < entryCount; ++entry) {
            fields.append(cabinet.matrix ? exactText(cabinet.matrix->rows[entry / 3][entry % 3]) : QString());
        }
        fields.append(cabinet.largestWhite ? exactText(*cabinet.largestWhite) : QString());
        fields.append(field(cabinet.fault));
        lines.append(fields.join(QLatin1Char(',')));
    }
    return (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
}

Outcome<WallCorrections> readCorrectionsCsv(const QByteArray &utf8)
{
    return CorrectionsCsvReader(QString::fromUtf8(utf8)).read();
}

} // namespace gamutfiles
