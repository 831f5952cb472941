// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLASSESSMENTTEXTS_H
#define GAMUTVIEWER_WALLASSESSMENTTEXTS_H

#include "display/wallassessment.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <array>
#include <cstddef>
#include <vector>

/*!
 * \file
 * \brief How cabinets are called, and what is said of them.
 */
namespace gamutviewer {

/*! \brief The texts of assessments of walls, of whatever file. */
struct WallText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::WallAssessment)
};

constexpr std::size_t describedCabinets = 3; //!< with a line or a name of their own, where there are many

/*! \brief \a text with a full stop. */
QString sentence(const QString &text);
/*! \brief "F9: the primaries span no triangle.". */
QString ofCabinets(const QString &names, const QString &text);

/*! \brief How \a cabinet of \a wall is called, on one line: by its name where no other has it, else by its label. */
QString cabinetName(const DisplayWall &wall, std::size_t cabinet);
/*! \brief The same of one of DisplayWall::incomplete. */
QString cabinetName(const DisplayWall &wall, const IncompleteCabinet &cabinet);
/*! \brief The same of all cabinets, without the incomplete ones. */
std::vector<QString> cabinetNames(const DisplayWall &wall);
/*! \brief "F9, C4 and A1". */
QString namesOf(const DisplayWall &wall, const std::vector<std::size_t> &cabinets);

/*! \brief What \a assessment says of \a cabinet in a sentence, with its name: "F9: white reaches 938.0 cd/m² only." */
QString cabinetText(
    const DisplayWall &wall, const DisplayGamut &target, const WallAssessment &assessment, std::size_t cabinet);

/*! \brief "blue by Δu′v′ 0.0021" of what offByBlack() gives; empty where the black keeps off no colour. */
QString offByBlackText(const std::array<double, 4> &offByBlack);

/*!
 * \brief Of which cabinets primaries seem to be named for each other, and what to do: "A3: red and green seem to be
 * exchanged. …". Empty where they seem right.
 */
QStringList exchangeTexts(const DisplayWall &wall);

/*!
 * \brief How far measured whites are off the sums of the primaries at the most, so that what the \a cabinets show with
 * corrections is known no better; empty where that cannot be seen.
 */
QString offSumText(const DisplayWall &wall, const WallAssessment &assessment, const std::vector<std::size_t> &cabinets);

/*!
 * \brief That dark content is not judged, where a black of \a cabinets is so bright that it shifts a tenth of a colour
 * of the target by more than visibleUv, and the cabinet where that is most; empty otherwise.
 */
QString darkContentText(
    const DisplayWall &wall, const WallAssessment &assessment, const std::vector<std::size_t> &cabinets);

/*!
 * \brief That the luminances of the primaries of \a target do not mix to its white, and which of those of \a mixed,
 * which is the target with some white, corrections are for; empty where they mix to it, or none are stated.
 */
QString mixtureText(const DisplayGamut &target, const Model::Targets &mixed);

/*! \brief What \a common lacks for a target: "A1 and C7 have no colour in common"; empty when it is an area. */
QString commonGamutProblem(const DisplayWall &wall, const Model::CommonGamut &common);

/*! \brief Why a target cannot be fitted, and what to do; empty without a fault. */
QString fitProblem(const DisplayWall &wall, const WallAssessment &assessment);

} // namespace gamutviewer

#endif
