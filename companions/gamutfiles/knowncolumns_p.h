// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_KNOWNCOLUMNS_P_H
#define GAMUTFILES_KNOWNCOLUMNS_P_H

#include "columnnames_p.h"

#include <array>

/*!
 * \file
 * \brief The words by which columns and units are recognised, for columnnames.cpp alone.
 */
namespace gamutfiles {

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
    KnownName{"cor", ColumnPart::Name},
    KnownName{"campione", ColumnPart::Name},
    KnownName{"amostra", ColumnPart::Name},
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
    KnownName{"luminanza", ColumnPart::Luminance},
    KnownName{"luminância", ColumnPart::Luminance},
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

    KnownName{"unit", ColumnPart::Unit},
    KnownName{"units", ColumnPart::Unit},
    KnownName{"einheit", ColumnPart::Unit},
    KnownName{"unité", ColumnPart::Unit},
    KnownName{"unidad", ColumnPart::Unit},
    KnownName{"unità", ColumnPart::Unit},
    KnownName{"unidade", ColumnPart::Unit},
    KnownName{"单位", ColumnPart::Unit},

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

} // namespace gamutfiles

#endif
