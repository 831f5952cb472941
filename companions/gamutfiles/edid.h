// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_EDID_H
#define GAMUTFILES_EDID_H

#include <gamutfiles/displaydescription.h>
#include <gamutfiles/outcome.h>

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QStringList>

#include <optional>

namespace gamutfiles {

/*!
 * \brief The luminances that a display asks content to keep to, in cd/m² (CTA-861-G, 7.5.13, HDR static metadata).
 *
 * They are meant for the mapping of content: what the display makes of them is its own affair, and many reach the
 * maximum only on a small part of the screen. They are therefore never the luminance of the display's white.
 */
struct EdidContentLuminance {
    std::optional<double> maximum; //!< desired content maximum: 50 * 2^(code / 32)
    std::optional<double> maximumFrameAverage; //!< desired maximum of a frame's average: 50 * 2^(code / 32)
    std::optional<double> minimum; //!< desired content minimum: maximum * (code / 255)^2 / 100
};

/*!
 * \brief The luminances of the display itself, in cd/m² (VESA DisplayID 2.0, display parameters data block, 0x21).
 *
 * They are what the display states, not what was measured. A white of 0 counts as not stated; so does a black of 0
 * without any white.
 */
struct EdidNativeLuminance {
    std::optional<double> fullScreen; //!< of a white on the whole screen
    std::optional<double> tenPercent; //!< of a white rectangle on 10 % of the screen
    std::optional<double> minimum; //!< of black
    bool guaranteed = false; //!< whether the display states that it reaches them at least
};

/*! \brief CIE 1931 chromaticities of a display's primaries and white. */
struct EdidChromaticities {
    QPointF red; //!< x, y of the red primary
    QPointF green; //!< x, y of the green primary
    QPointF blue; //!< x, y of the blue primary
    QPointF white; //!< x, y of the white point
};

/*! \brief What an EDID says of a display and its colours. What it does not say is empty. */
struct EdidDisplay {
    /*!
     * \brief The declared gamut, named after the monitor, in the ten bits of the base block; that of a DisplayID
     * extension only if the base block has no primaries.
     *
     * The primaries mix to the white. Its luminance is the native one of the whole screen, in cd/m², if a DisplayID 2
     * extension guarantees it; otherwise luminances are relative to a white of 1.
     */
    DisplayGamut gamut;
    QString name; //!< of the monitor
    QString manufacturer; //!< three letters that identify the maker
    std::optional<int> manufactureYear; //!< when the unit was made
    std::optional<int> modelYear; //!< of the model, which a maker may state instead
    std::optional<double> gamma; //!< of the transfer function: DisplayID's, or else that of the base block
    bool srgbIsDefault = false; //!< whether the base block says that sRGB is the default colour space

    EdidContentLuminance contentLuminance; //!< of a CTA-861 extension
    EdidNativeLuminance nativeLuminance; //!< of the first data block of a DisplayID 2 extension that states them
    //! Of the first data block of a DisplayID extension that states them, twelve bits each.
    std::optional<EdidChromaticities> displayIdChromaticities;
    /*!
     * \brief The colour signals that the display takes besides its default, by the names of CTA-861-H, 7.5.5, for
     * example "BT2020RGB"; what it makes of them is not said.
     */
    QStringList colorimetries;
    QStringList transferFunctions; //!< that the display takes, for example "SMPTE ST 2084" (CTA-861-G, 7.5.13)
};

/*! \brief Whether \a bytes begin with the header of an EDID base block. */
GAMUTFILES_EXPORT bool isEdid(const QByteArray &bytes);

/*!
 * \brief Reads an EDID: the base block (VESA E-EDID 1.4, section 3) and, of its extensions, CTA-861 and DisplayID.
 *
 * Only the base block decides on success. An extension that is missing, damaged or has an entry longer than its block
 * gives a warning that names the block and the byte, counted from 0 within it, and what was read before stays. Other
 * kinds of extensions are skipped.
 *
 * A gamut that is legal but hardly measured gives a warning, too: one that is exactly a standard's, primaries that no
 * light has, two statements that contradict each other. A primary with x + y above 1 by less than 0.001, as the
 * rounding to ten bits can make it, is read with x = 1 - y and a warning.
 */
GAMUTFILES_EXPORT Outcome<EdidDisplay> readEdidDisplay(const QByteArray &bytes);

/*! \brief EdidDisplay::gamut of readEdidDisplay(), with the same warnings. */
GAMUTFILES_EXPORT Outcome<DisplayGamut> readEdid(const QByteArray &bytes);

/*! \brief Longer texts are not searched for an EDID. */
constexpr int maximumHexDumpBytes = 1024 * 1024;

/*!
 * \brief The bytes of the first EDID that \a text holds as hexadecimal digits, as programs print them that list
 * displays. A failure if there is none; a warning if there are others.
 *
 * The digits may have spaces, tabs, commas, 0x and line ends between them, and stand on lines of their own or behind an
 * address, "00000010:" for example. An EDID ends at the first line that has anything else.
 */
GAMUTFILES_EXPORT Outcome<QByteArray> edidFromHexDump(const QByteArray &text);

} // namespace gamutfiles

#endif // GAMUTFILES_EDID_H
