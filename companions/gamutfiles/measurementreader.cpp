// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "measurementreader_p.h"

#include "textencoding_p.h"

namespace gamutfiles {

Outcome<MeasurementList> MeasurementReader::read(const QByteArray &bytes)
{
    if (decode(bytes) && findColumns() && decideDecimalSign() && readRows() && assignParts() && checkGamut()) {
        return {m_list, m_warnings};
    }
    return Outcome<MeasurementList>::failure(m_failure);
}

bool MeasurementReader::decode(const QByteArray &bytes)
{
    if (m_options.decimalSign && *m_options.decimalSign != QLatin1Char('.')
        && *m_options.decimalSign != QLatin1Char(',')) {
        return fail(tr("the decimal sign must be a point or a comma"));
    }
    if (bytes.size() > maximumMeasurementBytes) {
        return fail(tr("is too large for a measurement list (more than %1 KiB)").arg(maximumMeasurementBytes / 1024));
    }
    const auto decoded = decodeText(bytes, m_options.encoding);
    if (!decoded) {
        m_failure = decoded.problem();
        return false;
    }
    m_warnings = decoded.warnings();
    m_table = readCsv(decoded->text, m_options.separator);
    if (m_table.unterminatedLine > 0) {
        return fail(tr("unterminated quote"), place(m_table.unterminatedLine));
    }
    if (m_table.rows.isEmpty()) {
        return fail(tr("contains no measurements"));
    }
    m_list.recognized.encoding = decoded->encoding;
    m_list.recognized.separator = m_table.separator;
    return true;
}

QString MeasurementReader::place(int line, ColumnPart part) const
{
    return tr("line %1, column %2").arg(line).arg(m_labels[std::size_t(part)]);
}

//! Only the first failure counts.
bool MeasurementReader::fail(const QString &text, const QString &where)
{
    if (m_failure.text.isEmpty()) {
        m_failure = Problem{text, where, 0, 0};
    }
    return false;
}

void MeasurementReader::warn(const QString &text, const QString &where)
{
    m_warnings.append(Problem{text, where, 0, 0});
}

Outcome<MeasurementList> readMeasurementList(const QByteArray &bytes, const MeasurementOptions &options)
{
    return MeasurementReader(options).read(bytes);
}

} // namespace gamutfiles
