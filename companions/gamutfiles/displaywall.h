// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_DISPLAYWALL_H
#define GAMUTFILES_DISPLAYWALL_H

#include <gamutfiles/gamutfiles_export.h>
#include <gamutfiles/luminanceunit.h>

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/wall.h>

#include <QString>

#include <optional>
#include <vector>

namespace gamutfiles {

/*! \brief What was measured of one cabinet of a wall. */
struct WallCabinet {
    QString name; //!< as the wall's owner calls it; empty when it is known by row and column only
    std::optional<int> row; //!< counted downwards; from which number does not matter
    std::optional<int> column; //!< counted to the right; from which number does not matter
    Model::Target red; //!< the red primary at full drive
    Model::Target green; //!< the green primary at full drive
    Model::Target blue; //!< the blue primary at full drive
    std::optional<Model::Target> white; //!< all three at full drive; nothing where it was not measured
    std::optional<Model::Target> black; //!< the light at drive 0; nothing where it was not measured
    /*!
     * \brief The luminance at drive 0, above 0, where its chromaticity is not known; nothing where there is a black.
     */
    std::optional<double> blackLuminance;
    bool isLeftOut = false; //!< whether the wall is judged without it, by the wish of its owner

    /*! \brief How people call it: its name, row and column as "3/4", or both, "A 3/4". */
    GAMUTFILES_EXPORT QString label() const;
};

/*! \brief A cabinet of which too little was measured for its gamut: all that is known is that it is there. */
struct IncompleteCabinet {
    QString name; //!< as WallCabinet::name
    std::optional<Model::GridPosition> position; //!< row and column, as those of WallCabinet; nothing: not known
    QString reason; //!< what its measurements lack, in English and in one line, as files state it; not empty
};

/*! \brief The cabinets of a wall. */
struct DisplayWall {
    LuminanceUnit unit = LuminanceUnit::NotKnown; //!< of all luminances
    std::vector<WallCabinet> cabinets; //!< each label() once; empty: the display is not a wall, or it was not measured
    /*!
     * \brief Further cabinets of the wall, of which nothing can be said; none without \a cabinets.
     *
     * Their incompleteLabel() and their positions differ from each other and from those of all \a cabinets.
     */
    std::vector<IncompleteCabinet> incomplete;

    /*! \brief The cabinets as the maths of gamutmodel reads them, in the same order. */
    GAMUTFILES_EXPORT std::vector<Model::Cabinet> modelCabinets() const;
};

/*! \brief How people call a cabinet: \a name, its place as "3/4" where both are known, or both, "A 3/4". */
GAMUTFILES_EXPORT QString cabinetLabel(
    const QString &name, const std::optional<int> &row, const std::optional<int> &column);

/*! \brief How people call \a cabinet, as WallCabinet::label(). */
GAMUTFILES_EXPORT QString incompleteLabel(const IncompleteCabinet &cabinet);
/*!
 * \brief Its reason for people: in the language of the interface where it is one that wallFromMeasurements() gives, and
 * as it is otherwise.
 */
GAMUTFILES_EXPORT QString incompleteReasonText(const IncompleteCabinet &cabinet);

} // namespace gamutfiles

#endif // GAMUTFILES_DISPLAYWALL_H
