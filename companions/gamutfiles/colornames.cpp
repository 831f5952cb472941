// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "colornames_p.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <array>

namespace gamutfiles {

namespace {

//! The longest name that is looked through for a colour and its level.
constexpr int longestName = 60;

struct Word {
    const char *text; //!< in lower case
    MeasurementPart part;
};

constexpr std::array colorWords{
    Word{"red", MeasurementPart::Red},
    Word{"r", MeasurementPart::Red},
    Word{"rot", MeasurementPart::Red},
    Word{"rouge", MeasurementPart::Red},
    Word{"rojo", MeasurementPart::Red},
    Word{"rosso", MeasurementPart::Red},
    Word{"vermelho", MeasurementPart::Red},
    Word{"红", MeasurementPart::Red},
    Word{"紅", MeasurementPart::Red},
    Word{"green", MeasurementPart::Green},
    Word{"g", MeasurementPart::Green},
    Word{"grün", MeasurementPart::Green},
    Word{"gruen", MeasurementPart::Green},
    Word{"vert", MeasurementPart::Green},
    Word{"verde", MeasurementPart::Green},
    Word{"绿", MeasurementPart::Green},
    Word{"綠", MeasurementPart::Green},
    Word{"blue", MeasurementPart::Blue},
    Word{"b", MeasurementPart::Blue},
    Word{"blau", MeasurementPart::Blue},
    Word{"bleu", MeasurementPart::Blue},
    Word{"azul", MeasurementPart::Blue},
    Word{"blu", MeasurementPart::Blue},
    Word{"蓝", MeasurementPart::Blue},
    Word{"藍", MeasurementPart::Blue},
    Word{"white", MeasurementPart::White},
    Word{"w", MeasurementPart::White},
    Word{"weiß", MeasurementPart::White},
    Word{"weiss", MeasurementPart::White},
    Word{"blanc", MeasurementPart::White},
    Word{"blanco", MeasurementPart::White},
    Word{"bianco", MeasurementPart::White},
    Word{"branco", MeasurementPart::White},
    Word{"白", MeasurementPart::White},
    Word{"black", MeasurementPart::Black},
    Word{"k", MeasurementPart::Black},
    Word{"schwarz", MeasurementPart::Black},
    Word{"noir", MeasurementPart::Black},
    Word{"negro", MeasurementPart::Black},
    Word{"nero", MeasurementPart::Black},
    Word{"preto", MeasurementPart::Black},
    Word{"黑", MeasurementPart::Black},
};

//! Words that say nothing more of a colour than that it is the display's own.
const QStringList &fillers()
{
    static const QStringList all{QStringLiteral("full"), QStringLiteral("pure"), QStringLiteral("solid"),
        QStringLiteral("primary"), QStringLiteral("field"), QStringLiteral("screen"), QStringLiteral("patch"),
        QStringLiteral("level"), QStringLiteral("point"), QStringLiteral("pegel"), QStringLiteral("niveau"),
        QStringLiteral("nivel"), QStringLiteral("nível"), QStringLiteral("livello"), QStringLiteral("max"),
        QStringLiteral("ire"), QStringLiteral("pur"), QStringLiteral("puro"), QStringLiteral("plein"),
        QStringLiteral("champ"), QStringLiteral("écran"), QStringLiteral("voll"), QStringLiteral("vollbild"),
        QStringLiteral("pantalla")};
    return all;
}

bool isFiller(const QString &word)
{
    return fillers().contains(word);
}

//! "红", "红色", "红场", "纯红", "全红画面".
QString chineseCore(QString word)
{
    const QChar firstIdeograph(0x2E80);
    if (std::all_of(word.begin(), word.end(), [firstIdeograph](QChar c) { return c < firstIdeograph; })) {
        return word;
    }
    static const QStringList prefixes{QStringLiteral("全"), QStringLiteral("纯")};
    static const QStringList suffixes{
        QStringLiteral("画面"), QStringLiteral("场"), QStringLiteral("屏"), QStringLiteral("色")};
    for (const QString &prefix : prefixes) {
        if (word.startsWith(prefix)) {
            word.remove(0, prefix.size());
        }
    }
    for (const QString &suffix : suffixes) {
        if (word.endsWith(suffix)) {
            word.chop(suffix.size());
        }
    }
    return word;
}

MeasurementPart partOf(const QString &word)
{
    static const QHash<QString, MeasurementPart> parts = [] {
        QHash<QString, MeasurementPart> all;
        for (const Word &known : colorWords) {
            all.insert(QString::fromUtf8(known.text), known.part);
        }
        return all;
    }();
    return parts.value(chineseCore(word), MeasurementPart::None);
}

struct NumberToken {
    double value = 0.0;
    bool hasDecimals = false;
};

//! A name taken apart.
struct Tokens {
    QStringList words;
    QVector<NumberToken> numbers;
    QString signs; //!< every other character but white space
};

//! "12.5" and "12,5" are numbers; "255,0,0" is three.
int numberEnd(const QString &text, int begin)
{
    const auto digitsEnd = [&text](int index) {
        while (index < text.size() && text.at(index).isDigit()) {
            ++index;
        }
        return index;
    };
    const int whole = digitsEnd(begin);
    const auto isSign = [](QChar c) { return c == QLatin1Char('.') || c == QLatin1Char(','); };
    if (whole + 1 >= text.size() || !isSign(text.at(whole)) || !text.at(whole + 1).isDigit()) {
        return whole;
    }
    const int end = digitsEnd(whole + 1);
    return end < text.size() && isSign(text.at(end)) ? whole : end;
}

Tokens tokens(const QString &text)
{
    Tokens result;
    bool inList = false; // of numbers divided by commas
    for (int i = 0; i < text.size();) {
        const QChar c = text.at(i);
        int end = i + 1;
        if (c.isLetter()) {
            while (end < text.size() && text.at(end).isLetter()) {
                ++end;
            }
            result.words.append(text.mid(i, end - i));
        } else if (c >= QLatin1Char('0') && c <= QLatin1Char('9')) {
            end = numberEnd(text, i);
            if (inList) {
                end = i;
                while (end < text.size() && text.at(end).isDigit()) {
                    ++end;
                }
            }
            QString digits = text.mid(i, end - i);
            const bool hasDecimals = digits.contains(QLatin1Char(',')) || digits.contains(QLatin1Char('.'));
            digits.replace(QLatin1Char(','), QLatin1Char('.'));
            result.numbers.append({digits.toDouble(), hasDecimals});
            inList = end < text.size() && text.at(end) == QLatin1Char(',');
        } else if (!c.isSpace()) {
            result.signs += c;
        }
        i = end;
    }
    return result;
}

QString firstWord(const QString &text)
{
    const auto isLetter = [](QChar c) { return c.isLetter(); };
    const auto begin = std::find_if(text.begin(), text.end(), isLetter);
    const auto end = std::find_if_not(begin, text.end(), isLetter);
    return text.mid(int(begin - text.begin()), int(end - begin));
}

//! The drive of red, green and blue that a colour has at its full level.
std::array<bool, 3> driven(MeasurementPart part)
{
    const bool white = part == MeasurementPart::White;
    return {white || part == MeasurementPart::Red, white || part == MeasurementPart::Green,
        white || part == MeasurementPart::Blue};
}

//! Whether the three numbers are drive values of \a part at some level.
bool isDriveOf(const QVector<NumberToken> &numbers, MeasurementPart part, double level)
{
    const std::array<bool, 3> on = driven(part);
    for (int i = 0; i < 3; ++i) {
        if (numbers.at(i).value != (on[std::size_t(i)] ? level : 0.0)) {
            return false;
        }
    }
    return true;
}

std::optional<ColorLevel> levelOf(const Tokens &found, MeasurementPart part, bool &understood)
{
    const QVector<NumberToken> &numbers = found.numbers;
    const bool percent = found.signs.count(QLatin1Char('%')) == 1;
    understood = true;
    if (numbers.isEmpty() && !percent) {
        return std::nullopt;
    }
    if (numbers.size() == 1) {
        const NumberToken &number = numbers.first();
        return ColorLevel{number.value, percent ? std::make_optional(100.0) : std::nullopt, number.hasDecimals};
    }
    if (numbers.size() == 2 && found.signs.contains(QLatin1Char('/')) && !percent && numbers.at(1).value > 0.0) {
        return ColorLevel{numbers.at(0).value, numbers.at(1).value, numbers.at(0).hasDecimals};
    }
    if (numbers.size() == 3 && !percent) {
        const auto largest = std::max_element(numbers.begin(), numbers.end(),
            [](const NumberToken &a, const NumberToken &b) { return a.value < b.value; });
        if (isDriveOf(numbers, part, largest->value)) {
            return ColorLevel{largest->value, std::nullopt, largest->hasDecimals};
        }
    }
    understood = false;
    return std::nullopt;
}

} // namespace

ColorName colorName(const QString &name)
{
    if (name.size() > longestName) {
        return {};
    }
    const QString text = name.normalized(QString::NormalizationForm_KC).toLower();
    const QString first = firstWord(text);
    if (partOf(first) == MeasurementPart::None && !isFiller(first)) {
        return {}; // as most points of a long list
    }
    const Tokens found = tokens(text);
    static const QString harmlessSigns = QStringLiteral("%/()[]@-_:=,;");
    if (!std::all_of(found.signs.begin(), found.signs.end(), [](QChar c) { return harmlessSigns.contains(c); })) {
        return {};
    }
    ColorName result;
    for (const QString &word : found.words) {
        if (isFiller(word)) {
            continue;
        }
        const MeasurementPart part = partOf(word);
        if (part == MeasurementPart::None || result.part != MeasurementPart::None) {
            return {}; // an unknown word, or two colours
        }
        result.part = part;
    }
    if (result.part == MeasurementPart::None) {
        return {};
    }
    bool understood = false;
    result.level = levelOf(found, result.part, understood);
    return understood ? result : ColorName{};
}

std::optional<double> commonFullLevel(const QVector<ColorLevel> &levels)
{
    double largest = 0.0;
    bool hasDecimals = false;
    for (const ColorLevel &level : levels) {
        if (!level.full) {
            largest = std::max(largest, level.value);
            hasDecimals = hasDecimals || level.hasDecimals;
        }
    }
    if (largest == 1.0 && hasDecimals) {
        return largest;
    }
    for (const double scale : {100.0, 255.0, 1023.0, 4095.0, 65535.0}) {
        if (largest == scale) {
            return scale;
        }
    }
    return std::nullopt;
}

MeasurementPart playedPart(const ColorName &name, const std::optional<double> &common)
{
    const std::optional<double> full = name.level && name.level->full ? name.level->full : common;
    const bool isFull = !name.level || (full && name.level->value == *full);
    // "5000 K" is a colour temperature.
    const bool plays = name.part == MeasurementPart::Black ? !name.level || name.level->value == 0.0 : isFull;
    return plays ? name.part : MeasurementPart::None;
}

QVector<MeasurementPart> possibleParts(const QString &beginning)
{
    const QString word = chineseCore(beginning.simplified().toLower().section(QLatin1Char(' '), -1));
    const auto beginsFiller = [&word](const QString &filler) { return filler.startsWith(word); };
    const bool isAny = word.isEmpty() || std::any_of(fillers().begin(), fillers().end(), beginsFiller);
    const MeasurementPart named = colorName(beginning).part;
    QVector<MeasurementPart> parts;
    for (const MeasurementPart part : {MeasurementPart::Red, MeasurementPart::Green, MeasurementPart::Blue,
             MeasurementPart::White, MeasurementPart::Black}) {
        const bool beginsColor = std::any_of(colorWords.begin(), colorWords.end(),
            [&](const Word &known) { return known.part == part && QString::fromUtf8(known.text).startsWith(word); });
        if (isAny || beginsColor || part == named) {
            parts.append(part);
        }
    }
    return parts;
}

} // namespace gamutfiles
