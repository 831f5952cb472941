// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "excerpt_p.h"
#include "textencoding_p.h"

#include <gamutfiles/measurementlist.h>
#include <gamutfiles/oneline.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace gamutfiles {

namespace {

//! A wall of many cabinets has many; the first show how names are understood.
constexpr int mostParts = 12;

struct RecognitionText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::MeasurementList)
};

QString characterName(QChar c)
{
    switch (c.unicode()) {
    case '\t':
        return RecognitionText::tr("tab");
    case ';':
        return RecognitionText::tr("semicolon");
    case ',':
        return RecognitionText::tr("comma");
    case '.':
        return RecognitionText::tr("point");
    case '\'':
    case 0x2019:
        return RecognitionText::tr("apostrophe");
    default:
        return c.isSpace() ? RecognitionText::tr("space") : QStringLiteral("\"%1\"").arg(c);
    }
}

QString unitStatement(const MeasurementRecognition &recognized)
{
    const QString stated = recognized.unitText.isEmpty()
        ? QString()
        : RecognitionText::tr(" (the list says \"%1\")").arg(excerpt(recognized.unitText));
    switch (recognized.unit) {
    case MeasuredUnit::NotStated:
        break;
    case MeasuredUnit::NotKnown:
        return RecognitionText::tr("Unit of the luminances: not known") + stated;
    case MeasuredUnit::CandelaPerSquareMetre:
        return RecognitionText::tr("Unit of the luminances: cd/m²") + stated;
    case MeasuredUnit::FootLambert:
        return RecognitionText::tr("Unit of the luminances: foot-lambert, converted to cd/m²") + stated;
    case MeasuredUnit::Relative:
        return RecognitionText::tr("Unit of the luminances: relative") + stated;
    }
    return RecognitionText::tr("Unit of the luminances: not stated");
}

QString columnStatement(const MeasurementRecognition &recognized)
{
    QStringList columns;
    for (const RecognizedColumn &column : recognized.columns) {
        const QString place = RecognitionText::tr("%1 in column %2").arg(column.part).arg(column.column);
        columns.append(
            column.header.isEmpty() ? place : QStringLiteral("%1 \"%2\"").arg(place, excerpt(column.header)));
    }
    const QString all = columns.join(QStringLiteral(", "));
    return recognized.headerLine > 0
        ? RecognitionText::tr("Columns, named in line %1: %2").arg(recognized.headerLine).arg(all)
        : RecognitionText::tr("Columns, which no line names: %1").arg(all);
}

} // namespace

QString measurementPartName(MeasurementPart part)
{
    switch (part) {
    case MeasurementPart::None:
        break;
    case MeasurementPart::Red:
        return RecognitionText::tr("red");
    case MeasurementPart::Green:
        return RecognitionText::tr("green");
    case MeasurementPart::Blue:
        return RecognitionText::tr("blue");
    case MeasurementPart::White:
        return RecognitionText::tr("white");
    case MeasurementPart::Black:
        return RecognitionText::tr("black");
    }
    return {};
}

QString MeasurementRecognition::text() const
{
    QStringList lines{RecognitionText::tr("Encoding: %1").arg(encodingName(encoding)),
        RecognitionText::tr("Separator of the fields: %1").arg(characterName(separator))};
    lines.append(decimalSign ? RecognitionText::tr("Decimal sign: %1").arg(characterName(*decimalSign))
                             : RecognitionText::tr("Decimal sign: none"));
    if (!thousandsSeparators.isEmpty()) {
        QStringList names;
        for (const QChar c : thousandsSeparators) {
            names.append(characterName(c));
        }
        names.removeDuplicates();
        lines.append(RecognitionText::tr("Thousands separator: %1").arg(names.join(QStringLiteral(", "))));
    }
    lines.append(columnStatement(*this));
    lines.append(unitStatement(*this));
    if (fullLevel) {
        lines.append(RecognitionText::tr("Full level in names: %1").arg(*fullLevel));
    }
    for (int i = 0; i < std::min(int(parts.size()), mostParts); ++i) {
        const RecognizedPart &part = parts.at(i);
        lines.append(RecognitionText::tr("Line %1, \"%2\": %3")
                         .arg(part.line)
                         .arg(excerpt(part.name), measurementPartName(part.part)));
    }
    if (parts.size() > mostParts) {
        lines.append(RecognitionText::tr("Further lines with a part: %1").arg(parts.size() - mostParts));
    }
    std::transform(lines.begin(), lines.end(), lines.begin(), oneLine);
    return lines.join(QLatin1Char('\n'));
}

} // namespace gamutfiles
