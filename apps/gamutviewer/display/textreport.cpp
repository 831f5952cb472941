// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/textreport.h"

#include "display/assessmenttexts.h"
#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"

#include <gamutmodel/gamutcoverage.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace gamutviewer {

namespace {

struct ReportText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::TextReport)
};

using Row = QVector<QString>;

QString judgementLine(Judgement judgement, const QString &text)
{
    return QStringLiteral("%1: %2").arg(judgementName(judgement), text);
}

QStringList verdictLines(const Assessment &assessment)
{
    QStringList lines{judgementLine(assessment.judgement(), assessment.headline())};
    for (const AssessmentLine &ground : assessment.lines) {
        lines.append(judgementLine(ground.judgement, ground.text));
    }
    if (assessment.wall) {
        for (const WallLine &line : assessment.wall->lines) {
            if (line.isWarning) {
                lines.append(QStringLiteral("warning: %1").arg(line.text));
            }
        }
    }
    return lines;
}

//! \a rows with the columns below each other; the last one is not filled up.
QStringList aligned(const QVector<Row> &rows)
{
    Row::size_type columns = 0;
    for (const Row &row : rows) {
        columns = std::max(columns, row.size());
    }
    QVector<int> widths(columns, 0);
    for (const Row &row : rows) {
        for (Row::size_type i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], int(row.at(i).size()));
        }
    }
    QStringList lines;
    for (const Row &row : rows) {
        QString line;
        for (Row::size_type i = 0; i < row.size(); ++i) {
            line += i + 1 < row.size() ? row.at(i).leftJustified(widths[i] + 2) : row.at(i);
        }
        lines.append(line);
    }
    return lines;
}

QString pointCell(const Model::Target &color)
{
    return QStringLiteral("%1 %2").arg(
        fixedText(color.x, chromaticityDecimals), fixedText(color.y, chromaticityDecimals));
}

//! A gamut with the part that it plays.
struct PlayedPart {
    QString part;
    DisplayGamut gamut;
};

QVector<PlayedPart> playedParts(const DisplayDescription &description)
{
    const std::pair<QString, QString> names[]
        = {{ReportText::tr("declared"), description.declared}, {ReportText::tr("original"), description.original},
            {ReportText::tr("measured"), description.measured}, {ReportText::tr("target"), description.target}};
    QVector<PlayedPart> parts;
    for (const auto &name : names) {
        if (const auto gamut = description.gamut(name.second)) {
            parts.append({name.first, *gamut});
        }
    }
    return parts;
}

QStringList gamutLines(const QVector<PlayedPart> &parts)
{
    QVector<Row> rows{{QString(), ReportText::tr("gamut"), ReportText::tr("red x y"), ReportText::tr("green x y"),
        ReportText::tr("blue x y"), ReportText::tr("white x y"), ReportText::tr("luminance of white"),
        ReportText::tr("temperature of white"), ReportText::tr("Duv")}};
    for (const PlayedPart &part : parts) {
        const Model::Targets &t = part.gamut.getTargets();
        const auto temperature = ceiechart::colorTemperature({t.white.x, t.white.y});
        rows.append({part.part, oneLine(nameOf(part.gamut)), pointCell(t.red), pointCell(t.green), pointCell(t.blue),
            pointCell(t.white), luminanceText(t.white.Y, part.gamut.unit),
            temperature ? temperatureText(*temperature) : undefinedText(),
            temperature ? duvText(*temperature) : undefinedText()});
    }
    return parts.isEmpty() ? QStringList() : aligned(rows);
}

//! What each gamut covers of each standard, in x, y and in u′, v′.
QStringList coverageLines(const QVector<PlayedPart> &parts, const std::vector<DisplayGamut> &standards)
{
    Row titles{ReportText::tr("coverage of")};
    for (const PlayedPart &part : parts) {
        titles.append(ReportText::tr("%1 x, y", "part of a gamut: measured x, y").arg(part.part));
        titles.append(ReportText::tr("u′, v′"));
    }
    QVector<Row> rows{titles};
    for (const DisplayGamut &standard : standards) {
        Row row{oneLine(nameOf(standard))};
        for (const PlayedPart &part : parts) {
            for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976}) {
                const Model::Targets &targets = part.gamut.getTargets();
                row.append(percent(Model::gamutCoverage(targets, standard.getTargets(), diagram).coverage));
            }
        }
        rows.append(row);
    }
    return parts.isEmpty() ? QStringList() : aligned(rows);
}

QStringList oneLines(const QStringList &remarks)
{
    QStringList lines;
    for (const QString &remark : remarks) {
        lines.append(oneLine(remark));
    }
    return lines;
}

QStringList warningLines(const QStringList &warnings)
{
    QStringList lines;
    for (const QString &warning : warnings) {
        lines.append(ReportText::tr("warning: %1").arg(oneLine(warning)));
    }
    return lines;
}

QString uvText(const std::optional<double> &value)
{
    return value ? fixedText(*value, chromaticityDecimals) : undefinedText();
}

//! "+9.0 %".
QString changeText(double share)
{
    const QString text = percent(share);
    return text.startsWith(QLatin1Char('-')) ? text : QLatin1Char('+') + text;
}

QString pairText(const DisplayWall &wall, const std::optional<Model::CabinetPair> &pair, const QString &difference)
{
    return pair
        ? QStringLiteral("%1 (%2, %3)").arg(difference, cabinetName(wall, pair->first), cabinetName(wall, pair->second))
        : undefinedText();
}

QStringList uniformityLines(const DisplayWall &wall, const WallAssessment &assessment)
{
    const auto uv = [&wall](const std::optional<Model::CabinetPair> &pair) {
        return pairText(wall, pair, pair ? fixedText(pair->difference, chromaticityDecimals) : QString());
    };
    const auto luminance = [&wall](const std::optional<Model::CabinetPair> &pair) {
        return pairText(wall, pair, pair ? percent(pair->difference) : QString());
    };
    const Model::Uniformity &before = assessment.before;
    const Model::Uniformity &after = assessment.after;
    return aligned({{ReportText::tr("difference of whites"), ReportText::tr("without corrections"),
                        ReportText::tr("with corrections")},
        {ReportText::tr("Δu′v′, any two"), uv(before.chromaticity), uv(after.chromaticity)},
        {ReportText::tr("Δu′v′, neighbours"), uv(before.neighborChromaticity), uv(after.neighborChromaticity)},
        {ReportText::tr("luminance, any two"), luminance(before.luminance), luminance(after.luminance)},
        {ReportText::tr("luminance, neighbours"), luminance(before.neighborLuminance),
            luminance(after.neighborLuminance)}});
}

QStringList cabinetLines(const DisplayWall &wall, const WallAssessment &assessment)
{
    QVector<Row> rows{{ReportText::tr("cabinet"), ReportText::tr("shows the target"), ReportText::tr("limit"),
        ReportText::tr("largest white, %1").arg(luminanceUnitText(wall.unit)), ReportText::tr("headroom"),
        ReportText::tr("Δu′v′ of the white without correction"), ReportText::tr("Δu′v′ of the white with correction")}};
    for (const std::size_t i : assessment.worstFirst) {
        const CabinetAssessment &cabinet = assessment.cabinets[i];
        rows.append(
            {cabinetName(wall, i), cabinet.isLeftOut ? ReportText::tr("left out") : judgementName(cabinet.judgement),
                cabinet.limit ? gamutVertexName(*cabinet.limit) : undefinedText(),
                cabinet.largestWhite ? reachableText(*cabinet.largestWhite) : undefinedText(),
                cabinet.headroom ? changeText(*cabinet.headroom - 1.0) : undefinedText(), uvText(cabinet.uvBefore),
                uvText(cabinet.uvAfter)});
    }
    for (const IncompleteCabinet &cabinet : wall.incomplete) {
        rows.append({ReportText::tr("%1 (%2)", "cabinet, and why nothing is known of it")
                         .arg(cabinetName(wall, cabinet), oneLine(incompleteReasonText(cabinet))),
            judgementName(Judgement::NotKnown), undefinedText(), undefinedText(), undefinedText(), undefinedText(),
            undefinedText()});
    }
    return aligned(rows);
}

} // namespace

QByteArray verdictText(const Assessment &assessment)
{
    return (verdictLines(assessment).join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
}

QByteArray textReport(
    const DisplayDescription &description, const std::optional<Tolerances> &tolerances, const ReportNotes &notes)
{
    const Assessment assessment = assess(description, tolerances, notes.needsChoice);
    const QVector<PlayedPart> parts = playedParts(description);
    QVector<QStringList> blocks{description.name.isEmpty() ? QStringList() : QStringList(oneLine(description.name)),
        gamutLines(parts), coverageLines(parts, description.allStandards()), verdictLines(assessment),
        warningLines(notes.warnings), oneLines(notes.remarks), fileNotesText(notes).split(QLatin1Char('\n'))};
    if (!description.wall.cabinets.empty() && assessment.wall) {
        QStringList remarks;
        for (const WallLine &line : assessment.wall->lines) {
            if (!line.judgement && !line.isWarning) {
                remarks.append(line.text);
            }
        }
        blocks.append(remarks);
        blocks.append(uniformityLines(description.wall, *assessment.wall));
        blocks.append(cabinetLines(description.wall, *assessment.wall));
    }
    QStringList texts;
    for (const QStringList &block : qAsConst(blocks)) {
        const QString text = block.join(QLatin1Char('\n'));
        if (!text.isEmpty()) {
            texts.append(text);
        }
    }
    return (texts.join(QStringLiteral("\n\n")) + QLatin1Char('\n')).toUtf8();
}

} // namespace gamutviewer
