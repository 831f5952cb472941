// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_TOLERANCES_H
#define GAMUTMODEL_TOLERANCES_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/diagram.h>
#include <gamutmodel/gamutmodel_export.h>

#include <optional>
#include <vector>

/*!
 * \file
 * \brief Limits for what a display shows of a target, and the judgement of values against them.
 *
 * The limits are the caller's: none is built in. What was not measured is judged as not known, never as passed.
 *
 * \code
 * Model::Tolerances limits;
 * limits.whiteUv = 0.004;
 * limits.coverage = 0.95;
 * Model::DeviationValues values = Model::deviations(measured.getTargets(), target.getTargets());
 * for (const Model::ToleranceResult &result : Model::judged(values, limits)) {
 *     print(result.subject, result.value, result.limit, result.verdict);
 * }
 * \endcode
 */
namespace Model {

/*! \brief Limits; those without a value are not judged. A value that is equal to its limit passes. */
struct Tolerances {
    std::optional<double> whiteUv; //!< the largest Δu'v' of the white
    std::optional<double> primariesUv; //!< the largest Δu'v' of each primary
    /*! \brief The largest deviation of the white's luminance, as a part of the target's: 0.1 is ±10 %. */
    std::optional<double> luminance;
    std::optional<double> temperature; //!< the largest difference of the white's colour temperature in kelvin
    std::optional<double>
        coverage; //!< the smallest part of the target's area that is covered: 0.95 is 95 %; state its diagram
};

/*! \brief How far what is shown deviates from a target; what is not known has no value. */
struct DeviationValues {
    std::optional<double> whiteUv; //!< Δu'v' of the white
    std::optional<double> redUv; //!< Δu'v' of the red primary
    std::optional<double> greenUv; //!< Δu'v' of the green primary
    std::optional<double> blueUv; //!< Δu'v' of the blue primary
    std::optional<double> luminance; //!< luminance of the white, divided by that of the target's, less 1: -0.1 is -10 %
    std::optional<double> temperature; //!< colour temperature of the white less that of the target's, in kelvin
    std::optional<double> coverage; //!< the part of the target's area that is covered, from 0 to 1
};

/*! \brief Whether the luminances of two records can be compared. */
enum class LuminanceUnits {
    Same, //!< both are in the same unit
    Different //!< one is relative and the other absolute, or it is not known
};

/*!
 * \brief The deviations of \a shown from \a target, as far as the records tell them.
 *
 * - Δu'v' as uvDifference() gives it, also where it is not known.
 * - The luminance only with LuminanceUnits::Same, and if both whites have a luminance above 0.
 * - The coverage of the target's area by \a shown in \a diagram; not known if the Δu'v' of a primary is not, or if the
 *   target has no area.
 *
 * The difference of colour temperatures is left to the caller, who has the function that computes them.
 */
GAMUTMODEL_EXPORT DeviationValues deviations(const Targets &shown, const Targets &target,
    LuminanceUnits units = LuminanceUnits::Different, Diagram diagram = Diagram::Cie1976);

/*! \brief What a limit is for. */
enum class ToleranceSubject { WhiteUv, RedUv, GreenUv, BlueUv, Luminance, Temperature, Coverage };

/*! \brief The judgement of a value. */
enum class ToleranceVerdict {
    Passed, //!< within the limit
    Failed, //!< beyond the limit
    NotKnown //!< the value is not known or not a number, or the limit is no limit: negative or not a number
};

/*! \brief A value that was judged against a limit. */
struct ToleranceResult {
    ToleranceSubject subject = ToleranceSubject::WhiteUv; //!< what was judged
    std::optional<double> value; //!< the value, with its sign; nothing if it is not known
    double limit = 0.0; //!< the limit: the largest magnitude, or the smallest coverage
    ToleranceVerdict verdict = ToleranceVerdict::NotKnown; //!< the judgement
};

/*!
 * \brief Judges \a values against \a limits: a result for each limit that is set, in the order of ToleranceSubject. The
 * limit for primaries has three results.
 *
 * Magnitudes are compared, except for the coverage. A value beyond its limit by less than 1e-9 of it is there by
 * rounding and passes.
 */
GAMUTMODEL_EXPORT std::vector<ToleranceResult> judged(const DeviationValues &values, const Tolerances &limits);

/*!
 * \brief The verdict of all \a results: Failed if one failed, else NotKnown if one is not known or if there is none,
 * else Passed.
 */
GAMUTMODEL_EXPORT ToleranceVerdict overallVerdict(const std::vector<ToleranceResult> &results);

} // namespace Model

#endif // GAMUTMODEL_TOLERANCES_H
