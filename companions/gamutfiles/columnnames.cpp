// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "columnnames_p.h"

#include "knowncolumns_p.h"
#include "numbers_p.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <utility>

namespace gamutfiles {

namespace {

struct ColumnText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::ColumnNames)
};

//! Longer headers name no column.
constexpr int longestHeader = 100;

//! \a text without what is written in many ways: spaces and joining signs, kinds of primes, wide and raised characters.
QString compact(const QString &text)
{
    static const QString primes = QStringLiteral("\u2032\u2019\u2018\u00B4\u02B9\u02BC`");
    static const QString joints = QStringLiteral("_-.^·⋅:−");
    QString result = text;
    for (QChar &c : result) {
        if (primes.contains(c)) {
            c = QLatin1Char('\'');
        }
    }
    result = result.normalized(QString::NormalizationForm_KC); // m² and ㎡ become m2
    const auto end
        = std::remove_if(result.begin(), result.end(), [&](QChar c) { return c.isSpace() || joints.contains(c); });
    result.truncate(int(end - result.begin()));
    return result;
}

bool isNamed(const QString &name, const QString &known)
{
    int index = 0;
    for (int i = 0; i < known.size(); ++i, ++index) {
        const bool exact = known.at(i) == QLatin1Char('=');
        i += exact ? 1 : 0;
        if (index >= name.size() || (exact ? name.at(index) : name.at(index).toLower()) != known.at(i)) {
            return false;
        }
    }
    return index == name.size();
}

//! Each character by itself, so that the length stays.
QString inLowerCase(const QString &text)
{
    QString result = text;
    std::transform(result.begin(), result.end(), result.begin(), [](QChar c) { return c.toLower(); });
    return result;
}

std::optional<ColumnPart> partNamed(const QString &name)
{
    using Known = std::pair<QString, ColumnPart>;
    // By what they are in lower case, as every field of a list is looked up.
    static const QHash<QString, QVector<Known>> names = [] {
        QHash<QString, QVector<Known>> all;
        for (const KnownName &known : knownNames) {
            const QString text = QString::fromUtf8(known.name);
            all[inLowerCase(text).remove(QLatin1Char('='))].append({text, known.part});
        }
        return all;
    }();
    const auto alike = names.constFind(inLowerCase(name));
    if (alike == names.constEnd()) {
        return std::nullopt;
    }
    const auto found
        = std::find_if(alike->begin(), alike->end(), [&](const Known &known) { return isNamed(name, known.first); });
    return found == alike->end() ? std::nullopt : std::make_optional(found->second);
}

const QVector<std::pair<QString, MeasuredUnit>> &units()
{
    static const QVector<std::pair<QString, MeasuredUnit>> all = [] {
        QVector<std::pair<QString, MeasuredUnit>> made;
        for (const KnownUnit &known : knownUnits) {
            made.append({QString::fromUtf8(known.name), known.unit});
        }
        return made;
    }();
    return all;
}

bool isLuminance(ColumnPart part)
{
    return part == ColumnPart::Luminance || part == ColumnPart::Y;
}

//! Names the colorimetric system of 1931, which is meant in any case.
bool isCie1931(const QString &note)
{
    static const QStringList notes{QStringLiteral("cie"), QStringLiteral("1931"), QStringLiteral("cie1931"),
        QStringLiteral("2°"), QStringLiteral("2deg"), QStringLiteral("cie19312°"), QStringLiteral("1"), QString()};
    return notes.contains(note.toLower());
}

//! Says that the CIE 1964 (10°) observer is meant, whose coordinates are other numbers.
bool isOtherObserver(const QString &note)
{
    return note.contains(QLatin1String("1964")) || note.contains(QStringLiteral("10°"))
        || note.contains(QLatin1String("10deg"), Qt::CaseInsensitive);
}

//! A luminance without a unit beside it: Lv is in cd/m², by the definition of the symbol.
ColumnName unitless(ColumnPart part, const QString &name)
{
    const bool isLv = part == ColumnPart::Luminance && name.endsWith(QLatin1String("lv"), Qt::CaseInsensitive);
    return {part, isLv ? MeasuredUnit::CandelaPerSquareMetre : MeasuredUnit::NotStated, QString(), false};
}

//! "Lv (cd/m²)", "x (CIE 1931)", "u (CIE 1976)".
std::optional<ColumnName> withBrackets(const QString &key)
{
    const int open = int(std::max(key.lastIndexOf(QLatin1Char('(')), key.lastIndexOf(QLatin1Char('['))));
    const QChar last = key.at(key.size() - 1);
    if (open < 0 || (last != QLatin1Char(')') && last != QLatin1Char(']'))) {
        return std::nullopt;
    }
    const QString note = key.mid(open + 1, key.size() - open - 2);
    const QString name = key.left(open);
    if (note.contains(QLatin1String("1976"))) {
        return columnName(name.endsWith(QLatin1Char('\'')) ? name : name + QLatin1Char('\''));
    }
    auto result = columnName(name);
    if (!result || result->part == ColumnPart::Name) {
        return result;
    }
    if (result->part == ColumnPart::Y && isOtherObserver(note)) {
        return std::nullopt;
    }
    if (isLuminance(result->part) && note == QLatin1String("1")) {
        return ColumnName{result->part, MeasuredUnit::Relative, note, false}; // a ratio has the unit one
    }
    if (isLuminance(result->part) && note.isEmpty()) { // "[-]" says that there is no unit, also beside Lv
        return ColumnName{result->part, MeasuredUnit::NotKnown, QStringLiteral("-"), false};
    }
    if (isCie1931(note)) {
        return result;
    }
    if (isLuminance(result->part)) {
        return ColumnName{result->part, measuredUnit(note), note, false};
    }
    // A chromaticity has no unit: another system is meant.
    const bool isTristimulus = result->part == ColumnPart::X || result->part == ColumnPart::Z;
    return isTristimulus && !isOtherObserver(note) ? result : std::nullopt;
}

//! "nits", "Luminance cd/m2", "Lv / cd/m²", "Leuchtdichte in cd/m²".
std::optional<ColumnName> withUnitBehind(const QString &key)
{
    for (const auto &[text, unit] : units()) {
        if (!key.endsWith(text, Qt::CaseInsensitive)) {
            continue;
        }
        QString name = key.left(key.size() - text.size());
        const QString unitText = key.right(text.size());
        if (name.isEmpty()) {
            // A percentage or a ratio of something unnamed is no luminance.
            return unit == MeasuredUnit::Relative
                ? std::nullopt
                : std::make_optional(ColumnName{ColumnPart::Luminance, unit, unitText, true});
        }
        for (const char *const joint : {"/", ",", "in", "en"}) {
            if (name.endsWith(QLatin1String(joint))) {
                name.chop(int(qstrlen(joint)));
                break;
            }
        }
        const auto part = partNamed(name);
        return part && isLuminance(*part) ? std::make_optional(ColumnName{*part, unit, unitText, false}) : std::nullopt;
    }
    return std::nullopt;
}

} // namespace

bool isPlainNumber(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.') || c == QLatin1Char('-');
    });
}

QString columnPartName(ColumnPart part)
{
    switch (part) {
    case ColumnPart::Name:
    case ColumnPart::Note:
        return ColumnText::tr("name", "column of a measurement list");
    case ColumnPart::Cabinet:
        return ColumnText::tr("cabinet", "column of a measurement list");
    case ColumnPart::Row:
        return ColumnText::tr("row", "column of a measurement list");
    case ColumnPart::Column:
        return ColumnText::tr("column", "column of a measurement list");
    case ColumnPart::Number:
        return ColumnText::tr("number", "column of a measurement list");
    case ColumnPart::Unit:
        return ColumnText::tr("unit", "column of a measurement list");
    case ColumnPart::Luminance:
    case ColumnPart::Y:
        return QStringLiteral("Y");
    case ColumnPart::x:
        return QStringLiteral("x");
    case ColumnPart::y:
        return QStringLiteral("y");
    case ColumnPart::u:
        return QStringLiteral("u'");
    case ColumnPart::v:
        return QStringLiteral("v'");
    case ColumnPart::X:
        return QStringLiteral("X");
    case ColumnPart::Z:
        return QStringLiteral("Z");
    }
    return {};
}

std::optional<ColumnName> columnName(const QString &text)
{
    if (text.size() > longestHeader || isPlainNumber(text)) {
        return std::nullopt;
    }
    const QString key = compact(text);
    if (key.isEmpty()) {
        return std::nullopt;
    }
    if (const auto part = partNamed(key)) {
        return unitless(*part, key);
    }
    if (const auto bracketed = withBrackets(key)) {
        return bracketed;
    }
    return withUnitBehind(key);
}

bool isOfOtherObserver(const QString &text)
{
    // Every field of every row is asked: most of them go here.
    constexpr int shortestHeader = 3; // "x10"
    if (text.size() < shortestHeader || text.size() > longestHeader || isPlainNumber(text)) {
        return false;
    }
    QString key = compact(text);
    if (!key.contains(QLatin1String("10")) && !isOtherObserver(key)) {
        return false;
    }
    const auto isColor = [](const QString &name) {
        const auto part = partNamed(name);
        return part == ColumnPart::x || part == ColumnPart::y || part == ColumnPart::u || part == ColumnPart::v
            || part == ColumnPart::X || part == ColumnPart::Y || part == ColumnPart::Z;
    };
    // The symbols of ISO/CIE 11664-1: an index behind the letter, and behind it the prime or a unit.
    static const QRegularExpression index(QStringLiteral("\\A(.*[^0-9])10('?)(?:[(\\[/].*)?\\z"));
    const QRegularExpressionMatch indexed = index.match(key);
    if (indexed.hasMatch()) {
        const QString name = indexed.captured(1);
        const bool hasPrime = name.endsWith(QLatin1Char('\''));
        if (isColor(name + (hasPrime ? QString() : indexed.captured(2)))) {
            return true;
        }
    }
    if (!isOtherObserver(key)) {
        return false;
    }
    for (const char *const word : {"cie", "1964", "10°", "10degrees", "10deg", "observer", ",", "(", ")", "[", "]"}) {
        key.remove(QString::fromUtf8(word), Qt::CaseInsensitive);
    }
    return isColor(key);
}

QSet<QString> comparedHeaders(const QStringList &headers)
{
    QSet<QString> compared;
    for (const QString &header : headers) {
        if (header.size() <= longestHeader) {
            compared.insert(compact(header));
        }
    }
    return compared;
}

bool isTenthOfSeries(const QString &text, const QSet<QString> &headers)
{
    QString ninth = compact(text);
    const int ten = int(ninth.lastIndexOf(QLatin1String("10")));
    if (ten < 0) {
        return false;
    }
    QString padded = ninth;
    ninth.replace(ten, 2, QStringLiteral("9"));
    padded.replace(ten, 2, QStringLiteral("09"));
    return headers.contains(ninth) || headers.contains(padded);
}

bool statesOtherObserver(const QString &line)
{
    constexpr int longestLine = 1000;
    const QString text = line.left(longestLine).normalized(QString::NormalizationForm_KC);
    static const QString observer
        = QStringLiteral("(?:observer|observador|observateur|osservatore|beobachter|观察|觀察|视场|視場)");
    static const QRegularExpression tenDegrees(observer
            + QStringLiteral("[^0-9]{0,20}10(?![0-9]|[.,][0-9])|(?<![0-9.,])10 ?(?:°|deg|grad|grados|度)[^0-9]{0,20}")
            + observer,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression cie1964(
        QStringLiteral("cie[\\s_-]*1964"), QRegularExpression::CaseInsensitiveOption);
    return cie1964.match(text).hasMatch() || tenDegrees.match(text).hasMatch();
}

MeasuredUnit measuredUnit(const QString &text)
{
    const QString key = compact(text);
    const auto found = std::find_if(units().begin(), units().end(),
        [&key](const auto &known) { return key.compare(known.first, Qt::CaseInsensitive) == 0; });
    return found == units().end() ? MeasuredUnit::NotKnown : found->second;
}

} // namespace gamutfiles
