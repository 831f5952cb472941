// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_GAMUTFILE_H
#define GAMUTFILES_GAMUTFILE_H

#include <gamutfiles/displaydescription.h>
#include <gamutfiles/measurementlist.h>
#include <gamutfiles/outcome.h>

#include <QStringList>
#include <QVector>

namespace gamutfiles {

/*! \brief Something that a file says of a display besides its gamut, in words. */
struct DisplayFact {
    QString name; //!< what it is, for example "desired maximum luminance of content"; translated
    QString value; //!< with its unit, for example "993 cd/m²"
};

/*! \brief What a file brings: a whole description, or something to add to one. */
struct GamutFile {
    /*! \brief Which of the members below is set. */
    enum class Content {
        Description, //!< \a description, from a display description
        DeclaredGamut, //!< \a gamut, from an ICC profile or an EDID
        Measurements //!< \a measurements, from a measurement list
    };

    Content content = Content::Description; //!< what there is
    QString name; //!< of the file, without folder and suffix
    DisplayDescription description; //!< empty unless content says so
    DisplayGamut gamut; //!< named after the monitor of an EDID or the description of an ICC profile, or else the file
    /*!
     * \brief With a declared gamut: the display that the file says it is of, by the monitor name of an EDID or by the
     * "EDID_model" of an ICC profile's metadata.
     *
     * Empty when it does not say. The description of a profile names the profile.
     */
    QString displayName;
    QVector<DisplayFact> facts; //!< with a declared gamut: what else the ICC profile or the EDID says
    MeasurementList measurements; //!< empty unless content says so
};

/*! \brief Longer files are refused unread. */
constexpr int maximumFileBytes = 32 * 1024 * 1024;

/*!
 * \brief Reads the file \a fileName, of whichever format its content is: display description (JSON), measurement list
 * (CSV), ICC profile or EDID, which may be a text with its bytes as hexadecimal digits.
 *
 * \a fileName may be "-" for standard input. \a options are for a measurement list; nothing else heeds them. Neither
 * the failure nor the warnings name the file; Problem::message() does.
 */
GAMUTFILES_EXPORT Outcome<GamutFile> readGamutFile(
    const QString &fileName, const MeasurementOptions &options = MeasurementOptions());

/*! \brief What GamutFile::name is for the file \a fileName: its name without folder and suffix, or "standard input". */
GAMUTFILES_EXPORT QString nameByFile(const QString &fileName);

/*! \brief File name patterns for a dialog, such as "*.json", of every format that readGamutFile() reads. */
GAMUTFILES_EXPORT QStringList gamutFilePatterns();

} // namespace gamutfiles

#endif // GAMUTFILES_GAMUTFILE_H
