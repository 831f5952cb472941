// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLSCALE_H
#define GAMUTVIEWER_WALLSCALE_H

#include "display/wallassessment.h"

#include <QColor>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>
#include <vector>

namespace gamutviewer {

/*! \brief What a map of a wall is coloured by. */
enum class WallQuantity {
    UvBefore, //!< Δu′v′ between the white without a correction and the target's
    UvAfter, //!< the same with the correction
    Luminance, //!< the largest luminance of the target's white
    Headroom, //!< the room above the luminance of the target's white
    Limit //!< the colour that limits the cabinet
};

/*! \brief All of them, in the order in which they are offered. */
constexpr WallQuantity allWallQuantities[] = {WallQuantity::UvBefore, WallQuantity::UvAfter, WallQuantity::Luminance,
    WallQuantity::Headroom, WallQuantity::Limit};

/*! \brief A few words for a button: "white Δu′v′". */
QString wallQuantityName(WallQuantity quantity);
/*! \brief What is shown, in a sentence without a full stop. */
QString wallQuantityDescription(WallQuantity quantity);

/*! \brief What of \a quantity is known of \a cabinet, as a number; nothing for WallQuantity::Limit. */
std::optional<double> wallValue(const CabinetAssessment &cabinet, WallQuantity quantity);
/*! \brief The same as people read it, "+9 %"; undefinedText() where it is not known. */
QString wallValueText(const CabinetAssessment &cabinet, WallQuantity quantity);

/*!
 * \brief What a map of the wall of \a assessment, which may be null, is coloured by unless somebody chooses: the
 * headroom, or where it is known of no cabinet, the luminance, or else Δu′v′ of the white.
 */
WallQuantity usualQuantity(const WallAssessment *assessment);

/*!
 * \brief The colours of a quantity: few steps of even width, the outer ones open to all that is beyond.
 *
 * The colours are the sequential schemes "Oranges" and "Blues" of ColorBrewer 2.0 (C. Brewer, M. Harrower and The
 * Pennsylvania State University), which people with any of the common colour vision deficiencies tell apart. Orange is
 * worse, blue is better. Limits have the hues of the vermillion, bluish green and blue of M. Okabe and K. Ito, "Color
 * Universal Design" (2008), in luminances that are told apart without any colour, each at least 1.5 times the one below
 * with what a screen reflects, as WCAG 2.1 counts contrast.
 */
class WallScale {
public:
    /*! \brief A step of the scale. */
    struct Step {
        QColor color; //!< of the cabinets in it
        QString lower; //!< where it begins, as text; empty for one that is open to below; a limit's name
    };

    /*! \brief No colours. */
    WallScale() = default;
    /*! \brief The scale for \a quantity of all of \a cabinets, in luminances of \a unit. */
    WallScale(WallQuantity quantity, const std::vector<CabinetAssessment> &cabinets, LuminanceUnit unit);

    WallQuantity quantity() const { return m_quantity; } //!< what is shown
    /*! \brief The colour of \a cabinet; invalid where the quantity is not known. */
    QColor color(const CabinetAssessment &cabinet) const;
    const QVector<Step> &steps() const { return m_steps; } //!< from the least to the largest
    QString unitText() const { return m_unit; } //!< the unit of the numbers; empty for none

private:
    WallQuantity m_quantity = WallQuantity::Headroom;
    double m_first = 0.0; // where the second step begins
    double m_width = 1.0; // of a step
    QVector<Step> m_steps;
    QString m_unit;
};

} // namespace gamutviewer

#endif
