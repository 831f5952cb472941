// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_TEXTENCODING_P_H
#define GAMUTFILES_TEXTENCODING_P_H

#include <gamutfiles/measurementoptions.h>
#include <gamutfiles/outcome.h>

#include <QByteArray>
#include <QString>

namespace gamutfiles {

/*! \brief A text and how it was stored. */
struct DecodedText {
    QString text; //!< without a byte order mark and null characters
    TextEncoding encoding = TextEncoding::Utf8;
};

/*!
 * \brief The text in \a bytes, stored as \a encoding says, or else as the bytes tell.
 *
 * A byte order mark decides; then the null bytes of UTF-16; then what is valid UTF-8 is taken as such. What remains is
 * GB18030 when most of its characters above ASCII would be common Chinese ones, and Windows-1252 otherwise; a warning
 * says so when both are possible. Refused is what is not text: invalid sequences, null characters, and in
 * an encoding that was guessed also other control characters.
 */
Outcome<DecodedText> decodeText(const QByteArray &bytes, std::optional<TextEncoding> encoding = {});

/*! \brief Whether \a text can be stored as it is: without null characters, and with no half of a surrogate pair. */
bool isStorable(const QString &text);

/*! \brief The name of \a encoding, for example "UTF-8". */
QString encodingName(TextEncoding encoding);

} // namespace gamutfiles

#endif
