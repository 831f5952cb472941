// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_EDIDBLOCK_P_H
#define GAMUTFILES_EDIDBLOCK_P_H

#include <gamutfiles/edid.h>

#include <QByteArray>
#include <QString>

namespace gamutfiles {

/*! \brief What colord reads from the base block of an EDID. */
struct EdidBlock {
    QString name; //!< of the monitor, or else what identifies it
    QString manufacturer; //!< three letters
    EdidChromaticities colors; //!< all 0 where the block does not state them
};

/*!
 * \brief Reads \a block, a base block with the right header and checksum.
 *
 * There are two implementations, of which a build contains one: edidblock.cpp, and edidblocknotread.cpp without colord,
 * which refuses every block.
 */
Outcome<EdidBlock> readEdidBlock(const QByteArray &block);

} // namespace gamutfiles

#endif
