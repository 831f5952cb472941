// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_DISPLAYDESCRIPTION_H
#define GAMUTFILES_DISPLAYDESCRIPTION_H

#include <gamutfiles/displaywall.h>
#include <gamutfiles/gamutfiles_export.h>
#include <gamutfiles/luminanceunit.h>
#include <gamutmodel/colorgamut.h>

#include <QHash>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>
#include <vector>

namespace gamutfiles {

/*! \brief A point of the CIE 1931 x, y diagram, with or without a name. */
struct NamedPoint {
    QString name; //!< empty when it has none
    QPointF xy; //!< CIE 1931 x, y
};

/*! \brief The name of \a gamut to the last character: a byte order mark at its beginning is kept. */
GAMUTFILES_EXPORT QString nameOf(const Model::ColorGamut &gamut);

/*!
 * \brief Whether every primary of \a gamut is a chromaticity that light can have by its numbers: x >= 0, y > 0 and
 * x + y <= 1.
 *
 * Colour spaces may have others, such as ACES2065-1, whose blue has y < 0 and therefore a luminance below 0. They serve
 * as declared gamut and as standards, and may play no part at all, but no display shows or is meant to show them: not
 * as original, measured or target.
 */
GAMUTFILES_EXPORT bool hasRealPrimaries(const Model::Targets &gamut);

/*! \brief A gamut of a display, with what its luminances mean. */
class DisplayGamut : public Model::ColorGamut {
public:
    using ColorGamut::ColorGamut;
    /*! \brief \a gamut, whose luminances are in \a luminanceUnit. */
    DisplayGamut(const Model::ColorGamut &gamut, LuminanceUnit luminanceUnit = LuminanceUnit::NotKnown)
        : ColorGamut(gamut)
        , unit(luminanceUnit)
    {
    }

    /*! \brief The same under another name, which is stored as UTF-8. */
    GAMUTFILES_EXPORT DisplayGamut renamed(const QString &name) const;

    LuminanceUnit unit = LuminanceUnit::NotKnown; //!< of all luminances
    /*!
     * \brief The light at drive 0 of the display that the gamut is of; nothing where it was not measured.
     *
     * It is in each of the four colours as well. A black whose Y is 0 has no light, whatever its x and y.
     */
    std::optional<Model::Target> black;
    /*!
     * \brief The luminance at drive 0, above 0, where its chromaticity is not known, as it can be too dark to measure
     * it; nothing where there is a black.
     */
    std::optional<double> blackLuminance;
};

/*! \brief Whether both blacks are not known, or have the same Y, x and y. */
GAMUTFILES_EXPORT bool sameBlacks(const std::optional<Model::Target> &a, const std::optional<Model::Target> &b);

/*!
 * \brief What is known of one display: its gamuts, which part each of them plays, and points to mark.
 *
 * A plain value. docs/display-description.md describes the file that it is read from; numbers are kept as the
 * doubles nearest to what the file says.
 */
struct DisplayDescription {
    QString name; //!< of the display
    QString notes; //!< where the numbers come from, and other remarks

    std::vector<DisplayGamut> gamuts; //!< with names of their own, each once
    // The parts are played by name: a gamut of the list above, or else a published one. An empty name: not known.
    QString original; //!< what the display can show
    QString declared; //!< what the display says of itself in an EDID or an ICC profile
    QString measured; //!< what a meter measured
    QString target; //!< what the display is meant to show
    QStringList standards; //!< gamuts to compare with, each once

    QVector<NamedPoint> colorTemperaturePoints; //!< whites to mark
    QVector<NamedPoint> measurePoints; //!< measured colours to mark
    QVector<NamedPoint> cmyPoints; //!< cyan, magenta and yellow, in this order

    DisplayWall wall; //!< the cabinets of an LED wall; no cabinets: not known

    /*!
     * \brief The gamut that \a gamutName stands for: the description's own, or else the published gamut of exactly
     * that name (Model::publishedGamuts()); nothing when there is neither.
     */
    GAMUTFILES_EXPORT std::optional<DisplayGamut> gamut(const QString &gamutName) const;

    /*!
     * \brief Where each gamut of the description's own stands in the list, by name; of equal names the first.
     *
     * For many look-ups: each of gamut() without it goes through the whole list. It holds until the list changes.
     */
    GAMUTFILES_EXPORT QHash<QString, int> gamutPlaces() const;
    /*! \brief gamut() of \a gamutName, by the \a places that gamutPlaces() has given. */
    GAMUTFILES_EXPORT std::optional<DisplayGamut> gamut(
        const QString &gamutName, const QHash<QString, int> &places) const;

    /*!
     * \brief The description's own gamut of exactly that name; null without one.
     *
     * It is valid until the list of gamuts changes.
     */
    GAMUTFILES_EXPORT const DisplayGamut *ownGamut(const QString &gamutName) const;
    /*! \brief The same, to be changed. */
    GAMUTFILES_EXPORT DisplayGamut *ownGamut(const QString &gamutName);
    /*! \brief Removes ownGamut() from the list, but from no part; whether there was one. */
    GAMUTFILES_EXPORT bool removeOwnGamut(const QString &gamutName);

    /*! \brief The gamuts to compare with: the description's standards, then the other ones of Model::standardGamuts().
     */
    GAMUTFILES_EXPORT std::vector<DisplayGamut> allStandards() const;
    /*! \brief The names of allStandards(), by the \a places that gamutPlaces() has given. */
    GAMUTFILES_EXPORT QStringList standardNames(const QHash<QString, int> &places) const;
};

} // namespace gamutfiles

#endif // GAMUTFILES_DISPLAYDESCRIPTION_H
