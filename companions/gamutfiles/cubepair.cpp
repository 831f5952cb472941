// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/cubepair.h>

#include "correctionsfile_p.h"
#include "excerpt_p.h"
#include "jsonreader_p.h"
#include <gamutfiles/oneline.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <vector>

namespace gamutfiles {

namespace {

struct CubeText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::CubePair)
};

using Triplet = std::array<double, 3>;

QString primaryName(std::size_t primary)
{
    return primary == 0 ? CubeText::tr("red") : primary == 1 ? CubeText::tr("green") : CubeText::tr("blue");
}

//! What the table has for a content of 0 or 1 in each of red, green and blue.
Triplet corner(const Model::CorrectionMatrix &matrix, const Triplet &content)
{
    Triplet value;
    for (std::size_t row = 0; row < value.size(); ++row) {
        const auto &entries = matrix.rows[row];
        const double sum = content[0] * entries[0] + content[1] * entries[1] + content[2] * entries[2];
        value[row] = std::min(sum, 1.0); // which rounding may exceed
    }
    return value;
}

//! The contents of the corners in the order of the file: red changes fastest.
std::vector<Triplet> corners()
{
    std::vector<Triplet> contents;
    for (int i = 0; i < 8; ++i) {
        contents.push_back({double(i & 1), double(i >> 1 & 1), double(i >> 2 & 1)});
    }
    return contents;
}

QString tripletText(const Triplet &triplet)
{
    return QStringLiteral("%1 %2 %3").arg(exactText(triplet[0]), exactText(triplet[1]), exactText(triplet[2]));
}

QByteArray cubeText(
    const QString &title, const QString &size, const QStringList &comments, const std::vector<Triplet> &values)
{
    QString plain = oneLine(title);
    plain.replace(QLatin1Char('"'), QLatin1Char('\''));
    QStringList lines;
    for (const QString &comment : comments) {
        lines.append(QStringLiteral("# ") + oneLine(comment));
    }
    lines.append(QStringLiteral("TITLE \"%1\"").arg(excerpt(plain)));
    lines.append(size + QStringLiteral(" 2"));
    lines.append(QStringLiteral("DOMAIN_MIN 0 0 0"));
    lines.append(QStringLiteral("DOMAIN_MAX 1 1 1"));
    for (const Triplet &value : values) {
        lines.append(tripletText(value));
    }
    return (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
}

//! The values of a table of size 2 in 0 to 1; \a size is its keyword, \a count the number of its lines.
Outcome<std::vector<Triplet>> readCube(const QByteArray &utf8, const QString &size, std::size_t count)
{
    using Values = Outcome<std::vector<Triplet>>;
    if (utf8.size() > maximumCubeBytes) {
        return Values::failure(
            CubeText::tr("is too large for one of a pair of tables (more than %1 KiB)").arg(maximumCubeBytes / 1024));
    }
    const QStringList lines = QString::fromUtf8(utf8).split(QLatin1Char('\n'));
    std::vector<Triplet> values;
    bool hasSize = false;
    for (int i = 0; i < lines.size(); ++i) {
        const auto fail = [i](const QString &text) {
            return Values::failure({text, CubeText::tr("line %1").arg(i + 1), 0, 0});
        };
        const QString line = lines.at(i).simplified();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')) || line.startsWith(QLatin1String("TITLE "))) {
            continue;
        }
        QStringList words = line.split(QLatin1Char(' '));
        const QString keyword = words.first().at(0).isLetter() ? words.takeFirst() : QString();
        Triplet numbers{};
        bool areNumbers = words.size() == (keyword == size ? 1 : 3);
        for (int k = 0; k < words.size() && areNumbers; ++k) {
            numbers[std::size_t(k)] = words.at(k).toDouble(&areNumbers);
            areNumbers = areNumbers && std::isfinite(numbers[std::size_t(k)]);
        }
        if (!areNumbers) {
            return fail(CubeText::tr("not three numbers, nor a keyword with its numbers: %1").arg(quoted(line)));
        }
        const bool isDomain = (keyword == QLatin1String("DOMAIN_MIN") && numbers == Triplet{0.0, 0.0, 0.0})
            || (keyword == QLatin1String("DOMAIN_MAX") && numbers == Triplet{1.0, 1.0, 1.0});
        if (keyword == size && numbers[0] == 2.0 && !hasSize) {
            hasSize = true;
        } else if (keyword.isEmpty() && hasSize && values.size() < count) {
            values.push_back(numbers);
        } else if (!isDomain) {
            return fail(CubeText::tr("is not that of a table of size 2 from 0 to 1: %1").arg(quoted(line)));
        }
    }
    return values.size() == count
        ? Values(values)
        : Values::failure(CubeText::tr("expected %1 lines of numbers, found %2").arg(count).arg(values.size()));
}

} // namespace

Outcome<CubePair> cubePair(const Model::CorrectionMatrix &matrix)
{
    using Failure = Outcome<CubePair>;
    CubePair pair;
    for (std::size_t row = 0; row < pair.gains.size(); ++row) {
        Triplet entries = matrix.rows[row];
        for (std::size_t column = 0; column < entries.size(); ++column) {
            if (!(entries[column] >= -Model::driveRounding)) {
                return Failure::failure(CubeText::tr("the drive of %1 for %2 is %3: a table is not exact below 0")
                                            .arg(primaryName(row), primaryName(column))
                                            .arg(entries[column], 0, 'g', 4));
            }
            entries[column] = std::max(entries[column], 0.0);
        }
        const double gain = entries[0] + entries[1] + entries[2];
        if (!(gain <= 1.0 + Model::driveRounding)) {
            return Failure::failure(CubeText::tr("the drive of %1 for white is %2: a table is not exact above 1")
                                        .arg(primaryName(row))
                                        .arg(gain, 0, 'g', 4));
        }
        pair.gains[row] = std::min(gain, 1.0);
        for (std::size_t column = 0; column < entries.size() && gain > 0.0; ++column) {
            pair.matrix.rows[row][column] = entries[column] / gain;
        }
    }
    return pair;
}

QStringList cubeComments(const WallCorrections &corrections)
{
    return targetLines(corrections);
}

QByteArray matrixCube(const CubePair &pair, const QString &title, const QStringList &comments)
{
    std::vector<Triplet> values;
    for (const Triplet &content : corners()) {
        values.push_back(corner(pair.matrix, content));
    }
    return cubeText(title, QStringLiteral("LUT_3D_SIZE"),
        QStringList{
            QStringLiteral("The first of two tables for linear light: a matrix, exact by linear interpolation."),
            QStringLiteral("From levels of red, green and blue of the content, of which red changes first from line to "
                           "line."),
            QStringLiteral("To levels of red, green and blue, in this order. After it, the table of one dimension.")}
            + comments,
        values);
}

QByteArray gainsCube(const CubePair &pair, const QString &title, const QStringList &comments)
{
    return cubeText(title, QStringLiteral("LUT_1D_SIZE"),
        QStringList{QStringLiteral("The second of two tables for linear light: gains, exact by linear interpolation."),
            QStringLiteral("To drives of red, green and blue of the display, in this order. Before it, the table of "
                           "three dimensions.")}
            + comments,
        {{0.0, 0.0, 0.0}, pair.gains});
}

Outcome<CubePair> readCubePair(const QByteArray &matrixText, const QByteArray &gainsText)
{
    using Failure = Outcome<CubePair>;
    const std::vector<Triplet> contents = corners();
    const auto matrixValues = readCube(matrixText, QStringLiteral("LUT_3D_SIZE"), contents.size());
    if (!matrixValues) {
        return Failure::failure(matrixValues.problem());
    }
    const auto gains = readCube(gainsText, QStringLiteral("LUT_1D_SIZE"), 2);
    if (!gains) {
        return Failure::failure(gains.problem());
    }
    CubePair pair;
    for (std::size_t column = 0; column < 3; ++column) {
        const Triplet &value = (*matrixValues)[std::size_t(1) << column];
        for (std::size_t row = 0; row < 3; ++row) {
            pair.matrix.rows[row][column] = value[row];
        }
    }
    for (std::size_t i = 0; i < contents.size(); ++i) {
        if ((*matrixValues)[i] != corner(pair.matrix, contents[i])) {
            return Failure::failure(CubeText::tr("the table of three dimensions is not that of a matrix"));
        }
    }
    if ((*gains)[0] != Triplet{0.0, 0.0, 0.0}) {
        return Failure::failure(CubeText::tr("the table of one dimension is not that of gains"));
    }
    pair.gains = (*gains)[1];
    return pair;
}

} // namespace gamutfiles
