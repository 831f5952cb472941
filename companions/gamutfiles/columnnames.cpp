// SPDX-License-Identifier: MIT
#include "columnnames_p.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <array>
#include <utility>

namespace gamutfiles {

namespace {

struct ColumnText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::ColumnNames)
};

//! Longer headers name no column.
constexpr int longestHeader = 100;

struct KnownName {
    const char *name; //!< without spaces, in lower case; the letter behind = must be written as it is here
    ColumnPart part;
};

/*
 * Lv is the symbol of luminance in ISO 80000-7. XYY_X, XYY_Y, XYY_CAPY, XYZ_X, SAMPLE_ID and SAMPLE_NAME are field
 * names of CGATS.17, where XYY_X and XYY_Y are the chromaticity. The Chinese words are those of SJ/T 11281.
 */
constexpr std::array knownNames{
    KnownName{"name", ColumnPart::Name},
    KnownName{"patch", ColumnPart::Name},
    KnownName{"patchname", ColumnPart::Name},
    KnownName{"label", ColumnPart::Name},
    KnownName{"sample", ColumnPart::Name},
    KnownName{"samplename", ColumnPart::Name},
    KnownName{"colour", ColumnPart::Name},
    KnownName{"color", ColumnPart::Name},
    KnownName{"colourname", ColumnPart::Name},
    KnownName{"colorname", ColumnPart::Name},
    KnownName{"pattern", ColumnPart::Name},
    KnownName{"testpattern", ColumnPart::Name},
    KnownName{"stimulus", ColumnPart::Name},
    KnownName{"measurement", ColumnPart::Name},
    KnownName{"farbe", ColumnPart::Name},
    KnownName{"bezeichnung", ColumnPart::Name},
    KnownName{"probe", ColumnPart::Name},
    KnownName{"messung", ColumnPart::Name},
    KnownName{"testbild", ColumnPart::Name},
    KnownName{"nom", ColumnPart::Name},
    KnownName{"couleur", ColumnPart::Name},
    KnownName{"mire", ColumnPart::Name},
    KnownName{"mesure", ColumnPart::Name},
    KnownName{"nombre", ColumnPart::Name},
    KnownName{"muestra", ColumnPart::Name},
    KnownName{"patrón", ColumnPart::Name},
    KnownName{"名称", ColumnPart::Name},
    KnownName{"颜色", ColumnPart::Name},
    KnownName{"色块", ColumnPart::Name},
    KnownName{"样品", ColumnPart::Name},
    KnownName{"画面", ColumnPart::Name},
    KnownName{"测试画面", ColumnPart::Name},
    KnownName{"项目", ColumnPart::Name},
    KnownName{"dataname", ColumnPart::Name},
    KnownName{"primary", ColumnPart::Name},
    KnownName{"nome", ColumnPart::Name},
    KnownName{"colore", ColumnPart::Name},
    KnownName{"note", ColumnPart::Note},
    KnownName{"notes", ColumnPart::Note},
    KnownName{"remark", ColumnPart::Note},
    KnownName{"remarks", ColumnPart::Note},
    KnownName{"comment", ColumnPart::Note},
    KnownName{"description", ColumnPart::Note},
    KnownName{"bemerkung", ColumnPart::Note},
    KnownName{"kommentar", ColumnPart::Note},
    KnownName{"remarque", ColumnPart::Note},
    KnownName{"commentaire", ColumnPart::Note},
    KnownName{"nota", ColumnPart::Note},
    KnownName{"备注", ColumnPart::Note},

    // CGATS.17 has XYY_Y for the chromaticity; written as xyY the last letter is that of the value.
    KnownName{"=x=y=Y=x", ColumnPart::x},
    KnownName{"=x=y=Y=y", ColumnPart::y},
    KnownName{"=x=y=Y=Y", ColumnPart::Luminance},
    KnownName{"测试项目", ColumnPart::Name},

    KnownName{"lv", ColumnPart::Luminance},
    KnownName{"l", ColumnPart::Luminance},
    KnownName{"lum", ColumnPart::Luminance},
    KnownName{"luminance", ColumnPart::Luminance},
    KnownName{"luminancelv", ColumnPart::Luminance},
    KnownName{"luminance=Y", ColumnPart::Luminance},
    KnownName{"brightness", ColumnPart::Luminance},
    KnownName{"xyycap=Y", ColumnPart::Luminance},
    KnownName{"leuchtdichte", ColumnPart::Luminance},
    KnownName{"helligkeit", ColumnPart::Luminance},
    KnownName{"luminancia", ColumnPart::Luminance},
    KnownName{"brillo", ColumnPart::Luminance},
    KnownName{"亮度", ColumnPart::Luminance},
    KnownName{"亮度lv", ColumnPart::Luminance},
    KnownName{"亮度=Y", ColumnPart::Luminance},
    KnownName{"亮度值", ColumnPart::Luminance},

    KnownName{"=Y", ColumnPart::Y},
    KnownName{"cie=Y", ColumnPart::Y},
    KnownName{"cie1931=Y", ColumnPart::Y},
    KnownName{"xyz=Y", ColumnPart::Y},
    KnownName{"tristimulus=Y", ColumnPart::Y},
    KnownName{"measured=Y", ColumnPart::Y},
    KnownName{"三刺激值=Y", ColumnPart::Y},

    KnownName{"=x", ColumnPart::x},
    KnownName{"cie=x", ColumnPart::x},
    KnownName{"ciexy=x", ColumnPart::x},
    KnownName{"cie1931=x", ColumnPart::x},
    KnownName{"1931=x", ColumnPart::x},
    KnownName{"s=x", ColumnPart::x},
    KnownName{"xyy=X", ColumnPart::x},
    KnownName{"chromaticity=x", ColumnPart::x},
    KnownName{"measured=x", ColumnPart::x},
    KnownName{"=xchromaticity", ColumnPart::x},
    KnownName{"ciexchromaticity", ColumnPart::x},
    KnownName{"farbort=x", ColumnPart::x},
    KnownName{"chromaticité=x", ColumnPart::x},
    KnownName{"cromaticidad=x", ColumnPart::x},
    KnownName{"色坐标=x", ColumnPart::x},
    KnownName{"色品坐标=x", ColumnPart::x},
    KnownName{"色度=x", ColumnPart::x},
    KnownName{"色度坐标=x", ColumnPart::x},
    KnownName{"=x坐标", ColumnPart::x},

    KnownName{"=y", ColumnPart::y},
    KnownName{"cie=y", ColumnPart::y},
    KnownName{"ciexy=y", ColumnPart::y},
    KnownName{"cie1931=y", ColumnPart::y},
    KnownName{"1931=y", ColumnPart::y},
    KnownName{"s=y", ColumnPart::y},
    KnownName{"xyy=Y", ColumnPart::y},
    KnownName{"chromaticity=y", ColumnPart::y},
    KnownName{"measured=y", ColumnPart::y},
    KnownName{"=ychromaticity", ColumnPart::y},
    KnownName{"cieychromaticity", ColumnPart::y},
    KnownName{"farbort=y", ColumnPart::y},
    KnownName{"chromaticité=y", ColumnPart::y},
    KnownName{"cromaticidad=y", ColumnPart::y},
    KnownName{"色坐标=y", ColumnPart::y},
    KnownName{"色品坐标=y", ColumnPart::y},
    KnownName{"色度=y", ColumnPart::y},
    KnownName{"色度坐标=y", ColumnPart::y},
    KnownName{"=y坐标", ColumnPart::y},

    // Without a prime u and v could be those of CIE 1960, which are other numbers.
    KnownName{"u'", ColumnPart::u},
    KnownName{"cieu'", ColumnPart::u},
    KnownName{"cie1976u'", ColumnPart::u},
    KnownName{"cie1976u", ColumnPart::u},
    KnownName{"1976u'", ColumnPart::u},
    KnownName{"uprime", ColumnPart::u},
    KnownName{"色坐标u'", ColumnPart::u},
    KnownName{"色品坐标u'", ColumnPart::u},
    KnownName{"v'", ColumnPart::v},
    KnownName{"ciev'", ColumnPart::v},
    KnownName{"cie1976v'", ColumnPart::v},
    KnownName{"cie1976v", ColumnPart::v},
    KnownName{"1976v'", ColumnPart::v},
    KnownName{"vprime", ColumnPart::v},
    KnownName{"色坐标v'", ColumnPart::v},
    KnownName{"色品坐标v'", ColumnPart::v},

    KnownName{"=X", ColumnPart::X},
    KnownName{"cie=X", ColumnPart::X},
    KnownName{"cie1931=X", ColumnPart::X},
    KnownName{"xyz=X", ColumnPart::X},
    KnownName{"tristimulus=X", ColumnPart::X},
    KnownName{"三刺激值=X", ColumnPart::X},
    KnownName{"=Z", ColumnPart::Z},
    KnownName{"cie=Z", ColumnPart::Z},
    KnownName{"cie1931=Z", ColumnPart::Z},
    KnownName{"xyz=Z", ColumnPart::Z},
    KnownName{"tristimulus=Z", ColumnPart::Z},
    KnownName{"三刺激值=Z", ColumnPart::Z},

    KnownName{"cabinet", ColumnPart::Cabinet},
    KnownName{"cabinetid", ColumnPart::Cabinet},
    KnownName{"cabinetno", ColumnPart::Cabinet},
    KnownName{"module", ColumnPart::Cabinet},
    KnownName{"moduleid", ColumnPart::Cabinet},
    KnownName{"panel", ColumnPart::Cabinet},
    KnownName{"panelid", ColumnPart::Cabinet},
    KnownName{"tile", ColumnPart::Cabinet},
    KnownName{"tileid", ColumnPart::Cabinet},
    KnownName{"modul", ColumnPart::Cabinet},
    KnownName{"kachel", ColumnPart::Cabinet},
    KnownName{"dalle", ColumnPart::Cabinet},
    KnownName{"gabinete", ColumnPart::Cabinet},
    KnownName{"módulo", ColumnPart::Cabinet},
    KnownName{"箱体", ColumnPart::Cabinet},
    KnownName{"箱体编号", ColumnPart::Cabinet},
    KnownName{"模组", ColumnPart::Cabinet},
    KnownName{"模块", ColumnPart::Cabinet},

    KnownName{"row", ColumnPart::Row},
    KnownName{"zeile", ColumnPart::Row},
    KnownName{"reihe", ColumnPart::Row},
    KnownName{"ligne", ColumnPart::Row},
    KnownName{"fila", ColumnPart::Row},
    KnownName{"行", ColumnPart::Row},
    KnownName{"column", ColumnPart::Column},
    KnownName{"col", ColumnPart::Column},
    KnownName{"spalte", ColumnPart::Column},
    KnownName{"colonne", ColumnPart::Column},
    KnownName{"columna", ColumnPart::Column},
    KnownName{"列", ColumnPart::Column},

    KnownName{"id", ColumnPart::Number},
    KnownName{"sampleid", ColumnPart::Number},
    KnownName{"no", ColumnPart::Number},
    KnownName{"nr", ColumnPart::Number},
    KnownName{"index", ColumnPart::Number},
    KnownName{"编号", ColumnPart::Number},
    KnownName{"序号", ColumnPart::Number},
};

struct KnownUnit {
    const char *name; //!< as compact() makes it, in lower case
    MeasuredUnit unit;
};

// Longer ones first: a header ends in the longest that fits.
constexpr std::array knownUnits{
    KnownUnit{"candelas/m2", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"candela/m2", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"footlamberts", MeasuredUnit::FootLambert},
    KnownUnit{"footlambert", MeasuredUnit::FootLambert},
    KnownUnit{"cd/平方米", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"坎德拉/平方米", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"cd/sqm", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"cd/qm", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"cd/m2", MeasuredUnit::CandelaPerSquareMetre},
    // The raised two, saved in an encoding that does not have it, as GBK.
    KnownUnit{"cd/m?", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"cd/m\uFFFD", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"cdm2", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"nits", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"nit", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"尼特", MeasuredUnit::CandelaPerSquareMetre},
    KnownUnit{"ftl", MeasuredUnit::FootLambert},
    KnownUnit{"fl", MeasuredUnit::FootLambert},
    KnownUnit{"relative", MeasuredUnit::Relative},
    KnownUnit{"rel", MeasuredUnit::Relative},
    KnownUnit{"%", MeasuredUnit::Relative},
};

//! \a text without what is written in many ways: spaces and joining signs, kinds of primes, wide and raised characters.
//! Most fields of a list are numbers, of which nothing need be looked up: no column is called by digits alone.
bool isPlainNumber(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.') || c == QLatin1Char('-');
    });
}

QString compact(const QString &text)
{
    QString result = text;
    for (const char16_t prime : {0x2032, 0x2019, 0x2018, 0x00B4, 0x02B9, 0x02BC, 0x0060}) {
        result.replace(QChar(ushort(prime)), QLatin1Char('\''));
    }
    result = result.normalized(QString::NormalizationForm_KC); // m² and ㎡ become m2
    QString kept;
    std::copy_if(result.begin(), result.end(), std::back_inserter(kept),
        [](QChar c) { return !c.isSpace() && !QStringLiteral("_-.^·⋅:−").contains(c); });
    return kept;
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

std::optional<ColumnPart> partNamed(const QString &name)
{
    static const QVector<std::pair<QString, ColumnPart>> names = [] {
        QVector<std::pair<QString, ColumnPart>> all;
        for (const KnownName &known : knownNames) {
            all.append({QString::fromUtf8(known.name), known.part});
        }
        return all;
    }();
    const auto found
        = std::find_if(names.begin(), names.end(), [&](const auto &known) { return isNamed(name, known.first); });
    return found == names.end() ? std::nullopt : std::make_optional(found->second);
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
    for (const KnownUnit &known : knownUnits) {
        const QString unit = QString::fromUtf8(known.name);
        if (!key.endsWith(unit, Qt::CaseInsensitive)) {
            continue;
        }
        QString name = key.left(key.size() - unit.size());
        const QString unitText = key.right(unit.size());
        if (name.isEmpty()) {
            // A percentage or a ratio of something unnamed is no luminance.
            return known.unit == MeasuredUnit::Relative
                ? std::nullopt
                : std::make_optional(ColumnName{ColumnPart::Luminance, known.unit, unitText, true});
        }
        for (const char *const joint : {"/", ",", "in", "en"}) {
            if (name.endsWith(QLatin1String(joint))) {
                name.chop(int(qstrlen(joint)));
                break;
            }
        }
        const auto part = partNamed(name);
        return part && isLuminance(*part) ? std::make_optional(ColumnName{*part, known.unit, unitText, false})
                                          : std::nullopt;
    }
    return std::nullopt;
}

} // namespace

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
    if (text.size() > longestHeader || isPlainNumber(text)) {
        return false;
    }
    QString key = compact(text);
    if (!isOtherObserver(key)) {
        return false;
    }
    for (const char *const word : {"cie", "1964", "10°", "10degrees", "10deg", "observer", ",", "(", ")", "[", "]"}) {
        key.remove(QString::fromUtf8(word), Qt::CaseInsensitive);
    }
    const auto part = partNamed(key);
    return part == ColumnPart::x || part == ColumnPart::y || part == ColumnPart::X || part == ColumnPart::Y
        || part == ColumnPart::Z;
}

MeasuredUnit measuredUnit(const QString &text)
{
    const QString key = compact(text);
    for (const KnownUnit &known : knownUnits) {
        if (key.compare(QString::fromUtf8(known.name), Qt::CaseInsensitive) == 0) {
            return known.unit;
        }
    }
    return MeasuredUnit::NotKnown;
}

} // namespace gamutfiles
