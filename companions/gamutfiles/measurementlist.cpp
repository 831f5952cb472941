// SPDX-License-Identifier: MIT
#include <gamutfiles/measurementlist.h>

#include "csv_p.h"
#include "gamutfromprimaries_p.h"

#include <QCoreApplication>
#include <gamutmodel/gamutcoverage.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace gamutfiles {

namespace {

using Failure = Outcome<MeasurementList>;

struct MeasurementText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::MeasurementList)
};

enum Column { Name, Luminance, X, Y, ColumnCount };

QString columnName(int column)
{
    static const std::array<const char *, ColumnCount> names{"name", "Y", "x", "y"};
    return QString::fromLatin1(names[std::size_t(column)]);
}

using Columns = std::array<int, ColumnCount>;

bool isNumber(const QString &text)
{
    bool ok = false;
    QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
    return ok;
}

//! Y and y differ by case alone; the name may be written in any.
Columns columnsOf(const QStringList &header)
{
    Columns columns;
    for (int column = 0; column < ColumnCount; ++column) {
        const Qt::CaseSensitivity sensitivity = column == Name ? Qt::CaseInsensitive : Qt::CaseSensitive;
        const auto found = std::find_if(header.begin(), header.end(), [column, sensitivity](const QString &field) {
            return field.trimmed().compare(columnName(column), sensitivity) == 0;
        });
        columns[std::size_t(column)] = found == header.end() ? -1 : int(found - header.begin());
    }
    return columns;
}

class RowReader {
public:
    RowReader(const Columns &columns, bool decimalComma)
        : m_columns(columns)
        , m_decimalComma(decimalComma)
    {
    }

    /*! \brief The measurement in \a row, or else error() says what is wrong with it. */
    std::optional<Measurement> read(const CsvRow &row)
    {
        m_row = &row;
        m_error.clear();
        const QString name = text(Name);
        if (m_error.isEmpty() && name.isEmpty()) {
            fail(Name, MeasurementText::tr("the name must not be empty"));
        }
        const double luminance = number(Luminance);
        const double x = number(X);
        const double y = number(Y);
        if (luminance < 0.0) {
            fail(Luminance, MeasurementText::tr("luminance must not be negative"));
        }
        if (x < 0.0) {
            fail(X, MeasurementText::tr("a chromaticity coordinate must not be negative"));
        }
        if (y <= 0.0) {
            fail(Y, MeasurementText::tr("y must be greater than 0"));
        }
        if (x + y > 1.0) {
            fail(X, MeasurementText::tr("x + y must not exceed 1"));
        }
        if (!m_error.isEmpty()) {
            return std::nullopt;
        }
        return Measurement{name, Model::Target::fromYxy(luminance, x, y)};
    }

    const QString &error() const { return m_error; }

private:
    QString text(Column column)
    {
        const int index = m_columns[std::size_t(column)];
        if (index >= m_row->fields.size()) {
            fail(column, MeasurementText::tr("missing"));
            return {};
        }
        return m_row->fields.at(index).trimmed();
    }

    double number(Column column)
    {
        QString digits = text(column);
        if (m_decimalComma) {
            digits.replace(QLatin1Char(','), QLatin1Char('.'));
        }
        bool ok = false;
        const double value = digits.toDouble(&ok);
        if (!ok || !std::isfinite(value)) {
            fail(column, MeasurementText::tr("not a number: \"%1\"").arg(digits));
            return column == Y ? 0.5 : 0.0; // passes the further checks
        }
        return value;
    }

    //! Only the first failure counts.
    void fail(Column column, const QString &reason)
    {
        if (m_error.isEmpty()) {
            m_error = MeasurementText::tr("line %1, column %2: %3").arg(m_row->line).arg(columnName(column), reason);
        }
    }

    Columns m_columns;
    bool m_decimalComma;
    const CsvRow *m_row = nullptr;
    QString m_error;
};

//! 0 red, 1 green, 2 blue, 3 white, -1 none of them.
int gamutRole(const QString &name)
{
    static const QStringList words{
        QStringLiteral("red"), QStringLiteral("green"), QStringLiteral("blue"), QStringLiteral("white")};
    const QString lower = name.toLower();
    for (int i = 0; i < words.size(); ++i) {
        if (lower == words[i] || lower == words[i].left(1)) {
            return i;
        }
    }
    return -1;
}

//! The index of the measurement of each role, or nothing unless each is there once.
std::optional<std::array<int, 4>> gamutIndices(const QVector<Measurement> &measurements)
{
    std::array<int, 4> indices{-1, -1, -1, -1};
    for (int i = 0; i < measurements.size(); ++i) {
        const int role = gamutRole(measurements[i].name);
        if (role < 0) {
            continue;
        }
        int &index = indices[std::size_t(role)];
        if (index >= 0) {
            return std::nullopt;
        }
        index = i;
    }
    const bool complete = std::all_of(indices.begin(), indices.end(), [](int index) { return index >= 0; });
    return complete ? std::make_optional(indices) : std::nullopt;
}

} // namespace

std::optional<Model::ColorGamut> MeasurementList::gamut(const QString &gamutName) const
{
    const auto indices = gamutIndices(measurements);
    if (!indices) {
        return std::nullopt;
    }
    const auto color = [&](std::size_t role) { return measurements[(*indices)[role]].color; };
    return Model::ColorGamut(gamutName.toStdString(), {color(0), color(1), color(2), color(3)});
}

QVector<Measurement> MeasurementList::others() const
{
    if (!gamutIndices(measurements)) {
        return measurements;
    }
    QVector<Measurement> result;
    std::copy_if(measurements.begin(), measurements.end(), std::back_inserter(result),
        [](const Measurement &measurement) { return gamutRole(measurement.name) < 0; });
    return result;
}

Outcome<MeasurementList> readMeasurementList(const QByteArray &utf8)
{
    const Outcome<CsvTable> table = readCsv(utf8);
    if (!table) {
        return Failure::failure(table.error());
    }
    if (table->rows.isEmpty()) {
        return Failure::failure(MeasurementText::tr("contains no measurements"));
    }
    Columns columns{0, 1, 2, 3};
    const QStringList &first = table->rows.first().fields;
    const bool hasHeader = std::none_of(first.begin(), first.end(), isNumber);
    if (hasHeader) {
        columns = columnsOf(first);
        const auto missing = std::find(columns.begin(), columns.end(), -1);
        if (missing != columns.end()) {
            return Failure::failure(MeasurementText::tr("line %1: missing column %2")
                                        .arg(table->rows.first().line)
                                        .arg(columnName(int(missing - columns.begin()))));
        }
    }
    RowReader reader(columns, table->separator != QLatin1Char(','));
    MeasurementList list;
    for (int i = hasHeader ? 1 : 0; i < table->rows.size(); ++i) {
        const auto measurement = reader.read(table->rows[i]);
        if (!measurement) {
            return Failure::failure(reader.error());
        }
        list.measurements.append(*measurement);
    }
    if (list.measurements.isEmpty()) {
        return Failure::failure(MeasurementText::tr("contains no measurements"));
    }
    const auto gamut = list.gamut(QString());
    if (gamut && !Model::spanTriangle(gamut->getTargets())) {
        return Failure::failure(noTriangleText());
    }
    return list;
}

} // namespace gamutfiles
