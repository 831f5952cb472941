// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_JSON_P_H
#define GAMUTFILES_JSON_P_H

#include <QByteArray>
#include <QJsonDocument>
#include <QString>
#include <QVector>

namespace gamutfiles {

/*! \brief A line and a column, both counted from 1; a column is one Unicode code point. */
struct TextPosition {
    int line = 1;
    int column = 1;
};

/*! \brief Where the byte at \a offset of \a utf8 stands. A byte order mark takes no column. */
TextPosition textPosition(const QByteArray &utf8, int offset);

/*! \brief A text read as JSON. */
struct ParsedJson {
    QJsonDocument document; //!< null when the text is not a JSON object or array
    QString error; //!< why it is null
    TextPosition position; //!< where the first thing stands that is not JSON
};

/*! \brief A key that an object has more than once. */
struct RepeatedKey {
    QString key;
    TextPosition position; //!< of its last place
};

/*! \brief The first \a most keys that objects in \a utf8, which is JSON, have more than once. */
QVector<RepeatedKey> repeatedKeys(const QByteArray &utf8, int most);

/*! \brief Reads \a utf8, with or without a byte order mark. */
ParsedJson parseJson(const QByteArray &utf8);

} // namespace gamutfiles

#endif
