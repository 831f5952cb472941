// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_GB18030_P_H
#define GAMUTFILES_GB18030_P_H

#include <QByteArray>
#include <QString>

#include <optional>

namespace gamutfiles {

/*! \brief A text converted by the operating system. */
struct ConvertedText {
    bool available = true; //!< whether the system knows the encoding
    std::optional<QString> text; //!< nothing when the bytes are not text of this encoding
};

/*!
 * \brief Converts GB18030 text. Qt Core has no converter for it since version 6, so the operating system's is used.
 */
ConvertedText fromGb18030(const QByteArray &bytes);

} // namespace gamutfiles

#endif
