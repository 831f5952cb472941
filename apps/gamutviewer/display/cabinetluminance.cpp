// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/cabinetluminance.h"

#include "display/additivity.h"
#include "display/assessmentparts.h"
#include "display/chromaticity.h"
#include "display/knowndisplay.h"

#include <gamutmodel/nearestinside.h>

#include <algorithm>
#include <iterator>

namespace gamutviewer {

namespace {

using Vertex = ceiechart::GamutVertex;

//! The first primary that lies inside and is brighter in the target than \a drive says that the cabinet reaches.
std::optional<Vertex> tooBrightPrimary(const Model::TargetDrive &drive, const std::array<double, 4> &outside)
{
    const std::pair<Vertex, Model::Drive> drives[]
        = {{Vertex::Red, drive.red}, {Vertex::Green, drive.green}, {Vertex::Blue, drive.blue}};
    for (const auto &[primary, needed] : drives) {
        if (outside[std::size_t(primary)] == 0.0 && highest(needed) > fullDrive) {
            return primary;
        }
    }
    return std::nullopt;
}

} // namespace

CabinetLuminance::CabinetLuminance(const WallCabinet &cabinet, const Model::DisplayDrive &drive,
    const Model::Targets &target, const MeasuredWhites &others)
    : m_drive(drive)
    , m_target(target)
    , m_sum(drive.largestLuminance(pointOf(target.white)))
    , m_isWhiteMeasured(cabinet.white.has_value())
{
    if (!cabinet.white) {
        m_isAdditive = others.areAdditive;
        m_isUpperBound = others.haveUpperBounds;
        m_measured = others.leastShare;
        return;
    }
    const Model::Target &white = *cabinet.white;
    const Additivity additivity = additivityOf(drive, white);
    m_isAdditive = additivity.isAdditive;
    m_isUpperBound = additivity.isUpperBound;
    if (m_isAdditive) {
        m_offSum = OffSum{white.Y / additivity.sum.Y - 1.0, Model::uvDifference(white, additivity.sum).value_or(0.0)};
        m_measured = measuredShare(drive, white, target.white);
    } else if (white.Y > 0.0 && isMeasuredWhite(white, target.white)) {
        m_measuredWhite = white.Y;
    }
}

void CabinetLuminance::reach(CabinetAssessment &result) const
{
    result.isAdditive = m_isAdditive;
    if (m_isAdditive) {
        result.offSum = m_offSum;
    }
    if (!m_sum) {
        return; // the white is outside
    }
    if (m_isAdditive) {
        result.largestWhite = m_sum->luminance * m_measured;
        if (!result.limit) {
            result.limit = vertexOf(m_sum->limit);
        }
    } else {
        result.largestWhite = m_measuredWhite;
    }
    const auto measured = m_isWhiteMeasured ? result.largestWhite : std::nullopt;
    result.notTooBright = m_isUpperBound
        ? std::make_optional(std::min(m_sum->luminance, measured.value_or(m_sum->luminance)))
        : measured;
}

std::optional<double> CabinetLuminance::correctable() const
{
    return m_sum
        ? std::make_optional(std::min(m_sum->luminance * shareOfSum(), m_measuredWhite.value_or(m_sum->luminance)))
        : std::nullopt;
}

void CabinetLuminance::judge(CabinetAssessment &result) const
{
    if (result.largestWhite) {
        result.headroom = *result.largestWhite / m_target.white.Y;
    }
    const auto needed = m_sum ? m_drive.driveFor(m_target) : std::nullopt;
    if (!needed) {
        return;
    }
    const bool isKnown = m_isWhiteMeasured && result.largestWhite;
    const auto most = isKnown ? result.largestWhite : result.notTooBright;
    if (m_isUpperBound) {
        result.tooBright = tooBrightPrimary(*needed, result.outside);
    }
    if (result.tooBright || (most && isTooBright(m_target.white.Y, *most))) {
        result.luminance = Judgement::Fail;
    } else if (m_isAdditive && !(result.largestWhite && isTooBright(m_target.white.Y, *result.largestWhite))) {
        result.luminance = Judgement::Pass;
    }
}

} // namespace gamutviewer
