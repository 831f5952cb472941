// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTMODEL_EXCHANGEDPRIMARIES_H
#define GAMUTMODEL_EXCHANGEDPRIMARIES_H

#include <gamutmodel/colorgamut.h>
#include <gamutmodel/drive.h>
#include <gamutmodel/gamutmodel_export.h>

#include <optional>

/*!
 * \file
 * \brief Whether the primaries of a display seem to be named for each other, as after a mistake in a list or a cable.
 *
 * The gamut of such a display is that of any other, as its triangle is the same. Its drives are exchanged.
 *
 * \code
 * if (const auto seeming = Model::exchangedPrimaries(cabinet.colors)) {
 *     // what is called red seems to be seeming->red
 * }
 * \endcode
 */
namespace Model {

/*! \brief What the primaries that are called red, green and blue seem to be: each primary once. */
struct SeemingPrimaries {
    Primary red = Primary::Red; //!< what is called red
    Primary green = Primary::Green; //!< what is called green
    Primary blue = Primary::Blue; //!< what is called blue

    /*! \brief What is called \a primary. */
    Primary of(Primary primary) const
    {
        return primary == Primary::Red ? red : primary == Primary::Green ? green : blue;
    }
};

/*!
 * \brief What the primaries of \a display seem to be if that is not what they are called. Nothing if it is, if it is
 * not clear, or if a chromaticity is not known.
 *
 * Each primary is held against those of Rec.709 (ITU-R BT.709-6), which lie in the middle of what people call red,
 * green and blue, in u', v'. One that is exchanged has to lie less than half as far from the primary that it seems to
 * be as from that of its name, and one that is not has to be nearest to that of its name. Those of displays lie far
 * closer to their own: half way between two of them there are none.
 */
GAMUTMODEL_EXPORT std::optional<SeemingPrimaries> exchangedPrimaries(const Targets &display);

} // namespace Model

#endif // GAMUTMODEL_EXCHANGEDPRIMARIES_H
