// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_CABINETLUMINANCE_H
#define GAMUTVIEWER_CABINETLUMINANCE_H

#include "display/wallassessment.h"

#include <gamutmodel/drive.h>

#include <algorithm>
#include <optional>

namespace gamutviewer {

/*! \brief What the measured whites of a wall say of the cabinets whose white was not measured. */
struct MeasuredWhites {
    bool areAdditive = true;
    bool haveUpperBounds = true; //!< Additivity::isUpperBound
    double leastShare = 1.0; //!< the least CabinetLuminance::shareOfSum() of those that are additive
};

/*! \brief What is known of the luminances of a cabinet of a wall. */
class CabinetLuminance {
public:
    /*!
     * \param drive that of the cabinet, without a fault; it and \a target must outlive this
     * \param others of the cabinets whose white was measured
     */
    CabinetLuminance(const WallCabinet &cabinet, const Model::DisplayDrive &drive, const Model::Targets &target,
        const MeasuredWhites &others);

    /*! \brief The luminance of the white as a part of what the primaries add to, at most 1. */
    double shareOfSum() const { return std::min(m_measured, 1.0); }
    /*! \brief Whether the cabinet shows no more than the sum of its primaries. */
    bool isUpperBound() const { return m_isUpperBound; }
    /*!
     * \brief The luminance of the target's white that a correction can be for: what the primaries add to, and no more
     * than the cabinet reaches. Nothing for a white outside of its gamut.
     */
    std::optional<double> correctable() const;

    /*! \brief Sets what the cabinet reaches. */
    void reach(CabinetAssessment &result) const;
    /*! \brief Judges it for a target whose luminances compare. reach() must have set what \a result reaches. */
    void judge(CabinetAssessment &result) const;

private:
    const Model::DisplayDrive &m_drive;
    const Model::Targets &m_target;
    const std::optional<Model::LargestLuminance> m_sum;
    const bool m_isWhiteMeasured;
    bool m_isAdditive = true;
    bool m_isUpperBound = true; // also of what is additive
    std::optional<OffSum> m_offSum;
    double m_measured = 1.0; // the luminance that was measured as a part of the sum
    std::optional<double> m_measuredWhite; // at the white of the target, where the sum does not tell it
};

} // namespace gamutviewer

#endif
