// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ASSESSMENT_H
#define GAMUTVIEWER_ASSESSMENT_H

#include "display/knowndisplay.h"

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/drive.h>

#include <QString>
#include <QVector>

#include <memory>
#include <optional>
#include <vector>

/*!
 * \file
 * \brief What can be said of a display and its target, and how sure it is. Panel, report and command line show this.
 */
namespace gamutviewer {

struct WallAssessment;

/*! \brief A judgement, and whether there is enough to judge by. */
enum class Judgement {
    Pass, //!< it holds
    Fail, //!< it does not hold
    NotKnown //!< something that it takes is not known
};

/*! \brief "✓", "✗" or "?". */
QString judgementMark(Judgement judgement);
/*! \brief "pass", "fail" or "not known", for programs: not translated. */
QString judgementName(Judgement judgement);

/*!
 * \brief Drives up to this count as full: the four decimals of a white point leave about 0.001 open. What is beyond
 * 1.002 by less than 1e-12 of it comes from the computation.
 */
constexpr double fullDrive = 1.002 * (1.0 + 1e-12);

/*! \brief One judgement with what it means and what to do about it. */
struct AssessmentLine {
    /*! \brief What is judged. */
    enum class Subject {
        Target, //!< whether there is a target to judge
        Display, //!< whether it is known what the display can show
        Gamut, //!< whether the display can show the chromaticities of the target
        Luminance, //!< whether it reaches the luminances of the target
        Wall, //!< whether the cabinets of the wall show the target
        Tolerance //!< whether what was measured is within a tolerance
    };

    Subject subject = Subject::Target;
    Judgement judgement = Judgement::NotKnown;
    QString text; //!< sentences, in the language of the interface
    std::optional<ceiechart::GamutVertex> vertex; //!< whose mark on the diagram shows it
    QString mark; //!< what that mark is, for people; empty when nothing on the diagram shows it
    std::optional<bool> isOfMeasured; //!< held against the measured gamut, or else the original; nothing for neither
};

/*! \brief What is known of how one gamut of the display is driven for the target. */
struct DriveAssessment {
    KnownDisplay display; //!< the gamut
    /*! \brief Whether the luminances of gamut and target can be compared: both are in cd/m². */
    bool luminancesCompare = false;
    /*! \brief The drives; nothing when they are not known. */
    std::optional<Model::TargetDrive> drive;
    /*! \brief Of the target's white, in the unit of the gamut; nothing when it is not known. */
    std::optional<Model::LargestLuminance> largestWhite;
};

/*! \brief All judgements of a description. */
struct Assessment {
    std::vector<DriveAssessment> displays; //!< what the target is held against: of knownDisplays()
    QVector<AssessmentLine> lines; //!< at least one
    std::shared_ptr<const WallAssessment> wall; //!< of the wall and the target; null if there is no wall or no target
    QString cabinet; //!< the only cabinet that is known, if the verdict is about that; empty: about the display

    /*! \brief Fail when a line fails, or else NotKnown when one is not known. */
    Judgement judgement() const;
    /*!
     * \brief All in one short sentence: "The display cannot show the target". Where only one cabinet is known, it says
     * no more of the display than of that cabinet.
     */
    QString headline() const;

private:
    QString cabinetHeadline() const;
};

/*!
 * \brief Judges \a description, and what was measured by \a tolerances where there are any.
 *
 * What all cabinets of a wall show, the display shows. Where it has an original or a measured gamut as well, all of
 * them have to show the target. While a measurement list \a needsChoice, what it says of the display is not known:
 * nothing passes.
 *
 * \param measuredCabinet the cabinet that the measured gamut is of, while others may follow; empty: it is of the
 * display
 */
Assessment assess(const DisplayDescription &description, const std::optional<Tolerances> &tolerances = std::nullopt,
    bool needsChoice = false, const QString &measuredCabinet = QString());

} // namespace gamutviewer

#endif
